// The files the generator writes, as bytes.
#pragma once

#include <string>

#include "catalogue.h"
#include "palette.h"

namespace velk::kit {

// A texture collection: every texture with its four mip levels, then the palette.
std::string WadFile(const Catalogue& catalogue, const Palette& palette);

// The palette as text, a colour a line.
std::string PaletteText(const Palette& palette);

// An uncompressed 24-bit bitmap.
std::string BitmapFile(const Image& image, const Palette& palette);

}  // namespace velk::kit
