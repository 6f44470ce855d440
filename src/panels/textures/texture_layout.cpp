#include "panels/textures/texture_layout.h"

#include <algorithm>

#include "base/text.h"

namespace velk {
namespace {

constexpr int kNameWidth = 10;   // that names add to a cell
constexpr int kNameHeight = 14;  // and to its height
constexpr int kRowsLeft = 50;
constexpr int kBelowHeader = 3;

int Named(const Settings& settings, int pixels) { return settings.show_tex_names ? pixels : 0; }

TextureRow RowAt(int top, bool shown, int side, int cells) {
  return {shown, top, std::max(side, 1), shown ? std::max(cells, 0) : 0};
}

int HeightOf(const TextureRow& row, const Settings& settings) {
  return row.shown ? row.side + Named(settings, kNameHeight) : 0;
}

}  // namespace

TextureLayout::TextureLayout(const TextureLayoutInput& input, const Settings& settings)
    : headerHeight(settings.tex_button_height * 2 + 6),
      thumbnailWidth(std::max(input.thumbnailWidth, 1)),
      thumbnailHeight(std::max(input.thumbnailHeight, 1)),
      margin(Named(settings, kNameWidth / 2)),
      count(input.count) {
  const int top = headerHeight + kBelowHeader;
  favourites = RowAt(top, settings.show_favorites, settings.height_fav, settings.numfav);
  frequents = RowAt(top + HeightOf(favourites, settings), settings.show_frequent, settings.height_frq,
                    settings.numfrq);
  gridTop = frequents.top + HeightOf(frequents, settings);
  cellWidth = thumbnailWidth + 2 * margin;
  cellHeight = thumbnailHeight + Named(settings, kNameHeight);
  columns = std::max(1, input.clientWidth / cellWidth);
  visibleRows = std::max(1, (input.clientHeight - gridTop) / cellHeight);
  totalRows = (count + columns - 1) / columns;
}

int TextureLayout::scrollRange() const { return std::max(0, totalRows - visibleRows) * cellHeight; }

PixelRect TextureLayout::thumbnail(const TexturePlace& place, int scroll) const {
  if (place.kind == TexturePlace::Kind::Grid) {
    return {place.index % columns * cellWidth + margin, gridTop + place.index / columns * cellHeight - scroll,
            thumbnailWidth, thumbnailHeight};
  }
  const TextureRow& row = place.kind == TexturePlace::Kind::Favourite ? favourites : frequents;
  return {kRowsLeft + place.index * (row.side + 2 * margin) + margin, row.top, row.side, row.side};
}

TexturePlace TextureLayout::at(Pixel pixel, int scroll) const {
  if (pixel.y >= gridTop && pixel.x >= 0 && pixel.x < columns * cellWidth) {
    const int index = (pixel.y - gridTop + scroll) / cellHeight * columns + pixel.x / cellWidth;
    return index < count ? TexturePlace{TexturePlace::Kind::Grid, index} : TexturePlace{};
  }
  const auto inRow = [&](const TextureRow& row, TexturePlace::Kind kind) -> TexturePlace {
    if (!row.shown || pixel.y < row.top || pixel.y >= row.top + row.side || pixel.x < kRowsLeft) return {};
    const int index = (pixel.x - kRowsLeft) / (row.side + 2 * margin);
    return index < row.cells ? TexturePlace{kind, index} : TexturePlace{};
  };
  const TexturePlace favourite = inRow(favourites, TexturePlace::Kind::Favourite);
  return favourite.index >= 0 ? favourite : inRow(frequents, TexturePlace::Kind::Frequent);
}

int TextureLayout::scrollToShow(int index, int scroll) const {
  if (index < 0) return scroll;
  const int top = index / columns * cellHeight;
  if (top < scroll) return top;
  return std::min(std::max(scroll, top - (visibleRows - 1) * cellHeight), scrollRange());
}

ThumbnailSize ThumbnailSizeOf(int width, int height, int cellWidth, int cellHeight,
                              const Settings& settings) {
  if (!settings.stretch_textures) {
    const int w = std::min(width, cellWidth);
    const int h = std::min(height, cellHeight);
    return {w, h, w, h};
  }
  if (!settings.nosmallstretch) return {cellWidth, cellHeight, width, height};
  const bool wider = width > cellWidth;
  const bool higher = height > cellHeight;
  double scale = 1;
  if (wider && higher) {
    scale = std::min(double(cellWidth) / width, double(cellHeight) / height);
  } else if (wider) {
    scale = double(cellWidth) / width;
  } else if (higher) {
    scale = double(cellHeight) / height;
  }
  const auto scaled = [scale](int side) { return std::max(1, Truncate(RoundHalfAway(side * scale))); };
  return {scaled(width), scaled(height), width, height};
}

}  // namespace velk
