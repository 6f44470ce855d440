#include "documents/recent.h"

#include <algorithm>

#include "base/ini_file.h"
#include "base/text.h"

namespace velk {
namespace {

constexpr const char* kSection = "Recent";
constexpr size_t kLongestLabel = 60;

std::string KeyOf(int index) { return Format("map%i", index + 1); }

std::vector<std::string> PathsIn(const IniFile& ini) {
  std::vector<std::string> paths;
  for (int i = 0; i < RecentMaps::kMax; ++i) {
    std::string path = ini.string(kSection, KeyOf(i), "");
    if (!path.empty()) paths.push_back(std::move(path));
  }
  return paths;
}

// The end of a long path, from a separator on where one is near.
std::string Shortened(const std::string& path) {
  if (path.size() <= kLongestLabel) return path;
  const size_t cut = CutText(path, path.size() - kLongestLabel).size();
  const size_t separator = path.find_first_of("/\\", cut);
  const bool near = separator < path.size() - kLongestLabel / 2;
  return "\u2026" + path.substr(near ? separator : cut);
}

}  // namespace

void RecentMaps::keepIn(std::filesystem::path stateFile) {
  file_ = std::move(stateFile);
  paths_ = PathsIn(IniFile::Load(file_));
}

std::string RecentMaps::at(int index) const {
  return index >= 0 && index < count() ? paths_[static_cast<size_t>(index)] : "";
}

// The list is read again first, since other editors change it too.
void RecentMaps::change(const std::function<void(Paths&)>& make) {
  if (file_.empty()) return;
  IniFile ini = IniFile::Load(file_);
  Paths changed = PathsIn(ini);
  make(changed);
  if (changed.size() > kMax) changed.resize(kMax);
  for (int i = 0; i < kMax; ++i) {
    const auto slot = static_cast<size_t>(i);
    const std::string path = slot < changed.size() ? changed[slot] : "";
    if (ini.string(kSection, KeyOf(i), "") != path) ini.set(kSection, KeyOf(i), path);
  }
  paths_ = std::move(changed);
  ini.save(file_);
}

void RecentMaps::add(const std::string& path) {
  if (path.find_first_of("\r\n") != path.npos) return;  // no form in the file
  change([&](Paths& paths) {
    std::erase(paths, path);
    paths.insert(paths.begin(), path);
  });
}

void RecentMaps::remove(const std::string& path) {
  change([&](Paths& paths) { std::erase(paths, path); });
}

void RecentMaps::clear() {
  change([](Paths& paths) { paths.clear(); });
}

std::string RecentMapLabel(int index, const std::string& path) {
  std::string label = Format("&%i ", index + 1);
  for (const char c : Shortened(path)) {
    if (c == '&') label += '&';
    label += static_cast<unsigned char>(c) < ' ' ? '?' : c;
  }
  return label;
}

}  // namespace velk
