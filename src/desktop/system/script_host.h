// Runs the editor by a script, without a window.
#pragma once

#include <string>
#include <vector>

namespace velk {

// Opens the maps and runs the script. The exit status: 0 done, 2 the script failed, with a message on
// standard error that names its line.
int RunScriptFile(const std::string& file, const std::vector<std::string>& maps);

}  // namespace velk
