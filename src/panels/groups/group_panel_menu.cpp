// The list of groups: its context menu, and what scripts do with it.
#include "base/text.h"
#include "panels/groups/group_panel.h"

namespace velk {
namespace {

MenuItem Item(std::string label, std::function<void()> run, bool enabled = true) {
  MenuItem item;
  item.label = std::move(label);
  item.enabled = enabled;
  item.run = std::move(run);
  return item;
}

MenuItem CheckItem(std::string label, bool on, std::function<void()> run) {
  MenuItem item = Item(std::move(label), std::move(run));
  item.check = on ? MenuItem::Check::On : MenuItem::Check::Off;
  return item;
}

}  // namespace

bool GroupPanel::pick(int line) {
  followMap();
  if (!has(line)) return false;
  picked_ = line;
  if (current_ == line) return true;
  current_ = line;
  Outcome shown = Outcome::Drawn(Redraw::Strips);
  shown.groups = true;
  context_.door.show(shown);
  return true;
}

void GroupPanel::pickForMenu(int index) {
  followMap();
  picked_ = has(index) ? index : -1;
}

bool GroupPanel::doubleClick(int line) {
  if (!pick(line)) return false;
  selectAll(line);
  return true;
}

// Of the group that is picked.
std::vector<MenuItem> GroupPanel::pickedItems(const std::string& named) {
  const int g = picked_;
  return {
      CheckItem(Format("Visible [%s]", named.c_str()), currentMap()->groups.visible(g),
                [this, g] { toggleVisible(g); }),
      Item(Format("Set [%s] Color...", named.c_str()), [this, g] { setColour(g); }),
      Item(Format("Rename [%s]...", named.c_str()), [this, g] { rename(g); }),
      Item(
          Format("Delete [%s]", named.c_str()), [this, g] { remove(g); }, mayDelete(g)),
      Item(Format("Move Selected to [%s]", named.c_str()), [this, g] { moveSelected(g); }),
      Item(Format("Select All in [%s]", named.c_str()), [this, g] { selectAll(g); }),
  };
}

Menu GroupPanel::contextMenu() {
  followMap();
  Menu menu{CheckItem("Use Groups", context_.services.settings.groupmode,
                      [this] {
                        context_.door.perform({.name = "Use Groups"}, [this] { return toggleGroupMode(); });
                      }),
            Item("Hide Group Window", [this] { hide(); }),
            CheckItem("Show Results", showsResults_, [this] { showsResults_ = !showsResults_; })};
  const map* m = currentMap();
  if (!m) return menu;
  const bool picked = has(picked_);
  const std::string named = picked ? m->groups.at(picked_).name : "";
  menu.push_back(Item("Add New Group...", [this] { addGroup(); }));
  if (picked) {
    for (MenuItem& item : pickedItems(named)) menu.push_back(std::move(item));
  }
  menu.push_back(Item("Make All Groups Visible", [this] { showAll(); }));
  if (picked) {
    menu.push_back(
        Item(Format("Make [%s] Only Visible", m->groups.at(0).name.c_str()), [this] { showDefaultOnly(); }));
    menu.push_back(Item(Format("Export [%s]", named.c_str()), [this, g = picked_] { exportGroup(g); }));
  }
  menu.push_back(Item("Export Visible Groups", [this] { exportGroup(-1); }));
  return menu;
}

bool GroupPanel::control(const std::string& name, const std::string& value) {
  followMap();
  const int line = value.empty() ? current_ : LeadingInt(value).value_or(-1);
  if (!has(line)) return false;
  if (EqualNoCase(name, "visible")) {
    toggleVisible(line);
  } else if (EqualNoCase(name, "isolate")) {
    isolate(line);
  } else if (EqualNoCase(name, "move")) {
    moveSelected(line);
  } else if (EqualNoCase(name, "all")) {
    showAll();
  } else {
    return false;
  }
  return true;
}

}  // namespace velk
