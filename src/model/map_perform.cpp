// The dispatchers, which apply a brush method to a class of brushes.
#include <algorithm>
#include <string>

#include "base/error.h"
#include "model/map.h"

namespace velk {
namespace {

bool Inside(const brush& b, const PerformValues& v) {
  for (int axis = 0; axis < 3; ++axis) {
    if (b.mins[axis] < v.boxMins[axis] || b.maxs[axis] > v.boxMaxs[axis]) return false;
  }
  return true;
}

bool Overlaps(const brush& b, const PerformValues& v) {
  for (int axis = 0; axis < 3; ++axis) {
    if (v.boxMins[axis] >= b.maxs[axis] || b.mins[axis] >= v.boxMaxs[axis]) return false;
  }
  return true;
}

// A method that may leave nothing of its brush; the brush must still be in its entity afterwards.
void RunCutting(const std::function<void(brush&)>& method, brush& b) {
  if (!method) return;
  method(b);
  if (b.invalid) DestroyBrush(b);
}

void RunOther(const std::function<void(brush&)>& method, brush& b) {
  if (method) method(b);
}

void Run(Method method, map& m, brush& b) {
  PerformValues& v = m.perform;
  switch (method) {
    case Method::Deselect:
      b.select(false);
      break;
    case Method::WidenBounds:
      if (b.numfaces() > 3) WidenBounds(v.boundsMins, v.boundsMaxs, b);
      break;
    case Method::Transform:
      b.transform(v.matrix, v.centre);
      break;
    case Method::ReverseFaces:
      b.reverseFaces();
      break;
    case Method::MoveToTarget:
      if (v.target) MoveToEntity(b, *v.target);
      break;
    case Method::Delete:
      DestroyBrush(b);
      break;
    case Method::SelectInside:
      if (Inside(b, v)) b.select(true);
      break;
    case Method::SelectTouching:
      if (Overlaps(b, v)) b.select(true);
      break;
    case Method::Cut:
      RunCutting(v.cut, b);
      break;
    case Method::Translate:
      b.translate(v.offset);
      break;
    case Method::FloorSearch:
      RunOther(v.floorSearch, b);
      break;
    case Method::Select:
      b.select(true);
      break;
    case Method::Draw:
      RunOther(v.draw, b);
      break;
    case Method::Split:
      RunCutting(v.split, b);
      break;
    case Method::SetHidden:
      b.hidden = m.isFiltered(b);
      break;
    case Method::Pick:
      RunOther(v.pick, b);
      break;
  }
}

}  // namespace

void WidenBounds(vec3& mins, vec3& maxs, const brush& by) {
  for (int axis = 0; axis < 3; ++axis) {
    mins[axis] = std::min(mins[axis], by.mins[axis]);
    maxs[axis] = std::max(maxs[axis], by.maxs[axis]);
  }
}

template <typename Filter>
void map::performOver(Method method, const char* dispatcher, Filter&& filter) {
  if (method < Method::Deselect || method > Method::Pick) Error("%s Unknown method...", dispatcher);
  modified = true;
  for (int i = numentities() - 1; i >= 0; --i) {
    entity* e = at(i);
    // An entity goes with its last brush; another one then stands at i.
    for (int k = e->numbrushes() - 1; k >= 0 && at(i) == e; --k) {
      if (filter(*e->at(k))) Run(method, *this, *e->at(k));
    }
  }
}

void map::MUSPerform(Method method) {
  performOver(method, "MUSPerform", [this](const brush& b) { return !b.selected() && passesGroupFilter(b); });
}

void map::MSPerform(Method method) {
  performOver(method, "MSPerform", [this](const brush& b) { return b.selected() && passesGroupFilter(b); });
}

void map::MAPerform(Method method) {
  performOver(method, "MAPerform", [this](const brush& b) { return passesGroupFilter(b); });
}

void map::MGPerform(Method method) {
  performOver(method, "MGPerform", [](const brush&) { return true; });
}

}  // namespace velk
