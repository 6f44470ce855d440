// Draws textures into pictures of 32-bit pixels, larger or smaller than they are.
#pragma once

#include <cstddef>
#include <cstdint>

#include "panels/textures/texture_layout.h"
#include "textures/palette.h"
#include "textures/texture.h"

namespace velk {

// A picture of 0xffRRGGBB, rows top down, `scale` of its pixels for each of the editor's. The pixels outlive
// it.
struct PicturePixels {
  std::uint32_t* pixels = nullptr;
  int width = 0;
  int height = 0;
  std::ptrdiff_t stride = 0;  // pixels
  double scale = 1;
};

// Draws the texture's upper left corner into a rectangle of the editor's pixels, of which only what lies in
// `clip` is drawn. Enlarged texels stay sharp, shrunk ones are averaged.
void DrawThumbnail(const PicturePixels& picture, const Texture& texture, const ColourTable& colours,
                   const ThumbnailSize& size, Pixel at, const PixelRect& clip);

}  // namespace velk
