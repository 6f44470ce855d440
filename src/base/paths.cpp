#include "base/paths.h"

#include <cctype>

#include "base/text.h"

namespace velk {
namespace {

namespace fs = std::filesystem;

bool isSeparator(char c) { return c == '\\' || c == '/'; }

bool present(const fs::path& path) {
  std::error_code ignored;
  return fs::exists(fs::symlink_status(path, ignored));
}

// The entry of `folder` whose name is `name` but for letter case; the name itself when there is none.
fs::path entryNoCase(const fs::path& folder, const std::string& name) {
  std::error_code ignored;
  const fs::path listed = folder.empty() ? fs::path(".") : folder;
  for (const fs::directory_entry& entry : fs::directory_iterator(listed, ignored)) {
    if (EqualNoCase(entry.path().filename().string(), name)) return entry.path().filename();
  }
  return name;
}

fs::path lookUp(const fs::path& wanted) {
  fs::path found;
  for (const fs::path& part : wanted) {
    const fs::path next = found / part;
    const bool asWritten = part.empty() || part == "." || part == ".." || part.has_root_directory() || present(next);
    found = asWritten ? next : found / entryNoCase(found, part.string());
  }
  return found;
}

}  // namespace

fs::path Paths::native(std::string_view path) const {
  std::string slashes(path.substr(0, path.find('\0')));
  for (char& c : slashes) c = c == '\\' ? '/' : c;
  fs::path wanted = slashes;
  const bool drive = slashes.size() >= 2 && slashes[1] == ':' && std::isalpha(static_cast<unsigned char>(slashes[0]));
  if (drive) {
    const std::string rest = slashes.substr(slashes.find_first_not_of('/', 2) == std::string::npos
                                                ? slashes.size()
                                                : slashes.find_first_not_of('/', 2));
    wanted = dataFolder_ / LowerCase(slashes.substr(0, 1)) / rest;
  }
  return present(wanted) ? wanted : lookUp(wanted);
}

bool Paths::exists(std::string_view path) const {
  std::error_code ignored;
  return !path.empty() && fs::exists(native(path), ignored);
}

std::string FileNamePart(std::string_view path) {
  size_t at = path.size();
  while (at > 0 && !isSeparator(path[at - 1])) --at;
  return std::string(path.substr(at));
}

std::string DirectoryPart(std::string_view path) {
  return std::string(path.substr(0, path.size() - FileNamePart(path).size()));
}

std::string WithSeparator(std::string_view directory) {
  std::string result(directory);
  if (result.empty() || !isSeparator(result.back())) result += '\\';
  return result;
}

}  // namespace velk
