// Textures: pictures in palette indices, as wads hold them.
#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "base/colour.h"

namespace velk {

// The two layers of a moving sky and how far they have moved.
struct SkyRecord {
  int rowOffset = 0;
  int columnOffset = 0;
  int width = 0;                      // of a row of both layers
  std::vector<unsigned char> pixels;  // the lump's: in each row first the front layer, then the back layer
};

struct Texture {
  // Readers may fetch a few bytes past the last pixel.
  static constexpr int kSparePixels = 3;

  int index = 0;     // of its lump in the wad's directory
  std::string name;  // upper case, at most 15 characters
  int width = 0;     // texels, at least 1; half the lump's for a sky
  int height = 0;
  std::vector<unsigned char> pixels;  // width * height palette indices, top row first, and the spare ones
  Colour averageColour;
  int averageIndex = 0;            // of averageColour in the palette
  std::unique_ptr<SkyRecord> sky;  // of sky textures
};

// The order of every list of textures, for upper case names: negative, 0 or positive. Names that differ
// only in what stands before their first letter (liquids, animation frames) are neighbours.
int compareTextureNames(std::string_view a, std::string_view b);

// Lays the front layer (index 0 is transparent) over the back layer at the record's offsets into
// `pixels`, halfWidth * height of them, and moves the offsets on by `speed` texels.
void composeSky(int halfWidth, int height, SkyRecord& sky, int speed, unsigned char* pixels);

}  // namespace velk
