#include "ops/clip.h"

#include <cmath>

#include "base/text.h"
#include "model/visit.h"
#include "ops/solids/split_by_face.h"

namespace velk {
namespace {

// How far along the view the third point of a plane by two points lies.
constexpr float kDerivedDepth = 16;

bool SpanPlane(const face& f) {
  vec3 normal = cross(subtract(f.planepts[2], f.planepts[0]), subtract(f.planepts[1], f.planepts[0]));
  if (VecEqual(normal, {})) return false;
  normalize(normal);
  return !VecEqual(normal, {});
}

// The other end of the work range for a point at the views' depth, and back.
float ToggledDepth(const map& m, float depth, float centre, int axis) {
  const double range = double(m.workHigh()[axis]) - m.workLow()[axis];
  return float(Snap(depth == centre ? centre + range : centre, m.settings().gridsize));
}

int PointAt(const clipper& clip, const ViewAxes& axes, const vec3& at) {
  for (int i = 0; i < clip.count; ++i) {
    if (clip.points[i][axes.u] == at[axes.u] && clip.points[i][axes.v] == at[axes.v]) return i;
  }
  return -1;
}

void PlacePoint(clipper& clip, const vec3& at, const ViewAxes& axes) {
  if (clip.count >= 3) clip.count = 0;
  clip.points[clip.count] = at;
  clip.current = clip.count++;
  if (clip.count == 2 && axes.depth == 1) std::swap(clip.points[0], clip.points[1]);
}

void LiftPoint(map& m, int steps) {
  vec3& point = m.clip.points[m.clip.current];
  point.z = float(point.z + double(steps) * m.settings().gridsize);
}

void CarveBrush(brush& b, const face& clipFace) {
  cutBrush(b, clipFace);
  if (b.invalid) DestroyBrush(b);
}

// The front part enters the list before the brush may leave it, so that the entity is never empty.
void SplitOne(brush& b, const face& clipFace) {
  if (std::unique_ptr<brush> front = SplitBrush(b, clipFace)) {
    front->select();
    b.owner->addobject(std::move(front)).buildWindings();
  }
  if (b.invalid) DestroyBrush(b);
}

template <typename Cut>
Outcome CutSelection(map& m, int depthAxis, bool careful, const char* status, Cut&& cut) {
  const std::optional<face> clipFace = makeClipFace(m.clip, depthAxis);
  if (!clipFace && careful) return Outcome::Said(kClipNoPlane);
  m.modified = true;
  if (clipFace) {
    VisitBrushes(m, BrushFilter::Selected, [&](brush& b) {
      if (!careful || b.owner->isModel) cut(b, *clipFace);
    });
  }
  m.clip.count = 0;
  return Outcome::Drawn(Redraw::All, status);
}

}  // namespace

std::optional<face> makeClipFace(const clipper& clip, int depthAxis) {
  if (clip.count < 2) return std::nullopt;
  face f;
  for (int i = 0; i < 3; ++i) f.planepts[i] = clip.points[i];
  if (clip.count == 2) {
    f.planepts[2] = clip.points[0];
    f.planepts[2][depthAxis] += kDerivedDepth;
  }
  if (!SpanPlane(f)) return std::nullopt;
  return f;
}

Outcome addClipPoint(map& m, const ViewAxes& axes, double u, double v, const vec3& planCenter) {
  vec3 at;
  at[axes.u] = float(Snap(u, m.settings().gridsize));
  at[axes.v] = float(Snap(v, m.settings().gridsize));
  at[axes.depth] = planCenter[axes.depth];
  if (const int there = PointAt(m.clip, axes, at); there >= 0) {
    float& depth = m.clip.points[there][axes.depth];
    depth = ToggledDepth(m, depth, planCenter[axes.depth], axes.depth);
  } else {
    PlacePoint(m.clip, at, axes);
  }
  return Outcome::Drawn(Redraw::All);
}

ClipDrag::ClipDrag(const clipper& clip, const ViewAxes& axes, int index, bool all)
    : before_(clip), axes_(axes), index_(index), all_(all) {}

void ClipDrag::move(clipper& clip, double du, double dv) const {
  for (int i = 0; i < 3; ++i) {
    if (!drags(i)) continue;
    clip.points[i][axes_.u] = float(before_.points[i][axes_.u] + du);
    clip.points[i][axes_.v] = float(before_.points[i][axes_.v] + dv);
  }
}

void ClipDrag::finish(clipper& clip, int gridsize) const {
  for (int i = 0; i < 3; ++i) {
    if (!drags(i)) continue;
    for (const int axis : {axes_.u, axes_.v}) {
      clip.points[i][axis] = float(Snap(clip.points[i][axis], gridsize));
    }
  }
}

int HitClipPoint(const clipper& clip, const ViewAxes& axes, double u, double v) {
  for (int i = 0; i < clip.count; ++i) {
    if (std::fabs(clip.points[i][axes.u] - u) <= kClipReach &&
        std::fabs(clip.points[i][axes.v] - v) <= kClipReach) {
      return i;
    }
  }
  return -1;
}

std::optional<ClipDrag> dragClipPoint(clipper& clip, const ViewAxes& axes, double u, double v) {
  const int hit = HitClipPoint(clip, axes, u, v);
  if (hit < 0) return std::nullopt;
  const ClipDrag drag(clip, axes, hit, false);
  clip.current = hit;
  return drag;
}

std::optional<ClipDrag> dragClipPlane(const clipper& clip, const ViewAxes& axes, double u, double v) {
  const int hit = HitClipPoint(clip, axes, u, v);
  if (hit < 0) return std::nullopt;
  return ClipDrag(clip, axes, hit, true);
}

Outcome FlipClipper(clipper& clip) {
  if (clip.count >= 2) std::swap(clip.points[0], clip.points[clip.count - 1]);
  return Outcome::Drawn(Redraw::All, kClipFlipped);
}

Outcome MoveClipPointUp(map& m) {
  LiftPoint(m, 1);
  return Outcome::Drawn(Redraw::All, Format(kClipMovedUp, m.clip.current));
}

Outcome MoveClipPointDown(map& m) {
  LiftPoint(m, -1);
  return Outcome::Drawn(Redraw::All, Format(kClipMovedDown, m.clip.current));
}

Outcome ChooseClipPoint(clipper& clip, int index) {
  clip.current = index;
  return Outcome::Drawn(Redraw::All, Format(kClipChosen, index + 1));
}

Outcome HideClipPointsOrDeselect(map& m) {
  if (m.clip.count > 0) {
    m.clip.count = 0;
    return Outcome::Drawn(Redraw::All, kClipHidden);
  }
  VisitBrushes(m, BrushFilter::Every, [](brush& b) { b.select(false); });
  m.setCurrentEntity(m.world());
  return Outcome::Drawn(Redraw::All, kAllDeselected);
}

void cutBrush(brush& b, const face& clipFace) { b.addFace(clipFace); }

std::unique_ptr<brush> SplitBrush(brush& b, const face& clipFace) {
  std::unique_ptr<brush> front = FreshCopy(b);
  b.addFace(clipFace);
  front->addFace(TurnedRound(clipFace));
  return front->invalid ? nullptr : std::move(front);
}

Outcome CarveSelection(map& m, int depthAxis, bool careful) {
  return CutSelection(m, depthAxis, careful, kClipCarved, CarveBrush);
}

Outcome SplitSelection(map& m, int depthAxis, bool careful) {
  return CutSelection(m, depthAxis, careful, kClipSplit, SplitOne);
}

}  // namespace velk
