#pragma once

#include <filesystem>
#include <fstream>
#include <iterator>
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
  ~TempFolder() {
    std::error_code ignored;
    std::filesystem::permissions(path_, std::filesystem::perms::owner_all, ignored);
    std::filesystem::remove_all(path_, ignored);
  }
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
  std::string read(const std::string& name) const {
    std::ifstream in(path_ / name, std::ios::binary);
    return {std::istreambuf_iterator<char>(in), {}};
  }
  // How many files and folders lie directly in it.
  std::ptrdiff_t entries() const {
    return std::distance(std::filesystem::directory_iterator(path_), std::filesystem::directory_iterator());
  }

 private:
  std::filesystem::path path_;
};

}  // namespace velk::test
