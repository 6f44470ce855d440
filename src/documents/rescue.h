// Safety copies: where a running editor puts its backup and its rescue copies, apart from other editors'.
#pragma once

#include <filesystem>
#include <string>
#include <vector>

namespace velk {

struct RescueCopy {
  std::filesystem::path file;
  std::string original;  // path of the map, as given
};

// The folder that all editors of a user share. Each running editor holds one numbered place in it by a file
// lock, which the system gives up when the editor ends, however it ends.
class RescueFolder {
 public:
  // Makes the folder where it is missing. When that fails there is no place and nothing is kept.
  explicit RescueFolder(const std::filesystem::path& folder);
  ~RescueFolder();
  RescueFolder(const RescueFolder&) = delete;
  RescueFolder& operator=(const RescueFolder&) = delete;

  bool held() const { return lock_ >= 0; }
  // "backup.map" for the first editor, "backup2.map" for the second...
  std::filesystem::path backupFile() const;
  // Of one of the editor's maps, 0..9.
  std::filesystem::path copyFile(int index) const;

  // The copies that editors left behind which run no more; they are this editor's from now on.
  std::vector<RescueCopy> claim();
  // Puts a copy aside under a name that is not claimed again; the new file.
  std::filesystem::path putAside(const RescueCopy& copy) const;

  // The first line of a copy, and what such a line says.
  static std::string header(const std::string& original);
  static std::string originalOf(const std::filesystem::path& file);

 private:
  bool hold(int number);
  void adopt(int from, std::vector<RescueCopy>& found) const;

  std::filesystem::path folder_;
  int number_ = 0;
  int lock_ = -1;
};

}  // namespace velk
