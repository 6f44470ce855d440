#include "build/check_brushes.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <tuple>
#include <unordered_map>

#include "base/text.h"

namespace velk {
namespace {

using Mend = CheckFinding::Mend;

constexpr int kManyFaces = 56;          // of MAX_FACES
constexpr float kWorldLimit = 4096;     // the game's, each way
constexpr double kThin = 1 - 1.0 / 64;  // units; rounding of a plane may take a little off

class BrushCheck {
 public:
  BrushCheck(const TextureSet& textures, std::vector<CheckFinding>& findings)
      : textures_(textures), findings_(findings) {}

  void look(entity& e, int entityNumber) {
    owner_ = &e;
    entityNumber_ = entityNumber;
    for (int i = 0; i < e.numbrushes(); ++i) look(*e.at(i), i);
  }

 private:
  void look(brush& b, int number) {
    brush_ = &b;
    brushNumber_ = number;
    if (b.invalid) {
      add("has no valid solid", Mend::RemoveBrush);
      return;
    }
    lookAtShape();
    lookForTwin();
    for (int i = 0; i < b.numfaces(); ++i) lookAtTexture(b.faces()[static_cast<size_t>(i)], i);
  }

  void add(const std::string& text, Mend mend = Mend::None, int face = -1) {
    CheckFinding finding;
    finding.text = Format("Entity %i, brush %i %s", entityNumber_, brushNumber_, text.c_str());
    finding.entityNumber = entityNumber_;
    finding.brushNumber = brushNumber_;
    finding.face = face;
    finding.mend = mend;
    finding.owner = owner_;
    finding.found = brush_;
    finding.identity = brush_->identity();
    findings_.push_back(std::move(finding));
  }

  void lookAtShape() {
    int without = 0;
    bool cut = false, far = false;
    double thinnest = std::numeric_limits<double>::max();
    for (const face& f : brush_->faces()) {
      without += f.polygon == nullptr;
      if (f.polygon) thinnest = std::min(thinnest, widthBehind(f));
      for (const vec3& p : f.planepts) {
        for (int axis = 0; axis < 3; ++axis) cut |= p[axis] != std::trunc(p[axis]);
      }
    }
    for (int axis = 0; axis < 3; ++axis) {
      far |= brush_->mins[axis] < -kWorldLimit || brush_->maxs[axis] > kWorldLimit;
    }
    if (without > 0) add(Format("has %i faces that bound nothing", without), Mend::RemoveFaces);
    if (thinnest < kThin) add(Format("is only %.2g units thick", thinnest));
    if (cut) add("has plane points off the grid of whole units");
    if (far) add("reaches beyond 4096 units");
    if (brush_->numfaces() >= kManyFaces) add(Format("has %i of %i faces", brush_->numfaces(), MAX_FACES));
  }

  // How far the brush reaches behind the face.
  double widthBehind(const face& f) const {
    double width = 0;
    for (const face& other : brush_->faces()) {
      if (!other.polygon) continue;
      for (const WindingPoint& p : *other.polygon) {
        width = std::max(width, f.facePlane.dist - dot(f.facePlane.normal, p.position()));
      }
    }
    return width;
  }

  void lookForTwin() {
    const auto key = std::hash<double>()(double(brush_->mins.x) * 73 + double(brush_->mins.y) * 7919 +
                                         double(brush_->mins.z) * 104729 + double(brush_->maxs.x) * 13 +
                                         double(brush_->maxs.y) * 17 + double(brush_->maxs.z) * 19);
    auto [begin, end] = places_.equal_range(key);
    for (auto it = begin; it != end; ++it) {
      if (!isTwin(*it->second.first)) continue;
      const auto& [twin, place] = it->second;
      add(Format("stands where entity %i, brush %i stands", place.first, place.second),
          twin->owner == owner_ ? Mend::RemoveBrush : Mend::None);
      return;
    }
    places_.emplace(key, std::pair(brush_, std::pair(entityNumber_, brushNumber_)));
  }

  bool isTwin(const brush& other) const {
    if (!VecEqual(other.mins, brush_->mins) || !VecEqual(other.maxs, brush_->maxs)) return false;
    const auto hasPlane = [&](const face& f) {
      return std::ranges::any_of(other.faces(), [&](const face& g) {
        return std::abs(f.facePlane.dist - g.facePlane.dist) < 0.01 &&
               dot(f.facePlane.normal, g.facePlane.normal) > 0.9999;
      });
    };
    return other.numfaces() == brush_->numfaces() && std::ranges::all_of(brush_->faces(), hasPlane);
  }

  // One finding a brush and texture.
  void lookAtTexture(const face& f, int number) {
    const auto& faces = brush_->faces();
    const auto first = std::ranges::find(faces, f.texture.name,
                                         [](const face& g) -> const std::string& { return g.texture.name; });
    if (first - faces.begin() != number) return;
    if (Trimmed(f.texture.name).empty()) {
      add(Format("has no texture on face %i", number), Mend::None, number);
    } else if (textures_.count() > 0 && textures_.find(f.texture.name) < 0) {
      add(Format("has texture %s, which no wad has", f.texture.name.c_str()), Mend::None, number);
    }
  }

  const TextureSet& textures_;
  std::vector<CheckFinding>& findings_;
  entity* owner_ = nullptr;
  brush* brush_ = nullptr;
  int entityNumber_ = 0;
  int brushNumber_ = 0;
  std::unordered_multimap<size_t, std::pair<brush*, std::pair<int, int>>> places_;
};

}  // namespace

void CheckBrushes(map& m, const TextureSet& textures, std::vector<CheckFinding>& findings) {
  BrushCheck check(textures, findings);
  for (int i = 0; i < m.numentities(); ++i) {
    // Boxes of point entities are not in the file.
    if (m.at(i)->isModel) check.look(*m.at(i), i);
  }
}

}  // namespace velk
