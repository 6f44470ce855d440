// Whole-file loading and safe replacement.
#pragma once

#include <cstdint>
#include <filesystem>
#include <string>
#include <string_view>

#include "base/paths.h"

namespace velk {

// Tells the states of a file apart: once it was written or replaced, its stamp is another.
struct FileStamp {
  bool exists = false;
  std::uint64_t device = 0;
  std::uint64_t inode = 0;
  std::int64_t size = 0;
  std::int64_t seconds = 0;  // of the last change
  std::int64_t nanoseconds = 0;
  friend bool operator==(const FileStamp&, const FileStamp&) = default;
  // Whether both are of one file, changed or not.
  bool sameFile(const FileStamp& other) const {
    return exists && other.exists && device == other.device && inode == other.inode;
  }
};
// Links are followed.
FileStamp StampOf(const std::filesystem::path& file);

// A file's contents (any bytes, NUL included), or why there are none. Only regular files of up to 1 GiB
// are read.
struct ReadResult {
  bool ok = true;
  bool opened = true;  // false: missing, unreadable, too large, a folder, a device
  std::string reason;  // the system's text or the message of the read failure, empty when ok
  std::string contents;
};
ReadResult ReadFile(const std::filesystem::path& file);

// The contents of a file that must be there. Fatal: "Error opening %s: %s" with the name as given and
// the reason, "(Big) file read failure", "File read failure".
std::string LoadFile(const Paths& paths, std::string_view name);
// The same with a message of the caller's own, taken as it stands, when the file cannot be opened.
std::string LoadFileOr(const Paths& paths, std::string_view name, const std::string& openFailure);

// Outcome of a write: ok, or the step that failed and the reason.
struct WriteResult {
  bool ok = true;
  bool opened = true;  // false: not even the new file could be made, or the old one may not be replaced
  std::string reason;  // the system's text, empty when ok
  FileStamp stamp{};   // of the new file, when ok
};

// Replaces the file as a whole: writes a new file beside it, flushes it to disk and renames it over, so
// that a full disk, a kill or a power cut leaves the old file or the new one. Symbolic links are followed;
// the mode of an existing file is kept, and its owner where the system allows it. A file that is
// marked read-only or may not be written is refused, and so is anything but a regular file. New files that
// killed editors left beside it are removed on the way.
WriteResult ReplaceFile(const std::filesystem::path& file, std::string_view contents);

}  // namespace velk
