// Operations on groups that reach the brushes of a map. Each marks nothing modified; indices outside the list
// do nothing.
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
// Fills in the brush count of every group.
void CountGroupBrushes(map& m);

}  // namespace velk
