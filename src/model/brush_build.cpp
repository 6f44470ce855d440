#include <algorithm>
#include <new>

#include "base/error.h"
#include "geometry/axial_box.h"
#include "geometry/check_face.h"
#include "geometry/polygon.h"
#include "model/brush.h"

namespace velk {
namespace {

// Bounds before anything was seen; mins.x stays there when no solid is left.
constexpr float kNoBound = 32765;

// The planes of a brush.
struct BrushPlanes {
  int count = 0;
  bool degenerate[MAX_FACES];
  bool repeated[MAX_FACES];
  SplitPlane turned[MAX_FACES];  // keep what is behind the face
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
  }
}

void PrepareCuts(const std::vector<face>& faces, BrushPlanes& planes) {
  for (size_t i = 0; i < faces.size(); ++i) {
    planes.repeated[i] = !planes.degenerate[i] && RepeatsEarlier(faces, i, planes);
    planes.turned[i] = SplitPlane(Turned(faces[i].facePlane));
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
    } else if (count != 4 || !CutQuad(corners(), split, sides)) {
      count = CutCorners(corners(), count, split, sides, buffers[1 - active].corners());
      active = 1 - active;
      if (count == 0) fail();
    }
  }
};

// The polygons of the faces that may get one, in order of the faces.
struct Cuttings {
  int count = 0;
  Cutting all[MAX_FACES];

  void add(const face& f, int index, int alignment, LastTurn& turn) {
    Cutting& c = all[count++];
    c.face = index;
    c.active = 0;
    c.count = 4;
    c.fatal = false;
    const TextureAxes axes = TextureAxisFromPlane(f.facePlane.normal, alignment);
    c.shade = axes.shade;
    if (!BaseCorners(f.facePlane, f.texture, axes, turn.of(f.texture.rotate), c.corners())) c.fail();
  }

  void addAll(const std::vector<face>& faces, const BrushPlanes& planes, int alignment) {
    LastTurn turn;
    for (int i = 0; i < planes.count; ++i) {
      if (!planes.degenerate[i] && !planes.repeated[i]) add(faces[size_t(i)], i, alignment, turn);
    }
  }

  // Cuts a few polygons side by side. The cuts of one wait for each other; several keep the processor busy.
  void cut(int from, int to, const BrushPlanes& planes) {
    for (int p = 0; p < planes.count; ++p) {
      if (planes.degenerate[p]) continue;
      for (int i = from; i < to; ++i) {
        if (all[i].count > 0 && all[i].face != p) all[i].cutBy(planes.turned[p]);
      }
    }
  }

  void cutAll(const BrushPlanes& planes) {
    constexpr int kSideBySide = 8;
    for (int i = 0; i < count; i += kSideBySide) cut(i, std::min(i + kSideBySide, count), planes);
  }
};

// Ends in the error that stopped the face's polygon, by the functions that report it.
void Fail(face& f, const std::vector<face>& faces, int alignment) {
  WindingPtr w = BasePolyForPlane(f, alignment);
  for (const face& other : faces) {
    if (&other != &f && w) w = ClipWinding(std::move(w), Turned(other.facePlane));
  }
}

// The bounds of a brush while its corners settle; the fourth component means nothing.
struct Bounds {
  __m128 mins = _mm_set1_ps(kNoBound);
  __m128 maxs = _mm_set1_ps(-kNoBound);

  void settle(const WindingPoint& corner, WindingPoint& settled) {
    __m128 at = detail::Load(corner);
    const __m128 whole = _mm_cvtepi32_ps(_mm_cvttps_epi32(at));
    if ((_mm_movemask_ps(_mm_cmpeq_ps(at, whole)) & 7) != 7) {
      at = _mm_setr_ps(Settled(corner.x), Settled(corner.y), Settled(corner.z), corner.s);
    }
    at = _mm_add_ps(at, _mm_setr_ps(0, 0, 0, -0.0f));  // no coordinate is -0; s stays
    detail::Store(settled, at, corner.t);
    mins = _mm_min_ps(mins, at);
    maxs = _mm_max_ps(maxs, at);
  }
};

