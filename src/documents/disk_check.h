// The files of open maps in a world where others write them too.
#pragma once

#include "documents/door.h"

namespace velk {

// Looks whether the files of open maps changed and offers to read them again. To be called when something
// hints at it, while no dialog is open.
void CheckDisk(const Services& services, Documents& documents, Door& door);

}  // namespace velk
