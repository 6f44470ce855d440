#include "surface.h"

#include <algorithm>
#include <cmath>

#include "noise.h"

namespace velk::kit {

Surface::Surface(int width, int height, Ramp ramp, double level)
    : width_(width), height_(height), texels_(static_cast<size_t>(width * height), Texel{ramp, level, 0}) {}

Texel& Surface::at(int x, int y) {
  x = ((x % width_) + width_) % width_;
  y = ((y % height_) + height_) % height_;
  return texels_[static_cast<size_t>(y * width_ + x)];
}

void Surface::fill(const Box& box, Ramp ramp, double level) {
  each(box, [&](int, int, Texel& t) { t.ramp = ramp, t.level = level; });
}

void Surface::raise(const Box& box, double rise, double bevel) {
  each(box, [&](int x, int y, Texel& t) {
    const int across = std::min(x - box.x, box.x + box.width - 1 - x);
    const int down = std::min(y - box.y, box.y + box.height - 1 - y);
    t.height += rise * std::min(1.0, (std::min(across, down) + 1) / bevel);
  });
}

void Surface::frame(const Box& box, int rim, double rise) {
  raise(box, rise);
  raise({box.x + rim, box.y + rim, box.width - 2 * rim, box.height - 2 * rim}, -rise);
}

void Surface::disc(double x, double y, double radius, Ramp ramp, double level) {
  each(all(), [&](int i, int j, Texel& t) {
    if (std::hypot(i + 0.5 - x, j + 0.5 - y) < radius) t.ramp = ramp, t.level = level;
  });
}

void Surface::dome(double x, double y, double radius, double rise) {
  const int r = static_cast<int>(std::ceil(radius));
  each({static_cast<int>(x) - r, static_cast<int>(y) - r, 2 * r + 1, 2 * r + 1}, [&](int i, int j, Texel& t) {
    const double d = std::hypot(i + 0.5 - x, j + 0.5 - y) / radius;
    if (d < 1) t.height += rise * std::sqrt(1 - d * d);
  });
}

void Surface::mottle(double amount, int cells, uint32_t seed) {
  const int down = std::max(1, cells * height_ / width_);
  eachPart([&](double u, double v, Texel& t) {
    t.level += amount * (CloudNoise(u, v, cells, down, 3, seed) - 0.5);
  });
}

void Surface::grain(double amount, uint32_t seed) {
  each(all(), [&](int x, int y, Texel& t) { t.level += amount * (Hash(x, y, seed) - 0.5); });
}

void Surface::streaks(double amount, uint32_t seed) {
  eachPart([&](double u, double v, Texel& t) {
    t.level += amount * (CloudNoise(u, v, width_ / 4, 2, 2, seed) - 0.5);
  });
}

void Surface::roughen(double amount, int cells, uint32_t seed) {
  const int down = std::max(1, cells * height_ / width_);
  eachPart(
      [&](double u, double v, Texel& t) { t.height += amount * CloudNoise(u, v, cells, down, 3, seed); });
}

void Surface::light(double strength, double hollows) {
  const Surface before = *this;
  const auto h = [&](int x, int y) { return before.at(x, y).height; };
  each(all(), [&](int x, int y, Texel& t) {
    const double slope = 0.6 * (h(x + 1, y) - h(x - 1, y)) + h(x, y + 1) - h(x, y - 1);
    const double around = (h(x - 3, y) + h(x + 3, y) + h(x, y - 3) + h(x, y + 3)) / 4;
    const bool glows = t.ramp.first >= kFirstFullBright;
    if (!glows)
      t.level +=
          std::clamp(strength * slope, -0.3, 0.3) + std::clamp(hollows * (t.height - around), -0.2, 0.1);
  });
}

void Surface::finish(double mottleAmount, double grainAmount, uint32_t seed) {
  mottle(mottleAmount, 4, seed);
  grain(grainAmount, seed + 1);
  light();
}

Image Surface::image() const {
  Image image{width_, height_, {}};
  for (int y = 0; y < height_; ++y) {
    for (int x = 0; x < width_; ++x) {
      const Texel& t = at(x, y);
      // A touch of grain hides the steps of the ramp.
      const double step = 0.7 / t.ramp.length;
      image.pixels.push_back(t.ramp.index(std::clamp(t.level, 0.0, 1.0) + step * (Hash(x, y, 77) - 0.5)));
    }
  }
  return image;
}

}  // namespace velk::kit
