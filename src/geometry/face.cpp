#include "geometry/face.h"

#include <algorithm>

namespace velk {

face::face(const face& other) : texture(other.texture), facePlane(other.facePlane), shade(other.shade) {
  std::copy(std::begin(other.planepts), std::end(other.planepts), planepts);
}

face& face::operator=(const face& other) {
  if (this != &other) *this = face(other);
  return *this;
}

}  // namespace velk
