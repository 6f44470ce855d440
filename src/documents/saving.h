// Writing a map to its file, and what is asked before something would be lost by it.
#pragma once

#include <filesystem>
#include <optional>
#include <string>

#include "documents/documents.h"

namespace velk {

// Writes a map to its path, or to the one given, which becomes its own. Asks before it leaves out brushes or,
// unless `mayReplace` says that it was asked already, replaces a file that is not the one read. None when it
// was not written, with a message box if it could not be: the map then stays modified and keeps its name.
std::optional<Outcome> SaveDocument(const Services& services, Documents& documents, MapDocument& document,
                                    const std::string& path, bool mayReplace = false);

// Where a file of that name is written: as given, in a folder found without regard to letter case. Asks when
// a file stands there whose name differs in letter case only; none when the user would rather not.
std::optional<std::filesystem::path> WritePlace(const Services& services, const std::string& path);

// The copy that stood in for what is now saved or given up goes.
void DropRescueCopy(MapDocument& document);

}  // namespace velk
