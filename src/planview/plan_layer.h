// The part of a plan view's picture that stays while a drag goes on.
#pragma once

#include <cstdint>
#include <optional>
#include <vector>

#include "model/still_brushes.h"
#include "planview/plan_view.h"
#include "planview/raster_canvas.h"

namespace velk {

struct PlanLayer {
  // Everything besides the still brushes themselves that the layer's strokes depend on.
  struct Key {
    int generation = 0;  // of the still brushes
    PlanProjection projection;
    double deviceScale = 1;
    float normal = 0;  // of the view
    ViewColours colours;
    bool grid = false;
    bool coordinates = false;
    int gridsize = 0;
    int gridStyle = 0;
    clipper clip;

    bool operator==(const Key& other) const;
  };

  std::optional<Key> key;  // of the last picture
  bool drawn = false;
  std::vector<std::uint32_t> pixels;
  std::vector<std::uint32_t> ranks;  // 0 grid and clip points, then the still brushes in their order
};

PlanLayer::Key LayerKey(const PlanViewSet& set, int view, const Settings& settings, const map& shown,
                        const StillBrushes& still, double deviceScale);

}  // namespace velk
