#include "ops/transform.h"

#include <array>
#include <cmath>
#include <numbers>
#include <optional>
#include <utility>

#include "base/text.h"
#include "geometry/texture_fit.h"
#include "model/visit.h"
#include "ops/solids/split_by_face.h"

namespace velk {
namespace {

constexpr float kNoBound = 32767;
constexpr int kFewestBoundFaces = 4;
constexpr double kSmallestFactor = 0.01;

Matrix Product(const Matrix& a, const Matrix& b) {
  Matrix product;
  for (int row = 0; row < 3; ++row) {
    for (int column = 0; column < 3; ++column) {
      double sum = 0;
      for (int i = 0; i < 3; ++i) sum += double(a.m[row][i]) * b.m[i][column];
      product.m[row][column] = float(sum);
    }
  }
  return product;
}

double Determinant(const Matrix& a) {
  const vec3 x{a.m[0][0], a.m[0][1], a.m[0][2]};
  const vec3 y{a.m[1][0], a.m[1][1], a.m[1][2]};
  return dot(cross(x, y), {a.m[2][0], a.m[2][1], a.m[2][2]});
}

struct Place {
  double at[3];

  vec3 stored() const { return {float(at[0]), float(at[1]), float(at[2])}; }
  vec3 rounded() const {
    return {float(RoundHalfAway(at[0])), float(RoundHalfAway(at[1])), float(RoundHalfAway(at[2]))};
  }
};

Place Moved(const vec3& p, const Transform& t) {
  const double x = double(p.x) - t.centre.x;
  const double y = double(p.y) - t.centre.y;
  const double z = double(p.z) - t.centre.z;
  Place place;
  for (int i = 0; i < 3; ++i) {
    const float* row = t.matrix.m[i];
    place.at[i] = row[0] * x + row[1] * y + row[2] * z + t.centre[i];
  }
  return place;
}

int TransformOrMove(brush& b, const Transform& transform) {
  if (b.owner->isModel) return TransformBrush(b, transform);
  MoveBox(b, transform);
  return 0;
}

using Pins = std::array<PinnedPoint, 3>;

// The plane points of a face with what its texture shows there; none of a degenerate face.
std::optional<Pins> PinsOf(const face& f, int alignment) {
  plane facePlane;
  if (!PlaneFromPoints(f.planepts[0], f.planepts[1], f.planepts[2], facePlane)) return std::nullopt;
  const TextureAxes axes = TextureAxisFromPlane(facePlane.normal, alignment);
  Pins pins;
  for (size_t i = 0; i < pins.size(); ++i) pins[i].texel = TexCoordsAt(f.texture, axes, f.planepts[i]);
  return pins;
}

// After the points were moved. False when five numbers cannot carry the texture along.
bool CarryTexture(face& f, Pins pins, int alignment) {
  plane facePlane;
  if (!PlaneFromPoints(f.planepts[0], f.planepts[1], f.planepts[2], facePlane)) return true;
  for (size_t i = 0; i < pins.size(); ++i) pins[i].at = f.planepts[i];
  const FittedTexture fitted = FitTexture(f.texture, TextureAxisFromPlane(facePlane.normal, alignment), pins);
  f.texture = fitted.definition;
  return fitted.exact;
}

// The exact transforms, of which careful tools spare the boxes of point entities.
Outcome Apply(map& m, const Matrix& matrix, bool reverse, bool careful, const char* status) {
  const entity* current = m.currentEntity();
  int left = 0;
  if (current && (careful || current->isModel)) {
    const Transform transform{matrix, SelectionPivot(m), false, reverse};
    m.modified = true;
    VisitBrushes(m, BrushFilter::Selected, [&](brush& b) {
      left += careful ? TransformOrMove(b, transform) : TransformBrush(b, transform);
    });
  }
  return Outcome::Drawn(Redraw::All, WithTexturesLeft(status, left));
}

}  // namespace

Matrix MirrorMatrix(int axis) {
  Matrix matrix;
  matrix.m[axis][axis] = -1;
  return matrix;
}

Matrix QuarterTurnMatrix(int axis) {
  const int a = axis == 0 ? 1 : 0;
  const int b = axis == 2 ? 1 : 2;
  Matrix matrix;
  std::swap(matrix.m[a], matrix.m[b]);
  for (float& value : matrix.m[b]) value = value == 0 ? 0 : -value;
  return matrix;
}

Matrix TurnMatrix(int axis, double degrees) {
  const double angle = degrees * std::numbers::pi / 180;
  const int a = (axis + 1) % 3;
  const int b = (axis + 2) % 3;
  Matrix matrix;
  matrix.m[a][a] = matrix.m[b][b] = float(std::cos(angle));
  matrix.m[a][b] = float(std::sin(angle));
  matrix.m[b][a] = -matrix.m[a][b];
  return matrix;
}

Matrix RotationMatrix(double roll, double pitch, double yaw) {
  return Product(TurnMatrix(1, roll), Product(TurnMatrix(2, yaw), TurnMatrix(0, pitch)));
}

Matrix ScaleMatrix(double x, double y, double z) {
  const double factors[] = {x, y, z};
  Matrix matrix;
  for (int i = 0; i < 3; ++i) {
    if (std::fabs(factors[i]) >= kSmallestFactor) matrix.m[i][i] = float(factors[i]);
  }
  return matrix;
}

Transform RoundedTransform(const Matrix& matrix, const vec3& centre, bool careful) {
  return {matrix, centre, true, careful && Determinant(matrix) < 0, careful};
}

std::string WithTexturesLeft(std::string status, int faces) {
  if (faces == 0) return status;
  const std::string left = Format("%i faces could not carry their texture along...", faces);
  return status.empty() ? left : status + " " + left;
}

int TransformBrush(brush& b, const Transform& t) {
  const bool lock = b.locksTextures();
  const int alignment = lock ? b.owner->parent().settings().texture_alignment : 0;
  int left = 0;
  for (face& f : b.editFaces()) {
    const std::optional<Pins> pins = lock ? PinsOf(f, alignment) : std::nullopt;
    for (vec3& p : f.planepts) p = t.whole ? Moved(p, t).rounded() : Moved(p, t).stored();
    if (pins && !CarryTexture(f, *pins, alignment)) ++left;
    if (t.reverse) std::swap(f.planepts[0], f.planepts[2]);
  }
  b.buildWindings();
  return left;
}

void MoveBox(brush& b, const Transform& t) {
  const vec3 middle = scale(add(b.mins, b.maxs), 0.5);
  Place offset = Moved(middle, t);
  for (int i = 0; i < 3; ++i) offset.at[i] -= middle[i];
  b.translate(offset.rounded());
}

vec3 SelectionPivot(map& m) {
  vec3 mins{kNoBound, kNoBound, kNoBound};
  vec3 maxs{-kNoBound, -kNoBound, -kNoBound};
  VisitBrushes(m, BrushFilter::Selected, [&](const brush& b) {
    if (b.numfaces() >= kFewestBoundFaces) WidenBounds(mins, maxs, b);
  });
  vec3 pivot;
  for (int i = 0; i < 3; ++i) {
    pivot[i] = float(Snap((double(mins[i]) + maxs[i]) / 2, m.settings().gridsize));
  }
  return pivot;
}

Outcome MirrorSelection(map& m, int axis, bool careful) {
  return Apply(m, MirrorMatrix(axis), true, careful, kMirrored[axis]);
}

Outcome QuarterTurnSelection(map& m, int axis, bool careful) {
  return Apply(m, QuarterTurnMatrix(axis), false, careful, kQuarterTurned[axis]);
}

Outcome ApplyToSelection(map& m, const Transform& transform, std::string status) {
  m.modified = true;
  int left = 0;
  int tooThin = 0;
  std::vector<face> before;
  VisitBrushes(m, BrushFilter::Every, [&](brush& b) {
    if (!b.selected()) return;
    const bool keeps = transform.keepThin && !b.invalid;
    if (keeps) before = b.faces();
    const int leftHere = TransformOrMove(b, transform);
    if (!b.invalid) {
      left += leftHere;
    } else if (keeps) {
      b.editFaces() = before;
      b.buildWindings();
      ++tooThin;
    } else {
      DestroyBrush(b);
    }
  });
  if (tooThin > 0) status += Format(kTooThinToTransform, tooThin);
  return Outcome::Drawn(Redraw::All, WithTexturesLeft(std::move(status), left));
}

std::vector<std::unique_ptr<brush>> TransformedCopies(map& m, const Transform& transform) {
  std::vector<std::unique_ptr<brush>> copies;
  VisitBrushes(m, BrushFilter::Every, [&](const brush& b) {
    if (!b.selected()) return;
    copies.push_back(FreshCopy(b));
    TransformOrMove(*copies.back(), transform);
  });
  return copies;
}

Outcome RotateSelection(map& m, int roll, int pitch, int yaw, bool careful) {
  if (m.totalSelected() == 0) return Outcome::Said(kMustHaveSelected);
  const Matrix matrix = RotationMatrix(roll, pitch, yaw);
  return ApplyToSelection(m, RoundedTransform(matrix, SelectionPivot(m), careful), "");
}

Outcome ScaleSelection(map& m, double x, double y, double z, bool careful) {
  if (m.totalSelected() == 0) return Outcome::Said(kMustHaveSelected);
  const Matrix matrix = ScaleMatrix(x, y, z);
  return ApplyToSelection(m, RoundedTransform(matrix, SelectionPivot(m), careful), kScaled);
}

}  // namespace velk
