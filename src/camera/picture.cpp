#include "camera/picture.h"

#include <algorithm>
#include <new>

#include "base/error.h"

namespace velk {

namespace {

// Depths and face numbers of a strip together take about this many bytes.
constexpr int kStripBytes = 256 * 1024;

int StripRows(const Picture& picture) {
  const int rows = kStripBytes / (picture.width * int(sizeof(float) + sizeof(std::uint32_t)));
  return std::max(kTileHeight, rows / kTileHeight * kTileHeight);
}

template <typename Values>
void Resize(Values& values, size_t count, const char* failure) {
  try {
    values.assign(count, 0);
  } catch (const std::bad_alloc&) {
    Error("%s", failure);
  }
}

void NearestFirst(std::vector<BrushDraw>& brushes) {
  std::sort(brushes.begin(), brushes.end(),
            [](const BrushDraw& a, const BrushDraw& b) { return a.depth < b.depth; });
}

}  // namespace

void Picture::resize(int newWidth, int newHeight) {
  if (newWidth == width && newHeight == height) return;
  const size_t count = size_t(newWidth) * size_t(newHeight) + kSparePixels;
  Resize(depth, count, "Couldn't allocate zbuffer (2)");
  Resize(frame, count, "Couldn't allocate frame buffer (2)");
  width = newWidth;
  height = newHeight;
}

void Picture::clear() {
  std::fill(depth.begin(), depth.end(), 0.0f);
  std::fill(frame.begin(), frame.end(), std::uint8_t(0));
}

void PictureDrawer::makeStrip(Picture& picture, int top, int rows, DrawOver over) {
  strip_.width = picture.width;
  strip_.top = top;
  strip_.bottom = std::min(top + rows, picture.height);
  const size_t pixels = size_t(strip_.bottom - top) * size_t(picture.width);
  strip_.depth = picture.depth.data() + size_t(top) * size_t(picture.width);
  if (over == DrawOver::Nothing) std::fill_n(strip_.depth, pixels, 0.0f);
  numbers_.assign(pixels + kSparePixels, 0);
  strip_.faces = numbers_.data();
  makeTiles(rows, over != DrawOver::Nothing);
}

void PictureDrawer::makeTiles(int rows, bool stale) {
  strip_.tileColumns = (strip_.width + kTileWidth - 1) / kTileWidth;
  const size_t tiles = size_t(strip_.tileColumns) * size_t((rows + kTileHeight - 1) / kTileHeight);
  tiles_.assign(tiles, 0);
  stale_.assign(tiles, stale);
  strip_.tiles = tiles_.data();
  strip_.stale = stale_.data();
  spans_.clear();
}

bool PictureDrawer::hides(int left, int top, int right, int bottom, float w) const {
  return kernels_.hides(strip_, left, std::max(top, strip_.top), right, std::min(bottom, strip_.bottom), w);
}

void PictureDrawer::spoilTiles(const Outline& outline, int top, int bottom) {
  const int first = outline.left / kTileWidth;
  const int stop = (outline.right + kTileWidth - 1) / kTileWidth;
  for (int row = (top - strip_.top) / kTileHeight; row <= (bottom - 1 - strip_.top) / kTileHeight; ++row) {
    std::fill(stale_.begin() + row * strip_.tileColumns + first,
              stale_.begin() + row * strip_.tileColumns + stop, std::uint8_t(1));
  }
}

void PictureDrawer::drawFace(FaceList& faces, std::uint32_t number, bool always,
                             RenderStatistics& statistics) {
  FaceDraw& face = faces[number];
  const Outline& outline = face.outline;
  const int top = std::max(outline.top, strip_.top);
  const int bottom = std::min(outline.bottom, strip_.bottom);
  if (top >= bottom || outline.left >= outline.right) return;
  if (!always && hides(outline.left, top, outline.right, bottom, outline.nearest)) return;
  const size_t first = spans_.size();
  spans_.resize(first + size_t(bottom - top));
  face.firstSpan = std::uint32_t(first) - std::uint32_t(top);
  statistics.pixelsTested +=
      kernels_.drawFace(strip_, faces.table(), number, top, bottom, &spans_[first], always);
  ++statistics.facesDrawn;
  spoilTiles(outline, top, bottom);
}

void PictureDrawer::drawBrush(BrushDraw& draw, FaceList& faces, bool always, RenderStatistics& statistics) {
  if (draw.top >= strip_.bottom || draw.bottom <= strip_.top) return;
  if (!always && hides(draw.left, draw.top, draw.right, draw.bottom, draw.nearest)) return;
  if (!draw.isSetUp) {
    faces.addBrush(draw);
    ++statistics.brushesDrawn;
  }
  for (std::uint32_t i = 0; i < draw.faceCount; ++i) drawFace(faces, draw.firstFace + i, always, statistics);
}

void PictureDrawer::draw(Picture& picture, std::vector<BrushDraw>& brushes, FaceList& faces, DrawOver over,
                         RenderStatistics& statistics, std::vector<std::uint32_t>* numbers) {
  const bool always = over == DrawOver::PictureWithoutDepthTest;
  if (!always) NearestFirst(brushes);
  const int rows = StripRows(picture);
  for (int top = 0; top < picture.height; top += rows) {
    makeStrip(picture, top, rows, over);
    for (BrushDraw& brush : brushes) drawBrush(brush, faces, always, statistics);
    const size_t first = size_t(top) * size_t(picture.width);
    if (numbers) std::copy(numbers_.begin(), numbers_.end() - kSparePixels, numbers->begin() + long(first));
    for (int row = strip_.top; row < strip_.bottom; ++row) {
      std::uint8_t* out = picture.frame.data() + size_t(row) * size_t(picture.width);
      statistics.pixelsWritten +=
          kernels_.paintRow(strip_, faces.table(), spans_.data(), row, out, over != DrawOver::Nothing);
    }
  }
}

PictureDrawer::Rows PictureDrawer::drawInto(Picture& picture, std::vector<std::uint32_t>& numbers,
                                            std::vector<BrushDraw>& brushes, FaceList& faces,
                                            std::uint32_t firstNew, RenderStatistics& statistics) {
  strip_.width = picture.width;
  strip_.top = 0;
  strip_.bottom = picture.height;
  strip_.depth = picture.depth.data();
  strip_.faces = numbers.data();
  makeTiles(picture.height, true);
  NearestFirst(brushes);
  for (BrushDraw& brush : brushes) drawBrush(brush, faces, false, statistics);

  Rows rows{picture.height, 0};
  for (std::uint32_t i = firstNew; i < faces.count(); ++i) {
    rows.top = std::min(rows.top, std::max(faces[i].outline.top, 0));
    rows.bottom = std::max(rows.bottom, std::min(faces[i].outline.bottom, picture.height));
  }
  for (int row = rows.top; row < rows.bottom; ++row) {
    const size_t first = size_t(row) * size_t(picture.width);
    std::uint32_t* shown = numbers.data() + first;
    for (int x = 0; x < picture.width; ++x) shown[x] = shown[x] < firstNew ? 0 : shown[x];
    statistics.pixelsWritten +=
        kernels_.paintRow(strip_, faces.table(), spans_.data(), row, picture.frame.data() + first, true);
  }
  return rows;
}

}  // namespace velk
