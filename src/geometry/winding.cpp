#include "geometry/winding.h"

#include <algorithm>
#include <new>

#include "base/error.h"
#include "geometry/check_face.h"
#include "geometry/face.h"
#include "geometry/polygon.h"

namespace velk {

void FreeWinding::operator()(winding* w) const { ::operator delete(w); }

WindingPtr NewWinding(int n) {
  if (n > WINDING_MAX_POINTS) Error("NewWinding: %i points", n);
  void* memory = ::operator new(sizeof(winding) + sizeof(WindingPoint) * size_t(n));
  WindingPtr w(new (memory) winding);
  std::uninitialized_value_construct_n(w->points(), n);
  return w;
}

WindingPtr CopyWinding(const winding& w) {
  WindingPtr copy = NewWinding(w.count);
  copy->count = w.count;
  std::copy(w.begin(), w.end(), copy->points());
  return copy;
}

WindingPtr ClipWinding(WindingPtr w, const plane& split) {
  const SplitPlane splitPlane(split);
  CornerSides sides;
  FindSides(w->points(), w->count, splitPlane, sides);
  if (sides.back == 0) return w;
  if (sides.front == 0) return nullptr;

  WindingPtr clipped = NewWinding(w->count + CLIP_EXTRA_POINTS);
  CornerRoom scratch;
  clipped->count = CutCorners(w->points(), w->count, splitPlane, sides, scratch.corners());
  if (clipped->count == 0) Error("ClipWinding: points exceeded estimate");
  std::copy_n(scratch.corners(), clipped->count, clipped->points());
  return clipped;
}

WindingPtr BasePolyForPlane(face& f, int alignment) {
  WindingPtr w = NewWinding(4);
  const TextureAxes axes = TextureAxisFromPlane(f.facePlane.normal, alignment);
  if (!BaseCorners(f.facePlane, f.texture, axes, TurnOf(f.texture.rotate), w->points())) {
    Error("BasePolyForPlane: no axis found");
  }
  w->count = 4;
  f.takeProjection(axes.shade);
  return w;
}

bool CheckFace(const face& f) {
  if (!f.polygon) Error("CheckFace: no winding");
  if (f.polygon->count < 3) Error("CheckFace: %i points", f.polygon->count);
  return CheckCorners(f.polygon->points(), f.polygon->count, f.facePlane);
}

}  // namespace velk
