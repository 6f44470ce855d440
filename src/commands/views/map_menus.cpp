// Commands of the Group and Clip menus.
#include "app/editor.h"
#include "commands/command_tables.h"
#include "commands/editing/transform_commands.h"
#include "commands/toggles.h"

namespace velk {
namespace {

Outcome Omit(Editor& editor, bool ViewFilter::*kind, const char* text) {
  bool& omitted = editor.settings().filter.*kind;
  omitted = !omitted;
  return MapOpen(editor) ? Outcome::Drawn(Redraw::All, text) : Outcome{};
}

bool Omitted(const Editor& editor, bool ViewFilter::*kind) { return editor.settings().filter.*kind; }

Outcome OmitLights(Editor& editor) { return Omit(editor, &ViewFilter::omitLights, "Show lights toggled"); }
Outcome OmitEntities(Editor& editor) {
  return Omit(editor, &ViewFilter::omitEntities, "Show entities toggled");
}
Outcome OmitWorld(Editor& editor) { return Omit(editor, &ViewFilter::omitWorld, "Show world toggled"); }
Outcome OmitWater(Editor& editor) { return Omit(editor, &ViewFilter::omitWater, "Show water toggled"); }
Outcome OmitClip(Editor& editor) { return Omit(editor, &ViewFilter::omitClip, "Show clip brushes toggled"); }

Outcome ToggleGroupMode(Editor& editor) { return editor.panels().groups.toggleGroupMode(); }

// clang-format off
const Command kRows[] = {
    {.id = 138, .name = "CM_GROUP_MODE", .menu = "&Group", .label = "&Use Groups",
     .hint = "Turns groups on or off", .enabled = MapOpen, .checked = Holds<IsOn, &Settings::groupmode>,
     .run = ToggleGroupMode},
    {.id = 209, .name = "CM_OMIT_LIGHTS", .menu = "&Group", .startsGroup = true, .label = "Omit &Lights",
     .hint = "Don't draw lights", .enabled = MapOpen, .checked = Holds<Omitted, &ViewFilter::omitLights>, .run = OmitLights},
    {.id = 213, .name = "CM_OMIT_ENTITIES", .menu = "&Group", .label = "Omit &Entities",
     .hint = "Don't draw entities...", .enabled = MapOpen, .checked = Holds<Omitted, &ViewFilter::omitEntities>,
     .run = OmitEntities},
    {.id = 210, .name = "CM_OMIT_WORLD", .menu = "&Group", .label = "Omit &World",
     .hint = "Don't draw world", .enabled = MapOpen, .checked = Holds<Omitted, &ViewFilter::omitWorld>, .run = OmitWorld},
    {.id = 211, .name = "CM_OMIT_WATER", .menu = "&Group", .label = "Omit W&ater",
     .hint = "Don't draw water brushes", .enabled = MapOpen, .checked = Holds<Omitted, &ViewFilter::omitWater>, .run = OmitWater},
    {.id = 212, .name = "CM_OMIT_CLIP", .menu = "&Group", .label = "Omit &Clip",
     .hint = "Don't draw clip brushes", .enabled = MapOpen, .checked = Holds<Omitted, &ViewFilter::omitClip>, .run = OmitClip},
    {.id = 133, .name = "CM_FLIPCLIPPER", .menu = "&Clip", .label = "&Flip", .keyText = "Ctrl-/",
     .keys = "Ctrl+/", .hint = "Flip the normal of the clip plane", .enabled = MapOpen,
     .run = FlipClipPlane},
    {.id = 132, .name = "CM_CARVE", .menu = "&Clip", .label = "&Carve", .keyText = "Ins", .keys = "Ins",
     .hint = "Carve selected brushes by clip plane", .enabled = MapOpen,
     .run = CarveByClipPlane},
    {.id = 280, .name = "CM_CLIPSPLIT", .menu = "&Clip", .label = "&Split", .keyText = "Alt-Ins",
     .keys = "Alt+Ins", .hint = "Split selected brushes by clip plane..", .enabled = MapOpen,
     .run = SplitByClipPlane},
    {.id = 141, .name = "CM_MOVE_UP", .menu = "&Clip", .startsGroup = true,
     .label = "Move &Up", .keyText = "F5", .keys = "F5",
     .hint = "Moves current clip point up by gridsize", .enabled = MapOpen,
     .run = RaiseClipPoint},
    {.id = 170, .name = "CM_MOVE_DOWN", .menu = "&Clip", .label = "Move &Down", .keyText = "F6",
     .keys = "F6", .hint = "Move current clip point down by gridsize", .enabled = MapOpen,
     .run = LowerClipPoint},
};
// clang-format on

}  // namespace

std::span<const Command> MapCommands() { return kRows; }

}  // namespace velk
