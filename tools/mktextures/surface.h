// A texture while it is being made: every texel has a material, a brightness and a height. Light falls
// from above and a little from the left; everything wraps at the edges.
#pragma once

#include <cstdint>
#include <vector>

#include "palette.h"

namespace velk::kit {

// A finished texture: palette indices, top row first.
struct Image {
  int width = 0, height = 0;
  std::vector<uint8_t> pixels;
};

struct Texel {
  Ramp ramp;
  double level = 0;   // 0..1 along the ramp
  double height = 0;  // texels
};

struct Box {
  int x = 0, y = 0, width = 0, height = 0;
};

class Surface {
 public:
  Surface(int width, int height, Ramp ramp, double level);

  int width() const { return width_; }
  int height() const { return height_; }
  Box all() const { return {0, 0, width_, height_}; }
  Texel& at(int x, int y);
  const Texel& at(int x, int y) const { return const_cast<Surface*>(this)->at(x, y); }

  template <typename Change>
  void each(const Box& box, Change&& change) {
    for (int y = box.y; y < box.y + box.height; ++y) {
      for (int x = box.x; x < box.x + box.width; ++x) change(x, y, at(x, y));
    }
  }
  // The same for the whole texture, with positions as fractions of it.
  template <typename Change>
  void eachPart(Change&& change) {
    each(all(), [&](int x, int y, Texel& texel) { change((x + 0.5) / width_, (y + 0.5) / height_, texel); });
  }

  void fill(const Box& box, Ramp ramp, double level);
  // Raises a box by `rise` texels (lowers it when negative), with a slope `bevel` wide inside its edge.
  void raise(const Box& box, double rise, double bevel = 1.5);
  // A raised rim of the given width.
  void frame(const Box& box, int rim, double rise);
  void disc(double x, double y, double radius, Ramp ramp, double level);
  void dome(double x, double y, double radius, double rise);
  void rivet(int x, int y) { dome(x, y, 2.2, 1.6); }

  // Uneven colour: clouds, single grains, and dirt running down.
  void mottle(double amount, int cells, uint32_t seed);
  void grain(double amount, uint32_t seed);
  void streaks(double amount, uint32_t seed);
  // Uneven height.
  void roughen(double amount, int cells, uint32_t seed);

  // Most surfaces end so: uneven colour, then light.
  void finish(double mottleAmount, double grainAmount, uint32_t seed);
  // Turns heights into light and shade; what glows stays as it is.
  void light(double strength = 0.09, double hollows = 0.05);

  Image image() const;

 private:
  int width_, height_;
  std::vector<Texel> texels_;
};

}  // namespace velk::kit
