// Where the starter kit and the user's files are on this machine.
#pragma once

#include "app/place.h"

namespace velk {

// The folder of the starter kit: beside the program in the build tree, or where it was installed. Empty
// when there is none.
std::filesystem::path FindKit();

// Velk's home for this run; on a first start the kit is copied there.
EditorPlace FindEditorPlace();

// The map of the starter kit: the user's own copy, or the kit's when that is gone.
std::string KitMap(const EditorPlace& place);

}  // namespace velk
