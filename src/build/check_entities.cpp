#include "build/check_entities.h"

#include <algorithm>
#include <set>

#include "base/text.h"
#include "model/brush_method.h"
#include "textures/texture_manager.h"

namespace velk {
namespace {

using Mend = CheckFinding::Mend;

// From this part of a limit on.
bool IsNear(size_t count, int limit) { return count * 10 >= static_cast<size_t>(limit) * 9; }

void Add(std::vector<CheckFinding>& findings, map& m, int number, const std::string& text,
         Mend mend = Mend::None) {
  CheckFinding finding;
  entity& e = *m.at(number);
  finding.text = Format("Entity %i (%s) %s", number, e.valueOfKey("classname").c_str(), text.c_str());
  finding.entityNumber = number;
  finding.mend = mend;
  finding.owner = &e;
  finding.identity = e.identity();
  findings.push_back(std::move(finding));
}

void AddForMap(std::vector<CheckFinding>& findings, const std::string& text) {
  CheckFinding finding;
  finding.text = text;
  findings.push_back(std::move(finding));
}

struct Names {
  std::set<std::string> targets;      // that an entity points at
  std::set<std::string> targetNames;  // by which entities can be found
};

Names NamesIn(const map& m) {
  Names names;
  for (const entity& e : m.entities()) {
    for (const char* key : {"target", "killtarget"}) names.targets.insert(e.valueOfKey(key));
    names.targetNames.insert(e.valueOfKey("targetname"));
  }
  return names;
}

struct Bounds {
  vec3 mins{1e9f, 1e9f, 1e9f};
  vec3 maxs{-1e9f, -1e9f, -1e9f};

  bool holdsMiddleOf(const brush& b) const {
    for (int axis = 0; axis < 3; ++axis) {
      const double middle = (double(b.mins[axis]) + b.maxs[axis]) / 2;
      if (middle < mins[axis] || middle > maxs[axis]) return false;
    }
    return true;
  }
};

Bounds WorldBounds(const map& m) {
  Bounds bounds;
  for (const brush& b : m.world()->brushes()) {
    if (!b.invalid) WidenBounds(bounds.mins, bounds.maxs, b);
  }
  return bounds;
}

class EntityCheck {
 public:
  EntityCheck(map& m, std::vector<CheckFinding>& findings)
      : map_(m), findings_(findings), names_(NamesIn(m)), world_(WorldBounds(m)) {}

  void look(int number) {
    number_ = number;
    const entity& e = *map_.at(number);
    lookAtClass(e);
    lookAtBrushes(e);
    lookAtTargets(e);
    lookAtKeys(e);
  }

 private:
  void add(const std::string& text, Mend mend = Mend::None) { Add(findings_, map_, number_, text, mend); }

  void lookAtClass(const entity& e) {
    if (!map_.classes().isKnown(e.entityClass())) add("is of a class that no definition names");
  }

  void lookAtBrushes(const entity& e) {
    if (e.numbrushes() == 0) {
      add("has no brushes", e.isWorld() ? Mend::None : Mend::RemoveEntity);
    } else if (!e.isWorld() && std::ranges::none_of(e.brushes(), [&](const brush& b) {
                 return b.invalid || world_.holdsMiddleOf(b);
               })) {
      add("stands outside all brushes of the world");
    }
    if (IsNear(static_cast<size_t>(e.numbrushes()), MAX_ENTITY_BRUSHES)) {
      add(Format("has %i of %i brushes", e.numbrushes(), MAX_ENTITY_BRUSHES));
    }
  }

  void lookAtTargets(const entity& e) {
    for (const char* key : {"target", "killtarget"}) {
      const std::string& target = e.valueOfKey(key);
      if (!target.empty() && !names_.targetNames.contains(target)) {
        add(Format("has the %s %s, which nothing is named", key, target.c_str()));
      }
    }
    const std::string& name = e.valueOfKey("targetname");
    if (!name.empty() && !names_.targets.contains(name)) {
      add(Format("is named %s, which nothing targets", name.c_str()));
    }
  }

  void lookAtKeys(const entity& e) {
    std::set<std::string> seen;
    for (const KeyPair& pair : e.pairsInOrder()) {
      if (!seen.insert(LowerCase(pair.key)).second) add("has the key " + pair.key + " twice");
      if (IsNear(pair.key.size() + 1, MAX_KEY)) add("has a key near the limit of 63 bytes: " + pair.key);
      if (IsNear(pair.value.size() + 1, MAX_VALUE)) {
        add("has a value near the limit of 127 bytes, of the key " + pair.key);
      }
    }
  }

  map& map_;
  std::vector<CheckFinding>& findings_;
  Names names_;
  Bounds world_;
  int number_ = 0;
};

void CheckLimits(map& m, std::vector<CheckFinding>& findings) {
  if (IsNear(static_cast<size_t>(m.numentities()), MAX_ENTITIES)) {
    AddForMap(findings, Format("The map has %i of %i entities", m.numentities(), MAX_ENTITIES));
  }
  if (IsNear(static_cast<size_t>(m.groups.count()), GroupList::kMaxGroups)) {
    AddForMap(findings, Format("The map has %i of %i groups", m.groups.count(), GroupList::kMaxGroups));
  }
  // Of so few the last but one is near the limit.
  const int wads = static_cast<int>(WadNames(m.world()->valueOfKey("wad")).size());
  if (wads >= MAX_MAP_WADS - 1) {
    AddForMap(findings, Format("The map names %i of %i wads", wads, MAX_MAP_WADS));
  }
}

}  // namespace

void CheckEntities(map& m, std::vector<CheckFinding>& findings) {
  if (!m.world()) return;
  EntityCheck check(m, findings);
  for (int i = 0; i < m.numentities(); ++i) check.look(i);
  const bool start = std::ranges::any_of(
      m.entities(), [](const entity& e) { return e.valueOfKey("classname") == "info_player_start"; });
  if (!start) AddForMap(findings, "The map has no info_player_start");
  CheckLimits(m, findings);
}

}  // namespace velk
