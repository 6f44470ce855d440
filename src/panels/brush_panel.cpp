#include "panels/brush_panel.h"

#include "base/text.h"
#include "ops/face_textures.h"

namespace velk {

std::string BrushReadout(map* m) {
  const int selected = m ? m->totalSelected() : 0;
  const brush* shown = m ? m->firstSelected() : nullptr;
  if (!shown) return Format("[%i] Selected", selected);
  return Format("[%i] Selected   (%g %g %g) - (%g %g %g)", selected, double(shown->mins.x),
                double(shown->mins.y), double(shown->mins.z), double(shown->maxs.x), double(shown->maxs.y),
                double(shown->maxs.z));
}

FaceLines FacesOfCurrentBrush(map* m) {
  FaceLines faces;
  const brush* shown = m ? m->firstSelected() : nullptr;
  if (!shown) return faces;
  for (int i = 0; i < shown->numfaces(); ++i) faces.lines.push_back(FaceListLine(*shown, i));
  faces.current = shown->currentFace();
  return faces;
}

Outcome ChooseFace(map& m, int index) {
  if (!ChooseCurrentFace(m, index)) return {};
  return Outcome::Drawn(Redraw::All, "Face changed...");
}

}  // namespace velk
