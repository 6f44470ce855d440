#include "ops/solids/split_by_face.h"

#include <utility>

namespace velk {
namespace {

std::unique_ptr<brush> PartBehind(const face& f, const brush& b) {
  std::unique_ptr<brush> part = FreshCopy(b);
  part->addFace(f);
  return part->invalid ? nullptr : std::move(part);
}

}  // namespace

face TurnedRound(face f) {
  std::swap(f.planepts[0], f.planepts[2]);
  return f;
}

SplitParts splitByFace(const face& f, const brush& b) {
  SplitParts parts;
  parts.back = PartBehind(f, b);
  parts.front = PartBehind(TurnedRound(f), b);
  return parts;
}

std::unique_ptr<brush> FreshCopy(const brush& b) {
  auto copy = std::make_unique<brush>(b);
  return copy;
}

}  // namespace velk
