// Copies of the selection: to and from the clipboard, which is a map of its own, and in place.
#pragma once

#include "model/map.h"

namespace velk {

// Where copies go: the clone offsets of the settings, the grid size in place of 0; z is 0.
vec3 PasteOffset(const Settings& settings);

bool AnySelected(const entity& e);

// Fills an empty clipboard with the selected brushes of the world and every other entity whose first brush
// is selected, all selected. Targets that are not copied with their entity are dropped from the copies.
void CopySelection(map& from, map& clipboard);

// Adds the clipboard's contents, selected, moved by `offset` and in the group. Target names "t<n>" are
// renumbered past the map's. Everything else is deselected; the current entity stays.
void PasteClipboard(map& to, map& clipboard, int group, const vec3& offset);

// Copies the selection in place, moved by `offset`: brushes of the world singly, entities whole. The copies
// take over the selection and the last of them the current entity.
void CloneSelection(map& m, const vec3& offset);

}  // namespace velk
