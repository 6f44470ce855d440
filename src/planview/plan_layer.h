// The part of a plan view's picture that stays while a drag goes on.
#pragma once

#include "model/still_brushes.h"
#include "planview/kept_layer.h"
#include "planview/plan_view.h"

namespace velk {

// Everything besides the still brushes themselves that the strokes of the layer depend on.
struct PlanLayerKey {
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

  bool operator==(const PlanLayerKey& other) const;
};

using PlanLayer = KeptLayer<PlanLayerKey>;

PlanLayerKey LayerKey(const PlanViewSet& set, int view, const Settings& settings, const map& shown,
                      const StillBrushes& still, double deviceScale);

}  // namespace velk
