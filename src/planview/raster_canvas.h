// A canvas over an array of 32-bit pixels, for every toolkit that can show one.
#pragma once

#include <cstddef>
#include <cstdint>

#include "base/canvas.h"

namespace velk {

// Pixels are 0xffRRGGBB, rows top down. The canvas measures in the editor's pixels and draws `scale` device
// pixels for each (1, 2, 1.5...). Everything is clipped to the array. Text is left to the derived class,
// which owns a font engine.
class RasterCanvas : public Canvas {
 public:
  // width and height in device pixels; stride in pixels, at least width. The array must outlive the
  // canvas.
  RasterCanvas(std::uint32_t* pixels, int width, int height, std::ptrdiff_t stride, double scale = 1);

  void fill(const PixelRect& rect, Colour colour) override;
  void line(const Pen& pen, Pixel from, Pixel to) override;
  void polygon(const Pen& pen, std::span<const Pixel> points) override;
  void points(Colour colour, std::span<const Pixel> points) override;
  double deviceScale() const override { return scale_; }
  void devicePolygon(const Pen& pen, std::span<const Pixel> points) override;
  void devicePoints(Colour colour, std::span<const Pixel> points) override;

 protected:
  std::uint32_t* pixels() const { return pixels_; }
  int deviceWidth() const { return width_; }
  int deviceHeight() const { return height_; }
  std::ptrdiff_t stride() const { return stride_; }
  // A position of the editor's pixels in device pixels.
  int toDevice(double position) const;
  Pixel toDevice(Pixel position) const { return {toDevice(position.x), toDevice(position.y)}; }

 private:
  int deviceWidthOf(const Pen& pen) const;
  // Right and bottom do not belong to the rectangle.
  void fillDevice(int left, int top, int right, int bottom, std::uint32_t colour);
  void deviceLine(std::uint32_t colour, int width, Pixel from, Pixel to);

  std::uint32_t* pixels_;
  int width_;
  int height_;
  std::ptrdiff_t stride_;
  double scale_;
};

inline std::uint32_t PixelOf(Colour c) {
  return 0xff000000u | static_cast<std::uint32_t>(c.red & 255) << 16 |
         static_cast<std::uint32_t>(c.green & 255) << 8 | static_cast<std::uint32_t>(c.blue & 255);
}

}  // namespace velk
