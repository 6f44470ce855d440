// Mouse input of all views: each event goes to the strip of its view or to the tools, and what they do passes
// the door.
#pragma once

#include <optional>

#include "app/views.h"
#include "documents/door.h"
#include "mouse/pointer.h"

namespace velk {

class ViewInput {
 public:
  ViewInput(const Services& services, Documents& documents, Door& door, Views& views);

  // Views by number: 0..2 the plan views, kCameraView.
  void press(int view, const PointerEvent& event);
  // Every move, with or without a button.
  void move(int view, const PointerEvent& event);
  void release(int view, const PointerEvent& event);
  // notches: away from the user, negative towards.
  void wheel(int view, const PointerEvent& event, int notches);
  // Ends a drag as if nothing had been done.
  void cancel();

  // The field of a plan view's header strip at a pixel.
  std::optional<StripField> stripFieldAt(int view, Pixel at) const;
  const Pointer& pointer() const { return pointer_; }

 private:
  MouseContext context(int view) const;
  void pressStrip(int view, Pixel at);
  void readCoordinates(int view, Pixel at);

  const Services& services_;
  Documents& documents_;
  Door& door_;
  Views& views_;
  Pointer pointer_;
};

}  // namespace velk
