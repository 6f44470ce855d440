// Commands as data. One table is the source of the menu bar, the key table, the button bars, the script
// vocabulary and the help's page of keys.
#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "base/outcome.h"

namespace velk {

class Editor;
class map;

// What runs a command. One that works on a map gets it, and does nothing without one.
struct Handler {
  Outcome (*plain)(Editor&) = nullptr;
  Outcome (*onMap)(Editor&, map&) = nullptr;

  constexpr Handler() = default;
  constexpr Handler(Outcome (*handler)(Editor&)) : plain(handler) {}
  constexpr Handler(Outcome (*handler)(Editor&, map&)) : onMap(handler) {}
  explicit constexpr operator bool() const { return plain || onMap; }
};

struct Command {
  int id = 0;
  const char* name = "";     // as button bars and scripts write it; "" when it has none
  const char* menu = "";     // path of menu labels parted by '|': "&Edit|&Copy"; "" for keys and bars only
  bool startsGroup = false;  // a line parts it, or the submenu that begins with it, from what is above
  const char* label = "";    // with its mnemonic marker
  const char* keyText = "";  // as the menu shows it
  const char* keys = "";     // strokes parted by blanks: "Ctrl+Shift+Space Ctrl+Space", "Num-"
  const char* hint = "";
  bool (*enabled)(const Editor&) = nullptr;          // none: always, when something stands behind it
  bool (*checked)(const Editor&) = nullptr;          // none: not a check mark item
  bool (*shown)(const Editor&) = nullptr;            // none: always in its menu
  std::string (*labelNow)(const Editor&) = nullptr;  // in place of the label
  bool saysWhy = false;                              // runs even when disabled, to say why it refuses
  Handler run = {};                                  // none: not built yet
  const char* caption = nullptr;                     // of the box that says why it failed
  const char* failure = nullptr;                     // what that box says first
  const char* reason = "";                           // why there is no handler
};

// Every command, in menu order; those without a menu item last.
std::span<const Command> Commands();
const Command* FindCommand(int id);
// Without regard to case; also accepts the number as text. None when there is no such command.
const Command* FindCommand(std::string_view nameOrNumber);

// The label without its mnemonic marker and its dots.
std::string PlainLabel(const Command& command);

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
