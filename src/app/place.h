// Where Velk's own files are: settings, entity classes, palette, button bars and mouse bindings.
#pragma once

#include <filesystem>
#include <string>

#include "settings/settings.h"

namespace velk {

struct EditorPlace {
  std::filesystem::path home;  // the folder of velk.ini
  std::filesystem::path data;  // holds one folder per drive letter

  // What the editor remembers by itself between runs, in the form of an initialisation file: a section for
  // each owner. Losing it loses nothing but comfort, so failures to write it are passed over.
  std::filesystem::path stateFile() const { return home / "velkstate.ini"; }
};

// What decides the place: the working directory and the environment ("" for an unset variable).
struct Surroundings {
  std::filesystem::path workingDirectory;
  std::string velkHome;    // VELK_HOME
  std::string configHome;  // XDG_CONFIG_HOME
  std::string userHome;    // HOME, or the folder that the system gives the user
};
Surroundings CurrentSurroundings();

// The working directory when it holds a velk.ini, else VELK_HOME, else the folder "velk" in the user's
// configuration folder. Without a velk.ini there, the files of `kit` are copied to it, never over existing
// ones; when that fails the kit itself serves as home. An empty kit copies nothing.
EditorPlace FindPlace(const Surroundings& surroundings, const std::filesystem::path& kit);

// Makes the relative directories and file names of the settings start at `home`, and back again for
// writing them.
void ResolvePaths(Settings& settings, const std::filesystem::path& home);
Settings WithRelativePaths(Settings settings, const std::filesystem::path& home);

}  // namespace velk
