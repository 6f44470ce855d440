#include "camera/culling.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace velk {

namespace {

// Added to every half extent against rounding, world units.
constexpr float kMargin = 0.0625f;
// Nearer than this a brush counts as all over the picture.
constexpr float kNearDepth = 1;
// Boxes that begin nearer to the eye than this are in its way, world units.
constexpr double kInTheWay = 32;

float Reach(const vec3& axis, const vec3& half) {
  return std::abs(axis.x) * half.x + std::abs(axis.y) * half.y + std::abs(axis.z) * half.z;
}

float Along(const vec3& axis, const vec3& offset) {
  return axis.x * offset.x + axis.y * offset.y + axis.z * offset.z;
}

}  // namespace

bool IsInTheWay(const RenderScene& scene, const brush& b) {
  if (!scene.settings.solid_entities || !b.owner || b.owner->isModel || b.invalid) return false;
  const vec3& eye = scene.model.activeCamera().origin;
  double squares = 0;
  for (int axis = 0; axis < 3; ++axis) {
    const double gap = std::max({0.0, double(b.mins[axis]) - eye[axis], double(eye[axis]) - b.maxs[axis]});
    squares += gap * gap;
  }
  return squares < kInTheWay * kInTheWay;
}

const brush* ShownShape(const RenderScene& scene, const brush& b) {
  return b.selected() && scene.preview ? scene.preview(b) : &b;
}

BrushCuller::BrushCuller(const FrameView& view)
    : view_(view), outside_(view.projection.cutsExactly ? 0 : float(SIDE_EPSILON)) {
  const Eye& eye = view.eye;
  for (int axis = 0; axis < 3; ++axis) {
    for (int i = 0; i < 4; ++i) {
      const double* normal = view.projection.frustum[i].normal;
      const float component =
          float(normal[0] * eye.right[axis] + normal[1] * eye.up[axis] + normal[2] * eye.forward[axis]);
      planes_[axis][i] = component;
      planeSizes_[axis][i] = std::abs(component);
    }
  }
}

bool BrushCuller::place(const brush& b, BrushDraw& draw) const {
  if (b.invalid) {
    // Its bounds say nothing, yet some of its faces may have polygons.
    fillPicture(draw);
    draw.onBorder = true;
    draw.depth = 0;
    return true;
  }
  const vec3& eye = view_.eye.origin;
  const vec3 half{(b.maxs.x - b.mins.x) * 0.5f + kMargin, (b.maxs.y - b.mins.y) * 0.5f + kMargin,
                  (b.maxs.z - b.mins.z) * 0.5f + kMargin};
  const vec3 centre{(b.mins.x + b.maxs.x) * 0.5f - eye.x, (b.mins.y + b.maxs.y) * 0.5f - eye.y,
                    (b.mins.z + b.maxs.z) * 0.5f - eye.z};
  const Four middle = planes_[0] * centre.x + planes_[1] * centre.y + planes_[2] * centre.z;
  const Four reach = planeSizes_[0] * half.x + planeSizes_[1] * half.y + planeSizes_[2] * half.z;
  const Four farthest = middle + reach;
  const Four closest = middle - reach;
  draw.onBorder = false;
  for (int i = 0; i < 4; ++i) {
    if (farthest[i] <= outside_) return false;
    draw.onBorder |= closest[i] < 0;
  }
  findOutline(centre, half, draw);
  return draw.left < draw.right && draw.top < draw.bottom;
}

