// The part of a picture that stays while a drag goes on: drawn once, with the rank of what each pixel shows,
// so that what moves is drawn between.
#pragma once

#include <cstdint>
#include <optional>
#include <vector>

#include "planview/raster_canvas.h"

namespace velk {

// Key: everything that its strokes depend on.
template <class Key>
class KeptLayer {
 public:
  // False for another key than the last picture's: that picture is to be drawn whole, and the next ones by
  // this.
  bool fits(const Key& wanted) {
    if (key_ == wanted) return true;
    key_ = wanted;
    drawn_ = false;
    return false;
  }

  // Whether the last picture was drawn by it.
  bool isDrawn() const { return drawn_; }

  template <class DrawStill, class DrawMoving>
  void draw(RasterCanvas& canvas, DrawStill&& drawStill, DrawMoving&& drawMoving) {
    if (drawn_) {
      canvas.paste(pixels_);
    } else {
      canvas.keepRanks(ranks_);
      drawStill();
      canvas.freeRanks();
      canvas.copyTo(pixels_);
      drawn_ = true;
    }
    canvas.obeyRanks(ranks_);
    drawMoving();
    canvas.freeRanks();
  }

 private:
  std::optional<Key> key_;
  bool drawn_ = false;
  std::vector<std::uint32_t> pixels_;
  std::vector<std::uint32_t> ranks_;  // 0 the ground, then the still brushes in their order
};

}  // namespace velk
