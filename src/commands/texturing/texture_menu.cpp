// Commands of the Edit menu that put textures on faces.
#include "app/editor.h"
#include "base/text.h"
#include "commands/command_tables.h"
#include "commands/texturing/replace_texture.h"
#include "ops/face_textures.h"

namespace velk {
namespace {

Outcome SetTextureOfFace(Editor& editor, map& m) {
  if (!SetFaceTexture(m, editor.texture().current())) return {};
  return Outcome::Drawn(Redraw::All, "Current texture applied to face...");
}

Outcome SetTextureOfBrush(Editor& editor, map& m) {
  if (SetBrushTexture(m, editor.texture().current()) == 0) return {};
  return Outcome::Drawn(Redraw::All, "Current texture applied to brush...");
}

Outcome NextFace(Editor&, map& m) {
  StepCurrentFace(m, 1);
  return Outcome::Drawn(Redraw::All, "Next face...");
}

Outcome PreviousFace(Editor&, map& m) {
  StepCurrentFace(m, -1);
  return Outcome::Drawn(Redraw::All, "Previous face...");
}

// clang-format off
const Command kRows[] = {
    {.id = 397, .name = "CM_FACE_TEXTURE", .menu = "&Edit|Set Te&xture", .startsGroup = true,
     .label = "Set &Face Texture",
     .keyText = "Alt-F", .keys = "Alt+F", .hint = "Apply current texture to current face...",
     .run = SetTextureOfFace},
    {.id = 396, .name = "CM_BRUSH_TEXTURE", .menu = "&Edit|Set Te&xture", .label = "Set &Brush Texture",
     .keyText = "Alt-B", .keys = "Alt+B", .hint = "Apply current texture to brush...",
     .run = SetTextureOfBrush},
    {.id = 278, .name = "CM_NEXT_FACE", .menu = "&Edit", .label = "Next Face", .keyText = "Numpad-9",
     .keys = "Num9", .hint = "Cycle through faces of selected brush...", .enabled = MapOpen,
     .run = NextFace},
    {.id = 279, .name = "CM_PREVIOUS_FACE", .menu = "&Edit", .label = "Previous Face",
     .keyText = "Numpad-7", .keys = "Num7", .hint = "Cycle through faces of selected brush...",
     .enabled = MapOpen, .run = PreviousFace},
    {.id = 286, .name = "CM_REPLACE", .menu = "&Edit", .label = "Replace...",
     .hint = "Find and Replace textures", .enabled = MapOpen, .run = AskForReplacing},
};
// clang-format on

}  // namespace

std::span<const Command> TextureCommands() { return kRows; }

}  // namespace velk
