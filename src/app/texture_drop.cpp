#include "app/texture_drop.h"

namespace velk {
namespace {

struct Target {
  FacePick pick;
  bool whole = false;
};

Target TargetAt(Editor& editor, Pixel at, bool wholeBrush) {
  const FacePick pick = editor.views().pick(at);
  return {pick, wholeBrush || pick.face < 0};
}

Outcome Apply(map& m, const Target& target, const texturedef& texture) {
  m.modified = true;
  if (target.whole) {
    target.pick.hit->setAllTexturedefs(texture);
    return Outcome::Drawn(Redraw::All, "Current texture applied to brush...");
  }
  target.pick.hit->setTexturedef(texture, target.pick.face);
  return Outcome::Drawn(Redraw::All, "Current texture applied to face...");
}

}  // namespace

void DropTexture(Editor& editor, Pixel at, bool wholeBrush) {
  TexturePanel& panel = editor.panels().textures;
  const int dragged = panel.drag() == TexturePanel::Drag::Magnifier ? -1 : panel.dragged();
  panel.cancel();
  map* m = editor.documents().currentMap();
  if (dragged < 0 || dragged >= panel.set().count() || !m) return;
  const Target target = TargetAt(editor, at, wholeBrush);
  if (!target.pick.hit || !target.pick.hit->owner->isModel) return;
  panel.selectTexture(dragged);
  const char* name = target.whole ? "Texture Brush" : "Texture Face";
  editor.door().perform({.name = name, .classic = UndoMode::All},
                        [&] { return Apply(*m, target, editor.texture().current()); });
}

}  // namespace velk
