#include "makers/sphere.h"

#include <algorithm>
#include <climits>
#include <cmath>
#include <numbers>

namespace velk {
namespace {

// Only the ends of the half circle are this near to the axis.
constexpr double kExactPole = 1e-6;

Profile HalfCircle(int points) {
  Profile profile;
  for (int k = 0; k < points; ++k) {
    const double angle = -std::numbers::pi / 2 + k * std::numbers::pi / (points - 1);
    profile.push_back({std::cos(angle), std::sin(angle)});
  }
  return profile;
}

}  // namespace

SphereParams Limited(const SphereParams& params) {
  SphereParams limited{std::clamp(params.horizontal, 1, kMostStrips),
                       std::clamp(params.vertical, 1, kMostStrips), std::clamp(params.inner, 1, INT_MAX - 1),
                       params.outer};
  limited.outer = std::max(limited.outer, limited.inner + 1);
  return limited;
}

Made MakeSphere(const Seed& seed, const SphereParams& params, const MakerRules& rules) {
  LatheParams lathe{std::clamp(params.horizontal, kFewestSectors, kMostSectors), params.inner, params.outer};
  if (rules.careful) lathe.poleRadius = kExactPole;
  return Lathe(seed, HalfCircle(std::clamp(params.vertical, 1, kMostStrips) + 1), lathe, rules);
}

}  // namespace velk
