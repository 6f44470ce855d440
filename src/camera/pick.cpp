#include "camera/pick.h"

#include <optional>

#include "camera/face_setup.h"

namespace velk {

namespace {

class Picker {
 public:
  Picker(const FrameView& view, int px, int py)
      : view_(view), pixel_(view, px, py), culler_(view), px_(px), py_(py) {}

  // `shape` is the brush or the copy that stands in for it.
  void visit(brush& b, const brush& shape) {
    BrushDraw draw;
    if (!pixel_.mayShow(shape) || !culler_.place(shape, draw)) return;
    if (px_ < draw.left || px_ >= draw.right || py_ < draw.top || py_ >= draw.bottom) return;
    for (int i = 0; i < shape.numfaces(); ++i) {
      const std::optional<float> w = depthAt(shape.faces()[size_t(i)], draw.onBorder);
      if (!w || !(best_ <= *w)) continue;
      best_ = *w;
      pick_ = {&b, i};
    }
  }

  const FacePick& result() const { return pick_; }

 private:
  // The polygon's w at the pixel, which may also be the one that its span ends at.
  std::optional<float> depthAt(const face& f, bool onBorder) {
    if (!VisiblePolygon(view_, f, onBorder, polygon_, scratch_)) return std::nullopt;
    edges_.clear();
    Outline outline;
    if (!MakeOutline(view_.projection, polygon_, edges_, outline)) return std::nullopt;
    if (py_ < outline.top || py_ >= outline.bottom) return std::nullopt;
    const EdgeValues start = valuesAt(outline.startEdges);
    const EdgeValues end = valuesAt(outline.endEdges);
    const int first = ColumnOf(start[kX]);
    const int last = ColumnOf(end[kX]);
    if (px_ < first || px_ > last) return std::nullopt;
    const float length = last > first ? float(last - first) : 1.0f;
    return start[kW] + float(px_ - first) * ((end[kW] - start[kW]) / length);
  }

  EdgeValues valuesAt(std::uint32_t edge) const {
    while (py_ >= edges_[edge].bottom) ++edge;
    return edges_[edge].start + float(py_ - edges_[edge].top) * edges_[edge].step;
  }

  const FrameView& view_;
  PixelCuller pixel_;
  BrushCuller culler_;
  int px_;
  int py_;
  float best_ = -18000;  // any w is nearer
  FacePick pick_;
  std::vector<Edge> edges_;
  ViewPolygon polygon_;
  ViewPolygon scratch_;
};

}  // namespace

FacePick PickFace(const RenderScene& scene, const FrameView& view, int px, int py) {
  Picker picker(view, px, py);
  VisitShownBrushes(scene, [&](brush& b) {
    if (const brush* shape = ShownShape(scene, b)) picker.visit(b, *shape);
  });
  return picker.result();
}

}  // namespace velk
