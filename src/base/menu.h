// Context menus as data: made when asked for, shown by the desktop, run and printed by scripts.
#pragma once

#include <functional>
#include <string>
#include <vector>

namespace velk {

struct MenuItem {
  enum class Check { None, Off, On };
  std::string label;  // what follows a tab is only shown, as a key would be
  bool enabled = true;
  Check check = Check::None;
  bool separator = false;       // a line, without anything else
  std::function<void()> run{};  // what its owner does when it is chosen

  static MenuItem Separator() {
    MenuItem item;
    item.separator = true;
    return item;
  }
};

using Menu = std::vector<MenuItem>;

}  // namespace velk
