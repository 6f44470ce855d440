#include "app/view_overlay.h"

#include <algorithm>
#include <cmath>

#include "base/text.h"
#include "camera/compass.h"
#include "camera/live/camera_marks.h"
#include "camera/live/leak_line.h"
#include "model/visit.h"
#include "mouse/operations.h"
#include "planview/plan_marks.h"

namespace velk {
namespace {

constexpr int kTextHeight = 14;  // pixels
constexpr int kBeside = 8;       // of a size from what it measures, pixels
constexpr int kMarkWidth = 2;

Colour Between(Colour a, Colour b) {
  return {(a.red + b.red) / 2, (a.green + b.green) / 2, (a.blue + b.blue) / 2};
}

Pen HoverPen(const Settings& settings) {
  return {Between(settings.colours.color_selection, settings.colours.fgcolor), kMarkWidth};
}

Pen LinePen(const Settings& settings) { return {settings.colours.color_selection, 1}; }

const Drag* DragOf(const Editor& editor) { return editor.input().pointer().drag(); }

Overlay MarksOfDrag(const Editor& editor) {
  Overlay marks;
  if (const Drag* drag = DragOf(editor)) drag->draw(editor.input().pointer().state(), marks);
  return marks;
}

enum class Measure { Nothing, Size, Offset };

// Of the running drag.
Measure MeasureOf(const Editor& editor) {
  if (!editor.settings().show_sizes || !DragOf(editor)) return Measure::Nothing;
  const int code = DragOf(editor)->code();
  const auto is = [code](const char* name) { return code == lookupOperation(PlanOperations(), name); };
  if (editor.input().pointer().view() == kCameraView) return Measure::Nothing;
  if (is("BRUSHDRAG")) return Measure::Offset;
  for (const char* name : {"NEWBRUSH", "FACEDRAG", "CURFACEDRAG", "SHEAR", "VERTEXDRAG"}) {
    if (is(name)) return Measure::Size;
  }
  return Measure::Nothing;
}

struct Box {
  vec3 low{1e9f, 1e9f, 1e9f};
  vec3 high{-1e9f, -1e9f, -1e9f};

  bool empty() const { return low.x > high.x; }
};

Box BoundsOfSelection(map& m) {
  Box box;
  VisitBrushes(m, BrushFilter::Selected, [&](const brush& b) {
    if (!b.invalid) WidenBounds(box.low, box.high, b);
  });
  return box;
}

std::string TextOf(Measure measure, const Editor& editor, const Box& box, const PlanView& view) {
  if (measure == Measure::Size) {
    const vec3 size = subtract(box.high, box.low);
    return Format("%g x %g x %g", size.x, size.y, size.z);
  }
  vec3 way;
  way[view.axisU] = float(editor.input().pointer().state().total.u);
  way[view.axisV] = float(editor.input().pointer().state().total.v);
  return Format("%+g %+g %+g", way.x, way.y, way.z);
}

// To the right of the selection, or as near to there as the view has room.
void DrawMeasure(Canvas& canvas, Editor& editor, int view) {
  const Measure measure = MeasureOf(editor);
  const Box box = measure == Measure::Nothing ? Box{} : BoundsOfSelection(*editor.documents().currentMap());
  if (box.empty()) return;
  const PlanView& record = editor.views().plans.views[static_cast<size_t>(view)];
  const PlanProjection projection = editor.views().plans.projection(view, editor.settings());
  const std::string text = TextOf(measure, editor, box, record);
  vec3 right = scale(add(box.low, box.high), 0.5);
  right[record.axisU] = box.high[record.axisU];
  Pixel at = projection.worldToScreen(right);
  const int lastLeft = record.clientWidth - canvas.textWidth(text, kTextHeight) - kBeside;
  const int lastTop = record.clientHeight - kTextHeight - kBeside;
  at.x = std::clamp(at.x + kBeside, kBeside, std::max(kBeside, lastLeft));
  at.y = std::clamp(at.y - kTextHeight / 2, kStripHeight, std::max(kStripHeight, lastTop));
  const ViewColours& colours = editor.settings().colours;
  canvas.text(text, at, kTextHeight, colours.fgcolor, &colours.bgcolor);
}

void DrawTexts(Canvas& canvas, const Editor& editor, const Overlay& marks, int view) {
  if (editor.input().pointer().view() != view) return;
  const ViewColours& colours = editor.settings().colours;
  for (const Overlay::Text& t : marks.texts) {
    canvas.text(t.text, t.at, kTextHeight, colours.fgcolor, &colours.bgcolor);
  }
}

CameraMarks MarksIn(Canvas& canvas, Editor& editor) {
  const Views& views = editor.views();
  return {canvas,     editor.documents().currentMap()->activeCamera(), editor.settings(),
          views.lens, {views.cameraWidth, views.cameraHeight},         views.renderSize()};
}

void MarkHovered(CameraMarks& marks, const Settings& settings, const FacePick& hovered) {
  const std::vector<face>& faces = hovered.hit->faces();
  for (size_t i = 0; i < faces.size(); ++i) {
    const bool meant = hovered.face < 0 || static_cast<int>(i) == hovered.face;
    if (meant && faces[i].polygon) marks.outline(HoverPen(settings), *faces[i].polygon);
  }
}

void DrawPlanOverlay(Canvas& canvas, Editor& editor, int view, const FacePick& hovered) {
  const PlanScene scene{.set = editor.views().plans, .settings = editor.settings()};
  if (hovered.hit) MarkBrush(canvas, scene, view, *hovered.hit, HoverPen(editor.settings()));
  if (!DragOf(editor)) return;
  const Overlay marks = MarksOfDrag(editor);
  MarkLines(canvas, scene, view, marks.lines, LinePen(editor.settings()));
  DrawTexts(canvas, editor, marks, view);
  if (editor.input().pointer().view() == view) DrawMeasure(canvas, editor, view);
}

void DrawCameraOverlay(Canvas& canvas, Editor& editor, const FacePick& hovered) {
  CameraMarks at = MarksIn(canvas, editor);
  if (hovered.hit) MarkHovered(at, editor.settings(), hovered);
  const Overlay marks = MarksOfDrag(editor);
  for (const auto& [from, to] : marks.lines) at.line(LinePen(editor.settings()), from, to);
  DrawTexts(canvas, editor, marks, kCameraView);
}

}  // namespace

bool HasOverlay(const Editor& editor, const FacePick& hovered) { return DragOf(editor) || hovered.hit; }

void DrawViewOverlay(Canvas& canvas, Editor& editor, int view, const FacePick& hovered) {
  if (!editor.documents().currentMap()) return;
  if (view == kCameraView) return DrawCameraOverlay(canvas, editor, hovered);
  DrawPlanOverlay(canvas, editor, view, hovered);
}

void DrawCameraMarks(Canvas& canvas, Editor& editor) {
  const map& shown = *editor.documents().currentMap();
  const ViewColours& colours = editor.settings().colours;
  CameraMarks marks = MarksIn(canvas, editor);
  DrawGhosts(marks, editor.views().ghosts, kGhostColour);
  DrawLeakLine(canvas, marks, editor.views().leaks.points());
  DrawClipPoints(canvas, marks, shown);
  DrawCompass(canvas, editor.views().cameraWidth, shown.activeCamera().yaw, colours.fgcolor,
              colours.color_activecamera, colours.bgcolor);
}

}  // namespace velk
