// A canvas that writes down what is drawn on it, one line a stroke.
#pragma once

#include <algorithm>
#include <string>
#include <vector>

#include "base/canvas.h"
#include "base/text.h"

namespace velk::test {

class RecordingCanvas : public Canvas {
 public:
  // "fill #rrggbb x y w h", "line #rrggbb width x y - x y", "polygon #rrggbb width left top right bottom"
  // (its bounds), "points #rrggbb x,y x,y...", "text 'text' #rrggbb height x y".
  std::vector<std::string> strokes;
  std::vector<std::vector<Pixel>> outlines;  // of the polygons

  void fill(const PixelRect& r, Colour colour) override {
    add("fill " + hex(colour) + Format(" %i %i %i %i", r.left, r.top, r.width, r.height));
  }
  void line(const Pen& pen, Pixel from, Pixel to) override {
    add("line " + hex(pen.colour) + Format(" %i %i %i - %i %i", pen.width, from.x, from.y, to.x, to.y));
  }
  void polygon(const Pen& pen, std::span<const Pixel> points) override {
    outlines.emplace_back(points.begin(), points.end());
    const auto [left, right] = std::ranges::minmax(points, {}, &Pixel::x);
    const auto [top, bottom] = std::ranges::minmax(points, {}, &Pixel::y);
    add("polygon " + hex(pen.colour) +
        Format(" %i %i %i %i %i", pen.width, left.x, top.y, right.x, bottom.y));
  }
  void points(Colour colour, std::span<const Pixel> points) override {
    std::string stroke = "points " + hex(colour);
    for (const Pixel& p : points) stroke += Format(" %i,%i", p.x, p.y);
    add(stroke);
  }
  void text(const std::string& text, Pixel at, int height, Colour colour, const Colour*) override {
    add("text '" + text + "' " + hex(colour) + Format(" %i %i %i", height, at.x, at.y));
  }
  int textWidth(const std::string& text, int height) const override {
    return static_cast<int>(text.size()) * height / 2;
  }

  // The strokes that begin with `start`.
  std::vector<std::string> starting(std::string_view start) const {
    std::vector<std::string> found;
    std::ranges::copy_if(strokes, std::back_inserter(found),
                         [&](const std::string& s) { return s.starts_with(start); });
    return found;
  }

 private:
  static std::string hex(Colour c) { return Format("#%02x%02x%02x", c.red, c.green, c.blue); }
  void add(std::string stroke) { strokes.push_back(std::move(stroke)); }
};

}  // namespace velk::test
