// Leak points: the path through a map that a compiler found from the void to an entity.
#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "base/paths.h"
#include "geometry/vec3.h"

namespace velk {

inline constexpr const char* kLeakFilter = "Leak Points Files (*.pts)|*.pts|";

// Points beyond these are left out.
inline constexpr size_t kMostLeakPoints = 2001;

// The points of a leak file: triples of numbers, up to the first that does not read.
std::vector<vec3> ReadLeakPoints(std::string_view text);
// None when there is no such file.
std::vector<vec3> ReadLeakFile(const Paths& paths, std::string_view name);

// The points that views show, whichever map is current.
class LeakTrail {
 public:
  // Takes other points, and shows them when there are any.
  void show(std::vector<vec3> points, std::string file);
  void hide() { shown_ = false; }
  void clear() { *this = {}; }

  bool shown() const { return shown_; }
  // Empty when they are not shown.
  std::span<const vec3> points() const {
    return shown_ ? std::span<const vec3>(points_) : std::span<const vec3>();
  }
  const std::string& file() const { return file_; }

  // The point a camera that flies along the trail is at; -1 before its first step. A step goes round at the
  // ends; there must be points.
  int current() const { return current_; }
  const vec3& step(int by);

 private:
  std::vector<vec3> points_;
  std::string file_;
  int current_ = -1;
  bool shown_ = false;
};

}  // namespace velk
