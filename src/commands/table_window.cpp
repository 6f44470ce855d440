// Commands of the Window and Help menus.
#include "commands/command_tables.h"
#include "commands/handlers.h"

namespace velk {

using namespace commands;

namespace {

// clang-format off
const Command kRows[] = {
    {.id = 142, .name = "CM_WINDOW_POSITION", .menu = "&Window|&Configure", .label = "&Restore Positions",
     .hint = "Reposition current window settings based upon last save...", .when = When::MapOpen,
     .run = restorePositions},
    {.id = 275, .name = "CM_WUP", .menu = "&Window|&Configure", .startsGroup = true,
     .label = "&Next Positioning",
     .keyText = "Ctrl-Keypad +", .keys = "Ctrl+Num+", .hint = "Next window setting",
     .run = with<stepArrangement, 1>},
    {.id = 274, .name = "CM_WDOWN", .menu = "&Window|&Configure", .label = "&Previous Positioning",
     .keyText = "Ctrl-Keypad -", .keys = "Ctrl+Num-", .hint = "Previous window setting",
     .run = with<stepArrangement, -1>},
    {.id = 276, .name = "CM_S1", .menu = "&Window|&Configure", .startsGroup = true, .label = "Set &1",
     .keyText = "Ctrl-Keypad 1", .keys = "Ctrl+Num1", .hint = "Window Setting 1", .when = When::MapOpen,
     .checked = holds<arrangementIs, 0>, .run = with<useArrangement, 0>},
    {.id = 277, .name = "CM_S2", .menu = "&Window|&Configure", .label = "Set &2",
     .keyText = "Ctrl-Keypad 2", .keys = "Ctrl+Num2", .hint = "Window Setting 2", .when = When::MapOpen,
     .checked = holds<arrangementIs, 1>, .run = with<useArrangement, 1>},
    {.id = 272, .name = "CM_S3", .menu = "&Window|&Configure", .label = "Set &3",
     .keyText = "Ctrl-Keypad 3", .keys = "Ctrl+Num3", .hint = "Window Setting 3", .when = When::MapOpen,
     .checked = holds<arrangementIs, 2>, .run = with<useArrangement, 2>},
    {.id = 273, .name = "CM_S4", .menu = "&Window|&Configure", .label = "Set &4",
     .keyText = "Ctrl-Keypad 4", .keys = "Ctrl+Num4", .hint = "Window Setting 4", .when = When::MapOpen,
     .checked = holds<arrangementIs, 3>, .run = with<useArrangement, 3>},
    {.id = 24361, .name = "CM_CASCADECHILDREN", .menu = "&Window", .startsGroup = true, .label = "Cascade",
     .hint = "Cascade all editing windows", .when = When::MapOpen,
     .run = cascadeWindows},
    {.id = 24362, .name = "CM_TILECHILDREN", .menu = "&Window", .label = "Tile",
     .hint = "Tile all editing windows", .when = When::MapOpen,
     .run = tileWindows},
    {.id = 24364, .menu = "&Window", .label = "Arrange Icons", .hint = "Arrange window icons...",
     .when = When::MapOpen, .run = arrangeIcons},
    {.id = 350, .menu = "&Window", .startsGroup = true,
     .label = "&Velk Bar 1", .hint = "Show/Hide Button Bar 1",
     .when = When::MapOpen, .checked = holds<barIsVisible, 0>, .run = with<toggleBar, 0>},
    {.id = 351, .menu = "&Window", .label = "&Velk Bar 2", .hint = "Show/Hide Button Bar 2",
     .when = When::MapOpen, .checked = holds<barIsVisible, 1>, .run = with<toggleBar, 1>},
    {.id = 355, .menu = "&Window", .startsGroup = true,
     .label = "Restore &3D", .keyText = "Alt-3", .keys = "Alt+3",
     .hint = "Restore 3D Window", .when = When::MapOpen, .run = with<restoreTool, ToolWindow::Camera>},
    {.id = 139, .name = "CM_GROUP", .menu = "&Window", .label = "Restore &Groups", .keyText = "Ctrl-G",
     .keys = "Ctrl+G", .hint = "Restore Group Window", .when = When::MapOpen,
     .run = with<restoreTool, ToolWindow::Groups>},
    {.id = 265, .menu = "&Window", .label = "Restore &Entity", .keyText = "Ctrl-E", .keys = "Ctrl+E",
     .hint = "Restore Entity Browser", .when = When::MapOpen,
     .run = with<restoreTool, ToolWindow::Entities>},
    {.id = 218, .menu = "&Window", .label = "Restore Te&xture", .keyText = "Ctrl-T", .keys = "Ctrl+T",
     .hint = "Restore Texture Browser", .when = When::MapOpen,
     .run = with<restoreTool, ToolWindow::Textures>},
    {.id = 219, .menu = "&Window", .label = "Restore &Brush View", .keyText = "Ctrl-B", .keys = "Ctrl+B",
     .hint = "Restore Selected Brush View", .when = When::MapOpen,
     .run = with<restoreTool, ToolWindow::SelectedBrush>},
    {.id = 214, .name = "CM_NEXT_MAP", .menu = "&Window", .startsGroup = true,
     .label = "&Next Map", .keyText = "Ctrl-+",
     .keys = "Ctrl+= Ctrl++", .hint = "Switch to Next Map", .when = When::MapOpen, .run = nextMap},
    {.id = 215, .name = "CM_PREVIOUS_MAP", .menu = "&Window", .label = "&Previous Map", .keyText = "Ctrl--",
     .keys = "Ctrl+-", .hint = "Switch to Previous Map", .when = When::MapOpen, .run = previousMap},
    {.id = 134, .name = "CM_SWITCH_MAP_VIEW", .menu = "&Window", .startsGroup = true,
     .label = "&Switch Map View",
     .keyText = "Ctrl-Return", .keys = "Ctrl+Enter", .hint = "XY, YZ, XZ Toggle", .when = When::MapOpen,
     .run = switchMapView},
    {.id = 162, .name = "CM_ABOUT", .menu = "&Help", .label = "&About...", .hint = "About Velk...",
     .run = about},
    {.id = 163, .menu = "&Help", .label = "&Help", .hint = "Help with Velk",
     .run = help},
};
// clang-format on

}  // namespace

std::span<const Command> WindowCommands() { return kRows; }

}  // namespace velk
