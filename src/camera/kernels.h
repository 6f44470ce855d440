// The inner loops of the renderer, compiled once for each instruction set and chosen when the program
// runs. Every set gives the same picture to the bit.
//
// The translation units of the wider sets must not define or instantiate anything that other code could
// link to, or that code would need the wider set too: this header and what it includes stay plain data.
#pragma once

#include <cstdint>

#include "camera/scan.h"

namespace velk {

// How the pixels of a face are coloured.
struct Paint {
  enum class Kind : std::uint8_t { Flat, Masked, Modulo };
  const std::uint8_t* pixels = nullptr;  // of the texture
  const std::uint8_t* shades = nullptr;  // 256 palette indices, by unlit colour
  int width = 0;                         // of the texture, texels
  int height = 0;
  int shift = 0;             // Masked: log2 of the width
  std::uint32_t magicU = 0;  // Modulo: n / width is n * magicU >> 31 + log2 of the next power of two
  std::uint32_t magicV = 0;
  int magicShiftU = 0;  // 31 + that logarithm
  int magicShiftV = 0;
  Kind kind = Kind::Flat;
  std::uint8_t colour = 0;  // Flat: shaded already
  bool outlined = false;
  std::uint8_t outline = 0;  // palette index
};

// A face being drawn. Its pixels carry its number in the table of faces; a larger rank was drawn later.
struct FaceDraw {
  Outline outline;
  std::uint32_t rank = 0;
  std::uint32_t firstSpan = 0;  // of row r of the strip: spans[firstSpan + r], modulo 2^32
  Paint paint;
};

// A strip of the picture: some whole rows, small enough for its depths and face numbers to stay in the
// cache while it is drawn.
struct Strip {
  int width = 0;  // of the picture, pixels
  int top = 0;    // rows top..bottom-1 of the picture
  int bottom = 0;
  float* depth = nullptr;          // of row `top`; width floats a row, 16 spare at the end
  std::uint32_t* faces = nullptr;  // numbers of the faces shown, 0 none; as depth
  // The smallest depth of each tile, or less; tileColumns a row.
  float* tiles = nullptr;
  std::uint8_t* stale = nullptr;  // tiles to be measured again before they are trusted
  int tileColumns = 0;
};

inline constexpr int kTileWidth = 16;  // pixels
inline constexpr int kTileHeight = 8;
inline constexpr int kSparePixels = 16;  // behind every buffer, for loops that write whole vectors

struct FaceTable {
  const FaceDraw* faces = nullptr;  // number 0 is no face
  const Edge* edges = nullptr;
};

struct Kernels {
  const char* name;
  // Draws rows of a face into depths and face numbers and keeps the row's spans, one for each row from
  // `top`. `always` passes the depth test. Returns the pixels tested.
  long (*drawFace)(const Strip& strip, const FaceTable& table, std::uint32_t number, int top, int bottom,
                   Span* spans, bool always);
  // True when every pixel of the rectangle (of the picture, within the strip) is nearer than w.
  bool (*hides)(const Strip& strip, int left, int top, int right, int bottom, float w);
  // Colours one row of the picture from its face numbers; pixels of no face become 0, or stay when
  // `keep` is set. Returns the pixels coloured.
  long (*paintRow)(const Strip& strip, const FaceTable& table, const Span* spans, int row, std::uint8_t* out,
                   bool keep);
};

// The widest set this machine runs.
const Kernels& BestKernels();
// Every set this machine runs, narrowest first.
int AvailableKernels(const Kernels** sets, int most);

extern const Kernels kKernelsSse2;
extern const Kernels kKernelsAvx2;
extern const Kernels kKernelsAvx512;

}  // namespace velk
