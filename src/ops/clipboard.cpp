#include "ops/clipboard.h"

#include <algorithm>
#include <cstdint>
#include <string>
#include <unordered_map>

#include "base/text.h"

namespace velk {
namespace {

// "t<n>" as a number, one that leaves room for sums; -1 for other names.
std::int64_t TargetNumber(std::string_view name) {
  return name.starts_with('t') ? TextToInt(name.substr(1)) : -1;
}

std::int64_t LargestTargetNumber(map& m) {
  std::int64_t largest = 0;
  for (int i = 1; i < m.numentities(); ++i) {
    largest = std::max(largest, TargetNumber(m.at(i)->valueOfKey("targetname")));
  }
  return largest;
}

std::unique_ptr<brush> CopyInto(entity& owner, const brush& b, const vec3& offset) {
  auto copy = std::make_unique<brush>(b);
  copy->owner = &owner;
  copy->translate(offset);
  return copy;
}

void DropDanglingTargets(map& clipboard) {
  std::unordered_map<std::string, int> named;  // entities, by targetname in upper case
  for (const entity& e : clipboard.entities()) ++named[UpperCase(e.valueOfKey("targetname"))];
  for (entity& e : clipboard.entities()) {
    const std::string target = UpperCase(e.valueOfKey("target"));
    if (target.empty()) continue;
    const bool isItself = UpperCase(e.valueOfKey("targetname")) == target;
    if (named[target] <= int(isItself)) e.removeKeyPair("target");
  }
}

void Renumber(entity& e, const char* key, std::int64_t base) {
  const std::int64_t number = TargetNumber(e.valueOfKey(key));
  if (number >= 0) e.setKey(key, "t" + std::to_string(number + base));
}

}  // namespace

bool AnySelected(const entity& e) {
  const auto brushes = e.brushes();
  return std::any_of(brushes.begin(), brushes.end(), [](const brush& b) { return b.selected(); });
}

vec3 PasteOffset(const Settings& settings) {
  const auto step = [&](int delta) { return float(delta != 0 ? delta : settings.gridsize); };
  return {step(settings.cloneDeltaX), step(settings.cloneDeltaY), 0};
}

void CopySelection(map& from, map& clipboard) {
  auto world = std::make_unique<entity>(clipboard);
  world->isModel = true;
  clipboard.addobject(std::move(world));
  for (int i = from.world()->numbrushes(); i-- > 0;) {
    const brush& b = *from.world()->at(i);
    if (b.selected()) clipboard.world()->addobject(CopyInto(*clipboard.world(), b, {}));
  }
  for (int i = 1; i < from.numentities(); ++i) {
    const entity& e = *from.at(i);
    if (e.at(0) && e.at(0)->selected()) clipboard.addobject(e.copy(clipboard));
  }
  clipboard.MGPerform(Method::Select);
  clipboard.setCurrentEntity(clipboard.world());
  DropDanglingTargets(clipboard);
}

void PasteClipboard(map& to, map& clipboard, int group, const vec3& offset) {
  entity* current = to.currentEntity();
  to.MGPerform(Method::Deselect);
  const std::int64_t base = 1 + LargestTargetNumber(to);
  for (const brush& b : clipboard.world()->brushes()) {
    brush& pasted = to.world()->addobject(CopyInto(*to.world(), b, offset));
    pasted.select(true);
    pasted.setGroup(group);
  }
  for (int i = 1; i < clipboard.numentities(); ++i) {
    entity& pasted = to.addobject(clipboard.at(i)->copy(to));
    Renumber(pasted, "targetname", base);
    Renumber(pasted, "target", base);
    for (brush& b : pasted.brushes()) {
      b.select(true);
      b.setGroup(group);
      b.translate(offset);
    }
  }
  to.setCurrentEntity(current);
}

void CloneSelection(map& m, const vec3& offset) {
  m.modified = true;
  entity* current = nullptr;
  const int brushes = m.world()->numbrushes();
  for (int i = 0; i < brushes; ++i) {
    brush& b = *m.world()->at(i);
    if (!b.selected()) continue;
    brush& clone = m.world()->addobject(CopyInto(*m.world(), b, offset));
    clone.select(true);
    b.select(false);
    current = m.world();
  }
  entity* last = nullptr;
  const int entities = m.numentities();
  for (int i = 1; i < entities; ++i) {
    entity& e = *m.at(i);
    if (!AnySelected(e)) continue;
    last = &m.addobject(e.copy(m));
    for (brush& b : e.brushes()) b.select(false);
    for (brush& b : last->brushes()) {
      b.select(true);
      b.translate(offset);
    }
  }
  if (!current) current = last ? last : m.world();
  m.setCurrentEntity(current);
}

}  // namespace velk
