#include "commands/texturing/align_commands.h"

#include <algorithm>

#include "base/text.h"
#include "documents/wad_reload.h"

namespace velk {
namespace {

constexpr int kMostTimes = 64;

TextureSizes SizesOf(Editor& editor) {
  return [&editor](const std::string& name) -> TextureSize {
    const auto shown = editor.documents().current()->textures.makeTextureRef(name);
    const TextureRef& texture = shown ? *shown : editor.textures().badtex();
    return {texture.width, texture.height};
  };
}

Outcome Changed(Editor& editor, map& m, const TextureChange& change, const char* what) {
  const int faces = ChangeTextures(m, WorksOnAllFaces(editor), change);
  if (faces == 0) return Outcome::Said("No face to texture...");
  return Outcome::Drawn(Redraw::All, faces == 1 ? Format("Texture %s...", what)
                                                : Format("Texture %s on %i faces...", what, faces));
}

}  // namespace

Outcome AskFitTexture(Editor& editor, map& m) {
  if (!m.firstSelected()) return Outcome::Said("No face to texture...");
  TextureRepeats& kept = editor.remembered().textureRepeats;
  Form form;
  form.title = "Velk - Fit Texture";
  const NumberRange range{.low = 1, .high = kMostTimes};
  form.fields = {WholeField("across", "Times &across", kept.across, range),
                 WholeField("down", "Times &down", kept.down, range)};
  if (editor.services().prompts.fill(form) == FormAnswer::Cancel) return {};
  kept = {std::clamp(form.whole("across"), 1, kMostTimes), std::clamp(form.whole("down"), 1, kMostTimes)};
  return Changed(editor, m, FitTextureTo(SizesOf(editor), kept.across, kept.down), "fitted");
}

Outcome AlignTexture(Editor& editor, map& m, TextureEdge edge) {
  return Changed(editor, m, AlignTextureTo(SizesOf(editor), edge), "aligned");
}

Outcome TurnTexture(Editor& editor, map& m) { return Changed(editor, m, QuarterTurnTexture(), "rotated"); }

Outcome MirrorTexture(Editor& editor, map& m, int axis) {
  return Changed(editor, m, FlipTexture(axis), "flipped");
}

Outcome WrapToNeighbours(Editor&, map& m) {
  const WrappedTextures wrapped = WrapTexture(m);
  if (wrapped.faces == 0) return Outcome::Said("No neighbours to texture...");
  std::string status = Format("Texture wrapped to %i faces...", wrapped.faces);
  if (wrapped.inexact > 0) status += Format(" On %i it runs on only nearly...", wrapped.inexact);
  return Outcome::Drawn(Redraw::All, std::move(status));
}

Outcome ToggleAllFaces(Editor& editor) {
  bool& all = editor.remembered().textureAllFaces;
  all = !all;
  return Outcome::Said(all ? "Texture commands work on all selected faces..."
                           : "Texture commands work on the current face...");
}

bool WorksOnAllFaces(const Editor& editor) { return editor.remembered().textureAllFaces; }

Outcome ReloadAllWads(Editor& editor) {
  std::vector<Wad*> wads;
  for (const auto& wad : editor.textures().wads()) {
    if (editor.services().paths.exists(wad->path)) wads.push_back(wad.get());
  }
  ReloadWads(editor.documents(), editor.door(), editor.textures(), wads);
  // The map may name others by now.
  MapDocument* document = editor.documents().current();
  if (!document || editor.textures().hasMapWads(document->model, document->textures)) return {};
  editor.door().attempt("Velk - Reload Wads", "", [&] {
    editor.textures().openMapWads(document->model, document->textures, {}, true);
  });
  Outcome outcome = Outcome::Drawn(Redraw::Camera);
  outcome.textures = true;
  return outcome;
}

}  // namespace velk
