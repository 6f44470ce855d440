#include "build/launch.h"

#include <unistd.h>

#include "base/text.h"

namespace velk {
namespace {

namespace fs = std::filesystem;

bool IsPlainName(std::string_view program) { return program.find_first_of("\\/") == std::string_view::npos; }

bool IsExecutable(const fs::path& file) {
  std::error_code ignored;
  return fs::is_regular_file(file, ignored) && access(file.c_str(), X_OK) == 0;
}

// The folder of the key, with or without a separator at its end; empty when none is set.
fs::path CompilerFolder(const Paths& paths, const Settings& settings) {
  if (settings.compiler_directory.empty()) return {};
  return fs::absolute(paths.native(settings.compiler_directory));
}

// Plain names are left to the system's own search, unless the compiler's folder has them.
fs::path FileOf(const Paths& paths, const fs::path& compilers, const std::string& program) {
  if (!IsPlainName(program)) return fs::absolute(paths.native(program));
  const fs::path own = compilers / program;
  return !compilers.empty() && IsExecutable(own) ? own : fs::path(program);
}

std::string Quoted(const std::string& text) {
  std::string quoted = "\"";
  for (const char c : text) {
    if (c == '"' || c == '\\') quoted += '\\';
    quoted += c;
  }
  return quoted + '"';
}

}  // namespace

std::string MapArgument(std::string_view path) {
  const std::string name = FileNamePart(path);
  return name.substr(0, name.find('.'));
}

std::vector<std::string> BatchNames(std::string_view stem) {
  return {std::string(stem) + ".bat", std::string(stem) + ".sh"};
}

std::string FindProgram(const Paths& paths, const std::string& directory,
                        const std::vector<std::string>& names) {
  for (const std::string& name : names) {
    std::error_code ignored;
    if (fs::is_regular_file(paths.native(directory + name), ignored)) return directory + name;
  }
  return directory + names.front();
}

NativeLaunch NativeOf(const Paths& paths, const Settings& settings, const Launch& launch,
                      const BuildMap& map) {
  const fs::path compilers = CompilerFolder(paths, settings);
  const fs::path file = FileOf(paths, compilers, launch.program);
  NativeLaunch native;
  native.program = file.string();
  native.arguments = launch.arguments;
  std::error_code ignored;
  if (!IsPlainName(native.program) && fs::is_regular_file(file, ignored) && !IsExecutable(file)) {
    native.arguments.insert(native.arguments.begin(), native.program);
    native.program = "sh";
  }
  native.directory = launch.directory.empty() ? "" : fs::absolute(paths.native(launch.directory)).string();
  native.variables = {{"VELK_MAP", fs::absolute(paths.native(map.path)).string()},
                      {"VELK_COMPILER_DIRECTORY", compilers.string()}};
  return native;
}

std::string LaunchText(const Launch& launch) {
  std::string text = Quoted(launch.program);
  for (const std::string& argument : launch.arguments) text += ' ' + Quoted(argument);
  return text + ' ' + Quoted(launch.directory);
}

}  // namespace velk
