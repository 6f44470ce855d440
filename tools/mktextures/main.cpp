// Draws the textures of the starter kit: mktextures FOLDER writes velk.wad, quake.pal, colormap.lmp and
// badtex.bmp there. The same files come out on every machine.
#include <cstdio>
#include <fstream>
#include <string>

#include "catalogue.h"
#include "files.h"
#include "materials.h"

namespace velk::kit {
namespace {

Image MissingTexture() {
  Surface surface(32, 32, ramp::kViolet, 0.6);
  surface.each(surface.all(), [](int x, int y, Texel& t) {
    if ((x / 8 + y / 8) % 2 == 1) t.ramp = ramp::kGrey, t.level = 0.1;
  });
  return surface.image();
}

Catalogue MakeCatalogue() {
  Catalogue catalogue;
  for (const auto add : {AddWalls, AddFloors, AddMetals, AddWoods, AddDoors, AddLights, AddSwitches,
                         AddLiquids, AddSkies, AddSpecials}) {
    add(catalogue);
  }
  return catalogue;
}

bool WriteFile(const std::string& name, const std::string& bytes) {
  std::ofstream file(name, std::ios::binary);
  file.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
  file.close();
  if (!file) std::fprintf(stderr, "mktextures: cannot write %s\n", name.c_str());
  return file.good();
}

bool WriteAll(const std::string& folder) {
  const Palette palette = MakePalette();
  const std::vector<uint8_t> lights = MakeLightTable(palette);
  return WriteFile(folder + "/velk.wad", WadFile(MakeCatalogue(), palette)) &&
         WriteFile(folder + "/quake.pal", PaletteText(palette)) &&
         WriteFile(folder + "/colormap.lmp", std::string(lights.begin(), lights.end())) &&
         WriteFile(folder + "/badtex.bmp", BitmapFile(MissingTexture(), palette));
}

}  // namespace
}  // namespace velk::kit

int main(int argc, char** argv) {
  if (argc != 2) {
    std::fprintf(stderr, "usage: mktextures FOLDER\n");
    return 1;
  }
  return velk::kit::WriteAll(argv[1]) ? 0 : 1;
}
