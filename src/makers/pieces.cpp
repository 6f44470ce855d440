#include "makers/pieces.h"

#include <algorithm>
#include <cmath>

#include "base/error.h"
#include "ops/solids/solid.h"

namespace velk {
namespace {

// Pieces built at most, valid or not: any number of steps or strips may be asked for.
constexpr int kMostTries = 16 * MAX_ENTITY_BRUSHES;
// Points farther away belong to no brush that is valid, and planes through them may not be numbers.
constexpr float kFarthestPoint = 2147483648.0f;

// Cubic units; what has less is flat.
constexpr double kLeastVolume = 0.1;

bool IsBody(const brush& b) { return IsSolid(b) && Volume(b) >= kLeastVolume && IsClosed(b); }

bool InReach(std::span<const FacePoints> faces) {
  for (const FacePoints& points : faces) {
    for (const vec3& p : points) {
      for (int axis = 0; axis < 3; ++axis) {
        if (!(std::fabs(p[axis]) <= kFarthestPoint)) return false;
      }
    }
  }
  return true;
}

// A brush that ends in a fatal error is invalid like others.
void BuildOrSpoil(brush& b) {
  const ErrorTrap trap;
  try {
    b.buildWindings();
  } catch (const TrappedError&) {
    b.invalid = true;
  }
}

}  // namespace

std::unique_ptr<brush> Pieces::newBrush() const {
  auto made = std::make_unique<brush>();
  made->setGroup(seed_.group);
  return made;
}

void Pieces::addBox(const vec3& mins, const vec3& maxs) {
  auto made = newBrush();
  made->setBox(mins, maxs, seed_.texture);
  keep(std::move(made));
}

void Pieces::addSolid(std::span<const FacePoints> faces) {
  auto made = newBrush();
  std::vector<face>& list = made->editFaces();
  list.resize(faces.size());
  for (size_t i = 0; i < faces.size(); ++i) {
    std::ranges::copy(faces[i], list[i].planepts);
    list[i].texture = seed_.texture;
  }
  if (!InReach(faces)) {
    made->invalid = true;
  } else if (keeping_ == Keeping::Solid) {
    BuildOrSpoil(*made);
  } else {
    made->buildWindings();
  }
  keep(std::move(made));
}

void Pieces::keep(std::unique_ptr<brush> b) {
  const bool wanted = keeping_ == Keeping::All || (keeping_ == Keeping::Valid ? !b->invalid : IsBody(*b));
  if (wanted) {
    made_.brushes.push_back(std::move(b));
  } else {
    ++made_.leftOut;
  }
  made_.tooMany = ++tries_ >= kMostTries || made_.brushes.size() > MAX_ENTITY_BRUSHES;
}

}  // namespace velk
