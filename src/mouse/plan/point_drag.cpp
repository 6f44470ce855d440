#include "mouse/plan/point_drag.h"

#include <utility>

#include "mouse/view_ray.h"

namespace velk {
namespace {

constexpr int kFewestFaces = 4;

class PointDrag : public Drag {
 public:
  PointDrag(brush& b, std::vector<PlanePoint> points, const PointDragKind& kind)
      : dragged_(b), points_(std::move(points)), kind_(kind) {}

  int code() const override { return kind_.code; }
  bool readsOut() const override { return true; }
  const char* undoName() const override { return kind_.undoName; }
  bool snaps() const override { return kind_.snaps; }

  Outcome move(const MouseContext& context, const DragState& state) override {
    const vec3 step = InWorld(context.plan(), state.step, 0);
    std::vector<face>& faces = dragged_.editFaces();
    for (const auto& [face, point] : points_) {
      vec3& moved = faces[static_cast<size_t>(face)].planepts[point];
      moved = add(moved, step);
    }
    dragged_.buildWindings();
    context.model.modified = true;
    return Outcome::Drawn(Redraw::All);
  }

  Outcome finish(const MouseContext& /*context*/, const DragState& /*state*/) override {
    CleanUpBrush(dragged_);
    return Outcome::Drawn(Redraw::All);
  }

 private:
  brush& dragged_;
  std::vector<PlanePoint> points_;
  PointDragKind kind_;
};

}  // namespace

void AddFacePoints(std::vector<PlanePoint>& points, int face) {
  for (int i = 0; i < 3; ++i) points.push_back({face, i});
}

bool CleanUpBrush(brush& b) {
  b.buildWindings();
  const auto isEmpty = [](const face& f) { return !f.polygon; };
  if (!b.invalid && std::erase_if(b.editFaces(), isEmpty) > 0) {
    if (b.numfaces() < kFewestFaces) b.invalid = true;
    b.setCurrentFace(std::max(0, std::min(b.currentFace(), b.numfaces() - 1)));
  }
  if (!b.invalid) return true;
  DestroyBrush(b);
  return false;
}

brush* OnlyShownSelected(const map& m) {
  brush* b = m.totalSelected() == 1 ? m.firstSelected() : nullptr;
  return b && IsShown(m, *b) ? b : nullptr;
}

void BeginPointDrag(const MouseContext& context, const PointDragKind& kind) {
  if (context.saveUndo) context.saveUndo(kind.undoName, UndoMode::Selection, nullptr);
}

ToolStart DragPoints(brush& b, std::vector<PlanePoint> points, const PointDragKind& kind) {
  ToolStart start;
  start.claimed = true;
  start.drag = std::make_unique<PointDrag>(b, std::move(points), kind);
  start.outcome = Outcome::Drawn(Redraw::All);
  return start;
}

}  // namespace velk
