#include "ops/group_ops.h"

#include <vector>

#include "model/visit.h"

namespace velk {
namespace {

bool Has(const map& m, int index) { return index >= 0 && index < m.groups.count(); }

void MoveBrushes(map& m, int from, int to) {
  VisitBrushes(m, BrushFilter::Every, [&](brush& b) {
    if (b.group() == from) b.setGroup(to);
  });
}

}  // namespace

void ClearGroups(map& m) {
  if (m.groups.count() > 1) VisitBrushes(m, BrushFilter::Every, [](brush& b) { b.setGroup(0); });
  m.groups.clear();
}

void DeleteGroup(map& m, int index) {
  const int last = m.groups.count() - 1;
  if (last < 1 || !Has(m, index)) return;
  MoveBrushes(m, index, 0);
  MoveBrushes(m, last, index);
  m.groups.remove(index);
  m.modified = true;
}

void ReassignGroup(map& m, int from, int to) {
  if (m.groups.count() > 1 && Has(m, from) && Has(m, to)) MoveBrushes(m, from, to);
}

void SelectAllInGroup(map& m, int index) {
  if (!Has(m, index)) return;
  VisitBrushes(m, BrushFilter::Every, [&](brush& b) {
    if (b.group() == index) b.select(true);
  });
}

void ShowOnlyGroup(map& m, int index) {
  if (!Has(m, index)) return;
  for (int i = 0; i < m.groups.count(); ++i) m.groups.setVisible(i, i == index);
  m.modified = true;
}

void ShowAllGroups(map& m) {
  for (int i = 0; i < m.groups.count(); ++i) m.groups.setVisible(i, true);
  m.modified = true;
}

void CountGroupBrushes(map& m) {
  std::vector<int> counts(size_t(m.groups.count()));
  VisitBrushes(m, BrushFilter::Every, [&](const brush& b) {
    if (Has(m, b.group())) ++counts[size_t(b.group())];
  });
  for (int i = 0; i < m.groups.count(); ++i) m.groups.setBrushCount(i, counts[size_t(i)]);
}

void map::assignGroupOfSelected(int index) {
  if (!Has(*this, index)) return;
  VisitBrushes(*this, BrushFilter::Every, [&](brush& b) {
    if (!b.selected() || b.group() == index) return;
    b.setGroup(index);
    modified = true;
  });
}

}  // namespace velk
