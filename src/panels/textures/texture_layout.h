// Where the texture browser has what, in pixels of its window: a header with the fields and buttons, the rows
// of favourites and frequents, and the grid that scrolls below them.
#pragma once

#include "base/canvas.h"
#include "settings/settings.h"

namespace velk {

// What the layout follows from.
struct TextureLayoutInput {
  int clientWidth = 0;
  int clientHeight = 0;
  int thumbnailWidth = 0;
  int thumbnailHeight = 0;
  int count = 0;  // of thumbnails in the grid
};

// One of the two short rows; not shown, it takes no room.
struct TextureRow {
  bool shown = false;
  int top = 0;
  int side = 0;   // of its square thumbnails
  int cells = 0;  // favourites or frequents
};

// What lies under the pointer.
struct TexturePlace {
  enum class Kind { None, Grid, Favourite, Frequent };
  Kind kind = Kind::None;
  int index = -1;  // of the thumbnail in the grid, or of the cell in its row
  friend bool operator==(const TexturePlace&, const TexturePlace&) = default;
};

struct TextureLayout {
  TextureLayout() = default;
  TextureLayout(const TextureLayoutInput& input, const Settings& settings);

  int headerHeight = 0;
  TextureRow favourites;
  TextureRow frequents;
  int gridTop = 0;
  int cellWidth = 1;
  int cellHeight = 1;
  int thumbnailWidth = 0;
  int thumbnailHeight = 0;
  int margin = 0;  // of a thumbnail in its cell, on the left
  int columns = 1;
  int visibleRows = 1;
  int totalRows = 0;
  int count = 0;

  // How far the grid scrolls, in pixels.
  int scrollRange() const;
  // The thumbnail of a place, names left out. `scroll` is the number of pixels the grid has gone up.
  PixelRect thumbnail(const TexturePlace& place, int scroll) const;
  TexturePlace at(Pixel pixel, int scroll) const;
  // The scroll position nearest to `scroll` that shows a thumbnail of the grid whole.
  int scrollToShow(int index, int scroll) const;
};

// How a texture is drawn as a thumbnail: so much of its upper left corner, at that size.
struct ThumbnailSize {
  int width = 0;
  int height = 0;
  int sourceWidth = 0;
  int sourceHeight = 0;
  friend bool operator==(const ThumbnailSize&, const ThumbnailSize&) = default;
};

// By the settings stretch_textures and nosmallstretch, of a texture of width by height into a cell.
ThumbnailSize ThumbnailSizeOf(int width, int height, int cellWidth, int cellHeight, const Settings& settings);

}  // namespace velk
