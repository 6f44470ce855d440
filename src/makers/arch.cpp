#include "makers/arch.h"

#include <algorithm>
#include <cmath>
#include <numbers>

#include "base/text.h"

namespace velk {
namespace {

constexpr double kLowestPost = 1;

// The measures of an arch, along its span (u), its depth (v) and upright.
class Arch {
 public:
  Arch(const Seed& seed, const ArchParams& params, bool careful)
      : seed_(seed), onX_(params.onX), careful_(careful), stones_(std::max(params.stones, kFewestStones)) {
    const double low = seed.mins[u()];
    const double span = seed.maxs[u()] - low;
    const int percent = std::clamp(params.post, 1, kMostPostPercent);
    post_ = RoundComputed(percent * 0.01 * span);
    radius_ = (span - 2 * post_) * 0.5;
    postHeight_ = double(seed.maxs.z) - seed.mins.z - (post_ + radius_);
    spring_ = seed.mins.z + postHeight_;
    centre_ = (low + seed.maxs[u()]) * 0.5;
    if (careful) {
      spring_ = std::floor(spring_);
    } else {
      centre_ = RoundHalfAway(centre_);
    }
  }

  bool tooShort() const { return postHeight_ < kLowestPost; }

  void addTo(Pieces& pieces) const {
    for (int j = 0; j < stones_ && !pieces.full(); ++j) addStone(pieces, j);
    addPost(pieces, seed_.mins[u()], seed_.mins[u()] + post_);
    addPost(pieces, seed_.maxs[u()] - post_, seed_.maxs[u()]);
  }

 private:
  int u() const { return onX_ ? 1 : 0; }
  int v() const { return 1 - u(); }

  vec3 at(double along, double across, double z) const {
    vec3 p{0, 0, float(z)};
    p[u()] = float(along);
    p[v()] = float(across);
    return p;
  }

  // An edge of a stone from one end of the seed's depth to the other.
  struct Edge {
    vec3 min;
    vec3 max;
  };
  Edge edge(double radius, double angle) const {
    const double along = RoundComputed(centre_ + radius * std::sin(angle));
    const double z = RoundComputed(spring_ + radius * std::cos(angle));
    return {at(along, seed_.mins[v()], z), at(along, seed_.maxs[v()], z)};
  }

  // The face round these corners by the first three; with care by the first three that are not in line, for
  // a small stone's corners may coincide.
  FacePoints end(const std::array<vec3, 4>& corners) const {
    for (size_t i = 0; i < corners.size() && careful_; ++i) {
      const FacePoints points{corners[i], corners[(i + 1) % 4], corners[(i + 2) % 4]};
      if (plane unused; PlaneFromPoints(points[0], points[1], points[2], unused)) return points;
    }
    return {corners[0], corners[1], corners[2]};
  }

  void addStone(Pieces& pieces, int index) const {
    const double step = std::numbers::pi / stones_;
    const double a = 3 * std::numbers::pi / 2 + index * step;
    const double b = a + step;
    const Edge ia = edge(radius_, a);
    const Edge oa = edge(radius_ + post_, a);
    const Edge ib = edge(radius_, b);
    const Edge ob = edge(radius_ + post_, b);
    FacePoints faces[] = {{ib.max, ia.max, ia.min},
                          {ob.min, oa.min, oa.max},
                          end({ob.max, oa.max, ia.max, ib.max}),
                          end({ib.min, ia.min, oa.min, ob.min}),
                          {ob.max, ib.max, ib.min},
                          {oa.min, ia.min, ia.max}};
    if (onX_) {  // the axes change places, which turns every face round
      for (FacePoints& points : faces) std::swap(points[0], points[1]);
    }
    pieces.addSolid(faces);
  }

  void addPost(Pieces& pieces, double from, double to) const {
    pieces.addBox(at(from, seed_.mins[v()], seed_.mins.z), at(to, seed_.maxs[v()], spring_));
  }

  const Seed& seed_;
  bool onX_;
  bool careful_;
  int stones_;
  double post_;    // width
  double radius_;  // of the opening
  double postHeight_;
  double spring_;  // where the stones stand on the posts
  double centre_;
};

}  // namespace

ArchParams Limited(const ArchParams& params) {
  return {std::max(params.stones, kFewestStones), std::max(params.post, 1), params.onX};
}

std::optional<Made> MakeArch(const Seed& seed, const ArchParams& params, const MakerRules& rules) {
  const Seed fitted = FittedSeed(seed, rules);
  const Arch arch(fitted, params, rules.careful);
  if (arch.tooShort()) return std::nullopt;
  Pieces pieces(fitted, KeepingBy(rules));
  arch.addTo(pieces);
  return pieces.take();
}

}  // namespace velk
