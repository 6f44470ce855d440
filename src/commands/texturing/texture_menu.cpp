// Commands of the Edit menu that put textures on faces.
#include "app/editor.h"
#include "base/text.h"
#include "commands/command_tables.h"
#include "commands/texturing/align_commands.h"
#include "commands/texturing/replace_texture.h"
#include "commands/toggles.h"
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

Outcome ToggleTextureLock(Editor& editor) {
  bool& lock = editor.settings().texture_lock;
  lock = !lock;
  return Outcome::Said(lock ? "Textures move along with brushes..." : "Textures stay in place...");
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
    {.id = 1500, .name = "CM_TEXTURE_FIT", .menu = "&Edit|Ali&gn Texture", .label = "&Fit...",
     .hint = "Fit the texture to the face, so many times across and down...", .enabled = MapOpen,
     .run = AskFitTexture},
    {.id = 1501, .name = "CM_TEXTURE_LEFT", .menu = "&Edit|Ali&gn Texture", .startsGroup = true,
     .label = "&Left", .hint = "Align the texture with the left edge of the face...", .enabled = MapOpen,
     .run = With<AlignTexture, TextureEdge::Left>},
    {.id = 1502, .name = "CM_TEXTURE_RIGHT", .menu = "&Edit|Ali&gn Texture", .label = "&Right",
     .hint = "Align the texture with the right edge of the face...", .enabled = MapOpen,
     .run = With<AlignTexture, TextureEdge::Right>},
    {.id = 1503, .name = "CM_TEXTURE_TOP", .menu = "&Edit|Ali&gn Texture", .label = "&Top",
     .hint = "Align the texture with the top edge of the face...", .enabled = MapOpen,
     .run = With<AlignTexture, TextureEdge::Top>},
    {.id = 1504, .name = "CM_TEXTURE_BOTTOM", .menu = "&Edit|Ali&gn Texture", .label = "&Bottom",
     .hint = "Align the texture with the bottom edge of the face...", .enabled = MapOpen,
     .run = With<AlignTexture, TextureEdge::Bottom>},
    {.id = 1505, .name = "CM_TEXTURE_CENTRE", .menu = "&Edit|Ali&gn Texture", .label = "&Centre",
     .hint = "Bring the middle of the texture to the middle of the face...", .enabled = MapOpen,
     .run = With<AlignTexture, TextureEdge::Centre>},
    {.id = 1506, .name = "CM_TEXTURE_ROTATE", .menu = "&Edit|Ali&gn Texture", .startsGroup = true,
     .label = "Rotate &90 Degrees", .hint = "Turn the texture round the middle of the face...",
     .enabled = MapOpen, .run = TurnTexture},
    {.id = 1507, .name = "CM_TEXTURE_FLIP_S", .menu = "&Edit|Ali&gn Texture", .label = "Flip &S",
     .hint = "Mirror the texture from left to right...", .enabled = MapOpen, .run = With<MirrorTexture, 0>},
    {.id = 1508, .name = "CM_TEXTURE_FLIP_T", .menu = "&Edit|Ali&gn Texture", .label = "Fl&ip T",
     .hint = "Mirror the texture upside down...", .enabled = MapOpen, .run = With<MirrorTexture, 1>},
    {.id = 1509, .name = "CM_TEXTURE_WRAP", .menu = "&Edit|Ali&gn Texture", .startsGroup = true,
     .label = "&Wrap to Neighbours",
     .hint = "Let the texture of the current face run on over its edges...", .enabled = MapOpen,
     .run = WrapToNeighbours},
    {.id = 1510, .name = "CM_TEXTURE_ALL_FACES", .menu = "&Edit|Ali&gn Texture", .startsGroup = true,
     .label = "On &All Faces", .hint = "Work on all faces of the selection, not on the current face",
     .checked = WorksOnAllFaces, .run = ToggleAllFaces},
    {.id = 1511, .name = "CM_TEXTURE_LOCK", .menu = "&Edit|Ali&gn Texture", .label = "Texture Loc&k",
     .hint = "Textures move along with brushes", .checked = Holds<IsOn, &Settings::texture_lock>,
     .run = ToggleTextureLock},
    {.id = 278, .name = "CM_NEXT_FACE", .menu = "&Edit", .label = "Next Face", .keyText = "Numpad-9",
     .keys = "Num9", .hint = "Cycle through faces of selected brush...", .enabled = MapOpen,
     .run = NextFace},
    {.id = 279, .name = "CM_PREVIOUS_FACE", .menu = "&Edit", .label = "Previous Face",
     .keyText = "Numpad-7", .keys = "Num7", .hint = "Cycle through faces of selected brush...",
     .enabled = MapOpen, .run = PreviousFace},
    {.id = 286, .name = "CM_REPLACE", .menu = "&Edit", .label = "Replace...",
     .hint = "Find and Replace textures", .enabled = MapOpen, .run = AskForReplacing},
    {.id = 1512, .name = "CM_RELOAD_WADS", .menu = "&Edit", .label = "Reload Wads",
     .hint = "Read all texture files again...", .run = ReloadAllWads},
};
// clang-format on

}  // namespace

std::span<const Command> TextureCommands() { return kRows; }

}  // namespace velk
