// Feeds any bytes to the readers of wads and palettes. A fatal error is a good answer to bad bytes.
#include <cstddef>
#include <cstdint>
#include <string_view>

#include "base/error.h"
#include "require.h"
#include "textures/texture_set.h"
#include "textures/wad.h"

namespace {

struct Handled {};

// Chooses nothing.
struct NoPrompts : velk::Prompts {
  velk::Answer ask(const velk::MessageBox&) override { return velk::Answer::Cancel; }
  std::vector<std::string> chooseFiles(const velk::FileChooser&) override { return {}; }
  std::optional<std::string> input(const velk::TextInput&) override { return {}; }
  std::optional<velk::Colour> chooseColour(const velk::ColourChooser&) override { return {}; }
  velk::FormAnswer fill(velk::Form&) override { return velk::FormAnswer::Cancel; }
};

// Every texture must hold what its size promises, and be found by its name.
void Check(velk::Wad& wad) {
  const velk::TextureRef bad;
  velk::TextureSet set(bad);
  set.build({&wad});
  for (const auto& texture : wad.textures) {
    const size_t pixels = static_cast<size_t>(texture->width) * static_cast<size_t>(texture->height);
    Require(pixels > 0 && texture->pixels.size() == pixels + velk::Texture::kSparePixels,
            "a texture does not hold what its size promises");
    Require(set.findTexture(texture->name) != nullptr, "a texture is not found by its name");
    if (texture->sky)
      velk::composeSky(texture->width, texture->height, *texture->sky, 5, texture->pixels.data());
  }
}

void ReadAsWad(std::string_view contents) {
  NoPrompts prompts;
  velk::Settings settings;
  settings.entity_qc_directory = "/nowhere/";
  const velk::Paths paths;
  velk::Random random;
  velk::Wad wad;
  wad.path = "fuzz.wad";
  try {
    wad.palette = velk::loadPalette(contents, wad.path, {settings, paths, prompts});
  } catch (const Handled&) {
  }
  velk::LoadTextures(contents, wad, settings.t_skyspeed, random, [](const velk::WadProgress&) {});
  Check(wad);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, size_t size) {
  velk::SetErrorHandler([](const std::string&) { throw Handled(); });
  const std::string_view contents(reinterpret_cast<const char*>(data), size);
  try {
    if (contents.starts_with("WAD")) {
      ReadAsWad(contents);
    } else {
      velk::ParsePaletteText(contents);
    }
  } catch (const Handled&) {
  }
  return 0;
}
