#include "model/brush_method.h"

#include <algorithm>
#include <array>

#include "model/entity.h"

namespace velk {
namespace {

bool Inside(const brush& b, const vec3& mins, const vec3& maxs) {
  for (int axis = 0; axis < 3; ++axis) {
    if (b.mins[axis] < mins[axis] || b.maxs[axis] > maxs[axis]) return false;
  }
  return true;
}

bool Overlaps(const brush& b, const vec3& mins, const vec3& maxs) {
  for (int axis = 0; axis < 3; ++axis) {
    if (mins[axis] >= b.maxs[axis] || b.mins[axis] >= maxs[axis]) return false;
  }
  return true;
}

BrushMethod::Action ActionOf(Method number) {
  switch (number) {
    case Method::Deselect:
      return [](brush& b) { b.select(false); };
    case Method::ReverseFaces:
      return [](brush& b) { b.reverseFaces(); };
    case Method::Delete:
      return [](brush& b) { DestroyBrush(b); };
    case Method::Select:
      return [](brush& b) { b.select(true); };
    default:
      return {};
  }
}

}  // namespace

BrushMethod::BrushMethod(Method number) : BrushMethod(number, ActionOf(number)) {}

BrushMethod BrushMethod::widenBounds(vec3& mins, vec3& maxs) {
  return {Method::WidenBounds, [&mins, &maxs](brush& b) {
            if (b.numfaces() > 3) WidenBounds(mins, maxs, b);
          }};
}

BrushMethod BrushMethod::transform(const float m[3][3], const vec3& centre) {
  std::array<std::array<float, 3>, 3> rows;
  for (size_t i = 0; i < 3; ++i) std::copy_n(m[i], 3, rows[i].begin());
  return {Method::Transform, [rows, centre](brush& b) {
            float matrix[3][3];
            for (size_t i = 0; i < 3; ++i) std::copy_n(rows[i].begin(), 3, matrix[i]);
            b.transform(matrix, centre);
          }};
}

BrushMethod BrushMethod::moveTo(entity& target) {
  return {Method::MoveToTarget, [&target](brush& b) { MoveToEntity(b, target); }};
}

BrushMethod BrushMethod::selectInside(const vec3& mins, const vec3& maxs) {
  return {Method::SelectInside, [mins, maxs](brush& b) {
            if (Inside(b, mins, maxs)) b.select(true);
          }};
}

BrushMethod BrushMethod::selectTouching(const vec3& mins, const vec3& maxs) {
  return {Method::SelectTouching, [mins, maxs](brush& b) {
            if (Overlaps(b, mins, maxs)) b.select(true);
          }};
}

BrushMethod BrushMethod::translate(const vec3& offset) {
  return {Method::Translate, [offset](brush& b) { b.translate(offset); }};
}

BrushMethod BrushMethod::carriedOut(Method number, Action by) {
  if (number != Method::Cut && number != Method::Split) return {number, std::move(by)};
  return {number, [by = std::move(by)](brush& b) {
            by(b);
            if (b.invalid) DestroyBrush(b);
          }};
}

void WidenBounds(vec3& mins, vec3& maxs, const brush& by) {
  for (int axis = 0; axis < 3; ++axis) {
    mins[axis] = std::min(mins[axis], by.mins[axis]);
    maxs[axis] = std::max(maxs[axis], by.maxs[axis]);
  }
}

}  // namespace velk
