// What New, Open and Close do once their questions are answered.
#pragma once

#include "documents/door.h"

namespace velk {

// Caption of the box that refuses to open a map.
inline constexpr const char* kCannotOpen = "Velk - Cannot Open";
inline constexpr const char* kCannotMake = "Velk - Cannot Open New Map";

// Another map is shown, or none: every window shows something else.
Outcome MapShown(std::string status);

// False with a message box when no further map can be opened; `caption` is the box's.
bool HasRoom(const Services& services, const Documents& documents, const char* caption);

// Each leaves the list as it was when it fails, and then tells why; the outcome says nothing.
Outcome OpenNewMap(const Services& services, Documents& documents, Door& door);
Outcome OpenFile(const Services& services, Documents& documents, Door& door, const std::string& path);
// The same for files that nobody chose in a dialog just now: a map that is open already is shown.
Outcome ShowFile(const Services& services, Documents& documents, Door& door, const std::string& path);
// Opens a map of the list of recent ones; one that is gone leaves it.
Outcome OpenRecent(const Services& services, Documents& documents, Door& door, int index);

Outcome SwitchTo(Documents& documents, int index);
Outcome CloseDocument(Documents& documents, int index);

}  // namespace velk
