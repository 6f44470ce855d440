#include "mouse/tool_cursor.h"

#include <algorithm>
#include <cmath>
#include <iterator>
#include <optional>

#include "base/text.h"
#include "model/visit.h"
#include "mouse/plan/face_drag.h"
#include "mouse/plan/point_drag.h"
#include "mouse/view_ray.h"
#include "ops/clip.h"
#include "ops/pick_vertex.h"

namespace velk {
namespace {

using Begins = bool (*)(const MouseContext&, const PointerEvent&);

bool Always(const MouseContext&, const PointerEvent&) { return true; }

bool HasOne(const MouseContext& context, const PointerEvent&) {
  return OnlyShownSelected(context.model) != nullptr;
}

bool CanDraw(const MouseContext& context, const PointerEvent&) {
  const entity* owner = context.model.currentEntity();
  return owner && owner->isModel && context.model.totalSelected() == 0;
}

// A little wider than the brush as the view shows it.
bool IsOver(const MouseContext& context, const brush& b, ViewPoint at, double margin) {
  const PlanView& view = context.plan();
  return at.u >= b.mins[view.axisU] - margin && at.u <= b.maxs[view.axisU] + margin &&
         at.v >= b.mins[view.axisV] - margin && at.v <= b.maxs[view.axisV] + margin;
}

bool HasCornerNear(const MouseContext& context, const brush& b, ViewPoint at) {
  const double radius = VertexPickRadius(context.settings);
  return IsOver(context, b, at, radius) &&
         pickVertex(b, InWorld(context.plan(), at, 0), context.plan().orientation, radius);
}

bool CanTurn(const MouseContext& context, const PointerEvent& event) {
  const ViewPoint at = PointUnder(context, event);
  bool found = false;
  VisitBrushes(context.model, BrushFilter::Visible,
               [&](const brush& b) { found = found || HasCornerNear(context, b, at); });
  return found && context.model.totalSelected() > 0;
}

bool CanPullVertex(const MouseContext& context, const PointerEvent& event) {
  const brush* b = context.settings.drag_vertex != 0 ? OnlyShownSelected(context.model) : nullptr;
  return b && HasCornerNear(context, *b, PointUnder(context, event));
}

bool CanMove(const MouseContext& context, const PointerEvent& event) {
  const ViewPoint at = PointUnder(context, event);
  const PickRay ray = RayAt(context.plan(), at);
  bool hit = false;
  VisitBrushes(context.model, BrushFilter::Selected, [&](const brush& b) {
    hit = hit ||
          (CanBeHit(context.model, b) && IsOver(context, b, at, 1) && b.hitByRay(ray.start, ray.end).t >= 0);
  });
  return hit;
}

// One of the faces that stand on edge is towards the cursor.
bool CanDragFace(const MouseContext& context, const PointerEvent& event) {
  const brush* b = OnlyShownSelected(context.model);
  if (!b) return false;
  const int depth = context.plan().axisDepth;
  const std::optional<vec3> at = FaceDragPoint(context, *b, PointUnder(context, event));
  return at && std::ranges::any_of(b->faces(), [&](const face& f) {
           return f.polygon && std::fabs(f.facePlane.normal[depth]) <= context.settings.face_drag_percent &&
                  dot(f.facePlane.normal, *at) - f.facePlane.dist > 0;
         });
}

bool CanDragCamera(const MouseContext& context, const PointerEvent& event) {
  const Settings& settings = context.settings;
  const double half = std::max(1.0, settings.box_size * std::min(double(settings.scale), 1.0) * 0.5);
  const ViewPoint at = PointUnder(context, event);
  const PlanView& view = context.plan();
  return settings.show_cameras && std::ranges::any_of(context.model.cameras, [&](const camera& c) {
           return std::fabs(at.u - c.origin[view.axisU]) < half &&
                  std::fabs(at.v - c.origin[view.axisV]) < half;
         });
}

bool CanDragClipPoint(const MouseContext& context, const PointerEvent& event) {
  const ViewPoint at = PointUnder(context, event);
  return HitClipPoint(context.model.clip, AxesOf(context.plan()), at.u, at.v) >= 0;
}

bool HasFaceUnder(const MouseContext& context, const PointerEvent& event) {
  return context.camera.pick(event.at).face >= 0;
}

struct Tool {
  const char* name;
  CursorShape shape;
  Begins begins;
};

constexpr Tool kTools[] = {
    {"NEWBRUSH", CursorShape::Draw, CanDraw},
    {"BRUSHDRAG", CursorShape::Move, CanMove},
    {"CAMERADRAG", CursorShape::Move, CanDragCamera},
    {"FACEDRAG", CursorShape::Resize, CanDragFace},
    {"CURFACEDRAG", CursorShape::Resize, HasOne},
    {"SHEAR", CursorShape::Resize, HasOne},
    {"VERTEXDRAG", CursorShape::Vertex, CanPullVertex},
    {"ROTATE", CursorShape::Turn, CanTurn},
    {"ADDCLIPPOINT", CursorShape::Clip, Always},
    {"CLIPPOINTDRAG", CursorShape::Clip, CanDragClipPoint},
    {"CLIPPLANEDRAG", CursorShape::Clip, CanDragClipPoint},
    {"SHIFT_TEXTURE", CursorShape::Move, HasFaceUnder},
    {"STRETCH_TEXTURE", CursorShape::Resize, HasFaceUnder},
    {"ROTATE_TEXTURE", CursorShape::Turn, HasFaceUnder},
    {"LOOK", CursorShape::Pan, Always},
    {"PAN", CursorShape::Pan, Always},
    {"FLY", CursorShape::Pan, Always},
};

const Tool* Find(std::string_view name) {
  const auto found = std::ranges::find_if(kTools, [&](const Tool& t) { return EqualNoCase(t.name, name); });
  return found == std::end(kTools) ? nullptr : &*found;
}

}  // namespace

const char* CursorName(CursorShape shape) {
  constexpr const char* kNames[] = {"idle", "draw", "move", "resize", "vertex",
                                    "turn", "clip", "pan",  "refused"};
  return kNames[static_cast<int>(shape)];
}

CursorShape CursorOf(std::string_view operation) {
  if (operation.empty()) return CursorShape::Pan;
  const Tool* tool = Find(operation);
  return tool ? tool->shape : CursorShape::Idle;
}

CursorShape CursorBefore(const MouseContext& context, const PointerEvent& event, const MouseBinding* binding,
                         const std::function<bool()>& clickTakes) {
  if (!binding) return CursorShape::Idle;
  for (const std::string& name : binding->names) {
    const Tool* tool = Find(name);
    if (!tool) return CursorShape::Idle;  // a click, which shows by what it would take
    if (tool->begins(context, event)) return tool->shape;
  }
  return clickTakes() ? CursorShape::Idle : CursorShape::Refused;
}

}  // namespace velk
