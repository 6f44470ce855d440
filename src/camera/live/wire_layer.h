// The wire picture while a drag goes on: what stays is drawn once.
#pragma once

#include <cstdint>
#include <optional>
#include <vector>

#include "camera/wire.h"
#include "planview/raster_canvas.h"

namespace velk {

struct WireLayer {
  // Everything besides the still brushes themselves that the layer's strokes depend on.
  struct Key {
    const map* shown = nullptr;
    int generation = 0;  // of the still brushes
    RenderSize size;
    double deviceScale = 1;
    float place[6] = {};  // of the eye, and its angles
    double focalLength = 0;
    float farLimit = 0;
    Colour strokes;
    Colour background;
    bool operator==(const Key&) const = default;
  };

  std::optional<Key> key;  // of the last picture
  bool drawn = false;
  std::vector<std::uint32_t> pixels;
  std::vector<std::uint32_t> ranks;  // 0 background, then the still brushes in their order
};

// The same picture as DrawWire's. The scene's still brushes must be given.
void DrawWire(RasterCanvas& canvas, RenderSize canvasSize, const RenderScene& scene, WireLayer& layer);

}  // namespace velk
