#include "mouse/camera/face_under.h"

namespace velk {

FacePick FaceUnder(const MouseContext& context, const PointerEvent& event) {
  if (context.settings.drawmode == 0 || !context.camera.pickFace) return {};
  const FacePick pick = context.camera.pickFace(event.at);
  if (pick.hit) pick.hit->setCurrentFace(pick.face);
  return pick;
}

}  // namespace velk
