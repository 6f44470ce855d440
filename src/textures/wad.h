// Wads: files of textures with the palette they are drawn in.
#pragma once

#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "base/files.h"
#include "base/paths.h"
#include "base/prompts.h"
#include "settings/settings.h"
#include "textures/palette.h"
#include "textures/random.h"
#include "textures/texture.h"

namespace velk {

// Palette indices of the outlines in the camera view.
struct OutlineIndices {
  int brush = 0;
  int selection = 0;
  int face = 0;
};

struct Wad {
  std::string path;                                // as given or chosen
  FileStamp onDisk;                                // of the file when it was read
  std::vector<std::unique_ptr<Texture>> textures;  // in compareTextureNames order
  Palette palette{};                               // after the brightness shift
  ColourTable colours{};
  OutlineIndices outlines;

  int count() const { return static_cast<int>(textures.size()); }
};

// How far a load has come, told at its start, before every fifth lump and at its end.
struct WadProgress {
  enum class Step { Start, Lump, Done };
  Step step = Step::Start;
  std::string text;  // for the status line
  int lump = 0;
  int lumps = 0;
};
using WadProgressSink = std::function<void(const WadProgress&)>;  // may be empty

// What a load needs from the editor.
struct WadServices {
  const Settings& settings;
  const Paths& paths;
  Prompts& prompts;
  // A lump that the file does not hold whole becomes a blank texture instead of an error.
  bool forgiving = false;
};

OutlineIndices FindOutlines(const Palette& palette, const Settings& settings);

// Reads the file into `wad`, in place of what it held; the wad is unchanged when the load ends in an
// error. The file is looked for as named, in the wad directory, there without its folders, and last by
// asking. Fatal:
//   "You must select a valid .wad file..." when nothing was chosen
//   "Texture:  Couldn't open wad file..."
//   "Error: %s isn't a WAD type wadfile" and what the palette's readers name
//   "Error:  couldn't read bits..." when the file ends before its directory, its palette or a texture
void LoadWad(Wad& wad, const std::string& name, const WadServices& services, Random& random,
             const WadProgressSink& progress);

// The palette of the wad file with these contents: its lump "PALETTE", or the palette file beside the
// entity definitions, or one the user chooses. Fatal:
//   "Error: %s isn't a wadfile"
//   "You must either use a WAD2 with a palette or select a valid palette file..."
//   "Current wad had no palette and Quake.pal file is corrupt..."
Palette loadPalette(std::string_view contents, const std::string& path, const WadServices& services);

// The textures of the wad file with these contents, into a wad whose path and palette are set. A lump
// that cannot be a picture (size on disk out of range, no pixels) becomes a blank one of 32 by 32; forgiving:
// so does one whose pixels are not all there.
void LoadTextures(std::string_view contents, Wad& wad, int skySpeed, Random& random,
                  const WadProgressSink& progress, bool forgiving = false);

}  // namespace velk
