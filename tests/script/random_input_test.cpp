// Random mice: whatever is pressed, moved and held, nothing crashes, no drag stays, and undoing everything
// gives the first map. VELK_RANDOM_INPUT says how many sequences, from VELK_RANDOM_SEED on.
#include <cstdlib>
#include <random>

#include "base/text.h"
#include "commands/views/view_keys.h"
#include "mapfile/map_writer.h"
#include "mouse/operations.h"
#include "support/session.h"

namespace velk {
namespace {

constexpr int kSize = 200;  // of each view, pixels

int FromEnvironment(const char* name, int otherwise) {
  const char* text = std::getenv(name);
  return text ? TextToInt(text) : otherwise;
}

class Monkey {
 public:
  explicit Monkey(unsigned seed) : random_(seed) {
    session.home.write("velkmouse.ini", bindings(PlanOperations()));
    session.home.write("velkmou3D.ini", bindings(CameraOperations()));
    Settings& s = session.editor.settings();
    s.undo_levels = 10000;
    s.drag_vertex = below(3);
    s.drawmode = below(3);
    s.scale = below(2) ? 1.0f : 0.5f;
    s.showtexturedrag = below(2) != 0;
    for (bool Settings::*flag : {&Settings::careful_tools, &Settings::cancel_drags, &Settings::scroll_drags,
                                 &Settings::click_selects, &Settings::click_menu, &Settings::drag_clone,
                                 &Settings::drag_arrows, &Settings::smooth_camera, &Settings::wheel_zoom,
                                 &Settings::middle_drag, &Settings::multi_select, &Settings::lock_cameras}) {
      s.*flag = below(2) != 0;
    }
    session.open();
    for (int view = 0; view <= kCameraView; ++view) session.editor.views().resize(view, kSize, kSize);
  }

  void act() {
    ViewInput& input = session.editor.input();
    const int view = below(kCameraView + 1);
    static constexpr const char* kKeys[] = {"Esc", "Left", "Up", "W", "E", "A", "Alt+A", "Down"};
    static constexpr const char* kCommands[] = {"CM_CARVE",  "CM_CLIPSPLIT",   "CM_DELETE",    "CM_UNDO",
                                                "CM_REDO",   "CM_EDITCLONE",   "CM_FLIP_VIEW", "CM_HIT_UP",
                                                "CM_REVERT", "CM_DESELECT_ALL"};
    switch (below(10)) {
      case 0:
      case 1:
      case 2:
        pressed_ = event();
        return input.press(view, pressed_);
      case 3:
      case 4:
      case 5:
        return input.move(view, event());
      case 6: {
        PointerEvent up = event();
        up.button = pressed_.button;
        if (below(3) == 0) up.at = pressed_.at;
        input.release(view, up);
        return;
      }
      case 7: {
        const KeyStroke stroke = ParseKeyStroke(kKeys[below(int(std::size(kKeys)))]);
        GiveKeyToViews(session.editor, stroke);
        input.tick(0.05, below(2) != 0);
        if (below(2)) LetGoInViews(session.editor, stroke);
        return;
      }
      case 8:
        if (below(8) == 0) input.focusLost();
        return input.wheel(view, event(), below(5) - 2);
      default:
        session.run(kCommands[below(int(std::size(kCommands)))]);
    }
  }

  // As when the user lets go of everything.
  void rest() {
    session.editor.input().release(0, event());
    session.editor.input().focusLost();
  }

  test::Session session;

 private:
  int below(int limit) { return static_cast<int>(random_() % static_cast<unsigned>(limit)); }

  PointerEvent event() {
    PointerEvent e;
    e.at = {below(kSize + 80) - 40, below(kSize + 80) - 40};
    e.button = static_cast<MouseButton>(below(3));
    e.shift = below(3) == 0;
    e.ctrl = below(3) == 0;
    return e;
  }

  // Up to four operations on everything that can be pressed.
  std::string bindings(std::span<const MouseOperation> operations) {
    std::string text = "1 1\n{ Random\n";
    for (const char* button : {"LEFT", "MIDDLE", "RIGHT"}) {
      for (const char* modifiers : {"", "SHIFT", "CTRL", "ALT"}) {
        text += "{ ";
        for (int i = below(4); i >= 0; --i) {
          text += operations[static_cast<size_t>(below(int(operations.size())))].name;
          if (i > 0) text += ';';
        }
        text += std::string(" ") + button + " " + modifiers + " }\n";
      }
    }
    return text + "}\n";
  }

  std::mt19937 random_;
  PointerEvent pressed_;
};

TEST(RandomInputTest, NothingSticksAndUndoGivesTheFirstMap) {
  const int first = FromEnvironment("VELK_RANDOM_SEED", 0);
  const int count = FromEnvironment("VELK_RANDOM_INPUT", 300);
  int changed = 0;
  for (int seed = first; seed < first + count; ++seed) {
    SCOPED_TRACE(seed);
    Monkey monkey(static_cast<unsigned>(seed));
    map& m = monkey.session.current();
    const std::string before = MapFileText(m, {});
    const auto cameras = m.cameras;
    const int camera = m.currentCamera;
    for (int i = 0; i < 40; ++i) monkey.act();
    monkey.rest();
    changed += MapFileText(m, {}) == before ? 0 : 1;
    ASSERT_FALSE(monkey.session.editor.input().pointer().drag());
    ASSERT_FALSE(monkey.session.editor.door().dragRuns());
    ASSERT_FALSE(monkey.session.editor.input().wantsTicks());
    while (monkey.session.run("CM_UNDO")) {
    }
    m.cameras = cameras;  // no undo brings cameras back
    m.currentCamera = camera;
    ASSERT_EQ(MapFileText(m, {}), before);
  }
  EXPECT_GT(changed, count / 2) << "or the mice do nothing";
}

}  // namespace
}  // namespace velk
