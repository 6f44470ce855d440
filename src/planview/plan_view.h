// Plan views: orthographic views along one world axis, and how they map world units to pixels.
#pragma once

#include <array>
#include <string>

#include "base/canvas.h"
#include "model/map.h"
#include "settings/settings.h"

namespace velk {

inline constexpr int kPlanViews = 3;

enum Orientation { kOrientationXY = 0, kOrientationYZ = 1, kOrientationXZ = 2 };

// A position in a view: world units along its axisU and axisV.
struct ViewPoint {
  double u = 0;
  double v = 0;
};

// The mapping between world units and a view's pixels (x to the right, y downwards) at one moment.
struct PlanProjection {
  int axisU = 0;
  int axisV = 1;
  double centreU = 0;  // shown in the middle of the view
  double centreV = 0;
  double scale = 1;  // pixels per world unit
  int width = 0;     // pixels
  int height = 0;
  friend bool operator==(const PlanProjection&, const PlanProjection&) = default;

  // Truncated toward zero, from the middle of the view in whole pixels; out of an int's range gives the
  // nearest int.
  Pixel worldToScreen(const vec3& point) const;
  // From the exact middle of the view.
  ViewPoint screenToWorld(Pixel pixel) const;
};

struct PlanView {
  explicit PlanView(Orientation shown = kOrientationXY) { setOrientation(shown); }

  int orientation = kOrientationXY;
  int axisU = 0;        // world axis (0 x, 1 y, 2 z) shown left to right
  int axisV = 1;        // shown bottom to top
  int axisDepth = 2;    // looked along
  vec3 viewNormal;      // -1 or +1 on axisDepth; the projection does not depend on it
  int clientWidth = 0;  // pixels, the header strip included
  int clientHeight = 0;
  int dragOp = 0;         // code of the running drag, 0 for none
  bool snapDrag = false;  // the running drag snaps its points to the grid

  // Texts of the header strip that last between repaints.
  std::string coordinateText;
  std::string deltaText;

  // Sets the axes; the view looks down its depth axis again.
  void setOrientation(Orientation shown);
  // Looks the other way along the depth axis.
  void flip();

  PlanProjection projection(const vec3& planCenter, double scale) const;
};

// The plan views of the editor and what they share.
struct PlanViewSet {
  std::array<PlanView, kPlanViews> views{PlanView(kOrientationXY), PlanView(kOrientationXZ),
                                         PlanView(kOrientationYZ)};
  int current = 0;          // the view that commands address, 0..2
  vec3 planCenter;          // the world point in the middle of every view
  bool dragReadout = true;  // the way of a drag stands in its view's header strip

  PlanView& currentView() { return views[static_cast<size_t>(current)]; }
  const PlanView& currentView() const { return views[static_cast<size_t>(current)]; }
  PlanProjection projection(int view, const Settings& settings) const {
    return views[static_cast<size_t>(view)].projection(planCenter, settings.scale);
  }
};

// What a view is called before its first repaint.
inline constexpr const char* kInitialCaption = "Map View";

// "1/16" or " 50.0%".
std::string formatScale(double scale);
std::string GridText(const Settings& settings);
// "Top   - XY View - [Grid 8 / Scale 100.0%]"
std::string CaptionText(const PlanView& view, const Settings& settings);
// "Up", "Down", "Left"...
std::string DirectionText(const PlanView& view);
// "C(1)" for the first camera.
std::string CameraText(const map& m);
// The position as the coordinate field shows it: snapped while the grid is shown, else truncated.
std::string CoordinateText(ViewPoint at, const Settings& settings);
// "D(64,-8)", truncated.
std::string DeltaText(ViewPoint delta);
// The depth that new brushes get in the view: low, high and their difference.
std::string DepthRangeText(const PlanView& view, const map& m);

// Nearest multiple of the grid size, halves away from zero.
int snapToGrid(double value, const Settings& settings);
ViewPoint snapToGrid(ViewPoint at, const Settings& settings);

// Centres all views on p unless the lock is on or no map is open (`m` none). True when they moved and are
// to be redrawn.
bool setPlanCenter(PlanViewSet& set, const map* m, const vec3& p, bool locked);

// The current view turns to its next orientation (XY, YZ, XZ, XY). Returns the status text.
std::string SwitchMapView(PlanViewSet& set);

// The offset of one grid step that nudges the selection in a view's terms.
enum class Nudge { Down, Up, Left, Right, In, Out };
vec3 NudgeOffset(const PlanView& view, Nudge direction, const Settings& settings);
const char* NudgeText(Nudge direction);

}  // namespace velk
