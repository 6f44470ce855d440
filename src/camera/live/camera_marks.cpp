#include "camera/live/camera_marks.h"

#include <algorithm>

#include "base/text.h"

namespace velk {
namespace {

constexpr double kNearest = 1;      // view depth of what is marked
constexpr int kClipPointSize = 10;  // pixels
constexpr int kClipLabelHeight = 14;

void DrawSquare(Canvas& canvas, Pixel centre, Colour border, Colour inside) {
  const PixelRect square{centre.x - kClipPointSize / 2, centre.y - kClipPointSize / 2, kClipPointSize,
                         kClipPointSize};
  const int right = square.left + square.width - 1, bottom = square.top + square.height - 1;
  canvas.fill(square, inside);
  const Pixel corners[] = {
      {square.left, square.top}, {right, square.top}, {right, bottom}, {square.left, bottom}};
  canvas.polygon({border, 1}, corners);
}

}  // namespace

CameraMarks::CameraMarks(Canvas& canvas, const camera& from, const Settings& settings, const WireLens& lens,
                         RenderSize window, RenderSize picture)
    : canvas_(canvas), eye_(MakeEye(from)), far_(-double(settings.far_clip_distance)) {
  const double dense = canvas.deviceScale();
  const double width = window.width * dense, height = window.height * dense;
  const bool wire = settings.drawmode == kWireMode;
  centreX_ = wire ? Truncate(width) / 2 : width / 2;
  centreY_ = wire ? Truncate(height) / 2 : height / 3;
  focalX_ = wire ? lens.focalLength() * dense : width / 2;
  focalY_ = wire ? focalX_ : picture.width * 0.5 * height / std::max(1, picture.height);
}

Pixel CameraMarks::toDevice(const vec3& p) const {
  return {Truncate(OnGrid(centreX_ + p.x * focalX_ / p.z)), Truncate(OnGrid(centreY_ - p.y * focalY_ / p.z))};
}

std::optional<Pixel> CameraMarks::place(const vec3& point) const {
  const vec3 p = ToView(eye_, point);
  if (p.z < kNearest || p.z > far_) return std::nullopt;
  const Pixel at = toDevice(p);
  const double dense = canvas_.deviceScale();
  return Pixel{Truncate(at.x / dense), Truncate(at.y / dense)};
}

void CameraMarks::line(const Pen& pen, const vec3& from, const vec3& to) {
  const vec3 a = ToView(eye_, from), b = ToView(eye_, to);
  if (std::max(a.z, b.z) < kNearest || std::min(a.z, b.z) > far_) return;
  const auto at = [&a, step = subtract(b, a)](double depth) {
    vec3 cut = add(a, scale(step, (depth - a.z) / step.z));
    cut.z = float(depth);
    return cut;
  };
  const auto within = [&](const vec3& end) {
    if (end.z < kNearest) return at(kNearest);
    return end.z > far_ ? at(far_) : end;
  };
  const Pixel ends[] = {toDevice(within(a)), toDevice(within(b))};
  canvas_.devicePolygon(pen, ends);
}

void CameraMarks::outline(const Pen& pen, const winding& w) {
  for (int i = 0; i < w.count; ++i) {
    line(pen, w[i].position(), w[i + 1 < w.count ? i + 1 : 0].position());
  }
}

void DrawGhosts(CameraMarks& marks, std::span<const std::unique_ptr<brush>> ghosts, Colour colour) {
  for (const std::unique_ptr<brush>& ghost : ghosts) {
    for (const face& f : ghost->faces()) {
      if (f.polygon) marks.outline({colour, 1}, *f.polygon);
    }
  }
}

void DrawClipPoints(Canvas& canvas, const CameraMarks& marks, const map& m) {
  const ViewColours& colours = m.settings().colours;
  for (int i = 0; i < std::min(m.clip.count, 3); ++i) {
    const std::optional<Pixel> at = marks.place(m.clip.points[i]);
    if (!at) continue;
    canvas.text(Format("%i", i + 1), {at->x - 5, at->y + 7}, kClipLabelHeight, colours.fgcolor,
                &colours.bgcolor);
    DrawSquare(canvas, *at, colours.color_clipborder,
               i == m.clip.current ? colours.color_currentclipface : colours.color_otherclipface);
  }
}

}  // namespace velk
