// Operations on the groups of a map and the brushes in them. Those that change what would be saved mark the
// map modified; indices outside the list do nothing.
#pragma once

#include "model/map.h"

namespace velk {

// Leaves group 0 alone; all brushes belong to it.
void ClearGroups(map& m);
// Brushes of the group go to group 0; those of the last group take the freed index with its record.
void DeleteGroup(map& m, int index);
// Brushes of group `from` go to group `to`.
void ReassignGroup(map& m, int from, int to);
// Selects every brush of the group.
void SelectAllInGroup(map& m, int index);
// Makes the group visible and all others not, or every group.
void ShowOnlyGroup(map& m, int index);
void ShowAllGroups(map& m);
// Fills in the brush count of every group.
void CountGroupBrushes(map& m);

}  // namespace velk
