#include "model/hit_list.h"

#include <algorithm>

namespace velk {

void HitList::clear() {
  for (int i = 0; i < count; ++i) brushes[size_t(i)]->hits = nullptr;
  count = 0;
  current = 0;
}

void HitList::add(brush& b) {
  if (count == kMax) return;
  brushes[size_t(count)] = &b;
  saved[size_t(count)] = b.selected();
  ++count;
  b.hits = this;
}

void HitList::forget(const brush& b) {
  const auto end = brushes.begin() + count;
  const auto found = std::find(brushes.begin(), end, &b);
  if (found == end) return;
  (*found)->hits = nullptr;
  const auto index = found - brushes.begin();
  std::move(found + 1, end, found);
  std::move(saved.begin() + index + 1, saved.begin() + count, saved.begin() + index);
  --count;
  // What was cycled to stays current; after the last entry went, the one before it is.
  if (current > index || current >= count) --current;
}

}  // namespace velk
