#include <algorithm>
#include <cmath>

#include "base/error.h"
#include "base/text.h"
#include "model/brush.h"
#include "model/polygon.h"

namespace velk {
namespace {

// Bounds before anything was seen; mins.x stays there when no solid is left.
constexpr float kNoBound = 32765;
// A corner coordinate this near to a whole number becomes it.
constexpr double kRoundTolerance = 0.01;

// Whether a face takes part, and the planes that cut the other faces: turned to keep what is behind.
struct BrushPlanes {
  bool degenerate[MAX_FACES];
  bool repeated[MAX_FACES];
  SplitPlane turned[MAX_FACES];
};

bool RepeatsEarlier(const std::vector<face>& faces, size_t index, const BrushPlanes& planes) {
  for (size_t i = 0; i < index; ++i) {
    if (!planes.degenerate[i] && faces[i].facePlane == faces[index].facePlane) return true;
  }
  return false;
}

void MakePlanes(std::vector<face>& faces, BrushPlanes& planes) {
  for (size_t i = 0; i < faces.size(); ++i) {
    face& f = faces[i];
    planes.degenerate[i] = !PlaneFromPoints(f.planepts[0], f.planepts[1], f.planepts[2], f.facePlane);
    if (planes.degenerate[i]) f.facePlane = {};
    planes.repeated[i] = !planes.degenerate[i] && RepeatsEarlier(faces, i, planes);
    const vec3& n = f.facePlane.normal;
    planes.turned[i] = SplitPlane({{-n.x, -n.y, -n.z}, -f.facePlane.dist});
  }
}

// Cosine and sine of the rotations met in one brush; most faces share one.
class Turns {
 public:
  const TextureTurn& of(float degrees) {
    if (degrees != degrees_) {
      turn_ = TurnOf(degrees);
      degrees_ = degrees;
    }
    return turn_;
  }

 private:
  float degrees_ = 0;
  TextureTurn turn_;
};

// A polygon being cut, in two buffers used in turn.
struct Scratch {
  WindingPoint buffers[2][WINDING_MAX_POINTS + CLIP_EXTRA_POINTS + 1];
  int active = 0;
  int count = 0;

  WindingPoint* corners() { return buffers[active]; }
};

// Cuts the base polygon of a face by all other faces' planes; false when nothing is left.
bool CutByOthers(const BrushPlanes& planes, size_t own, size_t count, Scratch& scratch) {
  CornerSides sides;
  for (size_t i = 0; i < count; ++i) {
    if (i == own || planes.degenerate[i]) continue;
    FindSides(scratch.corners(), scratch.count, planes.turned[i], sides);
    if (sides.back == 0) continue;
    if (sides.front == 0) return false;
    if (scratch.count + CLIP_EXTRA_POINTS > WINDING_MAX_POINTS) {
      Error("NewWinding: %i points", scratch.count + CLIP_EXTRA_POINTS);
    }
    scratch.count = CutCorners(scratch.corners(), scratch.count, planes.turned[i], sides,
                               scratch.buffers[1 - scratch.active]);
    scratch.active = 1 - scratch.active;
  }
  return true;
}

void StorePolygon(face& f, Scratch& scratch) {
  f.polygon = NewWinding(scratch.count);
  f.polygon->count = scratch.count;
  std::copy_n(scratch.corners(), scratch.count, f.polygon->points());
}

float Settled(float c) {
  const double whole = RoundHalfAway(c);
  return std::fabs(c - whole) < kRoundTolerance ? float(whole) : c;
}

void SettleAndBound(winding& w, vec3& mins, vec3& maxs) {
  for (int i = 0; i < w.count; ++i) {
    WindingPoint& corner = w[i];
    corner.x = Settled(corner.x);
    corner.y = Settled(corner.y);
    corner.z = Settled(corner.z);
    mins = {std::min(mins.x, corner.x), std::min(mins.y, corner.y), std::min(mins.z, corner.z)};
    maxs = {std::max(maxs.x, corner.x), std::max(maxs.y, corner.y), std::max(maxs.z, corner.z)};
  }
}

}  // namespace

void brush::buildWindings() {
  if (numfaces() > MAX_FACES) Error("addFace: numfaces == MAX_FACES");
  mins = {kNoBound, kNoBound, kNoBound};
  maxs = {-kNoBound, -kNoBound, -kNoBound};
  invalid = false;
  for (face& f : faces) {
    f.polygon.reset();
    f.cache.reset();
  }
  BrushPlanes planes;
  MakePlanes(faces, planes);

  Turns turns;
  Scratch scratch;
  for (size_t i = 0; i < faces.size(); ++i) {
    if (planes.degenerate[i] || planes.repeated[i]) continue;
    scratch.count = 4;
    BaseCorners(faces[i], alignment(), turns.of(faces[i].texture.rotate), scratch.corners());
    if (!CutByOthers(planes, i, faces.size(), scratch)) continue;
    StorePolygon(faces[i], scratch);
    if (!CheckFace(faces[i])) {
      mins.x = kNoBound;
      break;
    }
    SettleAndBound(*faces[i].polygon, mins, maxs);
  }
  if (mins.x == kNoBound) {
    invalid = true;
    mins = maxs = {};
  }
  currentFace = std::max(std::min(currentFace, numfaces() - 1), 0);
}

}  // namespace velk
