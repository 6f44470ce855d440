// Moving, copying and deleting the selection.
#pragma once

#include <memory>
#include <vector>

#include "base/outcome.h"
#include "model/map.h"

namespace velk {

inline constexpr char kCopyMoveTitle[] = "Copy / Move by Offset";
inline constexpr char kMovedSelection[] = "Moved selected brushes...";
inline constexpr char kCopiedSelection[] = "Copied and moved selected brushes...";
inline constexpr char kCopyMoveCancelled[] = "Couldn't create dialog!";
inline constexpr char kDeleting[] = "Deleting...";

// Moves the selected brushes of visible groups.
void MoveSelection(map& m, const vec3& offset);

// Moves the selection, or leaves it in place and puts clones of it, now selected, at that offset from what
// they were copied from. Without a selection says so. A map or entity that has no room for the clones is
// fatal as CloneSelection is.
Outcome CopyMoveSelection(map& m, const vec3& offset, bool moveOnly);
// Copies of what that would put there, in no list.
std::vector<std::unique_ptr<brush>> MovedCopies(map& m, const vec3& offset, bool moveOnly);

// Destroys the selected brushes of visible groups, entities other than the world with their last brush.
Outcome DeleteSelection(map& m);

}  // namespace velk
