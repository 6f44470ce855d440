// Notices leak files that a compiler writes beside a map.
#pragma once

#include <map>
#include <optional>
#include <string>
#include <vector>

#include "base/files.h"
#include "base/paths.h"

namespace velk {

// "e1m1.pts" and "e1m1.lin" beside "e1m1.map".
std::vector<std::string> LeakFilesOf(const std::string& mapPath);

class LeakWatch {
 public:
  // The map's leak file that appeared or changed since this was last asked about the map; none the first
  // time, nor when a file went.
  std::optional<std::string> changed(const Paths& paths, const std::string& mapPath);

 private:
  std::map<std::string, FileStamp> seen_;
};

}  // namespace velk
