#include "ops/face_textures.h"

#include <algorithm>

#include "base/error.h"
#include "base/text.h"
#include "model/visit.h"

namespace velk {
namespace {

bool UsesTexture(const brush& b, std::string_view name) {
  return std::ranges::any_of(b.faces(), [&](const face& f) { return EqualNoCase(f.texture.name, name); });
}

int RenameFaces(brush& b, std::string_view from, const std::string& to) {
  if (!UsesTexture(b, from)) return 0;
  int renamed = 0;
  for (face& f : b.editFaces()) {
    if (!EqualNoCase(f.texture.name, from)) continue;
    f.texture.name = to;
    ++renamed;
  }
  b.buildWindings();
  return renamed;
}

}  // namespace

bool SetFaceTexture(map& m, const texturedef& definition) {
  brush* b = m.firstSelected();
  if (!b) return false;
  if (b->currentFace() >= b->numfaces()) Error("BnSetFaceTexture:  Bad face %i", b->currentFace());
  b->setTexturedef(definition, b->currentFace());
  m.modified = true;
  return true;
}

int SetBrushTexture(map& m, const texturedef& definition) {
  int changed = 0;
  VisitBrushes(m, BrushFilter::Every, [&](brush& b) {
    if (!b.selected()) return;
    b.setAllTexturedefs(definition);
    ++changed;
  });
  if (changed > 0) m.modified = true;
  return changed;
}

bool StepCurrentFace(map& m, int direction) {
  brush* b = m.firstSelected();
  if (!b || b->numfaces() == 0) return false;
  b->setCurrentFace((b->currentFace() + direction + b->numfaces()) % b->numfaces());
  return true;
}

bool ChooseCurrentFace(map& m, int index) {
  brush* b = m.firstSelected();
  if (!b || b->numfaces() == 0) return false;
  b->setCurrentFace(std::clamp(index, 0, b->numfaces() - 1));
  return true;
}

ReplacedTextures ReplaceTexture(map& m, std::string_view from, std::string_view to) {
  const std::string name = m.settings().careful_tools ? LowerCase(to) : UpperCase(to);
  ReplacedTextures done;
  VisitBrushes(m, BrushFilter::Visible, [&](brush& b) {
    const int renamed = RenameFaces(b, from, name);
    done.faces += renamed;
    if (renamed > 0) ++done.brushes;
  });
  if (done.faces > 0) m.modified = true;
  return done;
}

int SelectByTexture(map& m, std::string_view name) {
  int found = 0;
  VisitBrushes(m, BrushFilter::Unselected, [&](brush& b) {
    if (!UsesTexture(b, name)) return;
    b.select(true);
    ++found;
  });
  return found;
}

std::string FaceListLine(const brush& b, int index) {
  const texturedef& t = b.faces()[static_cast<size_t>(index)].texture;
  return Format("(%i)\t%s\t%i/%i\t%i\t%2.1f/%2.1f", index, t.name.c_str(), Truncate(t.shift[0]),
                Truncate(t.shift[1]), Truncate(t.rotate), static_cast<double>(t.scale[0]),
                static_cast<double>(t.scale[1]));
}

}  // namespace velk
