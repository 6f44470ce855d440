#include "model/still_brushes.h"

#include <algorithm>

#include "model/snapshot.h"

namespace velk {
namespace {

bool Same(const ViewFilter& a, const ViewFilter& b) {
  return a.omitLights == b.omitLights && a.omitEntities == b.omitEntities && a.omitWorld == b.omitWorld &&
         a.omitWater == b.omitWater && a.omitClip == b.omitClip;
}

// False when the list of still brushes became another.
bool LookAt(const map& m, const entity& e, StillBrushes::Part& part) {
  bool same = true;
  size_t count = 0;
  part.moving.clear();
  part.firstSelected = nullptr;
  for (brush& b : e.brushes()) {
    if (b.selected() && !part.firstSelected) part.firstSelected = &b;
    if (!IsShown(m, b)) continue;
    if (!IsStill(b)) {
      part.moving.push_back({&b, static_cast<std::uint32_t>(count)});
      continue;
    }
    const bool asBefore =
        count < part.still.size() && part.still[count].shown == &b && part.still[count].shape == b.kept;
    if (!asBefore) {
      same = false;
      part.still.resize(count);
      part.still.push_back({&b, b.kept});
    }
    ++count;
  }
  same = same && count == part.still.size();
  part.still.resize(count);
  return same;
}

}  // namespace

bool StillBrushes::takeShowing(const map& m) {
  const Settings& settings = m.settings();
  if (showing_ && showing_->shown == &m && showing_->current == m.currentEntity() &&
      showing_->groupmode == settings.groupmode && Same(showing_->filter, settings.filter) &&
      showing_->groups == m.groups) {
    return false;
  }
  showing_ = Showing{&m, m.currentEntity(), settings.groupmode, settings.filter, m.groups};
  return true;
}

void StillBrushes::look(const map& m) {
  bool same = !takeShowing(m) && parts_.size() == static_cast<size_t>(m.numentities());
  if (!same) parts_.clear();
  parts_.resize(static_cast<size_t>(m.numentities()));
  std::uint32_t first = 0;
  for (size_t i = 0; i < parts_.size(); ++i) {
    Part& part = parts_[i];
    const entity& e = *m.at(static_cast<int>(i));
    const auto kept = e.changedSinceKept() ? nullptr : e.kept();
    if (part.owner != &e || !kept || part.kept != kept) {
      same = LookAt(m, e, part) && same && part.owner == &e;
      part.owner = &e;
      part.kept = kept;
    }
    part.first = first;
    first = part.end();
  }
  if (!same) ++generation_;
}

std::uint32_t StillBrushes::movingCount() const {
  std::uint32_t count = 0;
  for (const Part& part : parts_) count += static_cast<std::uint32_t>(part.moving.size());
  return count;
}

brush* StillBrushes::firstSelected() const {
  if (!showing_) return nullptr;
  brush* found = nullptr;
  for (const Part& part : parts_) {
    if (!part.firstSelected) continue;
    if (part.owner == showing_->current) return part.firstSelected;
    found = part.firstSelected;
  }
  return found;
}

}  // namespace velk
