// Mouse input of all views: each event goes to the strip of its view or to the tools, and what they do passes
// the door.
#pragma once

#include <array>
#include <filesystem>
#include <functional>
#include <optional>

#include "app/views.h"
#include "camera/flight.h"
#include "documents/door.h"
#include "mouse/bindings.h"
#include "mouse/clicks.h"
#include "mouse/operations.h"
#include "mouse/pointer.h"
#include "mouse/tool_cursor.h"
#include "textures/texture_choice.h"

namespace velk {

// Keys that a running drag takes for itself.
enum class DragKey { Escape, Left, Right, Up, Down };

class ViewInput {
 public:
  // `home` holds the bindings files that the working directory does not have.
  ViewInput(const Services& services, Documents& documents, Door& door, Views& views, TextureChoice& texture,
            const std::filesystem::path& home);

  // Reads both bindings files; without it each is read at its first use.
  void readBindings();
  // Those of a kind of view, read when they were not; none when the file is damaged, of which the user is
  // told once.
  MouseBindings* bindings(int view);
  // The group that new brushes join.
  std::function<int()> currentGroup = [] { return 0; };

  // A plan view becomes the current one, by which the clip plane through two points stands.
  void makeCurrent(int view);
  // Views by number: 0..2 the plan views, kCameraView.
  void press(int view, const PointerEvent& event);
  // Every move, with or without a button.
  void move(int view, const PointerEvent& event);
  // True when the view's context menu is asked for: a right click. Only the button of the press ends what it
  // began.
  bool release(int view, const PointerEvent& event);
  // notches: away from the user, negative towards.
  void wheel(int view, const PointerEvent& event, int notches);
  // Ends a drag as if nothing had been done.
  void cancel();
  // The window has no keys and no mouse any more: a drag ends where it is, motions stop.
  void focusLost();

  // A key during a drag. False when the drag does not take it.
  bool dragKey(DragKey key);

  // Whether keys move the camera, since a drag looks around with it.
  bool flies() const;
  // A key that moves the camera for as long as it is held; `key` tells keys apart. Again and again for one
  // key is once.
  void hold(int key, Motion motion);
  void letGo(int key);

  // Whether something goes on by time: motions, or a view that scrolls under a drag. `ticksWanted` is called
  // when that begins; 60 ticks a second are good. fast: SHIFT is held.
  bool wantsTicks() const;
  void tick(double seconds, bool fast = false);
  std::function<void()> ticksWanted = [] {};

  // What a click would take where the mouse was last in a view; none when that is not to be shown, while a
  // drag runs, over the header strip and after the mouse has left.
  FacePick hovered(int view);
  // The shape of the cursor there. Idle when shapes are not to be shown.
  CursorShape cursor(int view);
  void left(int view) { mouseOf(view).isOver = false; }

  // The field of a plan view's header strip at a pixel.
  std::optional<StripField> stripFieldAt(int view, Pixel at) const;
  // The brushes under the cursor where it was last in a view; see BrushesUnder. None without a map.
  std::vector<brush*> brushesUnder(int view) const;
  const Pointer& pointer() const { return pointer_; }
  // None while no drag runs, and for one that moves the view.
  const MouseOperation* runningOperation() const;

 private:
  // Where it was last in a view, and whether it is there yet.
  struct Mouse {
    PointerEvent event;
    bool isOver = false;
  };
  Mouse& mouseOf(int view) { return mouses_[static_cast<size_t>(view)]; }

  // The bindings of a kind of view, read at their first use; empty when the file is damaged.
  struct BindingsFile {
    const char* name;
    MouseBindings bindings = {};
    bool read = false;
    bool damaged = false;
  };
  BindingsFile& fileOf(int view) { return view == kCameraView ? cameraFile_ : planFile_; }
  bool readBindings(BindingsFile& file);

  // A press that may become a click.
  struct Press {
    int view = 0;
    PointerEvent event;
    bool moved = false;
  };
  // A key that is held.
  struct HeldKey {
    int key = 0;
    Motion motion = Motion::Forward;
    bool inDrag = false;
  };

  MouseContext context(int view) const;
  ToolStart startBound(const MouseContext& context, const PointerEvent& event);
  bool isOtherButton(const PointerEvent& event) const;
  void pressStrip(int view, Pixel at);
  void begin(int view, const PointerEvent& event);
  void readCoordinates(int view, Pixel at);
  bool clicksMatter(MouseButton button) const;
  bool staysPut(int view, const PointerEvent& event);
  bool isClick(const PointerEvent& event) const;
  bool click(int view, const PointerEvent& event);
  void drop(const PointerEvent& event);
  void stopDragMotions();
  void takeHintBack();
  bool scrolls() const;
  void scroll(double seconds);
  void fly(double seconds, bool fast);

  const Services& services_;
  Documents& documents_;
  Door& door_;
  Views& views_;
  TextureChoice& texture_;
  std::filesystem::path home_;
  BindingsFile planFile_{"velkmouse.ini"};
  BindingsFile cameraFile_{"velkmou3D.ini"};
  Pointer pointer_;
  Clicks clicks_;
  Flight flight_;
  std::optional<Press> press_;
  std::vector<HeldKey> held_;
  std::string hint_;          // that the status line shows while a drag runs
  std::string statusBefore_;  // and what it said before
  vec3 centreBefore_;         // of the plan views before the drag
  bool busy_ = false;         // an event is being worked on, which may ask the user something
  std::array<Mouse, kPlanViews + 1> mouses_{};
};

}  // namespace velk
