#include "panels/brush/brush_panel.h"

#include "base/text.h"
#include "ops/face_textures.h"

namespace velk {

std::string BrushPanel::readout() const {
  const map* m = currentMap();
  const int selected = m ? m->totalSelected() : 0;
  const brush* shown = m ? m->firstSelected() : nullptr;
  if (!shown) return Format("[%i] Selected", selected);
  return Format("[%i] Selected   (%g %g %g) - (%g %g %g)", selected, double(shown->mins.x),
                double(shown->mins.y), double(shown->mins.z), double(shown->maxs.x), double(shown->maxs.y),
                double(shown->maxs.z));
}

FaceLines BrushPanel::faces() const {
  FaceLines faces;
  const map* m = currentMap();
  const brush* shown = m ? m->firstSelected() : nullptr;
  if (!shown) return faces;
  for (int i = 0; i < shown->numfaces(); ++i) faces.lines.push_back(FaceListLine(*shown, i));
  faces.current = shown->currentFace();
  return faces;
}

bool BrushPanel::pick(int line) {
  map* m = currentMap();
  if (!m || line < 0 || line >= static_cast<int>(faces().lines.size())) return false;
  context_.door.perform({.name = "Face"}, [&]() -> Outcome {
    if (!ChooseCurrentFace(*m, line)) return {};
    return Outcome::Drawn(Redraw::All, "Face changed...");
  });
  return true;
}

std::vector<std::string> BrushPanel::printed() {
  std::vector<std::string> lines = faces().lines;
  lines.insert(lines.begin(), readout());
  return lines;
}

}  // namespace velk
