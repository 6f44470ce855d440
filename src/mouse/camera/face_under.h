// The face under a press in the camera view.
#pragma once

#include "mouse/drag.h"

namespace velk {

// It becomes its brush's current face. None in the wire picture.
FacePick FaceUnder(const MouseContext& context, const PointerEvent& event);

}  // namespace velk
