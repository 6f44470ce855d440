#include "mouse/plan/marquee.h"

#include <algorithm>

#include "base/text.h"
#include "mouse/view_ray.h"
#include "ops/select_shown.h"

namespace velk {
namespace {

class MarqueeDrag : public Drag {
 public:
  MarqueeDrag(const PlanView& view, double depth) : view_(view), depth_(depth) {}

  int code() const override { return kMarqueeCode; }
  bool readsOut() const override { return true; }
  Outcome move(const MouseContext& /*context*/, const DragState& /*state*/) override {
    return Outcome::Drawn(Redraw::Plans);
  }

  Outcome finish(const MouseContext& context, const DragState& state) override {
    const auto [lowU, highU] = std::minmax(state.start.u, state.current.u);
    const auto [lowV, highV] = std::minmax(state.start.v, state.current.v);
    const ViewRectangle rectangle{AxesOf(context.plan()), lowU, lowV, highU, highV};
    const bool touching = state.current.u < state.start.u;
    const int count = SelectInRectangle(context.model, rectangle, touching, state.press.shift);
    return Outcome::Drawn(Redraw::All, Format(kMarqueeDone, count));
  }

  void draw(const DragState& state, Overlay& overlay) const override {
    const ViewPoint corners[] = {
        state.start, {state.current.u, state.start.v}, state.current, {state.start.u, state.current.v}};
    for (int i = 0; i < 4; ++i) {
      overlay.lines.emplace_back(InWorld(view_, corners[i], depth_),
                                 InWorld(view_, corners[(i + 1) % 4], depth_));
    }
  }

 private:
  PlanView view_;  // as it was at the press
  double depth_;
};

}  // namespace

ToolStart StartMarquee(const MouseContext& context, const PointerEvent& /*event*/) {
  ToolStart start;
  start.claimed = true;
  start.drag =
      std::make_unique<MarqueeDrag>(context.plan(), context.plans.planCenter[context.plan().axisDepth]);
  return start;
}

}  // namespace velk
