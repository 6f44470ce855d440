#include "ops/texturing/align_texture.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <optional>

#include "base/text.h"
#include "geometry/texture_fit.h"
#include "model/visit.h"

namespace velk {
namespace {

// The range of a face in its texture's turned axes, before scales and shifts.
struct Extent {
  double low[2];
  double high[2];
  double middle(int axis) const { return (low[axis] + high[axis]) / 2; }
  double size(int axis) const { return std::max(high[axis] - low[axis], 1.0); }
};

Extent ExtentOf(const face& f, const TextureAxes& axes, float degrees) {
  constexpr double kFar = std::numeric_limits<double>::max();
  Extent extent{{kFar, kFar}, {-kFar, -kFar}};
  texturedef turned;
  turned.rotate = degrees;
  for (int i = 0; i < f.polygon->count; ++i) {
    const ExactTexCoords at = TexCoordsAt(turned, axes, (*f.polygon)[i].position());
    const double values[] = {at.s, at.t};
    for (int axis = 0; axis < 2; ++axis) {
      extent.low[axis] = std::min(extent.low[axis], values[axis]);
      extent.high[axis] = std::max(extent.high[axis], values[axis]);
    }
  }
  return extent;
}

vec3 MiddleOf(const face& f) {
  vec3 sum;
  for (int i = 0; i < f.polygon->count; ++i) sum = add(sum, (*f.polygon)[i].position());
  return scale(sum, 1.0 / f.polygon->count);
}

// Whole, and within the texture.
float WholeShift(double shift, int texels) {
  const double within = std::fmod(RoundHalfAway(shift), std::max(texels, 1));
  return float(within < 0 ? within + texels : within);
}

int SideOf(const TextureSize& size, int axis) { return axis == 0 ? size.width : size.height; }

double ScaleOf(const texturedef& t, int axis) { return t.scale[axis] == 0 ? 1 : double(t.scale[axis]); }

// `made` shows at the middle of the face what `before` shows there.
texturedef PinMiddle(const face& f, const TextureAxes& axes, texturedef made) {
  const vec3 middle = MiddleOf(f);
  const ExactTexCoords before = TexCoordsAt(f.texture, axes, middle);
  made.shift[0] = made.shift[1] = 0;
  const ExactTexCoords after = TexCoordsAt(made, axes, middle);
  made.shift[0] = float(RoundHalfAway(before.s - after.s));
  made.shift[1] = float(RoundHalfAway(before.t - after.t));
  return made;
}

// The lowest, highest or middle coordinate of the face on an axis, shift left out.
double EndOf(const Extent& extent, double axisScale, int axis, int which) {
  const double a = extent.low[axis] / axisScale;
  const double b = extent.high[axis] / axisScale;
  if (which == 0) return (a + b) / 2;
  return which < 0 ? std::min(a, b) : std::max(a, b);
}

void AlignAxis(texturedef& t, const Extent& extent, const TextureSize& size, int axis, int which) {
  const double target = which == 0 ? SideOf(size, axis) / 2.0 : 0;
  t.shift[axis] = WholeShift(target - EndOf(extent, ScaleOf(t, axis), axis, which), SideOf(size, axis));
}

bool CanBeTextured(const brush& b) { return b.owner && b.owner->isModel; }

TextureAxes AxesOf(const map& m, const face& f) {
  return TextureAxisFromPlane(f.facePlane.normal, m.settings().texture_alignment);
}

bool Change(const map& m, brush& b, int index, const TextureChange& change) {
  const face& f = b.faces()[static_cast<size_t>(index)];
  if (!f.polygon) return false;
  texturedef made = change(f, AxesOf(m, f));
  b.editFaces()[static_cast<size_t>(index)].texture = std::move(made);
  return true;
}

}  // namespace

TextureChange FitTextureTo(const TextureSizes& sizes, int across, int down) {
  return [=](const face& f, const TextureAxes& axes) {
    texturedef t = f.texture;
    const TextureSize size = sizes(t.name);
    const Extent extent = ExtentOf(f, axes, t.rotate);
    const int times[] = {std::max(across, 1), std::max(down, 1)};
    for (int axis = 0; axis < 2; ++axis) {
      const double fitted = extent.size(axis) / (double(SideOf(size, axis)) * times[axis]);
      t.scale[axis] = float(t.scale[axis] < 0 ? -fitted : fitted);
      AlignAxis(t, extent, size, axis, -1);
    }
    return t;
  };
}

TextureChange AlignTextureTo(const TextureSizes& sizes, TextureEdge edge) {
  return [=](const face& f, const TextureAxes& axes) {
    texturedef t = f.texture;
    const TextureSize size = sizes(t.name);
    const Extent extent = ExtentOf(f, axes, t.rotate);
    if (edge == TextureEdge::Left) AlignAxis(t, extent, size, 0, -1);
    if (edge == TextureEdge::Right) AlignAxis(t, extent, size, 0, 1);
    if (edge == TextureEdge::Top) AlignAxis(t, extent, size, 1, -1);
    if (edge == TextureEdge::Bottom) AlignAxis(t, extent, size, 1, 1);
    if (edge == TextureEdge::Centre) {
      AlignAxis(t, extent, size, 0, 0);
      AlignAxis(t, extent, size, 1, 0);
    }
    return t;
  };
}

TextureChange QuarterTurnTexture() {
  return [](const face& f, const TextureAxes& axes) {
    texturedef t = f.texture;
    t.rotate = float(std::fmod(t.rotate + 90.0, 360.0));
    if (t.rotate < 0) t.rotate += 360;
    return PinMiddle(f, axes, t);
  };
}

TextureChange FlipTexture(int axis) {
  return [axis](const face& f, const TextureAxes& axes) {
    texturedef t = f.texture;
    t.scale[axis] = float(-ScaleOf(t, axis));
    return PinMiddle(f, axes, t);
  };
}

int ChangeTextures(map& m, bool allFaces, const TextureChange& change) {
  int changed = 0;
  if (allFaces) {
    VisitBrushes(m, BrushFilter::Selected, [&](brush& b) {
      if (!CanBeTextured(b)) return;
      for (int i = 0; i < b.numfaces(); ++i) changed += Change(m, b, i, change) ? 1 : 0;
      b.buildWindings();
    });
  } else if (brush* b = m.firstSelected(); b && CanBeTextured(*b) && b->currentFace() < b->numfaces()) {
    changed = Change(m, *b, b->currentFace(), change) ? 1 : 0;
    b->buildWindings();
  }
  if (changed > 0) m.modified = true;
  return changed;
}

namespace {

constexpr double kTouching = 0.1;      // units
constexpr double kSharedLength = 0.5;  // of an edge, units
constexpr double kPinDistance = 64;    // of the third pinned point from the edge, units

struct Edge {
  vec3 from;
  vec3 along;  // of length 1
  double length = 0;
};

Edge EdgeOf(const winding& w, int i) {
  Edge edge;
  edge.from = w[i].position();
  const vec3 whole = subtract(w[(i + 1) % w.count].position(), edge.from);
  edge.length = std::sqrt(dot(whole, whole));
  if (edge.length > 0) edge.along = scale(whole, 1 / edge.length);
  return edge;
}

// Where the point lies along the edge; far away when it is not on its line.
double PlaceOn(const Edge& edge, const vec3& point) {
  const vec3 way = subtract(point, edge.from);
  const double place = dot(way, edge.along);
  const vec3 beside = subtract(way, scale(edge.along, place));
  return std::sqrt(dot(beside, beside)) < kTouching ? place : std::numeric_limits<double>::quiet_NaN();
}

bool Overlap(const Edge& a, const winding& w, int i) {
  const double p = PlaceOn(a, w[i].position());
  const double q = PlaceOn(a, w[(i + 1) % w.count].position());
  if (std::isnan(p) || std::isnan(q)) return false;
  return std::min(a.length, std::max(p, q)) - std::max(0.0, std::min(p, q)) > kSharedLength;
}

// In the plane of the face, away from the edge: into the face, or out of it.
vec3 Across(const face& f, const Edge& edge, bool into) {
  const vec3 way = cross(f.facePlane.normal, edge.along);
  const bool inside = dot(subtract(MiddleOf(f), edge.from), way) > 0;
  return inside == into ? way : scale(way, -1);
}

std::optional<Edge> SharedEdge(const face& from, const face& to) {
  for (int i = 0; i < from.polygon->count; ++i) {
    const Edge shared = EdgeOf(*from.polygon, i);
    if (shared.length < kSharedLength) continue;
    for (int k = 0; k < to.polygon->count; ++k) {
      if (Overlap(shared, *to.polygon, k)) return shared;
    }
  }
  return std::nullopt;
}

// What lies beyond the edge in the plane of the first face is folded onto the other.
FittedTexture RunOn(const map& m, const face& from, const face& to, const Edge& edge) {
  const TextureAxes axes = AxesOf(m, from);
  const auto pin = [&](const vec3& at, const vec3& unfolded) -> PinnedPoint {
    return {at, TexCoordsAt(from.texture, axes, unfolded)};
  };
  const vec3 far = add(edge.from, scale(edge.along, kPinDistance));
  const vec3 onTo = add(edge.from, scale(Across(to, edge, true), kPinDistance));
  const vec3 beyond = add(edge.from, scale(Across(from, edge, false), kPinDistance));
  return FitTexture(from.texture, AxesOf(m, to),
                    {pin(edge.from, edge.from), pin(far, far), pin(onTo, beyond)});
}

}  // namespace

WrappedTextures WrapTexture(map& m) {
  WrappedTextures wrapped;
  const brush* current = m.firstSelected();
  if (!current || !CanBeTextured(*current) || current->currentFace() >= current->numfaces()) return wrapped;
  const face& from = current->faces()[static_cast<size_t>(current->currentFace())];
  if (!from.polygon) return wrapped;
  struct Found {
    brush* b;
    int index;
    texturedef definition;
  };
  std::vector<Found> found;
  VisitBrushes(m, BrushFilter::Selected, [&](brush& b) {
    if (!CanBeTextured(b)) return;
    for (int i = 0; i < b.numfaces(); ++i) {
      const face& to = b.faces()[static_cast<size_t>(i)];
      if (&to == &from || !to.polygon) continue;
      const std::optional<Edge> edge = SharedEdge(from, to);
      if (!edge) continue;
      const FittedTexture fitted = RunOn(m, from, to, *edge);
      found.push_back({&b, i, fitted.definition});
      wrapped.inexact += fitted.exact ? 0 : 1;
    }
  });
  for (Found& each : found) {
    for (float& shift : each.definition.shift) shift = float(RoundHalfAway(shift));
    each.b->editFaces()[static_cast<size_t>(each.index)].texture = each.definition;
  }
  // They stand brush by brush.
  for (size_t i = 0; i < found.size(); ++i) {
    if (i + 1 == found.size() || found[i + 1].b != found[i].b) found[i].b->buildWindings();
  }
  wrapped.faces = static_cast<int>(found.size());
  if (wrapped.faces > 0) m.modified = true;
  return wrapped;
}

}  // namespace velk
