#include "model/history.h"

#include <algorithm>

namespace velk {
namespace {

bool IsSame(const std::weak_ptr<const void>& a, const std::weak_ptr<const void>& b) {
  return !a.expired() && !a.owner_before(b) && !b.owner_before(a);
}

entity* FindEntity(map& m, const std::weak_ptr<const void>& identity) {
  for (entity& e : m.entities()) {
    if (IsSame(identity, e.identity())) return &e;
  }
  return nullptr;
}

int FindBrush(entity& e, const std::weak_ptr<const void>& identity) {
  for (int i = 0; i < e.numbrushes(); ++i) {
    if (IsSame(identity, e.at(i)->identity())) return i;
  }
  return -1;
}

// The brush that a copy of one brush is made of; none stands for the whole map.
brush* BrushFor(map& m, UndoMode mode, brush* working) {
  if (mode == UndoMode::Working) return working && working->owner ? working : nullptr;
  if (mode != UndoMode::Selection || m.selectedCount() != 1) return nullptr;
  brush* selected = m.firstSelected();
  return selected && selected->owner ? selected : nullptr;
}

}  // namespace

std::unique_ptr<History::OneBrush> History::keepOne(brush& b) {
  auto kept = std::make_unique<OneBrush>();
  kept->owner = KeepBrush(*b.owner, b);
  kept->liveOwner = b.owner->identity();
  kept->liveBrush = b.identity();
  return kept;
}

void History::restoreOne(map& m, const OneBrush& kept) {
  entity* owner = FindEntity(m, kept.liveOwner);
  if (!owner) {
    m.addobject(RestoreEntity(m, kept.owner));
    return;
  }
  std::unique_ptr<brush> copy = RestoreBrush(*owner, kept.owner.pages.front()->front());
  const int live = FindBrush(*owner, kept.liveBrush);
  if (live >= 0) {
    owner->replaceAt(live, std::move(copy));
  } else {
    owner->addobject(std::move(copy));
  }
}

void History::push(Record record, const Limits& limits) {
  record.name = record.name.substr(0, kMaxName);
  redo_.clear();
  // What the newest level has of its own is known once the next one comes; till then it cannot go anyway.
  if (limits.megabytes > 0 && !records_.empty() && records_.back().whole && record.whole) {
    records_.back().bytes = BytesOfItsOwn(*records_.back().whole, *record.whole);
  }
  records_.push_back(std::move(record));
  limit(limits);
}

size_t History::bytes() const {
  size_t sum = 0;
  for (const Record& record : records_) sum += record.bytes;
  for (const Record& record : redo_) sum += record.bytes;
  return sum;
}

void History::limit(const Limits& limits) {
  if (limits.levels <= 1) redo_.clear();
  while (undoCount() > std::max(limits.levels, 1)) records_.pop_front();
  if (limits.megabytes <= 0) return;
  const size_t most = size_t(limits.megabytes) << 20;
  size_t kept = bytes();
  while (kept > most && records_.size() > 1) {
    kept -= records_.front().bytes;
    records_.pop_front();
  }
}

History::Copy History::copyOf(map& m, UndoMode mode, brush* working) {
  Copy copy;
  Record& record = copy.record_;
  if (mode == UndoMode::Groups) {
    record.groups = std::make_unique<GroupList>(m.groups);
  } else if (brush* one = BrushFor(m, mode, working)) {
    record.one = keepOne(*one);
  } else {
    record.whole = std::make_unique<MapSnapshot>(TakeSnapshot(m));
  }
  return copy;
}

void History::keep(Copy copy, const std::string& name, const Limits& limits) {
  copy.record_.name = name;
  push(std::move(copy.record_), limits);
  close();
}

std::optional<History::Place> History::placeOfOne(map& m) const {
  if (records_.empty() || !records_.back().one) return std::nullopt;
  const OneBrush& kept = *records_.back().one;
  entity* owner = FindEntity(m, kept.liveOwner);
  if (!owner) return std::nullopt;
  return Place{m.indexOf(owner), FindBrush(*owner, kept.liveBrush)};
}

void History::followOne(map& m, const Place& place) {
  entity* owner = m.at(place.entity);
  if (!owner || records_.empty() || !records_.back().one) return;
  OneBrush& kept = *records_.back().one;
  kept.liveOwner = owner->identity();
  if (brush* b = place.brush >= 0 ? owner->at(place.brush) : nullptr) kept.liveBrush = b->identity();
}

void History::changed(MapSnapshot before, const std::string& name, const Limits& limits) {
  push({.name = name,
        .whole = std::make_unique<MapSnapshot>(std::move(before)),
        .one = nullptr,
        .groups = nullptr},
       limits);
  open_ = true;
}

History::Record History::present(const map& m, const Record& record) {
  auto now = std::make_unique<MapSnapshot>(TakeSnapshot(m));
  const size_t bytes = record.whole ? BytesOfItsOwn(*now, *record.whole) : 0;
  return {.name = record.name, .whole = std::move(now), .one = nullptr, .groups = nullptr, .bytes = bytes};
}

bool History::undo(map& m, const Limits& limits) {
  if (records_.empty()) return false;
  close();
  Record record = std::move(records_.back());
  records_.pop_back();
  if (limits.levels > 1) redo_.push_back(present(m, record));
  if (record.whole) RestoreSnapshot(m, *record.whole, limits.levels <= 1);
  if (record.one) restoreOne(m, *record.one);
  if (record.groups) m.groups = *record.groups;
  if (!record.whole) m.modified = true;
  return true;
}

bool History::redo(map& m) {
  if (redo_.empty()) return false;
  close();
  Record record = std::move(redo_.back());
  redo_.pop_back();
  records_.push_back(present(m, record));
  RestoreSnapshot(m, *record.whole, false);
  return true;
}

}  // namespace velk
