#include "build/profiles.h"

#include <algorithm>

#include "base/ini_file.h"
#include "base/text.h"

namespace velk {
namespace {

constexpr const char* kSection = "Build";
constexpr int kMostProfiles = 100;

std::string SectionOf(int index) { return Format("Profile %i", index + 1); }

void Replace(std::string& text, std::string_view what, const std::string& with) {
  for (size_t at = text.find(what); at != std::string::npos; at = text.find(what, at + with.size())) {
    text.replace(at, what.size(), with);
  }
}

std::string Joined(const std::vector<std::string>& texts) {
  std::string joined;
  for (const std::string& text : texts) joined += (joined.empty() ? "" : ";") + text;
  return joined;
}

// Words parted by blanks; quotes keep blanks together, and are left out.
std::vector<std::string> SplitWords(std::string_view line) {
  std::vector<std::string> words;
  bool quoted = false, open = false;
  for (const char c : line) {
    if (c == '"') {
      quoted = !quoted;
      if (!open) words.emplace_back();
      open = true;
    } else if (!quoted && (c == ' ' || c == '\t')) {
      open = false;
    } else {
      if (!open) words.emplace_back();
      open = true;
      words.back() += c;
    }
  }
  return words;
}

// The path with another ending.
std::string WithEnding(const std::string& path, const char* ending) {
  return std::filesystem::path(path).replace_extension(ending).string();
}

BuildProfile ReadProfile(const IniFile& ini, const std::string& section) {
  BuildProfile profile;
  profile.name = ini.string(section, "name", "");
  profile.before = ini.string(section, "before", "");
  for (size_t i = 1; i <= BuildProfile::kMostSteps; ++i) {
    const std::string step = ini.string(section, Format("step%zu", i), "");
    if (!Trimmed(step).empty()) profile.steps.push_back(step);
  }
  profile.after = ini.string(section, "after", "");
  return profile;
}

void WriteProfile(IniFile& ini, const std::string& section, const BuildProfile& profile) {
  ini.set(section, "name", profile.name);
  ini.set(section, "before", profile.before);
  for (size_t i = 0; i < BuildProfile::kMostSteps; ++i) {
    ini.set(section, Format("step%zu", i + 1), i < profile.steps.size() ? profile.steps[i] : "");
  }
  ini.set(section, "after", profile.after);
}

void AddLine(std::vector<Launch>& launches, const std::string& line, const Paths& paths,
             const BuildMap& map) {
  Launch launch = LineLaunch(line, paths, map);
  if (!launch.program.empty()) launches.push_back(std::move(launch));
}

}  // namespace

std::vector<std::string> BuildProfiles::names() const {
  std::vector<std::string> names;
  for (const BatchFile& batch : kBatchFiles) names.emplace_back(batch.name);
  for (const BuildProfile& profile : own) names.push_back(profile.name);
  return names;
}

const BuildProfile* BuildProfiles::find(const std::string& name) const {
  const auto found = std::ranges::find(own, name, &BuildProfile::name);
  return found == own.end() ? nullptr : &*found;
}

void BuildProfiles::put(const BuildProfile& profile) {
  const auto found = std::ranges::find(own, profile.name, &BuildProfile::name);
  if (found == own.end()) {
    own.push_back(profile);
  } else {
    *found = profile;
  }
}

void BuildProfiles::remove(const std::string& name) {
  std::erase_if(own, [&](const BuildProfile& profile) { return profile.name == name; });
}

BuildProfiles BuildProfiles::Load(const std::filesystem::path& file) {
  const IniFile ini = IniFile::Load(file);
  BuildProfiles profiles;
  profiles.play = ini.string(kSection, "play", "");
  for (int i = 0; i < std::clamp(ini.integer(kSection, "profiles", 0), 0, kMostProfiles); ++i) {
    const BuildProfile profile = ReadProfile(ini, SectionOf(i));
    if (!profile.name.empty() && !profiles.find(profile.name)) profiles.own.push_back(profile);
  }
  const std::string chosen = ini.string(kSection, "chosen", profiles.chosen);
  if (std::ranges::count(profiles.names(), chosen) > 0) profiles.chosen = chosen;
  return profiles;
}

bool BuildProfiles::save(const std::filesystem::path& file) const {
  IniFile ini = IniFile::Load(file);
  ini.set(kSection, "chosen", chosen);
  ini.set(kSection, "play", play);
  ini.set(kSection, "profiles", Format("%zu", own.size()));
  for (size_t i = 0; i < own.size(); ++i) WriteProfile(ini, SectionOf(static_cast<int>(i)), own[i]);
  return ini.save(file).ok;
}

std::vector<std::string> WordsOf(const std::string& line, const Paths& paths, const BuildMap& map) {
  const std::string file = std::filesystem::absolute(paths.native(map.path)).string();
  std::vector<std::string> words = SplitWords(line);
  for (std::string& word : words) {
    Replace(word, "%map%", file);
    Replace(word, "%bsp%", WithEnding(file, ".bsp"));
    Replace(word, "%name%", MapArgument(map.path));
    Replace(word, "%wads%", Joined(map.wads));
  }
  return words;
}

Launch LineLaunch(const std::string& line, const Paths& paths, const BuildMap& map) {
  std::vector<std::string> words = WordsOf(line, paths, map);
  Launch launch;
  if (words.empty()) return launch;
  launch.program = words.front();
  launch.arguments.assign(words.begin() + 1, words.end());
  launch.directory = DirectoryPart(std::filesystem::absolute(paths.native(map.path)).string());
  return launch;
}

Launch BatchLaunch(const Paths& paths, const Settings& settings, std::string_view stem,
                   const std::string& mapPath) {
  return {FindProgram(paths, settings.bat_directory, BatchNames(stem)),
          {MapArgument(mapPath)},
          settings.map_directory};
}

std::vector<Launch> LaunchesOf(const BuildProfiles& profiles, const std::string& name, const Paths& paths,
                               const Settings& settings, const BuildMap& map) {
  std::vector<Launch> launches;
  if (const BuildProfile* own = profiles.find(name)) {
    AddLine(launches, own->before, paths, map);
    for (const std::string& step : own->steps) AddLine(launches, step, paths, map);
    AddLine(launches, own->after, paths, map);
    return launches;
  }
  for (const BatchFile& batch : kBatchFiles) {
    if (name == batch.name) launches.push_back(BatchLaunch(paths, settings, batch.stem, map.path));
  }
  return launches;
}

}  // namespace velk
