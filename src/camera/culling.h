// Which brushes of a map can be on the picture at all, and where on it.
#pragma once

#include <cstdint>
#include <vector>

#include "camera/renderer.h"
#include "camera/view.h"

namespace velk {

// The eye, lens and settings of one picture.
struct FrameView {
  Eye eye;
  Projection projection;
};

// A brush that may be on the picture. Bounds are a little wider than the brush, so that rounding never
// makes a brush look smaller than its polygons.
struct BrushDraw {
  const brush* shape = nullptr;  // the brush, or what stands in for it
  const brush* original = nullptr;
  std::uint32_t rank = 0;  // of its first face in drawing order; 64 ranks a brush
  bool onBorder = false;   // its polygons may have to be cut to the picture
  int left = 0;            // pixels left..right-1, top..bottom-1
  int top = 0;
  int right = 0;
  int bottom = 0;
  float depth = 0;              // view depth of its middle
  float nearest = 0;            // largest w
  std::uint32_t firstFace = 0;  // numbers in the table of faces, once it is set up
  std::uint32_t faceCount = 0;
  bool isSetUp = false;
};

class BrushCuller {
 public:
  // Sets where the brush is on the picture; false when it is not on it.
  explicit BrushCuller(const FrameView& view);
  bool place(const brush& b, BrushDraw& draw) const;

 private:
  typedef float Four __attribute__((vector_size(16)));
  void fillPicture(BrushDraw& draw) const;
  void findOutline(const vec3& centre, const vec3& half, BrushDraw& draw) const;

  const FrameView& view_;
  float outside_;       // so far inside a plane of the frustum counts as outside
  Four planes_[3];      // normals of the frustum planes in the world, by axis
  Four planeSizes_[3];  // their absolute values
};

// The few brushes that can show at one pixel of the picture.
class PixelCuller {
 public:
  PixelCuller(const FrameView& view, int px, int py);
  bool mayShow(const brush& b) const;

 private:
  typedef float Four __attribute__((vector_size(16)));
  vec3 eye_;
  Four planes_[3];  // normals of the planes round the pixel's rays in the world, by axis
  Four planeSizes_[3];
};

// Calls visit(brush) for every brush the scene shows, in drawing order: entities and their brushes from
// the last to the first. Those the filters leave out are skipped.
template <typename Visit>
void VisitShownBrushes(const RenderScene& scene, Visit&& visit);
// Whether it is the box of a fixed-size entity that would hide the picture from the eye, and such boxes are
// to be left out.
bool IsInTheWay(const RenderScene& scene, const brush& b);
// The brush itself or what stands in for it; may be none.
const brush* ShownShape(const RenderScene& scene, const brush& b);

template <typename Visit>
void VisitShownBrushes(const RenderScene& scene, Visit&& visit) {
  for (int e = scene.model.numentities() - 1; e >= 0; --e) {
    const entity& owner = *scene.model.at(e);
    for (int i = owner.numbrushes() - 1; i >= 0; --i) {
      brush& b = *owner.at(i);
      if (IsShown(scene.model, b) && !IsInTheWay(scene, b)) visit(b);
    }
  }
}

}  // namespace velk
