// The group window: the groups of the current map, which of them new brushes join, and what is done to them.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "base/outcome.h"
#include "panels/panel.h"

namespace velk {

// Without a map it shows nothing and does nothing.
class GroupPanel : public Panel {
 public:
  using Panel::Panel;

  // A group as its line shows it.
  struct Line {
    std::string text;  // "[V] %s", "[I] %s" when it is not visible
    Colour colour;
    bool visible = true;
    int brushes = 0;  // in it
  };
  std::vector<Line> lines();

  // The group that new, loaded and pasted brushes join: the line chosen last, 0 after a delete and when
  // another map is shown.
  int current();
  std::string currentName();  // "" without a map
  // Of the current group, as the swatch shows it.
  Colour currentColour();

  // Turns group mode on or off.
  Outcome toggleGroupMode();
  // Hides the window, when somebody shows one.
  std::function<void()> hide = [] {};

  void addGroup();
  void toggleVisible(int index);
  void setColour(int index);
  void rename(int index);
  // In place; an empty name changes nothing.
  void renameTo(int index, const std::string& name);
  void remove(int index);
  void moveSelected(int index);
  void selectAll(int index);
  void showAll();
  void showDefaultOnly();
  // Shows this group alone, with group mode on.
  void isolate(int index);
  // -1: all visible groups.
  void exportGroup(int index);

  // No group is picked any more.
  void pickNone() { picked_ = -1; }
  // The context menu is about this group, which does not become current; about none for another number.
  void pickForMenu(int index);
  Menu contextMenu() override;
  bool pick(int line) override;
  // Selects the brushes of the group.
  bool doubleClick(int line) override;
  bool control(const std::string& name, const std::string& value) override;
  std::vector<std::string> printed() override;

 private:
  bool has(int index);
  // Forgets what was chosen in another map.
  void followMap();
  // What was done to a group: it becomes current, and the views follow when results are shown.
  Outcome changed(int index);
  void perform(const char* name, int index, const std::function<void(map&)>& action);
  void add(map& m, const std::string& name);
  bool mayDelete(int index);
  bool asks(const char* caption, const std::string& text, bool yesNo);
  std::vector<MenuItem> pickedItems(const std::string& named);

  int current_ = 0;
  int picked_ = -1;
  int turn_ = -1;  // of the documents when something was chosen last
  bool showsResults_ = true;
};

}  // namespace velk
