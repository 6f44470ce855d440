// The picture of a plan view.
#pragma once

#include <functional>
#include <memory>
#include <span>
#include <string>

#include "planview/header_strip.h"
#include "planview/plan_layer.h"
#include "planview/plan_view.h"

namespace velk {

// What a view shows besides its own record. Everything must outlive the drawing.
struct PlanScene {
  const PlanViewSet& set;
  const Settings& settings;
  map* shown = nullptr;  // none when no map is open
  StripColours strip{};
  std::string groupName{};             // of the group window's selected group, may be empty
  std::span<const vec3> leakPoints{};  // empty when they are not shown
  // What to draw in place of a selected brush (a running drag's or the clipper's preview): itself, another
  // that is valid until the next call, or none for nothing. May be empty.
  std::function<const brush*(const brush&)> preview{};
  std::span<const std::unique_ptr<brush>> ghosts{};  // drawn over the map
};

// Of brushes that are shown but not there.
inline constexpr Colour kGhostColour{64, 208, 144};

// Draws the whole view, header strip included, in its client size.
void DrawPlanView(Canvas& canvas, const PlanScene& scene, int view);

// The same picture, for many that differ in a few brushes only: of two alike in everything else the second
// keeps what stays in the layer, and those after it draw the moving brushes alone. `still` must have looked
// at the map.
void DrawPlanView(RasterCanvas& canvas, const PlanScene& scene, int view, const StillBrushes& still,
                  PlanLayer& layer);

}  // namespace velk
