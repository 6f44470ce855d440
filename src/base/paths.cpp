#include "base/paths.h"

#include <algorithm>

#include "base/text.h"

namespace velk {
namespace {

namespace fs = std::filesystem;

bool IsSeparator(char c) { return c == '\\' || c == '/'; }

bool HasDrive(std::string_view path) {
  const char letter = path.empty() ? '\0' : path[0];
  return path.size() >= 2 && path[1] == ':' &&
         ((letter >= 'a' && letter <= 'z') || (letter >= 'A' && letter <= 'Z'));
}

// Links count even when they lead nowhere.
bool Present(const fs::path& path) {
  std::error_code ignored;
  return fs::exists(fs::symlink_status(path, ignored));
}

// The entry of `folder` whose name is `name` but for letter case (the first in byte order); the name
// itself when there is none.
fs::path EntryNoCase(const fs::path& folder, const std::string& name) {
  std::string best;
  std::error_code error;
  fs::directory_iterator entry(folder.empty() ? fs::path(".") : folder, error);
  for (; !error && entry != fs::directory_iterator(); entry.increment(error)) {
    const std::string candidate = entry->path().filename().string();
    if (EqualNoCase(candidate, name) && (best.empty() || candidate < best)) best = candidate;
  }
  return best.empty() ? name : best;
}

fs::path WithActualNames(const fs::path& wanted) {
  fs::path found;
  for (const fs::path& part : wanted) {
    const bool asWritten = part.empty() || Present(found / part);
    found /= asWritten ? part : EntryNoCase(found, part.string());
  }
  return found;
}

}  // namespace

fs::path Paths::native(std::string_view path) const {
  std::string slashes(path.substr(0, path.find('\0')));
  for (char& c : slashes) {
    if (c == '\\') c = '/';
  }
  fs::path wanted = slashes;
  if (HasDrive(slashes)) {
    const size_t name = std::min(slashes.find_first_not_of('/', 2), slashes.size());
    wanted = dataFolder_ / LowerCase(slashes.substr(0, 1)) / slashes.substr(name);
  }
  return Present(wanted) ? wanted : WithActualNames(wanted);
}

fs::path Paths::forWriting(std::string_view path) const {
  return native(DirectoryPart(path)) / FileNamePart(path);
}

bool Paths::exists(std::string_view path) const {
  std::error_code ignored;
  return !path.empty() && fs::exists(native(path), ignored);
}

std::string Paths::absolute(const std::string& path) const {
  const bool fixed = path.empty() || IsSeparator(path[0]) || HasDrive(path);
  std::error_code failed;
  const fs::path native = fixed ? fs::path() : fs::absolute(this->native(path), failed);
  return native.empty() ? path : native.lexically_normal().string();
}

std::string FileNamePart(std::string_view path) {
  size_t at = path.size();
  while (at > 0 && !IsSeparator(path[at - 1])) --at;
  return std::string(path.substr(at));
}

std::string DirectoryPart(std::string_view path) {
  return std::string(path.substr(0, path.size() - FileNamePart(path).size()));
}

std::string WithSeparator(std::string_view directory) {
  std::string result(directory);
  if (!result.empty() && !IsSeparator(result.back())) result += '\\';
  return result;
}

}  // namespace velk
