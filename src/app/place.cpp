#include "app/place.h"

#include <array>
#include <cctype>
#include <cstdlib>
#include <system_error>

#include <pwd.h>
#include <unistd.h>

namespace velk {
namespace {

namespace fs = std::filesystem;

constexpr std::array kPaths{&Settings::entity_qc_directory, &Settings::wad_directory,
                            &Settings::map_directory,       &Settings::bat_directory,
                            &Settings::bspbuild_directory,  &Settings::badtex,
                            &Settings::compiler_directory};

std::string Environment(const char* name) {
  const char* value = std::getenv(name);
  return value ? value : "";
}

// The system knows the user's folder where the environment does not.
std::string UserHome() {
  std::string home = Environment("HOME");
  if (!home.empty()) return home;
  const passwd* user = getpwuid(getuid());
  return user && user->pw_dir ? user->pw_dir : "/";
}

fs::path HomeFolder(const Surroundings& around) {
  std::error_code ignored;
  if (fs::exists(around.workingDirectory / "velk.ini", ignored)) return around.workingDirectory;
  if (!around.velkHome.empty()) return fs::absolute(around.velkHome, ignored);
  // Relative configuration folders are to be ignored.
  if (fs::path(around.configHome).is_absolute()) return fs::path(around.configHome) / "velk";
  return fs::path(around.userHome) / ".config" / "velk";
}

// Copies a file or makes a folder; what is there stays. The copy may be written even if the kit may not.
bool CopyEntry(const fs::directory_entry& entry, const fs::path& target) {
  std::error_code failed;
  if (entry.is_directory()) {
    fs::create_directories(target, failed);
  } else if (fs::copy_file(entry.path(), target, fs::copy_options::skip_existing, failed)) {
    fs::permissions(target, fs::perms::owner_write, fs::perm_options::add, failed);
  }
  return !failed;
}

// velk.ini comes last: with it the first start is over.
bool CopyKit(const fs::path& kit, const fs::path& home) {
  std::error_code failed;
  fs::create_directories(home, failed);
  if (failed) return false;
  for (const auto& entry : fs::recursive_directory_iterator(kit, failed)) {
    const fs::path name = fs::relative(entry.path(), kit);
    if (name != "velk.ini" && !CopyEntry(entry, home / name)) return false;
  }
  return !failed && CopyEntry(fs::directory_entry(kit / "velk.ini"), home / "velk.ini");
}

bool IsRelative(const std::string& path) {
  if (path.empty()) return false;
  const bool drive = path.size() > 1 && path[1] == ':' && std::isalpha(static_cast<unsigned char>(path[0]));
  return !drive && path[0] != '/' && path[0] != '\\';
}

}  // namespace

Surroundings CurrentSurroundings() {
  std::error_code ignored;
  return {fs::current_path(ignored), Environment("VELK_HOME"), Environment("XDG_CONFIG_HOME"), UserHome()};
}

EditorPlace FindPlace(const Surroundings& surroundings, const fs::path& kit) {
  fs::path home = HomeFolder(surroundings);
  std::error_code ignored;
  const fs::path drives = home / "drives";
  if (!fs::exists(home / "velk.ini", ignored) && !kit.empty() && !CopyKit(kit, home)) home = kit;
  return {home, drives};
}

void ResolvePaths(Settings& settings, const fs::path& home) {
  for (const auto member : kPaths) {
    std::string& path = settings.*member;
    if (!IsRelative(path)) continue;
    if (path.starts_with(".\\") || path.starts_with("./")) path.erase(0, 2);
    path.insert(0, home.string() + '/');
  }
}

Settings WithRelativePaths(Settings settings, const fs::path& home) {
  const std::string prefix = home.string() + '/';
  for (const auto member : kPaths) {
    std::string& path = settings.*member;
    if (path.starts_with(prefix)) path = ".\\" + path.substr(prefix.size());
  }
  return settings;
}

}  // namespace velk
