#include "panels/brush/brush_panel.h"

#include <algorithm>

#include "base/text.h"
#include "ops/face_textures.h"

namespace velk {
namespace {

// What is selected, taken together.
struct Selected {
  vec3 mins{};
  vec3 maxs{};
  int brushes = 0;
  int entities = 0;  // with something selected
  int faces = 0;
};

Selected SelectedOf(const map& m) {
  Selected all;
  for (const entity& e : m.entities()) {
    const int before = all.brushes;
    for (const brush& b : e.brushes()) {
      if (!b.selected()) continue;
      if (all.brushes++ == 0) all.mins = b.mins, all.maxs = b.maxs;
      for (int axis = 0; axis < 3; ++axis) {
        all.mins[axis] = std::min(all.mins[axis], b.mins[axis]);
        all.maxs[axis] = std::max(all.maxs[axis], b.maxs[axis]);
      }
      all.faces += b.numfaces();
    }
    all.entities += all.brushes > before ? 1 : 0;
  }
  return all;
}

std::string PointText(const vec3& v) { return Format("(%g %g %g)", double(v.x), double(v.y), double(v.z)); }

std::string SizeText(const Selected& all) {
  const vec3 size = subtract(all.maxs, all.mins);
  return Format("%g x %g x %g", double(size.x), double(size.y), double(size.z));
}

std::string GroupName(const map& m, int group) {
  return group >= 0 && group < m.groups.count() ? m.groups.at(group).name : Format("%i", group);
}

bool SameDefinition(const texturedef& a, const texturedef& b) {
  return a.name == b.name && a.rotate == b.rotate && std::ranges::equal(a.shift, b.shift) &&
         std::ranges::equal(a.scale, b.scale);
}

}  // namespace

std::string BrushPanel::readout() const {
  const map* m = currentMap();
  const Selected all = m ? SelectedOf(*m) : Selected{};
  if (all.brushes == 0) return "[0] Selected";
  return Format("[%i] Selected   %s - %s", all.brushes, PointText(all.mins).c_str(),
                PointText(all.maxs).c_str());
}

std::string BrushPanel::details() const {
  const brush* shown = currentBrush();
  if (!shown) return "";
  const map& m = *currentMap();
  const Selected all = SelectedOf(m);
  const std::string size = SizeText(all);
  if (all.brushes > 1) {
    return Format("%s   %i %s, %i faces", size.c_str(), all.entities,
                  all.entities == 1 ? "entity" : "entities", all.faces);
  }
  return Format("%s   %s   [%s]", size.c_str(), shown->owner->valueOfKey("classname").c_str(),
                GroupName(m, shown->group()).c_str());
}

FaceLines BrushPanel::faces() const {
  FaceLines faces;
  const brush* shown = currentBrush();
  if (!shown) return faces;
  for (int i = 0; i < shown->numfaces(); ++i) faces.lines.push_back(FaceListLine(*shown, i));
  faces.current = shown->currentFace();
  return faces;
}

std::optional<texturedef> BrushPanel::faceTexture() const {
  const brush* shown = currentBrush();
  if (!shown || !shown->owner->isModel || shown->currentFace() >= shown->numfaces()) return std::nullopt;
  return shown->faces()[size_t(shown->currentFace())].texture;
}

void BrushPanel::setFaceTexture(const texturedef& definition) {
  const std::optional<texturedef> now = faceTexture();
  if (!now || SameDefinition(*now, definition) || definition.name.empty()) return;
  context_.door.perform({.name = "Face Texture"}, [&]() -> Outcome {
    SetFaceTexture(*currentMap(), definition);
    return Outcome::Drawn(Redraw::All);
  });
}

BrushPreview& BrushPanel::updatedPreview() {
  preview_.show(currentBrush());
  return preview_;
}

void BrushPanel::chooseFace(int index) {
  context_.door.perform({.name = "Face"}, [&]() -> Outcome {
    if (!ChooseCurrentFace(*currentMap(), index)) return {};
    return Outcome::Drawn(Redraw::All, "Face changed...");
  });
}

bool BrushPanel::pick(int line) {
  const brush* shown = currentBrush();
  if (!shown || line < 0 || line >= shown->numfaces()) return false;
  chooseFace(line);
  return true;
}

// A negative choice counts as the first face.
bool BrushPanel::control(const std::string& name, const std::string& value) {
  const std::optional<int> number = LeadingInt(value);
  if (!number || !currentBrush()) return false;
  if (EqualNoCase(name, "face")) {
    chooseFace(*number);
  } else if (EqualNoCase(name, "turn")) {
    preview_.turn(*number, 0);
  } else if (EqualNoCase(name, "tilt")) {
    preview_.turn(0, *number);
  } else if (EqualNoCase(name, "zoom")) {
    preview_.zoom(*number);
  } else {
    return false;
  }
  return true;
}

std::vector<std::string> BrushPanel::printed() {
  std::vector<std::string> lines = faces().lines;
  lines.insert(lines.begin(), readout());
  return lines;
}

}  // namespace velk
