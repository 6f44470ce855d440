#include "makers/revolve.h"

#include <algorithm>
#include <climits>

namespace velk {

RevolveParams Limited(const RevolveParams& params) {
  RevolveParams limited{std::clamp(params.strips, 1, kMostRevolveStrips),
                        std::clamp(params.inner, 1, INT_MAX - 1), params.outer};
  limited.outer = std::max(limited.outer, limited.inner + 1);
  return limited;
}

Made MakeRevolved(const Seed& seed, const Profile& profile, const RevolveParams& params,
                  const MakerRules& rules) {
  const LatheParams lathe{std::clamp(params.strips, kFewestSectors, kMostSectors), params.inner,
                          params.outer};
  return Lathe(seed, profile, lathe, rules);
}

}  // namespace velk
