// The mouse bindings files: which operations a button with its modifier keys tries, in named setups of which
// one is in use.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

#include "mouse/pointer_event.h"

namespace velk {

struct MouseBinding {
  std::vector<std::string> names;  // 1 to 9 operations, in the order in which they are tried
  MouseButton button = MouseButton::Left;
  int modifiers = 0;  // 1 SHIFT, 2 CTRL, 3 both
};

struct MouseSetup {
  std::string name;
  std::vector<MouseBinding> bindings;
};

struct MouseBindings {
  static constexpr int kMaxSetups = 32;
  static constexpr int kMaxNames = 9;     // of a binding
  static constexpr size_t kMaxName = 31;  // bytes of a name of an operation or a setup

  std::vector<MouseSetup> setups;
  int current = 0;

  // The first binding of the setup in use for exactly these; none when there is none.
  const MouseBinding* find(MouseButton button, int modifiers) const;
};

// "CTRL+SHIFT+LEFT"
std::string ButtonText(const MouseBinding& binding);

// 1 for SHIFT plus 2 for CTRL.
inline int ModifiersOf(const PointerEvent& event) { return (event.shift ? 1 : 0) + (event.ctrl ? 2 : 0); }

// Fatal with a message of its own for everything that is wrong with the text.
MouseBindings ParseMouseBindings(std::string_view text);

// Reads a file of that name from the first of the folders that holds one. Fatal: "Error opening %s: %s" with
// the name and the system's reason, and what parsing says.
MouseBindings loadMouseBindings(const std::string& name, const std::vector<std::filesystem::path>& folders);

}  // namespace velk