PixelCuller::PixelCuller(const FrameView& view, int px, int py) : eye_(view.eye.origin) {
  constexpr int kSpare = 3;  // pixels to all sides, for all that is rounded on the way
  const Projection& p = view.projection;
  const double left = (px - kSpare - p.halfWidth) / p.halfWidth;
  const double right = (px + 1 + kSpare - p.halfWidth) / p.halfWidth;
  const double top = (p.centerY - py + kSpare) / p.halfWidth;
  const double bottom = (p.centerY - py - 1 - kSpare) / p.halfWidth;
  const double normals[4][3] = {{-1, 0, right}, {1, 0, -left}, {0, -1, top}, {0, 1, -bottom}};
  for (int axis = 0; axis < 3; ++axis) {
    for (int i = 0; i < 4; ++i) {
      const double* n = normals[i];
      const double along =
          n[0] * view.eye.right[axis] + n[1] * view.eye.up[axis] + n[2] * view.eye.forward[axis];
      planes_[axis][i] = float(along);
      planeSizes_[axis][i] = std::abs(float(along));
    }
  }
}

bool PixelCuller::mayShow(const brush& b) const {
  constexpr float kAround = 2;  // so close to the eye the cuts of polygons are too coarse to go by
  if (b.invalid) return true;
  const vec3 half{(b.maxs.x - b.mins.x) * 0.5f + kMargin, (b.maxs.y - b.mins.y) * 0.5f + kMargin,
                  (b.maxs.z - b.mins.z) * 0.5f + kMargin};
  const vec3 centre{(b.mins.x + b.maxs.x) * 0.5f - eye_.x, (b.mins.y + b.maxs.y) * 0.5f - eye_.y,
                    (b.mins.z + b.maxs.z) * 0.5f - eye_.z};
  const Four farthest = planes_[0] * centre.x + planes_[1] * centre.y + planes_[2] * centre.z +
                        planeSizes_[0] * half.x + planeSizes_[1] * half.y + planeSizes_[2] * half.z;
  if (farthest[0] >= 0 && farthest[1] >= 0 && farthest[2] >= 0 && farthest[3] >= 0) return true;
  return std::abs(centre.x) <= half.x + kAround && std::abs(centre.y) <= half.y + kAround &&
         std::abs(centre.z) <= half.z + kAround;
}

void BrushCuller::fillPicture(BrushDraw& draw) const {
  draw.left = draw.top = 0;
  draw.right = view_.projection.width;
  draw.bottom = view_.projection.height;
  draw.nearest = std::numeric_limits<float>::infinity();
}

// The box of the projected corners, widened by the picture's rounding.
void BrushCuller::findOutline(const vec3& centre, const vec3& half, BrushDraw& draw) const {
  const Projection& projection = view_.projection;
  const Eye& eye = view_.eye;
  const float z = Along(eye.forward, centre);
  const float nearestDepth = z - Reach(eye.forward, half);
  draw.depth = z;
  fillPicture(draw);
  if (nearestDepth < kNearDepth) return;
  draw.nearest = projection.halfWidth / nearestDepth * 1.0001f;

  constexpr Four kFirstSigns{1, -1, 1, -1};
  constexpr Four kSecondSigns{1, 1, -1, -1};
  const auto corners = [&](const vec3& axis, float third) {
    return Along(axis, centre) + kFirstSigns * (axis.x * half.x) + kSecondSigns * (axis.y * half.y) +
           third * (axis.z * half.z);
  };
  float left = 1e9f, right = -1e9f, top = 1e9f, bottom = -1e9f;
  for (const float third : {-1.0f, 1.0f}) {
    const Four w = projection.halfWidth / corners(eye.forward, third);
    const Four x = corners(eye.right, third) * w;
    const Four y = corners(eye.up, third) * w;
    for (int i = 0; i < 4; ++i) {
      left = std::min(left, x[i]);
      right = std::max(right, x[i]);
      bottom = std::max(bottom, -y[i]);
      top = std::min(top, -y[i]);
    }
  }
  const auto column = [&](float value) { return ColumnOf(value + projection.halfWidth); };
  const auto row = [&](float value) { return ColumnOf(value + projection.centerY); };
  draw.left = std::clamp(column(left) - 2, 0, projection.width);
  draw.right = std::clamp(column(right) + 3, 0, projection.width);
  draw.top = std::clamp(row(top) - 2, 0, projection.height);
  draw.bottom = std::clamp(row(bottom) + 3, 0, projection.height);
}

}  // namespace velk
