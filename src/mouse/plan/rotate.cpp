#include "mouse/plan/rotate.h"

#include <unordered_map>

#include "base/text.h"
#include "model/visit.h"
#include "mouse/view_ray.h"
#include "ops/pick_vertex.h"
#include "ops/transform.h"

namespace velk {
namespace {

constexpr int kTextLeft = 50;  // of the cursor, pixels

class RotateDrag : public Drag {
 public:
  RotateDrag(const vec3& centre, double startAngle) : centre_(centre), startAngle_(startAngle) {}

  int code() const override { return kRotateCode; }
  bool readsOut() const override { return true; }
  const char* undoName() const override { return kRotateTitle; }

  Outcome move(const MouseContext& context, const DragState& state) override {
    const PlanView& view = context.plan();
    const double angle =
        DirectionAngle(state.current.u - centre_[view.axisU], state.current.v - centre_[view.axisV]);
    readout_ = context.plans.dragReadout;
    degrees_ = Truncate((startAngle_ - angle) * 180 * (1 / 3.141592653589793));
    std::vector<const brush*> originals;
    VisitBrushes(context.model, BrushFilter::Every, [&](const brush& b) {
      if (b.selected()) originals.push_back(&b);
    });
    std::vector<std::unique_ptr<brush>> copies = TransformedCopies(context.model, turn(context));
    copies_.clear();
    for (size_t i = 0; i < copies.size() && i < originals.size(); ++i) {
      copies_[originals[i]] = std::move(copies[i]);
    }
    return Outcome::Drawn(Redraw::All);
  }

  Outcome finish(const MouseContext& context, const DragState& /*state*/) override {
    copies_.clear();
    if (degrees_ == 0) return Outcome::Drawn(Redraw::All);
    return ApplyToSelection(context.model, turn(context), "");
  }

  void draw(const DragState& state, Overlay& overlay) const override {
    if (!readout_) return;
    overlay.texts.push_back({{state.now.at.x - kTextLeft, state.now.at.y}, Format("%i deg.", degrees_)});
  }

  const brush* preview(const brush& of) const override {
    const auto found = copies_.find(&of);
    return found == copies_.end() ? nullptr : found->second.get();
  }

 private:
  Transform turn(const MouseContext& context) const {
    const bool careful = context.settings.careful_tools;
    const int axis = context.plan().axisDepth;
    const bool mirrored = careful && axis == 1;  // whose view shows a turn the other way round
    return RoundedTransform(TurnMatrix(axis, mirrored ? -degrees_ : degrees_), centre_, careful);
  }

  vec3 centre_;
  double startAngle_;  // radians
  int degrees_ = 0;
  bool readout_ = false;
  std::unordered_map<const brush*, std::unique_ptr<brush>> copies_;  // by their originals
};

bool NearCorner(const MouseContext& context, ViewPoint at) {
  const PlanView& view = context.plan();
  const vec3 point = InWorld(view, at, 0);
  bool found = false;
  VisitBrushes(context.model, BrushFilter::Visible, [&](const brush& b) {
    found = found || pickVertex(b, point, view.orientation, VertexPickRadius(context.settings));
  });
  return found;
}

}  // namespace

ToolStart StartRotate(const MouseContext& context, const PointerEvent& event) {
  ToolStart start;
  const ViewPoint at = PointUnder(context, event);
  if (context.model.totalSelected() == 0 || !NearCorner(context, at)) return start;
  const PlanView& view = context.plan();
  const vec3 centre = SelectionPivot(context.model);
  const double angle = context.settings.careful_tools
                           ? DirectionAngle(at.u - centre[view.axisU], at.v - centre[view.axisV])
                           : 0;
  start.claimed = true;
  start.drag = std::make_unique<RotateDrag>(centre, angle);
  return start;
}

}  // namespace velk
