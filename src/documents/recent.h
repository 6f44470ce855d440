// The maps last opened or saved, the latest first, kept between runs.
#pragma once

#include <filesystem>
#include <functional>
#include <string>
#include <vector>

namespace velk {

class RecentMaps {
 public:
  static constexpr int kMax = 9;

  // From now on the list is the one in section [Recent] of this file, which editors at work share. Until
  // then nothing is listed and nothing kept.
  void keepIn(std::filesystem::path stateFile);

  int count() const { return static_cast<int>(paths_.size()); }
  // "" outside the range.
  std::string at(int index) const;

  // A path goes to the top; it stands in the list once.
  void add(const std::string& path);
  void remove(const std::string& path);
  void clear();

 private:
  using Paths = std::vector<std::string>;
  void change(const std::function<void(Paths&)>& make);

  std::filesystem::path file_;  // empty: nothing is kept
  Paths paths_;
};

// As a menu shows it: numbered with a mnemonic, long folders cut from the front.
std::string RecentMapLabel(int index, const std::string& path);

}  // namespace velk
