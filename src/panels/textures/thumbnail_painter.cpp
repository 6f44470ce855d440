#include "panels/textures/thumbnail_painter.h"

#include <algorithm>

#include "base/text.h"

namespace velk {
namespace {

constexpr std::uint32_t kOpaque = 0xff000000u;
constexpr int kLongestSide = 8192;  // of a thumbnail on the screen, pixels

// One axis of the picture: which source pixels each target pixel covers.
struct Axis {
  int from;    // first target pixel, may be negative
  int size;    // of the target
  int source;  // of the source
  int begin;   // what is drawn of the target
  int end;

  int first(int i) const { return static_cast<int>(std::int64_t{i - from} * source / size); }
  int last(int i) const {
    return std::max(first(i), static_cast<int>((std::int64_t{i - from + 1} * source - 1) / size));
  }
};

Axis AxisOf(int at, int size, int source, int clipFrom, int clipSize, double scale, int limit) {
  const auto device = [scale](int position) { return Truncate(RoundHalfAway(position * scale)); };
  Axis axis{};
  axis.from = device(at);
  axis.size = std::clamp(device(at + size) - axis.from, 1, kLongestSide);
  axis.source = source;
  axis.begin = std::max({axis.from, device(clipFrom), 0});
  axis.end = std::min({axis.from + axis.size, device(clipFrom + clipSize), limit});
  return axis;
}

std::uint32_t Averaged(const Texture& texture, const ColourTable& colours, const Axis& across,
                       const Axis& down, int x, int y) {
  std::uint32_t red = 0;
  std::uint32_t green = 0;
  std::uint32_t blue = 0;
  std::uint32_t count = 0;
  for (int row = down.first(y); row <= down.last(y); ++row) {
    const unsigned char* texels = texture.pixels.data() + static_cast<std::ptrdiff_t>(row) * texture.width;
    for (int column = across.first(x); column <= across.last(x); ++column, ++count) {
      const std::uint32_t colour = colours[texels[column]];
      red += colour >> 16 & 255;
      green += colour >> 8 & 255;
      blue += colour & 255;
    }
  }
  return kOpaque | red / count << 16 | green / count << 8 | blue / count;
}

void DrawRow(std::uint32_t* out, const ColourTable& colours, const Axis& across,
             const unsigned char* texels) {
  for (int x = across.begin; x < across.end; ++x) out[x] = kOpaque | colours[texels[across.first(x)]];
}

}  // namespace

void DrawThumbnail(const PicturePixels& picture, const Texture& texture, const ColourTable& colours,
                   const ThumbnailSize& size, Pixel at, const PixelRect& clip) {
  const Axis across = AxisOf(at.x, size.width, std::min(size.sourceWidth, texture.width), clip.left,
                             clip.width, picture.scale, picture.width);
  const Axis down = AxisOf(at.y, size.height, std::min(size.sourceHeight, texture.height), clip.top,
                           clip.height, picture.scale, picture.height);
  const bool shrinks = across.size < across.source || down.size < down.source;
  for (int y = down.begin; y < down.end; ++y) {
    std::uint32_t* out = picture.pixels + y * picture.stride;
    if (shrinks) {
      for (int x = across.begin; x < across.end; ++x) out[x] = Averaged(texture, colours, across, down, x, y);
    } else {
      DrawRow(out, colours, across,
              texture.pixels.data() + static_cast<std::ptrdiff_t>(down.first(y)) * texture.width);
    }
  }
}

}  // namespace velk
