#include "panels/textures/thumbnail_painter.h"

#include <algorithm>

#include "base/text.h"

namespace velk {
namespace {

constexpr std::uint32_t kOpaque = 0xff000000u;
constexpr int kLongestSide = 8192;  // of a thumbnail on the screen, pixels

// One axis of the picture: `size` target pixels for `source` source pixels.
struct Axis {
  int from = 0;  // first target pixel, may be negative
  int size = 1;
  int source = 1;
  int begin = 0;  // what is drawn of the target
  int end = 0;
};

// The source pixels that a target pixel covers, from `first` to `last`; goes on to the next without dividing.
class Step {
 public:
  explicit Step(const Axis& axis)
      : size_(axis.size), whole_(axis.source / axis.size), part_(axis.source % axis.size) {
    const std::int64_t place = std::int64_t{axis.begin - axis.from} * axis.source;
    next_ = static_cast<int>(place / size_);
    rest_ = static_cast<int>(place % size_);
    advance();
  }
  void advance() {
    first = next_;
    next_ += whole_;
    rest_ += part_;
    if (rest_ >= size_) {
      rest_ -= size_;
      ++next_;
    }
    last = std::max(first, rest_ > 0 ? next_ : next_ - 1);
  }

  int first = 0;
  int last = 0;

 private:
  int size_;
  int whole_;
  int part_;
  int next_ = 0;
  int rest_ = 0;
};

Axis AxisOf(int at, int size, int source, int clipFrom, int clipSize, double scale, int limit) {
  const auto device = [scale](int position) { return Truncate(RoundHalfAway(position * scale)); };
  Axis axis;
  axis.from = device(at);
  axis.size = std::clamp(device(at + size) - axis.from, 1, kLongestSide);
  axis.source = source;
  axis.begin = std::max({axis.from, device(clipFrom), 0});
  axis.end = std::min({axis.from + axis.size, device(clipFrom + clipSize), limit});
  return axis;
}

std::uint32_t Averaged(const Texture& texture, const ColourTable& colours, const Step& across,
                       const Step& down) {
  std::uint32_t red = 0;
  std::uint32_t green = 0;
  std::uint32_t blue = 0;
  for (int row = down.first; row <= down.last; ++row) {
    const unsigned char* texels = texture.pixels.data() + static_cast<std::ptrdiff_t>(row) * texture.width;
    for (int column = across.first; column <= across.last; ++column) {
      const std::uint32_t colour = colours[texels[column]];
      red += colour >> 16 & 255;
      green += colour >> 8 & 255;
      blue += colour & 255;
    }
  }
  const auto count =
      static_cast<std::uint32_t>((down.last - down.first + 1) * (across.last - across.first + 1));
  return kOpaque | red / count << 16 | green / count << 8 | blue / count;
}

}  // namespace

void DrawThumbnail(const PicturePixels& picture, const Texture& texture, const ColourTable& colours,
                   const ThumbnailSize& size, Pixel at, const PixelRect& clip) {
  const Axis across = AxisOf(at.x, size.width, std::min(size.sourceWidth, texture.width), clip.left,
                             clip.width, picture.scale, picture.width);
  const Axis down = AxisOf(at.y, size.height, std::min(size.sourceHeight, texture.height), clip.top,
                           clip.height, picture.scale, picture.height);
  const bool shrinks = across.size < across.source || down.size < down.source;
  Step row(down);
  for (int y = down.begin; y < down.end; ++y, row.advance()) {
    std::uint32_t* out = picture.pixels + y * picture.stride;
    const unsigned char* texels =
        texture.pixels.data() + static_cast<std::ptrdiff_t>(row.first) * texture.width;
    Step column(across);
    for (int x = across.begin; x < across.end; ++x, column.advance()) {
      out[x] = shrinks ? Averaged(texture, colours, column, row) : kOpaque | colours[texels[column.first]];
    }
  }
}

}  // namespace velk
