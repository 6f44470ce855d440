// What goes on by time in the views: held keys move the camera, a drag beyond the edge scrolls its view.
#include <algorithm>

#include "app/view_input.h"
#include "mouse/operations.h"

namespace velk {
namespace {

constexpr double kFirstTick = 1.0 / 60;  // of a motion, at once
constexpr double kScrollAPixel = 8;      // pixels a second for each that the cursor is outside
constexpr double kSlowest = 60;          // pixels a second
constexpr double kFastest = 1200;

// How far a coordinate lies outside 0..size-1.
int Outside(int at, int size) { return at < 0 ? at : std::max(0, at - size + 1); }

double Speed(int outside) {
  if (outside == 0) return 0;
  const double speed = std::clamp(std::abs(outside) * kScrollAPixel, kSlowest, kFastest);
  return outside < 0 ? -speed : speed;
}

}  // namespace

bool ViewInput::flies() const {
  return pointer_.drag() && pointer_.view() == kCameraView && pointer_.drag()->code() >= kOwnOperations;
}

void ViewInput::hold(int key, Motion motion) {
  if (busy_ || !documents_.currentMap()) return;
  if (std::ranges::find(held_, key, &HeldKey::key) != held_.end()) return;
  const bool first = !flight_.going();
  held_.push_back({key, motion, flies()});
  flight_.begin(motion);
  if (press_) press_->moved = true;
  if (first) tick(kFirstTick);
  ticksWanted();
}

void ViewInput::letGo(int key) {
  std::erase_if(held_, [&](const HeldKey& each) { return each.key == key; });
  flight_.stop();
  for (const HeldKey& each : held_) flight_.begin(each.motion);
}

void ViewInput::stopDragMotions() {
  std::erase_if(held_, [](const HeldKey& each) { return each.inDrag; });
  letGo(-1);
}

bool ViewInput::scrolls() const {
  if (!services_.settings.scroll_drags || !pointer_.drag() || pointer_.view() == kCameraView) return false;
  if (pointer_.drag()->goesByPixels() || (press_ && !press_->moved)) return false;
  const PlanView& plan = views_.plans.views[static_cast<size_t>(pointer_.view())];
  const Pixel at = pointer_.state().now.at;
  return Outside(at.x, plan.clientWidth) != 0 || Outside(at.y, plan.clientHeight) != 0;
}

void ViewInput::scroll(double seconds) {
  const int view = pointer_.view();
  const PlanView& plan = views_.plans.views[static_cast<size_t>(view)];
  const Pixel at = pointer_.state().now.at;
  const double scale = std::max(1e-6, double(services_.settings.scale));
  vec3& centre = views_.plans.planCenter;
  centre[plan.axisU] = float(centre[plan.axisU] + Speed(Outside(at.x, plan.clientWidth)) * seconds / scale);
  centre[plan.axisV] = float(centre[plan.axisV] - Speed(Outside(at.y, plan.clientHeight)) * seconds / scale);
  readCoordinates(view, at);
  door_.drag([&] {
    Outcome outcome = pointer_.move(context(view), pointer_.lastEvent());
    outcome.redraw = outcome.redraw | Redraw::Plans;
    return outcome;
  });
}

void ViewInput::fly(double seconds, bool fast) {
  map* m = documents_.currentMap();
  if (!m || (pointer_.drag() && !flies())) return;
  const Door::Action action = [&] { return flight_.step(*m, services_.settings, seconds, fast && flies()); };
  if (pointer_.drag()) {
    door_.drag(action);
  } else {
    door_.perform({.name = ""}, action);
  }
}

bool ViewInput::wantsTicks() const { return flight_.going() || scrolls(); }

void ViewInput::tick(double seconds, bool fast) {
  if (busy_) return;
  busy_ = true;
  if (scrolls()) scroll(seconds);
  if (flight_.going()) fly(seconds, fast);
  busy_ = false;
}

}  // namespace velk
