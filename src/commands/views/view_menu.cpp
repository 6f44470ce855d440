#include "commands/views/view_menu.h"

#include <algorithm>
#include <utility>

#include "base/text.h"
#include "commands/dispatch.h"

namespace velk {
namespace {

constexpr const char* kLine = "";

constexpr const char* kOnBrush[] = {
    "CM_EDITCOPY", "CM_EDITCLONE",   "CM_DELETE", kLine,         "CM_HIT_UP",      "CM_HIT_DOWN",
    kLine,         "CM_MAKE_ENTITY", "CM_REVERT", "CM_SUBTRACT", "CM_SNAP_TO_GRID"};
constexpr const char* kOnTextures[] = {kLine, "CM_FACE_TEXTURE", "CM_BRUSH_TEXTURE"};
constexpr const char* kOnNothing[] = {"CM_UNDO",       "CM_REDO",        kLine, "CM_EDITPASTE", kLine,
                                      "CM_SELECT_ALL", "CM_DESELECT_ALL"};
constexpr const char* kOnPlace[] = {kLine, "CM_FLIP_VIEW", "CM_CENTER"};
constexpr const char* kInCamera[] = {kLine, "CM_RESET_ANGLES", "CM_CAMERA_TURN_AROUND"};
constexpr const char* kWithPoints[] = {kLine, "CM_CARVE", "CM_CLIPSPLIT", "CM_FLIPCLIPPER"};

// Labels that say too little without the menu that they are from.
constexpr std::pair<const char*, const char*> kLabels[] = {
    {"CM_SELECT_ALL", "Select All"},       {"CM_MAKE_ENTITY", "Make Entity..."},
    {"CM_CARVE", "Carve by Clip Plane"},   {"CM_CLIPSPLIT", "Split by Clip Plane"},
    {"CM_FLIPCLIPPER", "Flip Clip Plane"}, {"CM_CENTER", "Center Camera"}};

std::string LabelFor(const Editor& editor, const Command& command) {
  for (const auto& [name, label] : kLabels) {
    if (EqualNoCase(name, command.name)) return label;
  }
  std::string label = LabelOf(editor, command);
  std::erase(label, '&');
  return label;
}

MenuItem ItemOf(Editor& editor, const Command& command) {
  MenuItem item;
  item.label = LabelFor(editor, command);
  if (*command.keyText) item.label += std::string("\t") + command.keyText;
  item.enabled = CanRun(editor, command);
  if (command.checked) {
    item.check = IsChecked(editor, command) ? MenuItem::Check::On : MenuItem::Check::Off;
  }
  item.run = [&editor, &command] { RunCommand(editor, command); };
  return item;
}

void Add(Editor& editor, Menu& menu, std::span<const char* const> names) {
  for (const char* name : names) {
    const Command* command = *name ? FindCommand(name) : nullptr;
    if (command) menu.push_back(ItemOf(editor, *command));
    if (!*name && !menu.empty()) menu.push_back(MenuItem::Separator());
  }
}

MenuItem Heading(std::string text) {
  MenuItem item;
  item.label = std::move(text);
  item.enabled = false;
  return item;
}

// The selected one under the cursor, else the one that a click would take.
const brush* Target(const std::vector<brush*>& under) {
  const auto selected = std::ranges::find_if(under, [](const brush* b) { return b->selected(); });
  if (selected != under.end()) return *selected;
  return under.empty() ? nullptr : under.front();
}

void AddBrush(Editor& editor, Menu& menu, const brush& b) {
  const GroupList& groups = editor.documents().currentMap()->groups;
  menu.push_back(Heading(b.owner->valueOfKey("classname")));
  if (b.group() >= 0 && b.group() < groups.count()) {
    menu.push_back(Heading("Group: " + groups.at(b.group()).name));
  }
  menu.push_back(MenuItem::Separator());
  Add(editor, menu, kOnBrush);
  if (b.owner->isModel) Add(editor, menu, kOnTextures);
}

}  // namespace

Menu ViewMenu(Editor& editor, int view) {
  Menu menu;
  const map* m = editor.documents().currentMap();
  if (!m) return menu;
  const brush* target = Target(editor.input().brushesUnder(view));
  if (target) {
    AddBrush(editor, menu, *target);
  } else {
    Add(editor, menu, kOnNothing);
  }
  if (m->clip.count > 0) Add(editor, menu, kWithPoints);
  if (view == kCameraView) {
    Add(editor, menu, kInCamera);
  } else {
    Add(editor, menu, kOnPlace);
  }
  return menu;
}

}  // namespace velk
