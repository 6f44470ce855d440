#include "build/leak_trail.h"

#include <cmath>
#include <optional>

#include "base/files.h"
#include "base/numbers.h"
#include "base/text.h"

namespace velk {
namespace {

std::optional<vec3> TakePoint(std::string_view& text) {
  vec3 point;
  for (int axis = 0; axis < 3; ++axis) {
    const std::optional<float> number = TakeFloat(text);
    if (!number) return std::nullopt;
    point[axis] = *number;
  }
  return point;
}

}  // namespace

std::vector<vec3> ReadLeakPoints(std::string_view text) {
  std::vector<vec3> points;
  while (points.size() < kMostLeakPoints) {
    const std::optional<vec3> point = TakePoint(text);
    if (!point) break;
    points.push_back(*point);
  }
  return points;
}

std::vector<vec3> ReadLeakFile(const Paths& paths, std::string_view name) {
  const ReadResult read = ReadFile(paths.native(name));
  return read.ok ? ReadLeakPoints(read.contents) : std::vector<vec3>();
}

void LeakTrail::show(std::vector<vec3> points, std::string file) {
  points_ = std::move(points);
  file_ = std::move(file);
  current_ = -1;
  shown_ = !points_.empty();
}

const vec3& LeakTrail::step(int by) {
  const int count = static_cast<int>(points_.size());
  current_ = current_ < 0 ? (by > 0 ? 0 : count - 1) : (current_ + by + count) % count;
  return points_[static_cast<size_t>(current_)];
}

}  // namespace velk
