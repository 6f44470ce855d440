// Programs that the editor starts: what for, and as the system is to start them.
#pragma once

#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "base/paths.h"
#include "settings/settings.h"

namespace velk {

// A program and what it is given, in the editor's paths.
struct Launch {
  std::string program;  // a path, or a plain name to be found in the compiler's folder and on the PATH
  std::vector<std::string> arguments;
  std::string directory;  // to work in
};

// The same in the system's.
struct NativeLaunch {
  std::string program;
  std::vector<std::string> arguments;
  std::string directory;
  std::vector<std::pair<std::string, std::string>> variables;  // added to the environment
};

// What the level is known by to the programs that make it.
struct BuildMap {
  std::string path;  // of the map's file, as given
  std::vector<std::string> wads;
};

// The map's file name without its directory, up to its first '.'.
std::string MapArgument(std::string_view path);

// The first of the names that is a file in the directory, as an editor path; the first name when none is. A
// name may be written in another case on disk.
std::string FindProgram(const Paths& paths, const std::string& directory,
                        const std::vector<std::string>& names);

// The names of a batch file: "super" is "super.bat" or "super.sh".
std::vector<std::string> BatchNames(std::string_view stem);

// One that is executable is started, another is given to `sh`. The environment tells what the kit's scripts
// need: VELK_MAP, the map's file, and VELK_COMPILER_DIRECTORY.
NativeLaunch NativeOf(const Paths& paths, const Settings& settings, const Launch& launch,
                      const BuildMap& map);

// "path" "argument" "directory", as scripts print it.
std::string LaunchText(const Launch& launch);

}  // namespace velk
