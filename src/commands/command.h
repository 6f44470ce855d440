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
  Handler run = {};                                  // none: not offered
  const char* undoName = nullptr;                    // of its undo level; none: the plain label
  bool classicUndo = false;                          // the classic single level is kept of it
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

}  // namespace velk
