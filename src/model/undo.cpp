#include "model/undo.h"

#include <algorithm>

namespace velk {
namespace {

bool isSame(const std::weak_ptr<const void>& a, const std::weak_ptr<const void>& b) {
  return !a.expired() && !a.owner_before(b) && !b.owner_before(a);
}

entity* findEntity(map& m, const std::weak_ptr<const void>& identity) {
  for (entity& e : m.entities()) {
    if (isSame(identity, e.identity())) return &e;
  }
  return nullptr;
}

int findBrush(entity& e, const std::weak_ptr<const void>& identity) {
  for (int i = 0; i < e.numbrushes(); ++i) {
    if (isSame(identity, e.at(i)->identity())) return i;
  }
  return -1;
}

// The brush that a copy of one brush is made of; none stands for the whole map.
brush* brushFor(map& m, UndoMode mode, brush* working) {
  if (mode == UndoMode::Working) return working && working->owner ? working : nullptr;
  if (mode != UndoMode::Selection || m.selectedCount() != 1) return nullptr;
  brush* selected = m.firstSelected();
  return selected && selected->owner ? selected : nullptr;
}

}  // namespace

std::unique_ptr<UndoHistory::OneBrush> UndoHistory::keepOne(brush& b) {
  auto kept = std::make_unique<OneBrush>();
  kept->owner = KeepBrush(*b.owner, b);
  kept->liveOwner = b.owner->identity();
  kept->liveBrush = b.identity();
  return kept;
}

void UndoHistory::restoreOne(map& m, const OneBrush& kept) {
  entity* owner = findEntity(m, kept.liveOwner);
  if (!owner) {
    m.addobject(RestoreEntity(m, kept.owner));
    return;
  }
  std::unique_ptr<brush> copy = RestoreBrush(*owner, kept.owner.pages.front()->front());
  const int live = findBrush(*owner, kept.liveBrush);
  if (live >= 0) {
    owner->replaceAt(live, std::move(copy));
  } else {
    owner->addobject(std::move(copy));
  }
}

void UndoHistory::push(Record record, int levels) {
  record.name = record.name.substr(0, kMaxName);
  redo_.clear();
  records_.push_back(std::move(record));
  limit(levels);
}

void UndoHistory::limit(int levels) {
  if (levels <= 1) redo_.clear();
  while (static_cast<int>(records_.size()) > std::max(levels, 1)) records_.pop_front();
}

void UndoHistory::save(map& m, const std::string& name, UndoMode mode, int levels, brush* working) {
  if (levels > 1 && mode != UndoMode::All) return;
  Record record{name, nullptr, nullptr, nullptr};
  if (mode == UndoMode::Groups) {
    record.groups = std::make_unique<GroupList>(m.groups);
  } else if (brush* one = brushFor(m, mode, working)) {
    record.one = keepOne(*one);
  } else {
    record.whole = std::make_unique<MapSnapshot>(TakeSnapshot(m, latest()));
  }
  push(std::move(record), levels);
}

void UndoHistory::changed(MapSnapshot before, const std::string& name, int levels) {
  push({name, std::make_unique<MapSnapshot>(std::move(before)), nullptr, nullptr}, levels);
}

bool UndoHistory::undo(map& m, int levels) {
  if (records_.empty()) return false;
  Record record = std::move(records_.back());
  records_.pop_back();
  if (levels > 1) {
    auto now = std::make_unique<MapSnapshot>(TakeSnapshot(m, record.whole.get()));
    redo_.push_back({record.name, std::move(now), nullptr, nullptr});
  }
  if (record.whole) RestoreSnapshot(m, *record.whole, levels <= 1);
  if (record.one) restoreOne(m, *record.one);
  if (record.groups) m.groups = *record.groups;
  if (!record.whole) m.modified = true;
  m.notify(MapNotice::Groups);
  return true;
}

bool UndoHistory::redo(map& m) {
  if (redo_.empty()) return false;
  Record record = std::move(redo_.back());
  redo_.pop_back();
  auto now = std::make_unique<MapSnapshot>(TakeSnapshot(m, record.whole.get()));
  records_.push_back({record.name, std::move(now), nullptr, nullptr});
  RestoreSnapshot(m, *record.whole, false);
  return true;
}

}  // namespace velk
