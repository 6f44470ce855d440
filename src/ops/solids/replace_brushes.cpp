#include "ops/solids/replace_brushes.h"

#include <unordered_map>
#include <utility>

#include "base/error.h"

namespace velk {
namespace {

void RequireRoom(const std::vector<Replacement>& all) {
  std::unordered_map<const entity*, int> counts;
  for (const Replacement& one : all) {
    const entity* owner = one.old->owner;
    int& count = counts.try_emplace(owner, owner->numbrushes()).first->second;
    count += int(one.by.size()) - 1;
    if (count > MAX_ENTITY_BRUSHES) Error("entity->addobject, too many objects");
  }
}

void Replace(Replacement& one) {
  if (one.by.empty()) return DestroyBrush(*one.old);
  entity& owner = *one.old->owner;
  for (size_t i = 1; i < one.by.size(); ++i) owner.addobject(std::move(one.by[i]));
  owner.replaceAt(owner.indexOf(one.old), std::move(one.by.front()));
}

}  // namespace

void ReplaceBrushes(map& m, std::vector<Replacement> all) {
  RequireRoom(all);
  if (!all.empty()) m.modified = true;
  for (Replacement& one : all) Replace(one);
}

}  // namespace velk
