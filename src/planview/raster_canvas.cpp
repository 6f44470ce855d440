#include "planview/raster_canvas.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <utility>
#include <vector>

#include "base/text.h"

namespace velk {

namespace {

// Lines whose ends lie farther away are shortened first, so that exact stepping cannot overflow.
constexpr int kFar = 1 << 20;  // device pixels

bool IsFar(Pixel p) { return p.x < -kFar || p.x > kFar || p.y < -kFar || p.y > kFar; }

// Shortens the line to the square of half side kFar; false when it lies outside.
bool BringNear(Pixel& from, Pixel& to) {
  double first = 0, last = 1;
  const double startX = from.x, startY = from.y;
  const double dx = double(to.x) - startX, dy = double(to.y) - startY;
  const auto limit = [&](double direction, double distance) {  // direction * t <= distance
    if (direction == 0) return distance >= 0;
    const double t = distance / direction;
    if (direction < 0) {
      first = std::max(first, t);
    } else {
      last = std::min(last, t);
    }
    return first <= last;
  };
  if (!limit(-dx, startX + kFar) || !limit(dx, kFar - startX) || !limit(-dy, startY + kFar) ||
      !limit(dy, kFar - startY)) {
    return false;
  }
  from = {Truncate(startX + dx * first), Truncate(startY + dy * first)};
  to = {Truncate(startX + dx * last), Truncate(startY + dy * last)};
  return true;
}

std::int64_t CeilDivide(std::int64_t a, std::int64_t b) { return a / b + (a % b > 0 ? 1 : 0); }

// A line that takes a step along its longer axis ("major") with every pixel, and every now and then one
// along the other.
struct Run {
  int major = 0;  // where it starts
  int minor = 0;
  int length = 0;  // steps along the major axis
  int climb = 0;   // total movement on the minor axis, not negative
  int minorSign = 1;
  int majorSize = 0;  // limits of the picture
  int minorSize = 0;
  std::ptrdiff_t majorStep = 1;
  std::ptrdiff_t minorStep = 1;
  std::ptrdiff_t majorRankStep = 1;  // the same in the list of ranks
  std::ptrdiff_t minorRankStep = 1;
};

// Colour a pixel: as it is, keeping the stroke's rank, or unless a larger rank is there.
struct FreePixels {
  static constexpr bool kRanked = false;
  std::uint32_t* pixels;
  void set(std::ptrdiff_t at, std::ptrdiff_t, std::uint32_t colour) const { pixels[at] = colour; }
};
struct KeepingPixels {
  static constexpr bool kRanked = true;
  std::uint32_t* pixels;
  std::uint32_t* ranks;
  std::uint32_t rank;
  void set(std::ptrdiff_t at, std::ptrdiff_t rankAt, std::uint32_t colour) const {
    pixels[at] = colour;
    ranks[rankAt] = rank;
  }
};
struct ObeyingPixels {
  static constexpr bool kRanked = true;
  std::uint32_t* pixels;
  const std::uint32_t* ranks;
  std::uint32_t rank;
  void set(std::ptrdiff_t at, std::ptrdiff_t rankAt, std::uint32_t colour) const {
    if (ranks[rankAt] <= rank) pixels[at] = colour;
  }
};

// How many runs side by side look as wide as `width` does along an axis.
int RunsFor(int width, int dx, int dy) {
  return width == 1 ? 1 : Truncate(RoundHalfAway(width * std::hypot(dx, dy) / std::max(dx, dy)));
}

// Draws the pixels of the run that lie in the picture; the same ones as without clipping.
template <typename Pixels>
void DrawRun(const Pixels& pixels, const Run& run, std::uint32_t colour) {
  // After i steps the line has climbed floor((2 climb i + length) / (2 length)).
  const std::int64_t twiceClimb = 2 * std::int64_t(run.climb), twiceLength = 2 * std::int64_t(run.length);
  std::int64_t first = std::max<std::int64_t>(0, -std::int64_t(run.major));
  std::int64_t last = std::min<std::int64_t>(run.length, std::int64_t(run.majorSize) - 1 - run.major);
  const std::int64_t lowest = run.minorSign > 0 ? -std::int64_t(run.minor) : run.minor - run.minorSize + 1;
  const std::int64_t highest = run.minorSign > 0 ? run.minorSize - 1 - std::int64_t(run.minor) : run.minor;
  if (highest < 0 || lowest > run.climb) return;
  if (run.climb > 0) {
    first = std::max(first, CeilDivide(twiceLength * lowest - run.length, twiceClimb));
    last = std::min(last, CeilDivide(twiceLength * (highest + 1) - run.length, twiceClimb) - 1);
  }
  if (first > last) return;

  const std::int64_t reached = twiceClimb * first + run.length;
  const std::int64_t climbed = reached / twiceLength;
  const int over = static_cast<int>(twiceLength);
  const int step = static_cast<int>(twiceClimb);
  int error = static_cast<int>(reached % twiceLength);
  const std::ptrdiff_t minorStep = run.minorSign * run.minorStep;
  std::ptrdiff_t at = (run.major + first) * run.majorStep + run.minor * run.minorStep + climbed * minorStep;
  const std::ptrdiff_t minorRankStep = run.minorSign * run.minorRankStep;
  std::ptrdiff_t rankAt =
      (run.major + first) * run.majorRankStep + run.minor * run.minorRankStep + climbed * minorRankStep;
  for (std::int64_t n = last - first; n >= 0; --n) {
    pixels.set(at, rankAt, colour);
    error += step;
    const int carry = -static_cast<int>(error >= over);  // all bits or none, which saves a branch
    error -= over & carry;
    at += run.majorStep + (minorStep & carry);
    if constexpr (Pixels::kRanked) rankAt += run.majorRankStep + (minorRankStep & carry);
  }
}

}  // namespace

RasterCanvas::RasterCanvas(std::uint32_t* pixels, int width, int height, std::ptrdiff_t stride, double scale)
    : pixels_(pixels), width_(width), height_(height), stride_(stride), scale_(scale) {}

void RasterCanvas::keepRanks(std::vector<std::uint32_t>& ranks) {
  ranks.assign(size_t(width_) * size_t(height_), 0);
  kept_ = ranks.data();
  rank_ = 0;
  ranks_ = Ranks::Kept;
}

void RasterCanvas::obeyRanks(const std::vector<std::uint32_t>& ranks) {
  obeyed_ = ranks.data();
  rank_ = 0;
  ranks_ = Ranks::Obeyed;
}

void RasterCanvas::freeRanks() { ranks_ = Ranks::Free; }

void RasterCanvas::copyTo(std::vector<std::uint32_t>& pixels) const {
  pixels.resize(size_t(width_) * size_t(height_));
  for (int y = 0; y < height_; ++y) {
    std::copy_n(pixels_ + y * stride_, width_, pixels.data() + std::ptrdiff_t(y) * width_);
  }
}

void RasterCanvas::paste(const std::vector<std::uint32_t>& pixels) {
  for (int y = 0; y < height_; ++y) {
    std::copy_n(pixels.data() + std::ptrdiff_t(y) * width_, width_, pixels_ + y * stride_);
  }
}

int RasterCanvas::toDevice(double position) const { return Truncate(RoundHalfAway(position * scale_)); }

int RasterCanvas::deviceWidthOf(const Pen& pen) const { return std::max(1, toDevice(pen.width)); }

void RasterCanvas::fill(const PixelRect& rect, Colour colour) {
  fillDevice(toDevice(rect.left), toDevice(rect.top), toDevice(double(rect.left) + rect.width),
             toDevice(double(rect.top) + rect.height), PixelOf(colour));
}

void RasterCanvas::fillDevice(int left, int top, int right, int bottom, std::uint32_t colour) {
  left = std::max(left, 0);
  right = std::min(right, width_);
  bottom = std::min(bottom, height_);
  top = std::max(top, 0);
  if (left >= right) return;
  if (ranks_ == Ranks::Obeyed) return fillObeying(left, top, right, bottom, colour);
  for (int y = top; y < bottom; ++y) {
    std::fill_n(pixels_ + y * stride_ + left, right - left, colour);
    if (ranks_ == Ranks::Kept) std::fill_n(kept_ + std::ptrdiff_t(y) * width_ + left, right - left, rank_);
  }
}

void RasterCanvas::fillObeying(int left, int top, int right, int bottom, std::uint32_t colour) {
  const ObeyingPixels pixels{pixels_, obeyed_, rank_};
  for (int y = top; y < bottom; ++y) {
    for (int x = left; x < right; ++x) pixels.set(y * stride_ + x, std::ptrdiff_t(y) * width_ + x, colour);
  }
}

void RasterCanvas::line(const Pen& pen, Pixel from, Pixel to) {
  deviceLine(PixelOf(pen.colour), deviceWidthOf(pen), toDevice(from), toDevice(to));
}

void RasterCanvas::polygon(const Pen& pen, std::span<const Pixel> points) {
  std::vector<Pixel> scaled;
  scaled.reserve(points.size());
  for (const Pixel& p : points) scaled.push_back(toDevice(p));
  devicePolygon(pen, scaled);
}

void RasterCanvas::devicePolygon(const Pen& pen, std::span<const Pixel> points) {
  const std::uint32_t colour = PixelOf(pen.colour);
  const int width = deviceWidthOf(pen);
  for (size_t i = 1; i < points.size(); ++i) deviceLine(colour, width, points[i - 1], points[i]);
  if (points.size() != 2 && !points.empty()) deviceLine(colour, width, points.back(), points.front());
}

void RasterCanvas::points(Colour colour, std::span<const Pixel> points) {
  for (const Pixel& p : points) {
    const Pixel at = toDevice(p);
    devicePoints(colour, {&at, 1});
  }
}

void RasterCanvas::devicePoints(Colour colour, std::span<const Pixel> points) {
  const int size = deviceWidthOf({colour, 1});
  const std::uint32_t value = PixelOf(colour);
  for (const Pixel& p : points) {
    if (p.x <= -size || p.y <= -size || p.x >= width_ || p.y >= height_) continue;
    fillDevice(p.x, p.y, p.x + size, p.y + size, value);
  }
}

void RasterCanvas::deviceLine(std::uint32_t colour, int width, Pixel from, Pixel to) {
  if ((IsFar(from) || IsFar(to)) && !BringNear(from, to)) return;
  const int before = (width - 1) / 2;  // the part of a wide line above or left of it
  if (from.x == to.x || from.y == to.y) {
    fillDevice(std::min(from.x, to.x) - before, std::min(from.y, to.y) - before,
               std::max(from.x, to.x) - before + width, std::max(from.y, to.y) - before + width, colour);
    return;
  }
  const int dx = std::abs(to.x - from.x), dy = std::abs(to.y - from.y);
  const bool steep = dy > dx;
  // Always drawn in the same direction, so that an edge shared by two polygons meets the same pixels.
  if (steep ? from.y > to.y : from.x > to.x) std::swap(from, to);
  Run run = steep
                ? Run{from.y, from.x, dy, dx, to.x > from.x ? 1 : -1, height_, width_, stride_, 1, width_, 1}
                : Run{from.x, from.y, dx, dy, to.y > from.y ? 1 : -1, width_, height_, 1, stride_, 1, width_};
  const int runs = RunsFor(width, dx, dy);
  run.minor -= (runs - 1) / 2;
  for (int i = 0; i < runs; ++i, ++run.minor) {
    switch (ranks_) {
      case Ranks::Free:
        DrawRun(FreePixels{pixels_}, run, colour);
        break;
      case Ranks::Kept:
        DrawRun(KeepingPixels{pixels_, kept_, rank_}, run, colour);
        break;
      case Ranks::Obeyed:
        DrawRun(ObeyingPixels{pixels_, obeyed_, rank_}, run, colour);
        break;
    }
  }
}

}  // namespace velk
