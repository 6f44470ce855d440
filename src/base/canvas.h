// What the views draw on: a picture measured in the editor's own pixels (the toolkit scales them on
// dense screens), with the few strokes that plan views and wire frames need.
#pragma once

#include <span>
#include <string>

#include "base/colour.h"

namespace velk {

struct Pixel {
  int x = 0;
  int y = 0;
  friend bool operator==(const Pixel&, const Pixel&) = default;
};

struct PixelRect {
  int left = 0;
  int top = 0;
  int width = 0;
  int height = 0;
};

struct Pen {
  Colour colour;
  int width = 1;  // pixels
};

class Canvas {
 public:
  virtual ~Canvas() = default;
  virtual void fill(const PixelRect& rect, Colour colour) = 0;
  virtual void line(const Pen& pen, Pixel from, Pixel to) = 0;
  // The closed outline through the points.
  virtual void polygon(const Pen& pen, std::span<const Pixel> points) = 0;
  virtual void points(Colour colour, std::span<const Pixel> points) = 0;
  // Text whose character cell starts at `at` (top left) with the given height in pixels. The background
  // is filled behind it when one is given.
  virtual void text(const std::string& text, Pixel at, int height, Colour colour,
                    const Colour* background) = 0;
  // Width of the text in pixels at that height.
  virtual int textWidth(const std::string& text, int height) const = 0;

  // For drawings sharper than the editor's pixels: how many device pixels one of them has a side, and
  // strokes whose corners are counted in device pixels (pen widths stay in the editor's).
  virtual double deviceScale() const { return 1; }
  virtual void devicePolygon(const Pen& pen, std::span<const Pixel> points) { polygon(pen, points); }
  virtual void devicePoints(Colour colour, std::span<const Pixel> points) { this->points(colour, points); }
};

}  // namespace velk