vec3 Vector(__m128 v) {
  alignas(16) float parts[4];
  _mm_store_ps(parts, v);
  return {parts[0], parts[1], parts[2]};
}

size_t StoredSize(int corners) { return sizeof(winding) + sizeof(WindingPoint) * size_t(corners); }

size_t TotalSize(const Cuttings& cuttings) {
  size_t size = 0;
  for (int i = 0; i < cuttings.count; ++i) size += StoredSize(cuttings.all[i].count);
  return size;
}

// Hands the polygons over to the faces, one after the other in `store`, and widens the bounds; false at the
// first that is not acceptable.
bool HandOver(Cuttings& cuttings, std::vector<face>& faces, std::byte* store, int alignment, Bounds& bounds) {
  for (int i = 0; i < cuttings.count; ++i) {
    Cutting& c = cuttings.all[i];
    face& f = faces[size_t(c.face)];
    f.takeProjection(c.shade);
    if (c.fatal) Fail(f, faces, alignment);
    if (c.count == 0) continue;

    winding* w = new (store) winding{c.count};
    store += StoredSize(c.count);
    f.polygon = w;
    if (c.count < 3 || !CheckCorners(c.corners(), c.count, f.facePlane)) {
      std::copy_n(c.corners(), c.count, w->points());
      return CheckFace(f);
    }
    for (int k = 0; k < c.count; ++k) bounds.settle(c.corners()[k], (*w)[k]);
  }
  return true;
}

void FinishCuttings(Cuttings& cuttings, brush& b, std::vector<face>& faces, std::byte* store, int alignment) {
  Bounds bounds;
  const bool acceptable = HandOver(cuttings, faces, store, alignment, bounds);
  b.mins = Vector(bounds.mins);
  b.maxs = Vector(bounds.maxs);
  const bool bounded = b.mins.x <= b.maxs.x && b.mins.y <= b.maxs.y && b.mins.z <= b.maxs.z;
  if (!acceptable || !bounded) {
    b.invalid = true;
    b.mins = b.maxs = {};
  }
}

// The same for a box, whose polygons are always acceptable.
void FinishBox(AxialBox& box, brush& b, std::vector<face>& faces, std::byte* store, int alignment) {
  LastTurn turn;
  for (int i = 0; i < AxialBox::kFaces; ++i) {
    face& f = faces[size_t(i)];
    const TextureAxes axes = TextureAxisFromPlane(f.facePlane.normal, alignment);
    f.takeProjection(axes.shade);
    box.project(i, f.texture, axes, turn.of(f.texture.rotate));
  }
  box.cut();
  for (int i = 0; i < AxialBox::kFaces; ++i) {
    winding* w = new (store) winding{4};
    store += StoredSize(4);
    box.store(i, w->points());
    faces[size_t(i)].polygon = w;
  }
  b.mins = box.mins();
  b.maxs = box.maxs();
}

}  // namespace

std::byte* brush::polygonStore(size_t bytes) {
  if (bytes > storeSize_) {
    store_.reset(new std::byte[bytes]);
    storeSize_ = bytes;
  }
  return store_.get();
}

void brush::buildWindings() {
  if (numfaces() > MAX_FACES) Error("addFace: numfaces == MAX_FACES");
  invalid = false;
  setCurrentFace(std::max(std::min(currentFace_, numfaces() - 1), 0));
  for (face& f : faces_) {
    f.polygon = nullptr;
    f.cache.reset();
  }
  BrushPlanes planes;
  MakePlanes(faces_, planes);
  if (AxialBox box; box.take(faces_)) {
    FinishBox(box, *this, faces_, polygonStore(AxialBox::kFaces * StoredSize(4)), alignment());
  } else {
    PrepareCuts(faces_, planes);
    Cuttings cuttings;
    cuttings.addAll(faces_, planes, alignment());
    cuttings.cutAll(planes);
    FinishCuttings(cuttings, *this, faces_, polygonStore(TotalSize(cuttings)), alignment());
  }
}

}  // namespace velk
