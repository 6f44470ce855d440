#include "model/groups.h"

#include <algorithm>

#include "base/error.h"

namespace velk {
namespace {

std::string Shortened(std::string_view name) { return std::string(name.substr(0, GroupList::kMaxName)); }

}  // namespace

GroupList::GroupList() : groups_{{"None", true, {255, 255, 255}, 0}} {}

void GroupList::clear() { groups_.resize(1); }

int GroupList::add(std::string_view name) {
  if (count() >= kMaxGroups) Error("Group:  Too many groups %i", count());
  groups_.push_back({Shortened(name), true, {}, 0});
  return count() - 1;
}

int GroupList::find(std::string_view name) const {
  const auto found =
      std::find_if(groups_.begin(), groups_.end(), [&](const group& g) { return g.name == name; });
  return found == groups_.end() ? -1 : int(found - groups_.begin());
}

void GroupList::remove(int index) {
  if (count() <= 1 || !has(index)) return;
  if (index != count() - 1) groups_[size_t(index)] = std::move(groups_.back());
  groups_.pop_back();
}

void GroupList::rename(int index, std::string_view name) {
  if (has(index)) groups_[size_t(index)].name = Shortened(name);
}

void GroupList::setVisible(int index, bool visible) {
  if (has(index)) groups_[size_t(index)].visible = visible;
}

bool GroupList::visible(int index) const { return has(index) && groups_[size_t(index)].visible; }

void GroupList::setColour(int index, Colour colour) {
  if (has(index)) groups_[size_t(index)].colour = colour;
}

Colour GroupList::colour(int index) const {
  return has(index) ? groups_[size_t(index)].colour : Colour{255, 255, 255};
}

void GroupList::setBrushCount(int index, int count) {
  if (has(index)) groups_[size_t(index)].brushCount = count;
}

}  // namespace velk
