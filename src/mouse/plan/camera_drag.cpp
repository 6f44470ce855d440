#include "mouse/plan/camera_drag.h"

#include <algorithm>
#include <cmath>

#include "base/text.h"
#include "mouse/view_ray.h"

namespace velk {
namespace {

constexpr int kTextOffset = 5;  // to the left of the cursor and above it, pixels

class CameraDrag : public Drag {
 public:
  CameraDrag(int index, bool numbered) : index_(index), numbered_(numbered) {}

  int code() const override { return kCameraDragCode; }
  bool readsOut() const override { return true; }
  bool actsUnmoved(const DragState& state) const override { return state.press.button != MouseButton::Right; }
  const char* undoName() const override { return "Move Camera"; }
  Outcome move(const MouseContext& /*context*/, const DragState& /*state*/) override {
    moved_ = true;
    return Outcome::Drawn(Redraw::Plans);
  }

  Outcome finish(const MouseContext& context, const DragState& state) override {
    const PlanView& view = context.plan();
    camera& moved = context.model.cameras[static_cast<size_t>(index_)];
    // A click makes it the active one; by the letter it moves to where it was clicked.
    if (moved_ || !context.settings.careful_tools) {
      moved.origin = InWorld(view, state.current, moved.origin[view.axisDepth]);
    }
    context.model.currentCamera = index_;
    return Outcome::Drawn(Redraw::All);
  }

  void draw(const DragState& state, Overlay& overlay) const override {
    if (!numbered_) return;
    overlay.texts.push_back(
        {{state.now.at.x - kTextOffset, state.now.at.y - kTextOffset}, Format("%i", index_ + 1)});
  }

 private:
  int index_;
  bool numbered_;
  bool moved_ = false;
};

// The first camera whose marker holds the point; -1 for none.
int CameraAt(const MouseContext& context, ViewPoint at) {
  const Settings& settings = context.settings;
  const double half = std::max(1.0, settings.box_size * std::min(double(settings.scale), 1.0) * 0.5);
  const PlanView& view = context.plan();
  for (int i = 0; i < kCameras; ++i) {
    const vec3& origin = context.model.cameras[static_cast<size_t>(i)].origin;
    if (std::fabs(at.u - origin[view.axisU]) < half && std::fabs(at.v - origin[view.axisV]) < half) return i;
  }
  return -1;
}

}  // namespace

ToolStart StartCameraDrag(const MouseContext& context, const PointerEvent& event) {
  ToolStart start;
  if (!context.settings.show_cameras) return start;
  const int index = CameraAt(context, PointUnder(context, event));
  if (index < 0) return start;
  start.claimed = true;
  start.drag = std::make_unique<CameraDrag>(index, context.settings.scale > 0.49f);
  return start;
}

}  // namespace velk
