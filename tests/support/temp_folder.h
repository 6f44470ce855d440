// A folder of its own for a test, removed with all it holds.
#pragma once

#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <string_view>

#include <stdlib.h>

namespace velk::test {

class TempFolder {
 public:
  TempFolder() {
    std::string name = (std::filesystem::temp_directory_path() / "velk-test-XXXXXX").string();
    path_ = ::mkdtemp(name.data());
  }
  ~TempFolder() {
    std::error_code ignored;
    std::filesystem::permissions(path_, std::filesystem::perms::owner_all, ignored);
    std::filesystem::remove_all(path_, ignored);
  }
  TempFolder(const TempFolder&) = delete;
  TempFolder& operator=(const TempFolder&) = delete;

  const std::filesystem::path& path() const { return path_; }
  // As settings hold a directory.
  std::string directory() const { return path_.string() + "/"; }

  // Makes the file, and the folders above it, and returns its path.
  std::filesystem::path write(const std::string& name, std::string_view text) const {
    const std::filesystem::path file = path_ / name;
    std::filesystem::create_directories(file.parent_path());
    std::ofstream(file, std::ios::binary) << text;
    return file;
  }
  std::string read(const std::string& name) const {
    std::ifstream in(path_ / name, std::ios::binary);
    return {std::istreambuf_iterator<char>(in), {}};
  }
  // Files and folders directly in it.
  std::ptrdiff_t entries() const {
    return std::distance(std::filesystem::directory_iterator(path_), std::filesystem::directory_iterator());
  }

 private:
  std::filesystem::path path_;
};

}  // namespace velk::test
