#include "mouse/operations.h"

#include <algorithm>
#include <utility>

#include "base/text.h"
#include "mouse/camera/camera_clicks.h"
#include "mouse/camera/texture_drag.h"
#include "mouse/plan/brush_drag.h"
#include "mouse/plan/camera_direction.h"
#include "mouse/plan/camera_drag.h"
#include "mouse/plan/clip_points.h"
#include "mouse/plan/face_drag.h"
#include "mouse/plan/move_camera.h"
#include "mouse/plan/new_brush.h"
#include "mouse/plan/plan_clicks.h"
#include "mouse/plan/rotate.h"
#include "mouse/plan/shear.h"
#include "mouse/plan/vertex_drag.h"

namespace velk {
namespace {

constexpr MouseOperation kPlan[] = {
    {"CAMERADIRECTION", kCameraDirectionCode, StartCameraDirection},
    {"NEWBRUSH", kNewBrushCode, StartNewBrush},
    {"ROTATE", kRotateCode, StartRotate},
    {"SELECT", 4, SelectClick},
    {"CAMERADRAG", kCameraDragCode, StartCameraDrag},
    {"ADDCLIPPOINT", 6, AddClipPointClick},
    {"TEXTUREBRUSH", 7, TextureBrushClick},
    {"TEXTUREFACE", 8, TextureFaceClick},
    {"FACEDRAG", kFaceDragCode, StartFaceDrag},
    {"BRUSHDRAG", kBrushDragCode, StartBrushDrag},
    {"CURFACEDRAG", kCurrentFaceDragCode, StartCurrentFaceDrag},
    {"SHEAR", kShearCode, StartShear},
    {"VERTEXDRAG", kVertexDragCode, StartVertexDrag},
    {"ENTITYCONNECT", 14, EntityConnectClick},
    {"CLIPPOINTDRAG", kClipPointDragCode, StartClipPointDrag},
    {"CLIPPLANEDRAG", kClipPlaneDragCode, StartClipPlaneDrag},
    {"MOVECAMERA", 17, MoveCameraClick},
};

constexpr MouseOperation kCamera[] = {
    {"SHIFT_TEXTURE", kShiftTextureCode, StartShiftTexture},
    {"STRETCH_TEXTURE", kStretchTextureCode, StartStretchTexture},
    {"ROTATE_TEXTURE", kRotateTextureCode, StartRotateTexture},
    {"SELECT", 4, CameraSelectClick},
    {"APPLYCURTEXTOBRUSH", 7, ApplyToBrushClick},
    {"APPLYCURTEXTOFACE", 8, ApplyToFaceClick},
    {"LIFTTEX", 24, LiftTextureClick},
    {"LIFT&APPLY", 25, LiftAndApplyClick},
};

const MouseOperation* Find(std::span<const MouseOperation> operations, std::string_view name) {
  const auto found =
      std::ranges::find_if(operations, [&](const MouseOperation& o) { return EqualNoCase(o.name, name); });
  return found == operations.end() ? nullptr : &*found;
}

}  // namespace

std::span<const MouseOperation> PlanOperations() { return kPlan; }
std::span<const MouseOperation> CameraOperations() { return kCamera; }

int lookupOperation(std::span<const MouseOperation> operations, std::string_view name) {
  const MouseOperation* found = Find(operations, name);
  return found ? found->code : 0;
}

ToolStart StartBound(const MouseBindings& bindings, std::span<const MouseOperation> operations,
                     const MouseContext& context, const PointerEvent& event) {
  ToolStart start;
  const MouseBinding* binding = bindings.find(event.button, ModifiersOf(event));
  if (!binding) return start;
  for (const std::string& name : binding->names) {
    const MouseOperation* operation = Find(operations, name);
    if (!operation) break;
    std::string status = std::move(start.outcome.status);
    start = operation->start(context, event);
    if (start.outcome.status.empty()) start.outcome.status = std::move(status);
    if (start.claimed) break;
  }
  return start;
}

}  // namespace velk
