// Vectors of three floats, in map units with +z up. Arithmetic is done in double and stored as float.
#pragma once

#include <cmath>

namespace velk {

struct vec3 {
  float x = 0;
  float y = 0;
  float z = 0;

  float& operator[](int axis) { return (&x)[axis]; }
  float operator[](int axis) const { return (&x)[axis]; }
};

inline double dot(const vec3& a, const vec3& b) {
  return double(a.x) * b.x + double(a.y) * b.y + double(a.z) * b.z;
}
inline vec3 cross(const vec3& a, const vec3& b) {
  return {float(double(a.y) * b.z - double(a.z) * b.y), float(double(a.z) * b.x - double(a.x) * b.z),
          float(double(a.x) * b.y - double(a.y) * b.x)};
}
inline vec3 subtract(const vec3& a, const vec3& b) {
  return {float(double(a.x) - b.x), float(double(a.y) - b.y), float(double(a.z) - b.z)};
}
inline vec3 add(const vec3& a, const vec3& b) {
  return {float(double(a.x) + b.x), float(double(a.y) + b.y), float(double(a.z) + b.z)};
}
inline vec3 scale(const vec3& a, double k) { return {float(a.x * k), float(a.y * k), float(a.z * k)}; }
// a + k·b
inline vec3 MultiplyAdd(const vec3& a, double k, const vec3& b) {
  return {float(a.x + k * b.x), float(a.y + k * b.y), float(a.z + k * b.z)};
}
inline double length(const vec3& a) { return std::sqrt(dot(a, a)); }
// In place; the length must not be zero.
inline void normalize(vec3& a) {
  const double len = length(a);
  a = {float(a.x / len), float(a.y / len), float(a.z / len)};
}
// Exactly equal in all components.
inline bool VecEqual(const vec3& a, const vec3& b) { return a.x == b.x && a.y == b.y && a.z == b.z; }

}  // namespace velk
