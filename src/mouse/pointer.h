// Mouse input of the views as plain events, and drags as objects that live from press to release.
#pragma once

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "planview/plan_view.h"

namespace velk {

enum class MouseButton { Left = 0, Middle = 1, Right = 2 };

struct PointerEvent {
  Pixel at;                                // of the view
  MouseButton button = MouseButton::Left;  // of a press or release
  bool shift = false;
  bool ctrl = false;
  bool alt = false;
};

// What the editor has to do after an event.
struct PointerOutcome {
  bool handled = false;      // a press was claimed, or a drag is running
  bool capture = false;      // a drag began: the view is to get all moves until the release
  bool redrawStrip = false;  // only the view's header strip changed
  bool redrawPlanViews = false;
  bool redrawCamera = false;
  bool redrawGroups = false;
  std::string status;  // to post, may be empty
};

// What a press or a drag works on.
struct PlanPointerContext {
  PlanViewSet& set;
  Settings& settings;
  map* current = nullptr;  // none when no map is open
  int view = 0;

  PlanView& planView() const { return set.views[static_cast<size_t>(view)]; }
  PlanProjection projection() const { return set.projection(view, settings); }
};

// One drag. `start` is done by the maker; destroyed after finish.
class Drag {
 public:
  virtual ~Drag() = default;
  // Shown in the view's dragOp while the drag runs.
  virtual int code() const { return 0; }
  // True when something changed and the plan views are to be redrawn.
  virtual bool move(const PlanPointerContext& context, const PointerEvent& event) = 0;
  virtual PointerOutcome finish(const PlanPointerContext& context, const PointerEvent& event) = 0;
};

// The result of trying one operation at a press.
struct PressResult {
  bool claimed = false;        // false: the next operation is tried
  std::unique_ptr<Drag> drag;  // none: the operation is complete
  PointerOutcome outcome;      // of a complete operation
};
using PressOperation = std::function<PressResult(const PlanPointerContext&, const PointerEvent&)>;

class PlanPointer {
 public:
  // Tried in order at a press over the map, before the drag of the view itself. The mouse bindings go
  // here.
  std::vector<PressOperation> operations;

  // The clicked field of the header strip is the caller's to look up (stripFieldAt); presses there do
  // nothing here. Without a map, or while a drag runs, nothing happens.
  PointerOutcome press(const PlanPointerContext& context, const PointerEvent& event);
  // Every move, with or without a button; keeps the coordinate field.
  PointerOutcome move(const PlanPointerContext& context, const PointerEvent& event);
  PointerOutcome release(const PlanPointerContext& context, const PointerEvent& event);
  // steps: notches away from the user, negative towards.
  PointerOutcome wheel(const PlanPointerContext& context, const PointerEvent& event, int steps);

  bool dragging() const { return drag_ != nullptr; }

 private:
  std::unique_ptr<Drag> drag_;
};

// One scale step up or down that keeps the world point under the pixel where it is. Returns the status
// text.
std::string zoomAt(const PlanPointerContext& context, Pixel at, bool in);

}  // namespace velk
