#include "planview/raster_canvas.h"

#include <algorithm>
#include <climits>
#include <memory>
#include <vector>

#include <gtest/gtest.h>

namespace velk {
namespace {

constexpr Colour kInk{1, 2, 3};

// A canvas of letters: '#' where something was drawn.
class TinyCanvas : public RasterCanvas {
 public:
  TinyCanvas(int width, int height, double scale = 1)
      : TinyCanvas(std::make_unique<Store>(static_cast<size_t>((width + 2) * (height + 2))), width, height,
                   scale) {}

  void text(const std::string&, Pixel, int, Colour, const Colour*) override {}
  int textWidth(const std::string&, int) const override { return 0; }

  std::vector<std::string> rows() const {
    std::vector<std::string> result;
    for (int y = 0; y < deviceHeight(); ++y) {
      std::string row;
      for (int x = 0; x < deviceWidth(); ++x) row += pixels()[y * stride() + x] ? '#' : '.';
      result.push_back(row);
    }
    return result;
  }
  // Nothing was drawn outside the picture.
  bool frameIsClean() const {
    size_t drawn = 0, inside = 0;
    for (std::uint32_t p : *store_) drawn += p != 0;
    for (const std::string& row : rows()) inside += static_cast<size_t>(std::ranges::count(row, '#'));
    return drawn == inside;
  }

 private:
  using Store = std::vector<std::uint32_t>;
  TinyCanvas(std::unique_ptr<Store> store, int width, int height, double scale)
      : RasterCanvas(store->data() + width + 3, width, height, width + 2, scale), store_(std::move(store)) {}

  std::unique_ptr<Store> store_;  // the picture with a frame of one pixel
};

using Rows = std::vector<std::string>;

Rows LineRows(int width, Pixel from, Pixel to, double scale = 1) {
  TinyCanvas canvas(8, 4, scale);
  canvas.line({kInk, width}, from, to);
  EXPECT_TRUE(canvas.frameIsClean());
  return canvas.rows();
}

TEST(RasterCanvas, DrawsLines) {
  EXPECT_EQ(LineRows(1, {1, 1}, {6, 1}), (Rows{"........", ".######.", "........", "........"}));
  EXPECT_EQ(LineRows(1, {2, 3}, {2, 1}), (Rows{"........", "..#.....", "..#.....", "..#....."}));
  EXPECT_EQ(LineRows(1, {0, 0}, {7, 3}), (Rows{"##......", "..##....", "....##..", "......##"}));
  EXPECT_EQ(LineRows(1, {0, 3}, {2, 0}), (Rows{"..#.....", ".#......", ".#......", "#......."}));
  EXPECT_EQ(LineRows(2, {1, 1}, {4, 1}), (Rows{"........", ".#####..", ".#####..", "........"}));
  EXPECT_EQ(LineRows(2, {0, 0}, {6, 2}), (Rows{"##......", "#####...", "..#####.", ".....##."}));
  EXPECT_EQ(LineRows(1, {5, 2}, {5, 2}), (Rows{"........", "........", ".....#..", "........"}));
}

TEST(RasterCanvas, ALineMeetsTheSamePixelsInBothDirections) {
  for (int x = 0; x < 8; ++x) {
    for (int y = 0; y < 4; ++y) EXPECT_EQ(LineRows(1, {3, 1}, {x, y}), LineRows(1, {x, y}, {3, 1}));
  }
}

TEST(RasterCanvas, ClippingKeepsThePixelsOfTheWholeLine) {
  TinyCanvas large(60, 60);
  for (int from = 0; from < 60; from += 7) {
    for (int to = 0; to < 60; to += 3) {
      for (const auto& [a, b] : {std::pair<Pixel, Pixel>{{0, from}, {59, to}}, {{from, 59}, {to, 0}}}) {
        large.fill({0, 0, 60, 60}, {});
        TinyCanvas whole(60, 60);
        whole.line({kInk, 1}, a, b);
        TinyCanvas part(8, 4);
        part.line({kInk, 1}, {a.x - 20, a.y - 30}, {b.x - 20, b.y - 30});
        EXPECT_TRUE(part.frameIsClean());
        for (int y = 0; y < 4; ++y) {
          EXPECT_EQ(part.rows()[static_cast<size_t>(y)],
                    whole.rows()[static_cast<size_t>(y + 30)].substr(20, 8));
        }
      }
    }
  }
}

TEST(RasterCanvas, FarCoordinatesNeitherOverflowNorLoseTheLine) {
  EXPECT_EQ(LineRows(1, {INT_MIN, 2}, {INT_MAX, 2})[2], "########");
  EXPECT_EQ(LineRows(1, {INT_MIN, INT_MIN}, {INT_MAX, INT_MAX}),
            (Rows{"#.......", ".#......", "..#.....", "...#...."}));
  EXPECT_EQ(LineRows(3, {INT_MIN, INT_MAX}, {INT_MAX, INT_MAX - 5}), Rows(4, "........"));
  EXPECT_EQ(LineRows(2, {INT_MAX, 0}, {INT_MAX, 3}), Rows(4, "........"));
  TinyCanvas canvas(8, 4, 2);
  canvas.fill({INT_MIN, INT_MIN, INT_MAX, INT_MAX}, kInk);
  canvas.fill({INT_MAX, 0, INT_MAX, 4}, kInk);
  EXPECT_EQ(canvas.rows(), Rows(4, "........"));
  canvas.fill({-1000, -1000, INT_MAX, INT_MAX}, kInk);
  EXPECT_EQ(canvas.rows(), Rows(4, "########"));
}

TEST(RasterCanvas, DenseScreensGetWiderStrokesAtDevicePositions) {
  EXPECT_EQ(LineRows(1, {1, 0}, {2, 0}, 2), (Rows{"..####..", "..####..", "........", "........"}));
  EXPECT_EQ(LineRows(1, {1, 1}, {1, 1}, 1.5), (Rows{"........", "........", "..##....", "..##...."}));
  TinyCanvas canvas(8, 4, 2);
  const Pixel corners[] = {{1, 0}, {5, 0}, {5, 2}, {1, 2}};
  canvas.devicePolygon({kInk, 1}, corners);
  EXPECT_EQ(canvas.rows(), (Rows{".######.", ".######.", ".######.", ".######."}));
  TinyCanvas dots(8, 4, 2);
  const Pixel at[] = {{0, 0}, {-1, 3}, {7, 2}, {8, 0}};
  dots.devicePoints(kInk, at);
  EXPECT_EQ(dots.rows(), (Rows{"##......", "##......", ".......#", "#......#"}));
}

TEST(RasterCanvas, PolygonsAreClosed) {
  TinyCanvas canvas(8, 4);
  const Pixel corners[] = {{1, 0}, {6, 0}, {6, 3}, {1, 3}};
  canvas.polygon({kInk, 1}, corners);
  EXPECT_EQ(canvas.rows(), (Rows{".######.", ".#....#.", ".#....#.", ".######."}));
}

}  // namespace
}  // namespace velk
