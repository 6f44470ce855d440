#include "planview/plan_view.h"

#include <cmath>

#include "base/text.h"

namespace velk {

namespace {

struct Axes {
  int u, v, depth;
};
constexpr Axes kAxes[] = {{0, 1, 2}, {1, 2, 0}, {0, 2, 1}};  // by orientation

struct Title {
  const char* side;
  const char* plane;
  const char* direction;
};
// By orientation; first looking down the depth axis, then up it.
constexpr Title kTitles[][2] = {{{"Top  ", "XY", "Up"}, {"Bottom  ", "XY", "Down"}},
                                {{"Right", "YZ", "Right"}, {"Left", "YZ", "Left"}},
                                {{"Front", "XZ", "Front"}, {"Back", "XZ", "Back"}}};

const Title& TitleOf(const PlanView& view) {
  return kTitles[view.orientation][view.viewNormal[view.axisDepth] == -1.0f ? 0 : 1];
}

}  // namespace

Pixel PlanProjection::worldToScreen(const vec3& point) const {
  return {Truncate((point[axisU] - centreU) * scale + width / 2),
          Truncate(-(point[axisV] - centreV) * scale + height / 2)};
}

ViewPoint PlanProjection::screenToWorld(Pixel pixel) const {
  return {(pixel.x - width * 0.5) / scale + centreU, (height * 0.5 - pixel.y) / scale + centreV};
}

void PlanView::setOrientation(Orientation shown) {
  orientation = shown;
  const Axes& axes = kAxes[shown];
  axisU = axes.u;
  axisV = axes.v;
  axisDepth = axes.depth;
  viewNormal = {};
  viewNormal[axisDepth] = -1;
}

void PlanView::flip() { viewNormal[axisDepth] = viewNormal[axisDepth] == -1.0f ? 1.0f : -1.0f; }

PlanProjection PlanView::projection(const vec3& planCenter, double scale) const {
  return {axisU, axisV, planCenter[axisU], planCenter[axisV], scale, clientWidth, clientHeight};
}

std::string formatScale(double scale) {
  const double reciprocal = 1 / scale;
  if (scale < 0.25 && reciprocal - std::floor(reciprocal) < 0.01) return Format("1/%i", Truncate(reciprocal));
  return Format("%5.1f%%", scale * 100);
}

std::string GridText(const Settings& settings) { return Format("%i", settings.gridsize); }

std::string CaptionText(const PlanView& view, const Settings& settings) {
  const Title& title = TitleOf(view);
  return Format("%s - %s View - [Grid %s / Scale %s]", title.side, title.plane, GridText(settings).c_str(),
                formatScale(settings.scale).c_str());
}

std::string DirectionText(const PlanView& view) { return TitleOf(view).direction; }

std::string CameraText(const map& m) { return Format("C(%i)", m.currentCamera + 1); }

std::string CoordinateText(ViewPoint at, const Settings& settings) {
  if (settings.show_grid) at = snapToGrid(at, settings);
  return Format("(%i,%i)", Truncate(at.u), Truncate(at.v));
}

std::string DeltaText(ViewPoint delta) { return Format("D(%i,%i)", Truncate(delta.u), Truncate(delta.v)); }

std::string DepthRangeText(const PlanView& view, const map& m) {
  const double low = m.workLow()[view.axisDepth];
  const double high = m.workHigh()[view.axisDepth];
  return Format("%5.1f %5.1f %5.1f", low, high, high - low);
}

int snapToGrid(double value, const Settings& settings) { return Truncate(Snap(value, settings.gridsize)); }

ViewPoint snapToGrid(ViewPoint at, const Settings& settings) {
  return {double(snapToGrid(at.u, settings)), double(snapToGrid(at.v, settings))};
}

bool setPlanCenter(PlanViewSet& set, const map* m, const vec3& p, bool locked) {
  if (locked || !m) return false;
  set.planCenter = p;
  return true;
}

std::string SwitchMapView(PlanViewSet& set) {
  PlanView& view = set.currentView();
  view.setOrientation(static_cast<Orientation>((view.orientation + 1) % 3));
  return "Map View Toggled...";
}

vec3 NudgeOffset(const PlanView& view, Nudge direction, const Settings& settings) {
  const int axes[] = {view.axisV, view.axisV, view.axisU, view.axisU, view.axisDepth, view.axisDepth};
  const bool positive = direction == Nudge::Up || direction == Nudge::Right || direction == Nudge::Out;
  vec3 offset;
  offset[axes[static_cast<int>(direction)]] = float(positive ? settings.gridsize : -settings.gridsize);
  return offset;
}

const char* NudgeText(Nudge direction) {
  static constexpr const char* kTexts[] = {"Selection moved down...", "Selection moved up...",
                                           "Selection moved left...", "Selection moved right...",
                                           "Selection moved in...",   "Selection moved out..."};
  return kTexts[static_cast<int>(direction)];
}

}  // namespace velk
