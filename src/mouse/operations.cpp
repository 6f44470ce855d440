#include "mouse/operations.h"

#include <algorithm>
#include <utility>

#include "base/text.h"
#include "mouse/camera/camera_clicks.h"
#include "mouse/camera/look_drag.h"
#include "mouse/camera/texture_drag.h"
#include "mouse/plan/brush_drag.h"
#include "mouse/plan/camera_direction.h"
#include "mouse/plan/camera_drag.h"
#include "mouse/plan/clip_points.h"
#include "mouse/plan/face_drag.h"
#include "mouse/plan/marquee.h"
#include "mouse/plan/move_camera.h"
#include "mouse/plan/new_brush.h"
#include "mouse/plan/plan_clicks.h"
#include "mouse/plan/rotate.h"
#include "mouse/plan/shear.h"
#include "mouse/plan/vertex_drag.h"

namespace velk {
namespace {

constexpr char kFlightKeys[] = "W A S D move, Q and E sink and rise, SHIFT is faster";

// clang-format off
constexpr MouseOperation kPlan[] = {
    {"CAMERADIRECTION", kCameraDirectionCode, StartCameraDirection, "turns the camera to where the drag goes",
     "Turning the camera"},
    {"NEWBRUSH", kNewBrushCode, StartNewBrush, "with nothing selected draws a brush", "Drawing a brush"},
    {"ROTATE", kRotateCode, StartRotate, "from a corner turns the selection", "Turning the selection"},
    {"SELECT", 4, SelectClick, "selects or deselects a brush"},
    {"CAMERADRAG", kCameraDragCode, StartCameraDrag, "moves a camera by its marker", "Moving a camera"},
    {"ADDCLIPPOINT", 6, AddClipPointClick, "places a clip point"},
    {"TEXTUREBRUSH", 7, TextureBrushClick, "gives a brush the current texture"},
    {"TEXTUREFACE", 8, TextureFaceClick, "gives a face the current texture"},
    {"FACEDRAG", kFaceDragCode, StartFaceDrag, "outside the one selected brush drags the faces that look there",
     "Dragging faces"},
    {"BRUSHDRAG", kBrushDragCode, StartBrushDrag, "on a selected brush moves the selection",
     "Moving the selection"},
    {"CURFACEDRAG", kCurrentFaceDragCode, StartCurrentFaceDrag, "drags the current face",
     "Dragging the current face"},
    {"SHEAR", kShearCode, StartShear, "outside the one selected brush has its faces lean", "Shearing"},
    {"VERTEXDRAG", kVertexDragCode, StartVertexDrag, "drags a corner of the one selected brush",
     "Dragging a corner"},
    {"ENTITYCONNECT", 14, EntityConnectClick, "has the current entity target another one"},
    {"CLIPPOINTDRAG", kClipPointDragCode, StartClipPointDrag, "moves a clip point", "Moving a clip point"},
    {"CLIPPLANEDRAG", kClipPlaneDragCode, StartClipPlaneDrag, "moves all clip points",
     "Moving the clip plane"},
    {"MOVECAMERA", 17, MoveCameraClick, "brings the views and the camera here"},
    {"MARQUEE", kMarqueeCode, StartMarquee,
     "selects by a rectangle: to the right what it encloses, to the left what it touches; with SHIFT adds",
     "Selecting by a rectangle", "to the right what it encloses, to the left what it touches"},
};

constexpr MouseOperation kCamera[] = {
    {"SHIFT_TEXTURE", kShiftTextureCode, StartShiftTexture, "shifts the texture of a face",
     "Shifting the texture"},
    {"STRETCH_TEXTURE", kStretchTextureCode, StartStretchTexture, "stretches the texture of a face",
     "Stretching the texture"},
    {"ROTATE_TEXTURE", kRotateTextureCode, StartRotateTexture, "turns the texture of a face",
     "Turning the texture"},
    {"SELECT", kCameraSelectCode, CameraSelectClick, "selects or deselects a brush"},
    {"APPLYCURTEXTOBRUSH", kApplyToBrushCode, ApplyToBrushClick, "gives a brush the current texture"},
    {"APPLYCURTEXTOFACE", kApplyToFaceCode, ApplyToFaceClick, "gives a face the current texture"},
    {"LIFTTEX", kLiftTextureCode, LiftTextureClick, "makes a face's texture the current one"},
    {"LIFT&APPLY", kLiftAndApplyCode, LiftAndApplyClick,
     "makes a face's texture the current one and gives it to the selected brushes"},
    {"LOOK", kLookCode, StartLook, "looks around; W A S D go, Q and E sink and rise", "Looking around",
     kFlightKeys},
    {"PAN", kPanCode, StartPan, "slides the camera across the view", "Sliding", kFlightKeys},
    {"FLY", kFlyCode, StartFly, "moves the camera forward and sideways", "Flying", kFlightKeys},
};
// clang-format on

const MouseOperation* Find(std::span<const MouseOperation> operations, std::string_view name) {
  const auto found =
      std::ranges::find_if(operations, [&](const MouseOperation& o) { return EqualNoCase(o.name, name); });
  return found == operations.end() ? nullptr : &*found;
}

// The face becomes its brush's current one.
FacePick PickUnder(const MouseContext& context, const PointerEvent& event) {
  if (context.settings.drawmode == kWireMode) return {};
  const FacePick pick = context.camera.pick(event.at);
  if (pick.hit) pick.hit->setCurrentFace(pick.face);
  return pick;
}

}  // namespace

std::span<const MouseOperation> PlanOperations() { return kPlan; }
std::span<const MouseOperation> CameraOperations() { return kCamera; }

int lookupOperation(std::span<const MouseOperation> operations, std::string_view name) {
  const MouseOperation* found = Find(operations, name);
  return found ? found->code : 0;
}

std::span<const MouseOperation> OperationsOf(int view) {
  return view == kCameraView ? CameraOperations() : PlanOperations();
}

const MouseOperation* OperationOf(std::span<const MouseOperation> operations, int code) {
  const auto found = std::ranges::find(operations, code, &MouseOperation::code);
  return found == operations.end() ? nullptr : &*found;
}

std::string HintOf(const MouseOperation& operation, const Settings& settings) {
  if (!*operation.doing) return "";
  const bool textures = operation.start == StartShiftTexture || operation.start == StartStretchTexture ||
                        operation.start == StartRotateTexture;
  std::vector<std::string> keys;
  if (*operation.keys) keys.emplace_back(operation.keys);
  if (settings.drag_clone && operation.start == StartBrushDrag) keys.emplace_back("CTRL leaves a copy");
  if (settings.drag_arrows && operation.keys != kFlightKeys) {
    keys.emplace_back(textures ? "arrow keys go by one step" : "arrow keys go by the grid");
  }
  if (settings.cancel_drags) keys.emplace_back("Esc cancels");
  if (keys.empty()) return "";
  std::string hint = std::string(operation.doing) + ": ";
  for (size_t i = 0; i < keys.size(); ++i) hint += (i > 0 ? ", " : "") + keys[i];
  return hint;
}

ToolStart StartBound(const MouseBindings& bindings, std::span<const MouseOperation> operations,
                     const MouseContext& context, const PointerEvent& event) {
  ToolStart start;
  const MouseBinding* binding = bindings.find(event.button, ModifiersOf(event));
  if (!binding) return start;
  MouseContext tried = context;
  const MouseOperation* first = Find(operations, binding->names.front());
  if (context.inCamera() && !(first && first->code >= kOwnOperations))
    tried.camera.under = PickUnder(context, event);
  for (const std::string& name : binding->names) {
    const MouseOperation* operation = Find(operations, name);
    if (!operation) break;
    std::string status = std::move(start.outcome.status);
    start = operation->start(tried, event);
    if (start.outcome.status.empty()) start.outcome.status = std::move(status);
    if (start.claimed) break;
  }
  return start;
}

}  // namespace velk
