#pragma once

#include <filesystem>
#include <fstream>
#include <stdexcept>
#include <string>
#include <string_view>

#include <stdlib.h>

namespace velk::test {

// A folder of its own, removed at the end.
class TempFolder {
 public:
  TempFolder() {
    std::string name = (std::filesystem::temp_directory_path() / "velk-test-XXXXXX").string();
    if (!mkdtemp(name.data())) throw std::runtime_error("no temporary folder");
    path_ = name;
  }
  ~TempFolder() { std::filesystem::remove_all(path_); }
  TempFolder(const TempFolder&) = delete;
  TempFolder& operator=(const TempFolder&) = delete;

  const std::filesystem::path& path() const { return path_; }
  // As the settings hold directories.
  std::string directory(const std::string& sub = "") const { return (path_ / sub / "").string(); }

  // Writes a file, with its folders, and returns its path.
  std::string write(const std::string& name, std::string_view contents) const {
    const std::filesystem::path file = path_ / name;
    std::filesystem::create_directories(file.parent_path());
    std::ofstream(file, std::ios::binary) << contents;
    return file.string();
  }

 private:
  std::filesystem::path path_;
};

}  // namespace velk::test
