#include "ops/subtract.h"

#include <memory>
#include <utility>
#include <vector>

#include "base/error.h"
#include "base/text.h"
#include "ops/solids/split_by_face.h"

namespace velk {
namespace {

// The cut loop tells of every fifth brush.
constexpr int kCutsPerReport = 5;

// A brush of the entity, or a piece that is in no list yet.
struct Piece {
  Piece(brush& inList, int place) : at(&inList), listed(place) {}
  explicit Piece(std::unique_ptr<brush> piece) : at(piece.get()), made(std::move(piece)) {}

  brush* at;
  int listed = -1;  // its place in the entity's list
  std::unique_ptr<brush> made;
};

// Strictly: boxes that only touch do not overlap.
bool Overlap(const brush& a, const brush& b) {
  for (int axis = 0; axis < 3; ++axis) {
    if (a.mins[axis] >= b.maxs[axis] || b.mins[axis] >= a.maxs[axis]) return false;
  }
  return true;
}

// The work range and the flag of a map, put back unless what was begun is finished.
class MapMarks {
 public:
  explicit MapMarks(map& m) : map_(m), low_(m.workLow()), high_(m.workHigh()), modified_(m.modified) {}
  ~MapMarks() {
    if (finished_) return;
    map_.setWorkRange(low_, high_);
    map_.modified = modified_;
  }
  MapMarks(const MapMarks&) = delete;
  MapMarks& operator=(const MapMarks&) = delete;
  void finish() {
    map_.modified = true;
    finished_ = true;
  }

 private:
  map& map_;
  vec3 low_;
  vec3 high_;
  bool modified_;
  bool finished_ = false;
};

// Works beside the entity's list, which stays as it is until swapIn.
class Subtraction {
 public:
  Subtraction(map& m, entity& e, const SubtractProgress& progress)
      : map_(m), entity_(e), progress_(progress) {
    for (int i = e.numbrushes() - 1; i >= 0; --i) {
      (e.at(i)->selected() ? subtractors_ : working_).emplace_back(*e.at(i), i);
    }
  }

  // False when it was stopped.
  bool run() {
    const int count = int(subtractors_.size());
    for (int k = count - 1; k >= 0; --k) {
      if (progress_ && !progress_(Format(kSubtractProgress, count - 1 - k, count), kSubtractProgressTop)) {
        return false;
      }
      if (subtractors_[size_t(k)].at->invalid) {
        std::swap(subtractors_[size_t(k)], subtractors_.back());
        subtractors_.pop_back();
      } else if (!subtract(*subtractors_[size_t(k)].at)) {
        return false;
      }
    }
    return true;
  }

  // The result takes the place of the entity's brushes, of which those that are not in it are destroyed.
  void swapIn() {
    std::vector<Piece> result = std::move(working_);
    for (Piece& subtractor : subtractors_) result.push_back(std::move(subtractor));
    std::erase_if(result, [](const Piece& piece) { return piece.at->invalid; });
    if (result.size() > size_t(MAX_ENTITY_BRUSHES)) Error("entity->addobject, too many objects");
    std::vector<std::unique_ptr<brush>> before = entity_.takeBrushes();
    for (Piece& piece : result) {
      entity_.addobject(std::move(piece.made ? piece.made : before[size_t(piece.listed)]));
    }
  }

 private:
  bool subtract(const brush& subtractor) {
    const int count = int(working_.size());
    std::vector<Piece> output;
    output.reserve(working_.size());
    for (int p = count - 1; p >= 0; --p) {
      if (progress_ && p % kCutsPerReport == 0 &&
          !progress_(Format(kCutProgress, count - 1 - p, count), kCutProgressTop)) {
        return false;
      }
      if (!working_[size_t(p)].at->invalid) cutBrush(std::move(working_[size_t(p)]), subtractor, output);
    }
    working_ = std::move(output);
    return true;
  }

  void cutBrush(Piece piece, const brush& subtractor, std::vector<Piece>& output) {
    if (!map_.passesGroupFilter(*piece.at) || !Overlap(*piece.at, subtractor)) {
      output.push_back(std::move(piece));
      return;
    }
    for (const face& f : subtractor.faces()) {
      SplitParts parts = splitByFace(f, *piece.at);
      map_.setWorkLow(piece.at->mins);
      map_.setWorkHigh(piece.at->maxs);
      if (parts.front) output.emplace_back(std::move(parts.front));
      if (!parts.back) return;
      piece = Piece(std::move(parts.back));
    }
  }

  map& map_;
  entity& entity_;
  const SubtractProgress& progress_;
  std::vector<Piece> subtractors_;
  std::vector<Piece> working_;
};

}  // namespace

Outcome subtractSelection(map& m, bool careful, const SubtractProgress& progress) {
  entity* e = m.currentEntity();
  if (!e) return {};
  if (careful && m.selectedCount() == 0) return Outcome::Said(kNothingToSubtract);
  if (careful && !e->isModel) return Outcome::Said(kBoxesDoNotCut);
  MapMarks marks(m);
  Subtraction subtraction(m, *e, progress);
  if (!subtraction.run()) return Outcome::Drawn(Redraw::All, kSubtractStopped);
  subtraction.swapIn();
  marks.finish();
  if (e->numbrushes() == 0) {
    const std::unique_ptr<entity> emptied = m.removeEntity(e);
    m.setCurrentEntity(m.world());
  }
  return Outcome::Drawn(Redraw::All, kSubtracting);
}

}  // namespace velk
