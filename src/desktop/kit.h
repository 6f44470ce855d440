// Where the starter kit and the user's files are on this machine.
#pragma once

#include "app/place.h"

namespace velk {

// The folder of the starter kit: beside the program in the build tree, or where it was installed. Empty
// when there is none.
std::filesystem::path FindKit();

// Velk's home for this run; on a first start the kit is copied there.
EditorPlace FindEditorPlace();

}  // namespace velk
