// Commands of the Display, Grid and Scale menus.
#include "app/editor.h"
#include "commands/command_tables.h"
#include "commands/toggles.h"
#include "commands/views/camera_handlers.h"
#include "planview/view_steps.h"

namespace velk {
namespace {

Outcome SetDrawMode(Editor& editor, int mode) {
  constexpr const char* kStatus[] = {"Mode set to Wire", "Mode set to Flat", "Mode set to Texture"};
  editor.settings().drawmode = mode;
  return Outcome::Drawn(Redraw::Camera, kStatus[mode]);
}

bool DrawModeIs(const Editor& editor, int mode) { return editor.settings().drawmode == mode; }

Outcome SetRenderQuality(Editor& editor, int index) {
  return velk::SetRenderQuality(editor.settings(), index);
}

Outcome QualityWindow(Editor& editor) { return SetWindowQuality(editor.settings()); }

Outcome CentreView(Editor& editor, map& m) {
  m.activeCamera().origin = m.selectionCentre();
  editor.views().plans.planCenter = m.activeCamera().origin;
  return Outcome::Drawn(Redraw::All, "Centering view...");
}

Outcome ToggleNames(Editor& editor) {
  return Toggle(editor, &Settings::show_names, Redraw::Plans, "Names toggled...");
}
Outcome ToggleCoordinates(Editor& editor) {
  return Toggle(editor, &Settings::show_coordinates, Redraw::Plans, "Coordinates toggled...");
}
Outcome ToggleHits(Editor& editor) {
  return Toggle(editor, &Settings::show_hits, Redraw::All, "Show all hit brushes...");
}
Outcome ToggleConnections(Editor& editor) {
  return Toggle(editor, &Settings::connections, Redraw::Plans, "Connections toggled...");
}
Outcome ToggleOutline(Editor& editor) {
  return Toggle(editor, &Settings::outline, Redraw::Camera, "Outline toggled...");
}

// The flag belongs to the map window, not to the settings.
Outcome ToggleReadout(Editor& editor) {
  bool& readout = editor.views().plans.dragReadout;
  readout = !readout;
  return MapOpen(editor) ? Outcome::Drawn(Redraw::Strips, "Drag readout toggled...") : Outcome{};
}

bool ReadsOut(const Editor& editor) { return editor.views().plans.dragReadout; }

Outcome SetView(Editor& editor, std::string (*step)(Settings&)) {
  return Outcome::Drawn(Redraw::Plans, step(editor.settings()));
}

Outcome SetGrid(Editor& editor, int preset) {
  return Outcome::Drawn(Redraw::Plans, SetGridPreset(editor.settings(), preset));
}

bool GridIs(const Editor& editor, int preset) {
  return editor.settings().gridsize == kGridPresets[static_cast<size_t>(preset)];
}

Outcome SetScale(Editor& editor, int preset) {
  return Outcome::Drawn(Redraw::Plans, SetScalePreset(editor.settings(), preset));
}

bool ScaleIs(const Editor& editor, int preset) {
  return editor.settings().scale == kScalePresets[static_cast<size_t>(preset)].scale;
}

Outcome OtherScale(Editor& editor) {
  const auto answer = editor.services().prompts.input(
      {kOtherScaleTitle, kOtherScalePrompt, ScalePercentText(editor.settings())});
  if (!answer) return {};
  const auto text = SetScalePercent(editor.settings(), *answer);
  return text ? Outcome::Drawn(Redraw::Plans, *text) : Outcome{};
}

// clang-format off
const Command kRows[] = {
    {.id = 187, .name = "CM_MODEWIRE", .menu = "&Display|&Render", .label = "&Wire",
     .hint = "Set to wire frame mode", .enabled = MapOpen,
     .checked = Holds<DrawModeIs, 0>, .run = With<SetDrawMode, 0>},
    {.id = 188, .name = "CM_MODEFLAT", .menu = "&Display|&Render", .label = "&Flat",
     .hint = "Set to flat shaded mode", .enabled = MapOpen,
     .checked = Holds<DrawModeIs, 1>, .run = With<SetDrawMode, 1>},
    {.id = 189, .name = "CM_MODETEXTURE", .menu = "&Display|&Render", .label = "&Texture",
     .hint = "Set to texture mapped mode", .enabled = MapOpen, .checked = Holds<DrawModeIs, 2>,
     .run = With<SetDrawMode, 2>},
    {.id = 192, .menu = "&Display|&Render|&Quality", .startsGroup = true,
     .label = "80 x 60", .hint = "Render Quality",
     .run = With<SetRenderQuality, 0>},
    {.id = 193, .menu = "&Display|&Render|&Quality", .label = "100 x 75", .hint = "Render Quality",
     .run = With<SetRenderQuality, 1>},
    {.id = 194, .menu = "&Display|&Render|&Quality", .label = "160 x 100", .hint = "Render Quality",
     .run = With<SetRenderQuality, 2>},
    {.id = 196, .menu = "&Display|&Render|&Quality", .label = "200 x 150", .hint = "Render Quality",
     .run = With<SetRenderQuality, 3>},
    {.id = 197, .menu = "&Display|&Render|&Quality", .label = "320 x 200", .hint = "Render Quality",
     .run = With<SetRenderQuality, 4>},
    {.id = 198, .menu = "&Display|&Render|&Quality", .label = "400 x 300", .hint = "Render Quality",
     .run = With<SetRenderQuality, 5>},
    {.id = 199, .menu = "&Display|&Render|&Quality", .label = "480 x 360", .hint = "Render Quality",
     .run = With<SetRenderQuality, 6>},
    {.id = 200, .menu = "&Display|&Render|&Quality", .label = "640 x 480", .hint = "Render Quality",
     .run = With<SetRenderQuality, 7>},
    {.id = 1090, .name = "CM_QUALITY_WINDOW", .menu = "&Display|&Render|&Quality", .startsGroup = true,
     .label = "Window",
     .hint = "Render at the size of the window", .checked = Holds<IsOn, &Settings::window_quality>, .run = QualityWindow},
    {.id = 597, .name = "CM_DRAW_CONNECTIONS", .menu = "&Display|&Show", .label = "&Connections",
     .hint = "Draw connections between entities...", .enabled = MapOpen, .checked = Holds<IsOn, &Settings::connections>,
     .run = ToggleConnections},
    {.id = 156, .name = "CM_TOGGLE_COORDINATES", .menu = "&Display|&Show", .label = "C&oordinates",
     .keyText = "Ctrl-Alt-Shift-C", .keys = "Ctrl+Alt+Shift+C", .hint = "Show coordinates on grid",
     .enabled = MapOpen, .checked = Holds<IsOn, &Settings::show_coordinates>, .run = ToggleCoordinates},
    {.id = 1300, .name = "CM_TOGGLE_READOUT", .menu = "&Display|&Show", .label = "&Drag Readout",
     .hint = "Show how far a drag has gone", .enabled = MapOpen, .checked = ReadsOut, .run = ToggleReadout},
    {.id = 150, .name = "CM_GRID_MODE", .menu = "&Display|&Show", .label = "&Grid", .keyText = "Alt-G",
     .keys = "Alt+G", .hint = "Turn grid on or off", .enabled = MapOpen, .checked = Holds<IsOn, &Settings::show_grid>,
     .run = With<SetView, velk::ToggleGrid>},
    {.id = 169, .name = "CM_TOGGLE_HITS", .menu = "&Display|&Show", .label = "&Hits", .keyText = "Alt-I",
     .keys = "Alt+I", .hint = "Show indices of all potentially selected brushes", .enabled = MapOpen,
     .checked = Holds<IsOn, &Settings::show_hits>, .run = ToggleHits},
    {.id = 155, .name = "CM_TOGGLE_NAMES", .menu = "&Display|&Show", .label = "&Names", .keyText = "Alt-N",
     .keys = "Alt+N", .hint = "Show entity names", .enabled = MapOpen, .checked = Holds<IsOn, &Settings::show_names>,
     .run = ToggleNames},
    {.id = 145, .name = "CM_TOGGLE_OUTLINE", .menu = "&Display|&Show", .label = "&Outline",
     .keyText = "Alt-O", .keys = "Alt+O",
     .hint = "Toggle outline mode in flat shaded and textured preview modes...", .enabled = MapOpen,
     .checked = Holds<IsOn, &Settings::outline>, .run = ToggleOutline},
    {.id = 153, .name = "CM_FLOOR_UP", .menu = "&Display", .startsGroup = true,
     .label = "Floor &Up", .hint = "Move up a floor",
     .enabled = MapOpen, .run = With<MoveOnMap, FloorUp>},
    {.id = 154, .name = "CM_FLOOR_DOWN", .menu = "&Display", .label = "Floor &Down",
     .hint = "Move down a floor", .enabled = MapOpen, .run = With<MoveOnMap, FloorDown>},
    {.id = 207, .name = "CM_CENTER", .menu = "&Display", .startsGroup = true,
     .label = "&Center", .keyText = "Alt-C",
     .keys = "Alt+C", .hint = "Move eye to center of map", .enabled = MapOpen, .run = CentreView},
    {.id = 269, .name = "CM_RESET_ANGLES", .menu = "&Display", .label = "&Reset Angles", .keyText = "Pg_Up",
     .keys = "PgUp", .hint = "Reset roll, pitch, and yaw of camera", .enabled = MapOpen,
     .run = With<MoveOnMap, ResetAngles>},
    {.id = 90, .name = "CM_NEXT_CAMERA", .menu = "&Display", .startsGroup = true, .label = "Next Camera",
     .keyText = "Ctrl-Right", .keys = "Ctrl+Right", .hint = "Move to next camera...",
     .run = With<MoveOnMap, NextCamera>},
    {.id = 91, .name = "CM_PREV_CAMERA", .menu = "&Display", .label = "Previous Camera",
     .keyText = "Ctrl-Left", .keys = "Ctrl+Left", .hint = "Move to previous camera...",
     .run = With<MoveOnMap, PreviousCamera>},
    {.id = 561, .name = "CM_GRID_UP", .menu = "G&rid", .label = "&Up", .keyText = "Ctrl-PgUp",
     .keys = "Ctrl+PgUp", .hint = "Increase grid size", .enabled = MapOpen, .run = With<SetView, velk::GridUp>},
    {.id = 560, .name = "CM_GRID_DOWN", .menu = "G&rid", .label = "&Down", .keyText = "Ctrl-PgDn",
     .keys = "Ctrl+PgDn", .enabled = MapOpen, .run = With<SetView, velk::GridDown>},
    {.id = 550, .menu = "G&rid", .startsGroup = true,
     .label = "1", .hint = "Set grid to 1", .enabled = MapOpen,
     .checked = Holds<GridIs, 0>, .run = With<SetGrid, 0>},
    {.id = 551, .menu = "G&rid", .label = "2", .hint = "Set grid to 2", .enabled = MapOpen,
     .checked = Holds<GridIs, 1>, .run = With<SetGrid, 1>},
    {.id = 552, .menu = "G&rid", .label = "4", .hint = "Set grid to 4", .enabled = MapOpen,
     .checked = Holds<GridIs, 2>, .run = With<SetGrid, 2>},
    {.id = 553, .menu = "G&rid", .label = "8", .hint = "Set grid to 8", .enabled = MapOpen,
     .checked = Holds<GridIs, 3>, .run = With<SetGrid, 3>},
    {.id = 554, .menu = "G&rid", .label = "16", .hint = "Set grid to 16", .enabled = MapOpen,
     .checked = Holds<GridIs, 4>, .run = With<SetGrid, 4>},
    {.id = 555, .menu = "G&rid", .label = "32", .hint = "Set grid to 32", .enabled = MapOpen,
     .checked = Holds<GridIs, 5>, .run = With<SetGrid, 5>},
    {.id = 556, .menu = "G&rid", .label = "64", .hint = "Set grid to 64", .enabled = MapOpen,
     .checked = Holds<GridIs, 6>, .run = With<SetGrid, 6>},
    {.id = 557, .menu = "G&rid", .label = "128", .hint = "Set grid to 128", .enabled = MapOpen,
     .checked = Holds<GridIs, 7>, .run = With<SetGrid, 7>},
    {.id = 558, .menu = "G&rid", .label = "256", .hint = "Set grid to 256", .enabled = MapOpen,
     .checked = Holds<GridIs, 8>, .run = With<SetGrid, 8>},
    {.id = 164, .name = "CM_SCALE_UP", .menu = "&Scale", .label = "&Up", .keyText = "Ctrl-Ins",
     .keys = "Ctrl+Ins", .hint = "Increase scale", .enabled = MapOpen, .run = With<SetView, velk::ScaleUp>},
    {.id = 165, .name = "CM_SCALE_DOWN", .menu = "&Scale", .label = "&Down", .keyText = "Ctrl-Del",
     .keys = "Ctrl+Del", .hint = "Decrease scale...", .enabled = MapOpen, .run = With<SetView, velk::ScaleDown>},
    {.id = 580, .menu = "&Scale", .startsGroup = true,
     .label = "1/64", .hint = "Set scale to 1/64", .enabled = MapOpen,
     .checked = Holds<ScaleIs, 0>, .run = With<SetScale, 0>},
    {.id = 581, .menu = "&Scale", .label = "1/32", .hint = "Set scale to 1/32", .enabled = MapOpen,
     .checked = Holds<ScaleIs, 1>, .run = With<SetScale, 1>},
    {.id = 582, .menu = "&Scale", .label = "1/16", .hint = "Set scale to 1/16", .enabled = MapOpen,
     .checked = Holds<ScaleIs, 2>, .run = With<SetScale, 2>},
    {.id = 583, .menu = "&Scale", .label = "1/8", .hint = "Set scale to 1/8", .enabled = MapOpen,
     .checked = Holds<ScaleIs, 3>, .run = With<SetScale, 3>},
    {.id = 584, .menu = "&Scale", .label = "1/4", .hint = "Set scale to 1/4", .enabled = MapOpen,
     .checked = Holds<ScaleIs, 4>, .run = With<SetScale, 4>},
    {.id = 585, .menu = "&Scale", .label = "1/2", .hint = "Set scale to 1/2", .enabled = MapOpen,
     .checked = Holds<ScaleIs, 5>, .run = With<SetScale, 5>},
    {.id = 586, .menu = "&Scale", .label = "1", .hint = "Set scale to 1", .enabled = MapOpen,
     .checked = Holds<ScaleIs, 6>, .run = With<SetScale, 6>},
    {.id = 587, .menu = "&Scale", .label = "2", .hint = "Set scale to 2", .enabled = MapOpen,
     .checked = Holds<ScaleIs, 7>, .run = With<SetScale, 7>},
    {.id = 588, .menu = "&Scale", .label = "4", .hint = "Set scale to 4", .enabled = MapOpen,
     .checked = Holds<ScaleIs, 8>, .run = With<SetScale, 8>},
    {.id = 589, .menu = "&Scale", .label = "8", .hint = "Set scale to 8", .enabled = MapOpen,
     .checked = Holds<ScaleIs, 9>, .run = With<SetScale, 9>},
    {.id = 590, .menu = "&Scale", .label = "16", .hint = "Set scale to 16", .enabled = MapOpen,
     .checked = Holds<ScaleIs, 10>, .run = With<SetScale, 10>},
    {.id = 300, .menu = "&Scale", .startsGroup = true,
     .label = "&Other Scale...", .hint = "Set scale to another value...",
     .run = OtherScale},
};
// clang-format on

}  // namespace

std::span<const Command> DisplayCommands() { return kRows; }

}  // namespace velk
