// Whole-file loading and safe replacement.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>

#include "base/paths.h"

namespace velk {

// Reads a whole file. Failures are fatal: `openMessage` (a printf format that takes the shown name and
// the system's error text, in this order; the second may be left out), "(Big) file read failure",
// "File read failure".
std::string LoadFile(const Paths& paths, std::string_view name);
std::string LoadFileOr(const Paths& paths, std::string_view name, const std::string& openFailure);

// Outcome of a write: ok, or the step that failed and the system's reason.
struct WriteResult {
  bool ok = true;
  bool opened = true;     // false: not even the new file could be made
  std::string reason;     // the system's text, empty when ok
};

// Replaces the file as a whole: writes a new file beside it, flushes it to disk and renames it over, so
// that a full disk, a kill or a power cut leaves the old file or the new one. Symbolic links are followed
// and the mode of an existing file is kept; a file that may not be written is refused.
WriteResult ReplaceFile(const std::filesystem::path& file, std::string_view contents);

}  // namespace velk
