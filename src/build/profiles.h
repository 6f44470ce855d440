// What a build consists of: the six batch files, and profiles of the user's own, which are kept in a file.
#pragma once

#include <filesystem>
#include <string>
#include <vector>

#include "build/build_job.h"
#include "build/launch.h"

namespace velk {

// The batch commands.
struct BatchFile {
  const char* stem;  // "super" for super.bat or super.sh
  const char* name;  // of its profile
};
inline constexpr BatchFile kBatchFiles[] = {{"super", "Super fast"}, {"fast", "Fast"},
                                            {"full", "Full"},        {"novis", "No Vis"},
                                            {"relight", "Relight"},  {"leaktest", "Leak Test"}};

// A profile of the user's own. Each of its lines is a program and its arguments, parted by blanks, in quotes
// where they hold blanks. %map%, %bsp%, %name% and %wads% stand for the map's file, the level's, the name
// without folder and ending, and the wads parted by ';'.
struct BuildProfile {
  static constexpr size_t kMostSteps = 5;
  std::string name;
  std::string before;
  std::vector<std::string> steps;  // at most kMostSteps, none empty
  std::string after;               // when all went well
};

struct BuildProfiles {
  std::string chosen = "Full";  // by name, of the six or an own one
  std::vector<BuildProfile> own;
  std::string play;  // the line that plays the level

  // Of the six first, then of the own ones.
  std::vector<std::string> names() const;
  const BuildProfile* find(const std::string& name) const;
  // In place of the one of that name, or behind the others.
  void put(const BuildProfile& profile);
  void remove(const std::string& name);

  // A file that is missing or damaged gives what can be read of it.
  static BuildProfiles Load(const std::filesystem::path& file);
  // False when it cannot be written.
  bool save(const std::filesystem::path& file) const;
};

// The words of a line with what stands for parts of the map filled in; none for a blank line.
std::vector<std::string> WordsOf(const std::string& line, const Paths& paths, const BuildMap& map);

// A line as a program that works in the map's folder; an empty program for a blank line.
Launch LineLaunch(const std::string& line, const Paths& paths, const BuildMap& map);

// The batch file in `bat_directory`, given the map's name, to work in `map_directory`.
Launch BatchLaunch(const Paths& paths, const Settings& settings, std::string_view stem,
                   const std::string& mapPath);

// The programs of a profile, in order.
std::vector<Launch> LaunchesOf(const BuildProfiles& profiles, const std::string& name, const Paths& paths,
                               const Settings& settings, const BuildMap& map);

}  // namespace velk
