#include "mouse/plan/new_brush.h"

#include <algorithm>

#include "base/text.h"
#include "mouse/plan/point_drag.h"
#include "mouse/view_ray.h"

namespace velk {
namespace {

texturedef CurrentTexture(const MouseContext& context) {
  return context.texture ? context.texture->current() : texturedef{};
}

constexpr int kTextLeft = 16;  // right of the cursor, pixels

// The corner of a box whose bits say on which axes it is the high one.
vec3 CornerOf(const vec3& mins, const vec3& maxs, unsigned bits) {
  vec3 corner = mins;
  for (int axis = 0; axis < 3; ++axis) {
    if (bits & (1U << axis)) corner[axis] = maxs[axis];
  }
  return corner;
}

void AddEdges(const vec3& mins, const vec3& maxs, Overlay& overlay) {
  for (unsigned from = 0; from < 8; ++from) {
    for (unsigned axis = 1; axis < 8; axis <<= 1U) {
      if (from & axis) continue;
      overlay.lines.emplace_back(CornerOf(mins, maxs, from), CornerOf(mins, maxs, from | axis));
    }
  }
}

class NewBrushDrag : public Drag {
 public:
  NewBrushDrag(brush& made, const vec3& first, const vec3& second)
      : made_(made), first_(first), second_(second) {}

  int code() const override { return kNewBrushCode; }
  bool readsOut() const override { return true; }
  const char* undoName() const override { return "New Brush"; }
  bool snaps() const override { return true; }

  Outcome move(const MouseContext& context, const DragState& state) override {
    second_ = add(second_, InWorld(context.plan(), state.step, 0));
    vec3 mins;
    vec3 maxs;
    for (int axis = 0; axis < 3; ++axis) {
      mins[axis] = std::min(first_[axis], second_[axis]);
      maxs[axis] = std::max(first_[axis], second_[axis]);
    }
    made_.setBox(mins, maxs, CurrentTexture(context));
    return Outcome::Drawn(Redraw::All);
  }

  Outcome finish(const MouseContext& context, const DragState& /*state*/) override {
    const int group = made_.group();
    Outcome outcome = Outcome::Drawn(Redraw::All);
    if (!CleanUpBrush(made_)) return outcome;
    GroupList& groups = context.model.groups;
    if (!context.settings.groupmode || groups.passes(group)) return outcome;
    if (!context.prompts.agrees(kNewBrushTitle, kShowGroup)) return outcome;
    groups.setVisible(group, true);
    outcome.groups = true;
    return outcome;
  }

  // Where its group is hidden the box is seen only while it is drawn.
  void draw(const DragState& state, Overlay& overlay) const override {
    const map& m = made_.owner->parent();
    if (made_.invalid || IsShown(m, made_)) return;
    AddEdges(made_.mins, made_.maxs, overlay);
    if (!m.settings().show_sizes || m.passesGroupFilter(made_)) return;
    const vec3 size = subtract(made_.maxs, made_.mins);
    overlay.texts.push_back(
        {{state.now.at.x + kTextLeft, state.now.at.y}, Format("%g x %g x %g", size.x, size.y, size.z)});
  }

 private:
  brush& made_;
  vec3 first_;
  vec3 second_;
};

}  // namespace

ToolStart StartNewBrush(const MouseContext& context, const PointerEvent& event) {
  ToolStart start;
  map& m = context.model;
  entity* owner = m.currentEntity();
  if (m.totalSelected() != 0 || !owner || !owner->isModel) return start;
  const PlanView& view = context.plan();
  const int axis = view.axisDepth;
  const vec3 first = InWorld(view, snapToGrid(PointUnder(context, event), context.settings),
                             snapToGrid(context.plans.planCenter[axis], context.settings));
  vec3 second = first;
  second[axis] = float(Truncate(first[axis] + (double(m.workHigh()[axis]) - m.workLow()[axis])));
  auto made = std::make_unique<brush>(m.counters());
  made->initBox(*owner, first, second, CurrentTexture(context));
  brush& added = owner->addobject(std::move(made));
  added.select();
  added.setGroup(context.group);
  m.modified = true;
  start.claimed = true;
  start.drag = std::make_unique<NewBrushDrag>(added, first, second);
  start.outcome = Outcome::Drawn(Redraw::All);
  return start;
}

}  // namespace velk
