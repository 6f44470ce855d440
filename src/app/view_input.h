// Mouse input of all views: each event goes to the strip of its view or to the tools, and what they do passes
// the door.
#pragma once

#include <array>
#include <filesystem>
#include <optional>

#include "app/views.h"
#include "documents/door.h"
#include "mouse/bindings.h"
#include "mouse/pointer.h"
#include "mouse/tool_cursor.h"
#include "textures/texture_choice.h"

namespace velk {

class ViewInput {
 public:
  // `home` holds the bindings files that the working directory does not have.
  ViewInput(const Services& services, Documents& documents, Door& door, Views& views, TextureChoice& texture,
            const std::filesystem::path& home);

  // Views by number: 0..2 the plan views, kCameraView.
  void press(int view, const PointerEvent& event);
  // Every move, with or without a button.
  void move(int view, const PointerEvent& event);
  void release(int view, const PointerEvent& event);
  // notches: away from the user, negative towards.
  void wheel(int view, const PointerEvent& event, int notches);
  // Ends a drag as if nothing had been done.
  void cancel();

  // Those of a kind of view, read when they were not; none when the file is damaged, of which the user is
  // told once.
  const MouseBindings* bindings(int view);

  // What a click would take where the mouse was last in a view; none when that is not to be shown, while a
  // drag runs, over the header strip and after the mouse has left.
  FacePick hovered(int view);
  // The shape of the cursor there. Idle when shapes are not to be shown.
  CursorShape cursor(int view);
  void left(int view) { mouse_[static_cast<size_t>(view)].reset(); }

  // The field of a plan view's header strip at a pixel.
  std::optional<StripField> stripFieldAt(int view, Pixel at) const;
  const Pointer& pointer() const { return pointer_; }

 private:
  // The bindings of a kind of view, read at their first use; empty when the file is damaged.
  struct BindingsFile {
    const char* name;
    MouseBindings bindings = {};
    bool read = false;
  };
  BindingsFile& fileOf(int view) { return view == kCameraView ? cameraFile_ : planFile_; }
  bool readBindings(BindingsFile& file);

  MouseContext context(int view) const;
  void pressStrip(int view, Pixel at);
  void readCoordinates(int view, Pixel at);

  const Services& services_;
  Documents& documents_;
  Door& door_;
  Views& views_;
  TextureChoice& texture_;
  std::filesystem::path home_;
  BindingsFile planFile_{"velkmouse.ini"};
  BindingsFile cameraFile_{"velkmou3D.ini"};
  Pointer pointer_;
  std::array<std::optional<PointerEvent>, kPlanViews + 1> mouse_;  // where it was last in each view
};

}  // namespace velk
