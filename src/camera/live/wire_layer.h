// The wire picture while a drag goes on: what stays is drawn once.
#pragma once

#include "camera/wire.h"
#include "planview/kept_layer.h"

namespace velk {

// Everything besides the still brushes themselves that the strokes of the layer depend on.
struct WireLayerKey {
  const map* shown = nullptr;
  int generation = 0;  // of the still brushes
  RenderSize size;
  double deviceScale = 1;
  float place[6] = {};  // of the eye, and its angles
  double focalLength = 0;
  float farLimit = 0;
  Colour strokes;
  Colour background;
  bool operator==(const WireLayerKey&) const = default;
};

using WireLayer = KeptLayer<WireLayerKey>;

// The same picture as DrawWire's. The scene's still brushes must be given.
void DrawWire(RasterCanvas& canvas, RenderSize canvasSize, const RenderScene& scene, WireLayer& layer);

}  // namespace velk
