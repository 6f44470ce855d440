#include "textures/wad.h"

#include <algorithm>
#include <filesystem>
#include <optional>
#include <system_error>
#include <utility>

#include "base/error.h"
#include "base/files.h"
#include "base/text.h"
#include "textures/wad_file.h"

namespace velk {
namespace {

bool IsFile(const Paths& paths, const std::string& path) {
  std::error_code failure;
  return !path.empty() && std::filesystem::is_regular_file(paths.native(path), failure);
}

std::string AskForWad(const std::string& name, const WadServices& services) {
  FileChooser chooser;
  chooser.title = Format("Where is texture .wad file: %s?", name.c_str());
  chooser.filter = "Wad Files (*.wad)|*.wad|";
  chooser.directory = services.settings.wad_directory;
  const std::optional<std::string> chosen = services.prompts.chooseFile(chooser);
  if (!chosen) Error("You must select a valid .wad file...");
  return *chosen;
}

// Maps name their wads in folders of the machine they were made on; the file itself usually lies in the
// wad directory.
std::string FindWad(const std::string& name, const WadServices& services) {
  const std::string directory = WithSeparator(services.settings.wad_directory);
  for (const std::string& path : {name, directory + name, directory + FileNamePart(name)}) {
    if (IsFile(services.paths, path)) return path;
  }
  return AskForWad(name, services);
}

std::string AskForPalette(const std::string& directory, const WadServices& services) {
  FileChooser chooser;
  chooser.title = "Select Quake.Pal File";
  chooser.filter = "Palette File (*.pal)|*.pal|";
  chooser.directory = directory;
  chooser.fileName = "quake.pal";
  const std::optional<std::string> chosen = services.prompts.chooseFile(chooser);
  if (!chosen) Error("You must either use a WAD2 with a palette or select a valid palette file...");
  return *chosen;
}

Palette LoadPaletteFile(const WadServices& services) {
  const std::string directory = WithSeparator(services.settings.entity_qc_directory);
  std::string path = directory + "quake.pal";
  if (!IsFile(services.paths, path)) path = AskForPalette(directory, services);
  if (!IsFile(services.paths, path)) Error("Current wad had no palette and Quake.pal file is corrupt...");
  return ParsePaletteText(
      LoadFileOr(services.paths, path, "Current wad had no palette and Quake.pal file is corrupt..."));
}

}  // namespace

OutlineIndices FindOutlines(const Palette& palette, const Settings& settings) {
  return {nearestPaletteIndex(palette, settings.brush_outline),
          nearestPaletteIndex(palette, settings.select_outline),
          nearestPaletteIndex(palette, settings.face_outline)};
}

Palette loadPalette(std::string_view contents, const std::string& path, const WadServices& services) {
  if (!HasWadMark(contents)) Error("Error: %s isn't a wadfile", path.c_str());
  const FileBytes file(contents);
  for (const WadLump& lump : ReadWadDirectory(file)) {
    if (lump.name != "PALETTE") continue;
    Palette palette;
    // A user goes on with the palette file.
    if (services.forgiving && !file.holds(lump.offset, std::ssize(palette))) continue;
    const std::string_view bytes = file.at(lump.offset, static_cast<std::int64_t>(palette.size()));
    std::copy(bytes.begin(), bytes.end(), palette.begin());
    return palette;
  }
  return LoadPaletteFile(services);
}

void LoadWad(Wad& wad, const std::string& name, const WadServices& services, Random& random,
             const WadProgressSink& progress) {
  Wad loaded;
  loaded.path = FindWad(name, services);
  if (!IsFile(services.paths, loaded.path)) Error("Texture:  Couldn't open wad file...");
  const ErrorPlace place([&] { return "reading [" + name + "]"; });
  loaded.onDisk = StampOf(services.paths.native(loaded.path));
  const std::string contents = LoadFileOr(services.paths, loaded.path, "Texture:  Couldn't open wad file...");
  loaded.palette = loadPalette(contents, loaded.path, services);
  BrightenPalette(loaded.palette, services.settings.gammashift);
  loaded.colours = MakeColourTable(loaded.palette);
  loaded.outlines = FindOutlines(loaded.palette, services.settings);
  LoadTextures(contents, loaded, services.settings.t_skyspeed, random, progress, services.forgiving);
  wad = std::move(loaded);
}

}  // namespace velk
