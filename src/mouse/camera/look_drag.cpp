#include "mouse/camera/look_drag.h"

#include <numbers>

#include "camera/flight.h"

namespace velk {
namespace {

constexpr double kTurnAPixel = std::numbers::pi / 720;
constexpr double kUnitsAPixel = 1;
constexpr double kFlyAPixel = 2;

class LookDrag : public Drag {
 public:
  LookDrag(int code, Pixel from) : code_(code), last_(from) {}

  int code() const override { return code_; }
  bool goesByPixels() const override { return true; }

  Outcome move(const MouseContext& context, const DragState& state) override {
    const int right = state.now.at.x - last_.x;
    const int down = state.now.at.y - last_.y;
    last_ = state.now.at;
    camera& eye = context.model.activeCamera();
    Outcome outcome = Outcome::Drawn(Redraw::All);
    if (code_ == kLookCode) {
      LookBy(eye, -right * kTurnAPixel, -down * kTurnAPixel);
      return outcome;
    }
    if (code_ == kPanCode) MoveBy(eye, -right * kUnitsAPixel, down * kUnitsAPixel, 0);
    if (code_ == kFlyCode) MoveBy(eye, right * kFlyAPixel, 0, -down * kFlyAPixel);
    outcome.centre = Centre::Follow;
    return outcome;
  }

 private:
  int code_;
  Pixel last_;
};

ToolStart Start(const PointerEvent& event, int code) {
  ToolStart start;
  start.claimed = true;
  start.drag = std::make_unique<LookDrag>(code, event.at);
  return start;
}

}  // namespace

ToolStart StartLook(const MouseContext& /*context*/, const PointerEvent& event) {
  return Start(event, kLookCode);
}

ToolStart StartPan(const MouseContext& /*context*/, const PointerEvent& event) {
  return Start(event, kPanCode);
}

ToolStart StartFly(const MouseContext& /*context*/, const PointerEvent& event) {
  return Start(event, kFlyCode);
}

}  // namespace velk
