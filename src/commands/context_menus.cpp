#include "commands/context_menus.h"

#include "base/text.h"
#include "commands/dispatch.h"
#include "commands/views/view_menu.h"
#include "planview/view_steps.h"

namespace velk {
namespace {

MenuItem ItemOf(Editor& editor, const ViewMenuItem& from) {
  if (from.separator) return MenuItem::Separator();
  MenuItem item;
  item.label = from.label;
  const Command* command = FindCommand(from.command);
  item.enabled = command && IsEnabled(editor, *command);
  // What ends in dots asks for more.
  if (!from.label.ends_with('.')) item.check = from.checked ? MenuItem::Check::On : MenuItem::Check::Off;
  if (command) item.run = [&editor, command] { RunCommand(editor, *command); };
  return item;
}

struct StripMenuRow {
  const char* name;
  StripField field;
  std::vector<ViewMenuItem> (*items)(Editor&);
};

const StripMenuRow kStripMenus[] = {
    {"grid", StripField::Grid, [](Editor& e) { return GridMenu(e.settings()); }},
    {"scale", StripField::Scale, [](Editor& e) { return ScaleMenu(e.settings()); }},
    {"camera", StripField::Camera,
     [](Editor& e) { return CameraMenu(e.settings(), e.documents().currentMap()); }},
};

}  // namespace

std::optional<Menu> ContextMenu(Editor& editor, const std::string& name) {
  if (Panel* panel = editor.panels().named(name)) return panel->contextMenu();
  for (int view = 0; view <= kCameraView; ++view) {
    if (EqualNoCase(name, kViewNames[view])) return ViewMenu(editor, view);
  }
  for (int view = 0; view < kPlanViews; ++view) {
    for (const StripMenuRow& row : kStripMenus) {
      if (!EqualNoCase(name, StripMenuName(view, row.field))) continue;
      Menu menu;
      for (const ViewMenuItem& item : row.items(editor)) menu.push_back(ItemOf(editor, item));
      return menu;
    }
  }
  return std::nullopt;
}

std::string StripMenuName(int view, StripField field) {
  for (const StripMenuRow& row : kStripMenus) {
    if (row.field == field) return std::string(kViewNames[view]) + "." + row.name;
  }
  return "";
}

}  // namespace velk
