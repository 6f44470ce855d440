// Where the starter kit and the user's files are on this machine.
#pragma once

#include "app/editor.h"

namespace velk {

// The folder of the starter kit: installed beside the program, or in the build tree. Empty when there is
// none.
std::filesystem::path FindKit();

// Velk's home for this run; on a first start the kit is copied there.
EditorPlace FindPlace();

}  // namespace velk
