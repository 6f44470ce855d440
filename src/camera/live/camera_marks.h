// Marks drawn over the finished picture of the camera view, wire or rendered.
#pragma once

#include <memory>
#include <optional>
#include <span>

#include "base/canvas.h"
#include "camera/renderer.h"
#include "camera/view.h"

namespace velk {

// Where points of the world are in the view's window.
class CameraMarks {
 public:
  // `window` is the size of the view, `picture` that of the rendered picture stretched over it.
  CameraMarks(Canvas& canvas, const camera& from, const Settings& settings, const WireLens& lens,
              RenderSize window, RenderSize picture);

  // None for a point that is not before the eye, or beyond the far limit.
  std::optional<Pixel> place(const vec3& point) const;
  // The part of it that is between them.
  void line(const Pen& pen, const vec3& from, const vec3& to);
  void outline(const Pen& pen, const winding& w);

 private:
  Pixel toDevice(const vec3& inView) const;

  Canvas& canvas_;
  Eye eye_;
  double far_;  // view depth
  // Device pixels.
  double centreX_;
  double centreY_;
  double focalX_;
  double focalY_;
};

// The edges of brushes that are not in the map.
void DrawGhosts(CameraMarks& marks, std::span<const std::unique_ptr<brush>> ghosts, Colour colour);

// The clip points as plan views draw them, with their numbers.
void DrawClipPoints(Canvas& canvas, const CameraMarks& marks, const map& m);

}  // namespace velk
