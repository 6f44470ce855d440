#include "mouse/pointer.h"

#include <utility>

namespace velk {
namespace {

ViewPoint Minus(ViewPoint a, ViewPoint b) { return {a.u - b.u, a.v - b.v}; }

ViewPoint Plus(ViewPoint a, ViewPoint b) { return {a.u + b.u, a.v + b.v}; }

ViewPoint PointAt(const MouseContext& context, const Drag& drag, Pixel at, ViewPoint nudged = {}) {
  if (context.inCamera()) return {};
  const ViewPoint point = Plus(context.projection().screenToWorld(at), nudged);
  return drag.snaps() ? snapToGrid(point, context.settings) : point;
}

}  // namespace

Outcome Pointer::press(const MouseContext& context, const PointerEvent& event) {
  if (drag_) return {};
  ToolStart started;
  for (const StartTool& start : tools) {
    started = start(context, event);
    if (started.claimed) break;
  }
  claimed_ = started.claimed;
  undoName_ = started.drag ? started.drag->undoName() : started.undoName;
  if (!started.drag) return started.outcome;
  drag_ = std::move(started.drag);
  view_ = context.view;
  state_ = {};
  nudged_ = {};
  state_.press = state_.now = event;
  state_.start = state_.current = PointAt(context, *drag_, event.at);
  if (!context.inCamera()) {
    context.plan().dragOp = drag_->code();
    context.plan().snapDrag = drag_->snaps();
  }
  return started.outcome;
}

// False when nothing moved.
bool Pointer::follow(const MouseContext& context, const PointerEvent& event) {
  const Pixel before = state_.now.at;
  const MouseButton button = state_.press.button;
  state_.now = event;
  state_.now.button = button;
  if (context.inCamera()) state_.now.at = {event.at.x + int(nudged_.u), event.at.y - int(nudged_.v)};
  const bool moved = !(before == state_.now.at);
  if (context.inCamera()) return moved;
  state_.current = PointAt(context, *drag_, event.at, nudged_);
  const ViewPoint total = Minus(state_.current, state_.start);
  if (drag_->goesByPixels() ? !moved : total.u == state_.total.u && total.v == state_.total.v) return false;
  state_.step = Minus(total, state_.total);
  state_.total = total;
  return true;
}

Outcome Pointer::move(const MouseContext& context, const PointerEvent& event) {
  if (!drag_ || !follow(context, event)) return {};
  Outcome outcome = drag_->move(context, state_);
  if (!context.inCamera() && drag_->readsOut() && context.plans.dragReadout) {
    context.plan().deltaText = DeltaText(state_.total);
    outcome.redraw = outcome.redraw | Redraw::Strips;
  }
  return outcome;
}

PointerEvent Pointer::lastEvent() const {
  PointerEvent event = state_.now;
  if (view_ == kCameraView) event.at = {event.at.x - int(nudged_.u), event.at.y + int(nudged_.v)};
  return event;
}

Outcome Pointer::nudge(const MouseContext& context, ViewPoint by) {
  if (!drag_) return {};
  const PointerEvent still = lastEvent();
  nudged_ = Plus(nudged_, by);
  return move(context, still);
}

void Pointer::end(const MouseContext& context) {
  drag_.reset();
  if (context.inCamera()) return;
  context.plan().dragOp = 0;
  context.plan().snapDrag = false;
  context.plan().deltaText.clear();
}

Outcome Pointer::release(const MouseContext& context, const PointerEvent& event) {
  if (!drag_) return {};
  Outcome outcome = move(context, event);
  Outcome finished = drag_->finish(context, state_);
  finished.redraw = finished.redraw | outcome.redraw | Redraw::Strips;
  finished.groups = finished.groups || drag_->readsOut();
  if (finished.status.empty()) finished.status = std::move(outcome.status);
  end(context);
  return finished;
}

void Pointer::cancel(const MouseContext& context) {
  if (!drag_) return;
  drag_->cancel(context);
  end(context);
}

}  // namespace velk
