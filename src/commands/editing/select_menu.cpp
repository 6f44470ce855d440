// Commands of the Edit menu that select: the hits of the last pick, and by what brushes are like.
#include "app/editor.h"
#include "base/text.h"
#include "commands/command_tables.h"
#include "commands/editing/hit_commands.h"
#include "ops/clip.h"
#include "ops/face_textures.h"
#include "ops/selection.h"

namespace velk {
namespace {

Outcome SelectAll(Editor&, map& m) {
  m.MAPerform(Method::Select);
  return Outcome::Drawn(Redraw::All, "Selected all brushes/entities");
}

Outcome DeselectAll(Editor&, map& m) { return HideClipPointsOrDeselect(m); }

Outcome SelectTotal(Editor&, map& m) {
  SelectByBox(m, true);
  return Outcome::Drawn(Redraw::All, "Selected brushes totally inside...");
}

Outcome SelectPartial(Editor&, map& m) {
  SelectByBox(m, false);
  return Outcome::Drawn(Redraw::All, "Selected brushes partially inside...");
}

Outcome SelectByTextureName(Editor& editor, map& m) {
  const std::string& ofMap = editor.documents().current()->textures.currentName;
  const auto answer = editor.services().prompts.input(
      {"Select", "Select Brushes by Texture:", ofMap.empty() ? editor.texture().current().name : ofMap, 80});
  if (!answer || answer->empty()) return {};
  const std::string name = UpperCase(*answer);
  SelectByTexture(m, name);
  return Outcome::Drawn(Redraw::All, Format("Selected brushes having texture %s...", name.c_str()));
}

// clang-format off
const Command kRows[] = {
    {.id = 228, .menu = "&Edit|&Hit", .startsGroup = true,
     .label = "Select &All Hit", .keyText = "F4", .keys = "F4",
     .hint = "Select All Hit Brushes", .enabled = MapOpen, .run = SelectAllHits},
    {.id = 290, .name = "CM_HIT_DOWN", .menu = "&Edit|&Hit", .label = "&Previous Hit",
     .keyText = "Ctrl-Home", .keys = "Ctrl+Home", .hint = "Go to previous hit bursh", .enabled = MapOpen,
     .run = PreviousHit},
    {.id = 289, .name = "CM_HIT_UP", .menu = "&Edit|&Hit", .label = "&Next Hit", .keyText = "Ctrl-End",
     .keys = "Ctrl+End", .hint = "Go to next hit brush", .enabled = MapOpen, .run = NextHit},
    {.id = 174, .name = "CM_SELECT_PARTIAL", .menu = "&Edit|&Select", .label = "&Partial",
     .hint = "Select all brushes that even partially overlap selection brush", .enabled = MapOpen,
     .run = SelectPartial},
    {.id = 173, .name = "CM_SELECT_TOTAL", .menu = "&Edit|&Select", .label = "&Total",
     .hint = "Select all brushes totally contained in selection brush", .enabled = MapOpen,
     .run = SelectTotal},
    {.id = 121, .name = "CM_SELECT_ALL", .menu = "&Edit|&Select", .label = "&All", .keyText = "`",
     .keys = "`", .hint = "Select all brushes", .enabled = MapOpen, .run = SelectAll},
    {.id = 288, .name = "CM_SELECT_BY_TEXTURE", .menu = "&Edit|&Select", .label = "Te&xture",
     .hint = "Select all brushes containing current texture", .enabled = MapOpen,
     .run = SelectByTextureName},
    {.id = 157, .name = "CM_DESELECT_ALL", .menu = "&Edit|&Select", .label = "&Deselect All",
     .keyText = "Esc", .keys = "Esc", .hint = "Deselect all selected brushes", .enabled = MapOpen,
     .run = DeselectAll},
};
// clang-format on

}  // namespace

std::span<const Command> SelectCommands() { return kRows; }

}  // namespace velk
