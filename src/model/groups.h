// The groups of a map: every brush carries the number of one.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "base/colour.h"

namespace velk {

struct group {
  std::string name;  // at most 63 characters
  bool visible = true;
  Colour colour;
  int brushCount = 0;  // filled in on demand, never saved

  // The count apart.
  bool operator==(const group& other) const {
    return name == other.name && visible == other.visible && colour == other.colour;
  }
};

// Group 0 always exists and is named "None" in a new list.
class GroupList {
 public:
  static constexpr int kMaxGroups = 256;
  static constexpr int kMaxName = 63;

  GroupList();

  int count() const { return static_cast<int>(groups_.size()); }
  const group& at(int index) const { return groups_[static_cast<size_t>(index)]; }

  // Leaves group 0 alone in the list.
  void clear();
  // Appends a visible black group and returns its index; a 257th is fatal "Group:  Too many groups %i".
  int add(std::string_view name);
  // First group of exactly that name, or -1.
  int find(std::string_view name) const;
  // The last record moves into the freed slot. Group 0 alone cannot go.
  void remove(int index);
  void rename(int index, std::string_view name);
  void setVisible(int index, bool visible);
  bool visible(int index) const;  // false outside the list
  void setColour(int index, Colour colour);
  Colour colour(int index) const;  // white outside the list
  void setBrushCount(int index, int count);

  // What the group filter asks of a brush's group number: negative ones count as visible, those beyond
  // the list as not visible.
  bool passes(int number) const { return number < 0 || visible(number); }

  bool operator==(const GroupList&) const = default;

 private:
  bool has(int index) const { return index >= 0 && index < count(); }

  std::vector<group> groups_;
};

}  // namespace velk
