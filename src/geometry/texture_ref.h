#pragma once

#include <array>
#include <string>

namespace velk {

// A face's view of its texture, as the camera view draws it.
struct TextureRef {
  std::string name;
  int width = 0;  // texels
  int height = 0;
  const unsigned char* pixels = nullptr;  // shared with the texture; palette indices, top row first
  std::array<unsigned char, 4> colour{};  // average red, green, blue and 0
  int paletteIndex = 0;                   // of the average colour
  // Of an animation: where the pixels of the frame shown now are noted, of the same size.
  const unsigned char* const* frame = nullptr;

  const unsigned char* shownPixels() const { return frame ? *frame : pixels; }
};

}  // namespace velk
