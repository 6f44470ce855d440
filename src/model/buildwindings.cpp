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

// The planes of a brush.
struct BrushPlanes {
  int count = 0;
  bool degenerate[MAX_FACES];
  bool repeated[MAX_FACES];
  SplitPlane turned[MAX_FACES];  // keep what is behind the face

  bool cuts(int plane, int face) const { return plane != face && !degenerate[plane]; }
};

bool RepeatsEarlier(const std::vector<face>& faces, size_t index, const BrushPlanes& planes) {
  for (size_t i = 0; i < index; ++i) {
    if (!planes.degenerate[i] && faces[i].facePlane == faces[index].facePlane) return true;
  }
  return false;
}

plane Turned(const plane& p) { return {{-p.normal.x, -p.normal.y, -p.normal.z}, -p.dist}; }

void MakePlanes(std::vector<face>& faces, BrushPlanes& planes) {
  planes.count = int(faces.size());
  for (size_t i = 0; i < faces.size(); ++i) {
    face& f = faces[i];
    planes.degenerate[i] = !PlaneFromPoints(f.planepts[0], f.planepts[1], f.planepts[2], f.facePlane);
    if (planes.degenerate[i]) f.facePlane = {};
    planes.repeated[i] = !planes.degenerate[i] && RepeatsEarlier(faces, i, planes);
    planes.turned[i] = SplitBy(Turned(f.facePlane));
  }
}

// The rotation met last; most faces of a brush share one.
class LastTurn {
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

// The polygon of one face while the other planes cut it, in two buffers of which one is in use.
struct Cutting {
  int face;
  float shade;
  int count;   // 0 when nothing is left
  bool fatal;  // the functions on windings would end in an error
  int active;
  CornerRoom buffers[2];

  WindingPoint* corners() { return buffers[active].corners(); }

  void fail() {
    fatal = true;
    count = 0;
  }

  void cutBy(const SplitPlane& split) {
    CornerSides sides;
    FindSides(corners(), count, split, sides);
    if (sides.back == 0) return;
    if (sides.front == 0) {
      count = 0;
    } else if (count + CLIP_EXTRA_POINTS > WINDING_MAX_POINTS) {
      fail();
    } else if (!CutTwoCorners(corners(), count, split, sides)) {
      count = CutCorners(corners(), count, split, sides, buffers[1 - active].corners());
      active = 1 - active;
      if (count == 0) fail();
    }
  }
};

// Faces cut side by side. Cutting one polygon is a chain of steps that wait for each other; several at a time
// keep the processor busy.
struct Batch {
  static constexpr int kMost = 8;
  Cutting cuttings[kMost];
  int count = 0;

  void add(const brush& b, int index, int alignment, LastTurn& turn) {
    const face& f = b.faces[size_t(index)];
    Cutting& c = cuttings[count++];
    c.face = index;
    c.active = 0;
    c.count = 4;
    c.fatal = false;
    const TextureAxes axes = TextureAxisFromPlane(f.facePlane.normal, alignment);
    c.shade = axes.shade;
    if (!BaseCorners(f.facePlane, f.texture, axes, turn.of(f.texture.rotate), c.corners())) c.fail();
  }

  void cut(const BrushPlanes& planes) {
    for (int p = 0; p < planes.count; ++p) {
      for (int i = 0; i < count; ++i) {
        Cutting& c = cuttings[i];
        if (c.count > 0 && planes.cuts(p, c.face)) c.cutBy(planes.turned[p]);
      }
    }
  }
};

// Ends in the error that stopped the face's polygon, by the functions that report it.
void Fail(face& f, const brush& b, int alignment) {
  WindingPtr w = BasePolyForPlane(f, alignment);
  for (const face& other : b.faces) {
    if (&other != &f && w) w = ClipWinding(std::move(w), Turned(other.facePlane));
  }
}

float Settled(float c) {
  if (float(int(c)) == c) return float(int(c));  // never -0
  const double whole = RoundHalfAway(c);
  return std::fabs(c - whole) < kRoundTolerance ? float(whole) + 0.0f : c;
}

void Store(face& f, Cutting& c) {
  f.polygon = NewWinding(c.count);
  f.polygon->count = c.count;
  std::copy_n(c.corners(), c.count, f.polygon->points());
}

void SettleAndBound(Cutting& c, vec3& mins, vec3& maxs) {
  for (int i = 0; i < c.count; ++i) {
    WindingPoint& corner = c.corners()[i];
    corner.x = Settled(corner.x);
    corner.y = Settled(corner.y);
    corner.z = Settled(corner.z);
    mins = {std::min(mins.x, corner.x), std::min(mins.y, corner.y), std::min(mins.z, corner.z)};
    maxs = {std::max(maxs.x, corner.x), std::max(maxs.y, corner.y), std::max(maxs.z, corner.z)};
  }
}

// Hands the polygons over to the faces and widens the bounds; false at the first that is not acceptable.
bool Finish(Batch& batch, brush& b, int alignment) {
  for (int i = 0; i < batch.count; ++i) {
    Cutting& c = batch.cuttings[i];
    face& f = b.faces[size_t(c.face)];
    f.takeProjection(c.shade);
    if (c.fatal) Fail(f, b, alignment);
    if (c.count == 0) continue;
    if (c.count < 3 || !CheckCorners(c.corners(), c.count, f.facePlane)) {
      Store(f, c);
      return CheckFace(f);
    }
    SettleAndBound(c, b.mins, b.maxs);
    Store(f, c);
  }
  return true;
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

  LastTurn turn;
  Batch batch;
  const int textureAlignment = alignment();
  bool acceptable = true;
  for (int i = 0; i < numfaces() && acceptable;) {
    batch.count = 0;
    for (; i < numfaces() && batch.count < Batch::kMost; ++i) {
      if (!planes.degenerate[i] && !planes.repeated[i]) batch.add(*this, i, textureAlignment, turn);
    }
    batch.cut(planes);
    acceptable = Finish(batch, *this, textureAlignment);
  }
  if (!acceptable || mins.x == kNoBound) {
    invalid = true;
    mins = maxs = {};
  }
  currentFace = std::max(std::min(currentFace, numfaces() - 1), 0);
}

}  // namespace velk
