// The editor's file paths and the native ones behind them.
//
// Paths in settings, maps and prompts keep the form in which they were given: `\` and `/` both separate,
// and a drive letter may lead. Only when a file is touched is the path turned into a native one.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>

namespace velk {

class Paths {
 public:
  // dataFolder holds one folder per drive letter ("c:\backup.map" is "<dataFolder>/c/backup.map").
  explicit Paths(std::filesystem::path dataFolder = {}) : dataFolder_(std::move(dataFolder)) {}

  const std::filesystem::path& dataFolder() const { return dataFolder_; }

  // The native path of `path`: backslashes become slashes, a drive letter maps into the data folder.
  // A name that does not exist as written is looked for without regard to letter case, folder by
  // folder; folders and names that are not found stay as written.
  std::filesystem::path native(std::string_view path) const;

  // Where a file of that name is written: the folder as native() finds it, the name as given.
  std::filesystem::path forWriting(std::string_view path) const;

  bool exists(std::string_view path) const;

  // The path made independent of the working directory: one that begins with a separator or a drive letter
  // stays as given, another becomes the native path.
  std::string absolute(const std::string& path) const;

 private:
  std::filesystem::path dataFolder_;
};

// The part after the last separator.
std::string FileNamePart(std::string_view path);
// The part up to and including the last separator; empty when there is none.
std::string DirectoryPart(std::string_view path);
// `directory` with a '\' appended when it ends in no separator; an empty one stays empty.
std::string WithSeparator(std::string_view directory);

}  // namespace velk
