#include "build/leak_watch.h"

namespace velk {

std::vector<std::string> LeakFilesOf(const std::string& mapPath) {
  const size_t name = DirectoryPart(mapPath).size();
  const size_t dot = mapPath.rfind('.');
  const std::string stem = mapPath.substr(0, dot == std::string::npos || dot < name ? mapPath.size() : dot);
  return {stem + ".pts", stem + ".lin"};
}

std::optional<std::string> LeakWatch::changed(const Paths& paths, const std::string& mapPath) {
  std::optional<std::string> found;
  for (const std::string& file : LeakFilesOf(mapPath)) {
    const FileStamp now = StampOf(paths.native(file));
    const auto [seen, first] = seen_.try_emplace(file, now);
    if (first || seen->second == now) continue;
    seen->second = now;
    if (now.exists && !found) found = file;
  }
  return found;
}

}  // namespace velk
