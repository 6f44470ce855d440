// A canvas over an array of 32-bit pixels, for every toolkit that can show one.
#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

#include "base/canvas.h"

namespace velk {

// Pixels are 0xffRRGGBB, rows top down. The canvas measures in the editor's pixels and draws `scale` device
// pixels for each (1, 2, 1.5...). Everything is clipped to the array. Text is left to the derived class,
// which owns a font engine.
//
// A picture can be drawn in two goes without showing it: the first keeps with each pixel the rank of the
// stroke that coloured it, and strokes of the second leave pixels of larger ranks alone.
class RasterCanvas : public Canvas {
 public:
  // width and height in device pixels; stride in pixels, at least width. The array must outlive the
  // canvas.
  RasterCanvas(std::uint32_t* pixels, int width, int height, std::ptrdiff_t stride, double scale = 1);

  void fill(const PixelRect& rect, Colour colour) override;
  void line(const Pen& pen, Pixel from, Pixel to) override;
  void polygon(const Pen& pen, std::span<const Pixel> points) override;
  void points(Colour colour, std::span<const Pixel> points) override;
  // Strokes from now on keep their rank in `ranks`, one for each pixel, row after row; or go by those there.
  // The ranks must stay until strokes are free again.
  void keepRanks(std::vector<std::uint32_t>& ranks);
  void obeyRanks(const std::vector<std::uint32_t>& ranks);
  void setRank(std::uint32_t rank) { rank_ = rank; }
  void freeRanks();
  // The pixels, row after row, of a canvas of this size.
  void copyTo(std::vector<std::uint32_t>& pixels) const;
  void paste(const std::vector<std::uint32_t>& pixels);

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
  enum class Ranks { Free, Kept, Obeyed };

  int deviceWidthOf(const Pen& pen) const;
  // Right and bottom do not belong to the rectangle.
  void fillDevice(int left, int top, int right, int bottom, std::uint32_t colour);
  void fillObeying(int left, int top, int right, int bottom, std::uint32_t colour);
  void deviceLine(std::uint32_t colour, int width, Pixel from, Pixel to);

  std::uint32_t* pixels_;
  int width_;
  int height_;
  std::ptrdiff_t stride_;
  double scale_;
  Ranks ranks_ = Ranks::Free;
  std::uint32_t rank_ = 0;
  std::uint32_t* kept_ = nullptr;          // of width_ * height_ pixels
  const std::uint32_t* obeyed_ = nullptr;  // the same
};

inline std::uint32_t PixelOf(Colour c) {
  return 0xff000000u | static_cast<std::uint32_t>(c.red & 255) << 16 |
         static_cast<std::uint32_t>(c.green & 255) << 8 | static_cast<std::uint32_t>(c.blue & 255);
}

}  // namespace velk
