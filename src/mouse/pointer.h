// The mouse in all views: which tool a press starts, and the drag that goes on until the release.
#pragma once

#include "mouse/drag.h"

namespace velk {

class Pointer {
 public:
  // Tried in order at a press. The mouse bindings go here.
  std::vector<StartTool> tools;

  // A press while a drag runs does nothing.
  Outcome press(const MouseContext& context, const PointerEvent& event);
  // Of a running drag, which stays in the view of its press: `context` is that view's.
  Outcome move(const MouseContext& context, const PointerEvent& event);
  Outcome release(const MouseContext& context, const PointerEvent& event);
  void cancel(const MouseContext& context);
  // Moves the running drag on by so much of its view's axes, where the mouse stays; in the camera view by
  // pixels, `v` upwards.
  Outcome nudge(const MouseContext& context, ViewPoint by);

  const Drag* drag() const { return drag_.get(); }
  const DragState& state() const { return state_; }
  // The last event of the drag as it came.
  PointerEvent lastEvent() const;
  // Whether a tool claimed the last press.
  bool claimed() const { return claimed_; }
  // Of the undo level of what the last press began or did.
  const char* undoName() const { return undoName_; }
  // The view of the press.
  int view() const { return view_; }

 private:
  bool follow(const MouseContext& context, const PointerEvent& event);
  void end(const MouseContext& context);

  std::unique_ptr<Drag> drag_;
  DragState state_;
  ViewPoint nudged_;  // so far, in the view's terms
  const char* undoName_ = "";
  int view_ = 0;
  bool claimed_ = false;
};

}  // namespace velk
