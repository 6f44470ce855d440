// Leak search: finds faces that should touch back to back but lie at a tiny angle, and turns the one into
// the exact back of the other.
#pragma once

#include <optional>
#include <string>

#include "base/outcome.h"
#include "model/map.h"

namespace velk {

inline constexpr char kLeakTitle[] = "Velk - Leak Search";
inline constexpr char kLeakSaveFirst[] = "Save first? (RECOMMENDED)";
inline constexpr char kLeakAutomatic[] = "Automatically fix brushes, without prompting?";
inline constexpr char kLeakPrompt[] = "Conform merging brush faces:\nNormal Epsilon %f\nDistance Epsilon %f";
inline constexpr char kLeaksSealedAutomatically[] = "Leaks automatically sealed...";
inline constexpr char kLeaksSealed[] = "Leaks sealed...";
inline constexpr char kLeakSummary[] = "%i pairs conformed, %i became invalid";

// A face of each of two brushes of one entity.
struct LeakPair {
  brush* a = nullptr;
  brush* b = nullptr;  // its face is the one that would change
  int faceOfA = 0;
  int faceOfB = 0;
  double normalDifference = 0;  // length of the difference of the normals, one turned round
  double distance = 0;          // between the planes, world units

  std::string question() const;
  // The middle between the brushes, for the views.
  vec3 centre() const;
};

// A walk through all pairs of a map, in the order of entities, brushes and faces; nothing but conformPair
// may change the map while it lasts. Entities are compared each with itself; those of a fixed size are left
// out. What counts as a pair is said by the settings distance_epsilon, min_epsilon and max_epsilon. The time
// grows with the square of an entity's brushes, by one comparison of boxes each. Careful: only faces of
// solid brushes that lie over one another count.
class LeakSearch {
 public:
  LeakSearch(map& m, bool careful);

  // The next pair; none at the end.
  std::optional<LeakPair> next();
  // Gives the last pair's second face the points of the first in reverse order.
  void conformPair();
  // Goes on to the end and conforms every pair.
  void conformAll();

  int conformed() const { return conformed_; }
  std::string summary() const;

 private:
  bool nextBrushes();
  bool nextFaces(LeakPair& pair);
  bool compare(LeakPair& pair) const;

  map& map_;
  bool careful_;
  int entity_ = 0;
  int a_ = 0;
  int b_ = 0;       // 0 before the first
  int faces_ = -1;  // the pair of faces looked at next, by number; -1: the brushes are still to be found
  LeakPair last_;
  int conformed_ = 0;
  int becameInvalid_ = 0;  // brushes, which stay in their entities
};

}  // namespace velk
