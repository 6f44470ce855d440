#include "makers/lathe.h"

#include <cmath>
#include <numbers>

#include "base/text.h"

namespace velk {
namespace {

vec3 Middle(const Seed& seed) {
  vec3 middle;
  for (int axis = 0; axis < 3; ++axis)
    middle[axis] = float(Truncate((double(seed.mins[axis]) + seed.maxs[axis]) / 2));
  return middle;
}

// The profile's points at every sector on one of the two radii.
class Shell {
 public:
  Shell(const Profile& profile, const vec3& centre, int sectors, double radius)
      : sectors_(static_cast<size_t>(sectors)) {
    points_.reserve(profile.size() * sectors_);
    for (const ProfilePoint& p : profile) {
      for (int i = 0; i < sectors; ++i) {
        const double angle = i * 2 * std::numbers::pi / sectors;
        points_.push_back({float(RoundComputed(radius * (p.radius * std::cos(angle)) + centre.x)),
                           float(RoundComputed(radius * p.along + centre.y)),
                           float(RoundComputed(radius * (-p.radius * std::sin(angle)) + centre.z))});
      }
    }
  }

  const vec3& at(size_t row, size_t sector) const { return points_[row * sectors_ + sector % sectors_]; }

 private:
  size_t sectors_;
  std::vector<vec3> points_;
};

class Turning {
 public:
  Turning(const Seed& seed, const Profile& profile, const LatheParams& params, Keeping keeping)
      : centre_(Middle(seed)),
        inner_(onAxis(profile, params.poleRadius), centre_, params.sectors, params.inner),
        outer_(onAxis(profile, params.poleRadius), centre_, params.sectors, params.outer),
        pieces_(seed, keeping) {
    for (const ProfilePoint& p : profile) poles_.push_back(isPole(p, params.poleRadius));
  }

  // The piece between a row and the one before it, from a sector to the next.
  void add(size_t row, size_t sector) {
    if (!poles_[row - 1] && !poles_[row]) {
      addBlock(row, sector);
    } else if (!poles_[row - 1]) {
      const Corner corners[] = {{row - 1, sector + 1}, {row, 0}, {row - 1, sector}};
      addWedge(corners);
    } else if (!poles_[row]) {
      const Corner corners[] = {{row, sector + 1}, {row, sector}, {row - 1, 0}};
      addWedge(corners);
    }
  }
  bool full() const { return pieces_.full(); }
  Made take() { return pieces_.take(); }

 private:
  struct Corner {
    size_t row;
    size_t sector;
  };

  static bool isPole(const ProfilePoint& p, double poleRadius) { return std::fabs(p.radius) < poleRadius; }
  static Profile onAxis(Profile profile, double poleRadius) {
    for (ProfilePoint& p : profile) {
      if (isPole(p, poleRadius)) p.radius = 0;
    }
    return profile;
  }

  const vec3& inner(const Corner& c) const { return inner_.at(c.row, c.sector); }
  const vec3& outer(const Corner& c) const { return outer_.at(c.row, c.sector); }

  void addBlock(size_t row, size_t sector) {
    const Corner corners[4] = {{row - 1, sector + 1}, {row, sector + 1}, {row, sector}, {row - 1, sector}};
    const vec3& i1 = inner(corners[0]);
    const vec3& i2 = inner(corners[1]);
    const vec3& i3 = inner(corners[2]);
    const vec3& i4 = inner(corners[3]);
    const FacePoints faces[] = {{i1, i2, i3},      {outer(corners[1]), outer(corners[0]), outer(corners[2])},
                                {i2, i3, centre_}, {i3, i4, centre_},
                                {i4, i1, centre_}, {i1, i2, centre_}};
    pieces_.addSolid(faces);
  }

  void addWedge(const Corner (&corners)[3]) {
    const vec3& p1 = inner(corners[0]);
    const vec3& p2 = inner(corners[1]);
    const vec3& p3 = inner(corners[2]);
    const vec3& q1 = outer(corners[0]);
    const vec3& q2 = outer(corners[1]);
    const vec3& q3 = outer(corners[2]);
    const FacePoints faces[] = {{p1, p2, p3}, {q2, q1, q3}, {p3, p2, q2}, {p2, p1, q1}, {p1, p3, q3}};
    pieces_.addSolid(faces);
  }

  vec3 centre_;
  Shell inner_;
  Shell outer_;
  std::vector<bool> poles_;
  Pieces pieces_;
};

}  // namespace

Made Lathe(const Seed& seed, const Profile& profile, const LatheParams& params, const MakerRules& rules) {
  Turning turning(seed, profile, params, KeepingBy(rules));
  const auto sectors = static_cast<size_t>(params.sectors);
  for (size_t row = 1; row < profile.size(); ++row) {
    for (size_t i = 0; i < sectors && !turning.full(); ++i) turning.add(row, i);
  }
  return turning.take();
}

}  // namespace velk
