// Brushes leaving their entity, for good or for another.
#include "model/map.h"

namespace velk {
namespace {

// Takes the brush out of its list, its owner too when it was the last one there and the owner may go.
std::unique_ptr<brush> TakeOut(brush& b, bool mayEmpty) {
  if (!b.owner) return nullptr;
  if (!b.invalid) {
    b.owner->parent().setWorkLow(b.mins);
    b.owner->parent().setWorkHigh(b.maxs);
  }
  std::unique_ptr<entity> emptied;
  std::unique_ptr<brush> removed = b.owner->removeObject(&b, mayEmpty ? &emptied : nullptr);
  if (emptied && removed) removed->owner = nullptr;
  return removed;
}

}  // namespace

void DestroyBrush(brush& b) { RemoveFromEntity(b); }

std::unique_ptr<brush> RemoveFromEntity(brush& b) { return TakeOut(b, true); }

void MoveToEntity(brush& b, entity& target) {
  if (b.owner && !b.owner->isModel && target.parent().settings().multi_select) return;
  if (b.owner != &target) target.requireRoom();
  // A brush that is its target's only one must not take the target with it.
  std::unique_ptr<brush> moved = TakeOut(b, b.owner != &target);
  if (!moved) return;
  moved->setColor(ClassColour(target));
  target.addobject(std::move(moved)).buildWindings();
}

}  // namespace velk
