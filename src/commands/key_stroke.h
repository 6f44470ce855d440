// Keys with their modifiers, and the commands on them.
#pragma once

#include <string_view>
#include <vector>

#include "commands/command.h"

namespace velk {

// A key with its modifiers, independent of the toolkit.
struct KeyStroke {
  enum class Key {
    None,
    Character,
    Up,
    Down,
    Left,
    Right,
    Home,
    End,
    PageUp,
    PageDown,
    Insert,
    Delete,
    Escape,
    Enter,
    Space,
    F1,
    F2,
    F3,
    F4,
    F5,
    F6,
    F7,
    F8,
    F9,
    F10,
    F11,
    F12
  };
  Key key = Key::None;
  char character = 0;   // upper case letter, digit or sign, for Key::Character
  bool numPad = false;  // the number pad's key, distinct from the main one
  bool ctrl = false;
  bool alt = false;
  bool shift = false;
  friend bool operator==(const KeyStroke&, const KeyStroke&) = default;
};

// Reads "Ctrl+PgUp", "Num4", "Alt+A", "`", "Ctrl+Num+", "Ctrl+comma"; Key::None when it is no stroke.
KeyStroke ParseKeyStroke(std::string_view text);
// The strokes of a command.
std::vector<KeyStroke> StrokesOf(const Command& command);
// The command on that key; none when it is free.
const Command* CommandOnKey(const KeyStroke& stroke);
// The command that a pressed key gives. The number pad's keys are its digits whether Num Lock is on or off;
// a pad key without a command of its own does without Num Lock what the main key of that name does (0 is
// Ins, 1 End, 3 PgDn, '.' Del). A sign that the keyboard has on Shift also fits a stroke without Shift.
const Command* CommandForStroke(const KeyStroke& pressed);

}  // namespace velk
