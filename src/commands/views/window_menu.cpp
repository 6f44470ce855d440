// Commands of the Window and Help menus.
#include "app/editor.h"
#include "base/text.h"
#include "commands/command_tables.h"
#include "documents/opening.h"

namespace velk {
namespace {

struct ToolName {
  ToolWindow window;
  const char* name;
};

// As the status line calls them.
constexpr ToolName kToolNames[] = {{ToolWindow::Textures, "Texture Window"},
                                   {ToolWindow::Camera, "3D Window"},
                                   {ToolWindow::Entities, "Entity Window"},
                                   {ToolWindow::SelectedBrush, "Selected Brush Window"},
                                   {ToolWindow::Groups, "Group Window"}};

const char* NameOf(ToolWindow window) {
  for (const ToolName& tool : kToolNames) {
    if (tool.window == window) return tool.name;
  }
  return "";
}

// Tool windows are shown, hidden or brought to the front, as they stand.
Outcome RestoreTool(Editor& editor, ToolWindow window) {
  WindowHost& windows = editor.windows().windows();
  const char* what = "Brought to Front";
  if (windows.placement(window).state == ShowState::Minimised) {
    windows.bringToFront(window);
    what = "Shown";
  } else if (windows.hasFocus(window)) {
    windows.minimise(window);
    what = "Hidden";
  } else {
    windows.bringToFront(window);
  }
  return Outcome::Said(Format("%s %s...", NameOf(window), what));
}

Outcome RestorePlanView(Editor& editor, ToolWindow window) {
  editor.windows().windows().bringToFront(window);
  return {};
}

// What an arrangement that was never saved has to say.
Outcome OrUnsaved(const Editor& editor, Outcome used) {
  const int slot = editor.windows().arrangements().current;
  if (!editor.windows().isSaved(slot)) {
    used.status = Format("Window arrangement %i was never saved...", slot + 1);
  }
  return used;
}

Outcome RestorePositions(Editor& editor) { return OrUnsaved(editor, editor.windows().apply()); }

Outcome UseArrangement(Editor& editor, int slot) { return OrUnsaved(editor, editor.windows().use(slot)); }

Outcome StepArrangement(Editor& editor, int step) {
  const int slots = Arrangements::kSlots;
  return UseArrangement(editor, (editor.windows().arrangements().current + step + slots) % slots);
}

bool ArrangementIs(const Editor& editor, int slot) { return editor.windows().arrangements().current == slot; }

// The host's standard arrangements.
Outcome Arrange(Editor& editor, void (WindowHost::*arrange)()) {
  (editor.windows().windows().*arrange)();
  return {};
}

Outcome ToggleBar(Editor& editor, int bar) {
  WindowHost& windows = editor.windows().windows();
  if (bar < windows.barCount()) windows.showBar(bar, !windows.barVisible(bar));
  return {};
}

bool BarIsVisible(const Editor& editor, int bar) { return editor.windows().windows().barVisible(bar); }

Outcome StepMap(Editor& editor, int step) {
  const int count = editor.documents().count();
  if (count == 0) return {};
  return SwitchTo(editor.documents(), (editor.documents().currentIndex() + step + count) % count);
}

Outcome SwitchMapView(Editor& editor, map&) {
  return Outcome::Drawn(Redraw::Plans, SwitchMapView(editor.views().plans));
}

Outcome About(Editor& editor) {
  editor.services().prompts.ask({.caption = "About Velk...",
                                 .text = "Velk " VELK_VERSION "\nA level editor for Quake maps.",
                                 .buttons = MessageBox::Buttons::Ok,
                                 .icon = MessageBox::Icon::Program});
  return {};
}

Outcome Help(Editor& editor) {
  editor.services().observer.helpRequested();
  return {};
}

// clang-format off
const Command kRows[] = {
    {.id = 142, .name = "CM_WINDOW_POSITION", .menu = "&Window|&Configure", .label = "&Restore Positions",
     .hint = "Reposition current window settings based upon last save...", .enabled = MapOpen,
     .run = RestorePositions},
    {.id = 1170, .name = "CM_DEFAULT_LAYOUT", .menu = "&Window|&Configure", .label = "&Default Layout",
     .hint = "Put all windows where they are at a first start", .run = With<Arrange, &WindowHost::layOut>},
    {.id = 275, .name = "CM_WUP", .menu = "&Window|&Configure", .startsGroup = true,
     .label = "&Next Positioning",
     .keyText = "Ctrl-Keypad +", .keys = "Ctrl+Num+", .hint = "Next window setting",
     .run = With<StepArrangement, 1>},
    {.id = 274, .name = "CM_WDOWN", .menu = "&Window|&Configure", .label = "&Previous Positioning",
     .keyText = "Ctrl-Keypad -", .keys = "Ctrl+Num-", .hint = "Previous window setting",
     .run = With<StepArrangement, -1>},
    {.id = 276, .name = "CM_S1", .menu = "&Window|&Configure", .startsGroup = true, .label = "Set &1",
     .keyText = "Ctrl-Keypad 1", .keys = "Ctrl+Num1", .hint = "Window Setting 1", .enabled = MapOpen,
     .checked = Holds<ArrangementIs, 0>, .run = With<UseArrangement, 0>},
    {.id = 277, .name = "CM_S2", .menu = "&Window|&Configure", .label = "Set &2",
     .keyText = "Ctrl-Keypad 2", .keys = "Ctrl+Num2", .hint = "Window Setting 2", .enabled = MapOpen,
     .checked = Holds<ArrangementIs, 1>, .run = With<UseArrangement, 1>},
    {.id = 272, .name = "CM_S3", .menu = "&Window|&Configure", .label = "Set &3",
     .keyText = "Ctrl-Keypad 3", .keys = "Ctrl+Num3", .hint = "Window Setting 3", .enabled = MapOpen,
     .checked = Holds<ArrangementIs, 2>, .run = With<UseArrangement, 2>},
    {.id = 273, .name = "CM_S4", .menu = "&Window|&Configure", .label = "Set &4",
     .keyText = "Ctrl-Keypad 4", .keys = "Ctrl+Num4", .hint = "Window Setting 4", .enabled = MapOpen,
     .checked = Holds<ArrangementIs, 3>, .run = With<UseArrangement, 3>},
    {.id = 24361, .name = "CM_CASCADECHILDREN", .menu = "&Window", .startsGroup = true, .label = "Cascade",
     .hint = "Cascade all editing windows", .enabled = MapOpen,
     .run = With<Arrange, &WindowHost::cascade>},
    {.id = 24362, .name = "CM_TILECHILDREN", .menu = "&Window", .label = "Tile",
     .hint = "Tile all editing windows", .enabled = MapOpen,
     .run = With<Arrange, &WindowHost::tile>},
    {.id = 24364, .menu = "&Window", .label = "Arrange Icons", .hint = "Arrange window icons...",
     .enabled = MapOpen, .run = With<Arrange, &WindowHost::arrangeIcons>},
    {.id = 350, .menu = "&Window", .startsGroup = true,
     .label = "&Velk Bar 1", .hint = "Show/Hide Button Bar 1",
     .enabled = MapOpen, .checked = Holds<BarIsVisible, 0>, .run = With<ToggleBar, 0>},
    {.id = 351, .menu = "&Window", .label = "&Velk Bar 2", .hint = "Show/Hide Button Bar 2",
     .enabled = MapOpen, .checked = Holds<BarIsVisible, 1>, .run = With<ToggleBar, 1>},
    {.id = 355, .menu = "&Window", .startsGroup = true,
     .label = "Restore &3D", .keyText = "Alt-3", .keys = "Alt+3",
     .hint = "Restore 3D Window", .enabled = MapOpen, .run = With<RestoreTool, ToolWindow::Camera>},
    {.id = 139, .name = "CM_GROUP", .menu = "&Window", .label = "Restore &Groups", .keyText = "Ctrl-G",
     .keys = "Ctrl+G", .hint = "Restore Group Window", .enabled = MapOpen,
     .run = With<RestoreTool, ToolWindow::Groups>},
    {.id = 265, .menu = "&Window", .label = "Restore &Entity", .keyText = "Ctrl-E", .keys = "Ctrl+E",
     .hint = "Restore Entity Browser", .enabled = MapOpen,
     .run = With<RestoreTool, ToolWindow::Entities>},
    {.id = 218, .menu = "&Window", .label = "Restore Te&xture", .keyText = "Ctrl-T", .keys = "Ctrl+T",
     .hint = "Restore Texture Browser", .enabled = MapOpen,
     .run = With<RestoreTool, ToolWindow::Textures>},
    {.id = 219, .menu = "&Window", .label = "Restore &Brush View", .keyText = "Ctrl-B", .keys = "Ctrl+B",
     .hint = "Restore Selected Brush View", .enabled = MapOpen,
     .run = With<RestoreTool, ToolWindow::SelectedBrush>},
    {.id = 1190, .name = "CM_SHOW_XY_VIEW", .menu = "&Window|Restore &Plan View", .label = "&XY View",
     .hint = "Show XY View Window", .enabled = MapOpen, .run = With<RestorePlanView, ToolWindow::Plan1>},
    {.id = 1191, .name = "CM_SHOW_XZ_VIEW", .menu = "&Window|Restore &Plan View", .label = "X&Z View",
     .hint = "Show XZ View Window", .enabled = MapOpen, .run = With<RestorePlanView, ToolWindow::Plan2>},
    {.id = 1192, .name = "CM_SHOW_YZ_VIEW", .menu = "&Window|Restore &Plan View", .label = "&YZ View",
     .hint = "Show YZ View Window", .enabled = MapOpen, .run = With<RestorePlanView, ToolWindow::Plan3>},
    {.id = 214, .name = "CM_NEXT_MAP", .menu = "&Window", .startsGroup = true,
     .label = "&Next Map", .keyText = "Ctrl-+",
     .keys = "Ctrl+= Ctrl++", .hint = "Switch to Next Map", .enabled = MapOpen, .run = With<StepMap, 1>},
    {.id = 215, .name = "CM_PREVIOUS_MAP", .menu = "&Window", .label = "&Previous Map", .keyText = "Ctrl--",
     .keys = "Ctrl+-", .hint = "Switch to Previous Map", .enabled = MapOpen, .run = With<StepMap, -1>},
    {.id = 134, .name = "CM_SWITCH_MAP_VIEW", .menu = "&Window", .startsGroup = true,
     .label = "&Switch Map View",
     .keyText = "Ctrl-Return", .keys = "Ctrl+Enter", .hint = "XY, YZ, XZ Toggle", .enabled = MapOpen,
     .run = SwitchMapView},
    {.id = 162, .name = "CM_ABOUT", .menu = "&Help", .label = "&About...", .hint = "About Velk...",
     .run = About},
    {.id = 163, .menu = "&Help", .label = "&Help", .hint = "Help with Velk",
     .run = Help},
};
// clang-format on

}  // namespace

std::span<const Command> WindowCommands() { return kRows; }

}  // namespace velk
