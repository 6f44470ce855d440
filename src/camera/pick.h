#pragma once

#include "camera/culling.h"

namespace velk {

// The face nearest to the eye at a pixel of the picture, of the brushes the scene shows.
FacePick PickFace(const RenderScene& scene, const FrameView& view, int px, int py);

}  // namespace velk
