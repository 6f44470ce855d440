// Collects the brushes that a maker builds.
#pragma once

#include <array>
#include <span>

#include "makers/made.h"
#include "makers/seed.h"

namespace velk {

// Three points of a face, seen from outside of its brush: (p0 - p1) x (p2 - p1) points out.
using FacePoints = std::array<vec3, 3>;

// Which brushes stay; the others are counted.
enum class Keeping { All, Valid, Solid };
inline Keeping KeepingBy(const MakerRules& rules) { return rules.careful ? Keeping::Solid : Keeping::Valid; }

class Pieces {
 public:
  // All get the seed's group and texture.
  Pieces(const Seed& seed, Keeping keeping) : seed_(seed), keeping_(keeping) {}

  void addBox(const vec3& mins, const vec3& maxs);
  // Unless only solid pieces are kept, one that cannot be built may be fatal; see brush::buildWindings.
  void addSolid(std::span<const FacePoints> faces);
  // More are of no use: no entity holds so many.
  bool full() const { return made_.tooMany; }
  // Counts pieces that need not be built to know that they would be left out.
  void leaveOut(int count) { made_.leftOut += count; }
  Made take() { return std::move(made_); }

 private:
  std::unique_ptr<brush> newBrush() const;
  void keep(std::unique_ptr<brush> b);

  const Seed& seed_;
  Keeping keeping_;
  int tries_ = 0;
  Made made_;
};

}  // namespace velk
