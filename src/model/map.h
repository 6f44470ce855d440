// The model of one open document: entities, selection, groups, cameras, clip points.
#pragma once

#include <array>
#include <memory>
#include <string>
#include <vector>

#include "model/brush_method.h"
#include "model/camera.h"
#include "model/clipper.h"
#include "model/entity.h"
#include "model/groups.h"
#include "model/hit_list.h"
#include "settings/settings.h"

namespace velk {

inline constexpr int MAX_ENTITIES = 1024;

class map {
 public:
  // Settings and classes must outlive the map; counters too, when given.
  map(const Settings& settings, const EntityClassList& classes, ObjectCounters* counters = nullptr);
  ~map();
  map(const map&) = delete;
  map& operator=(const map&) = delete;

  const Settings& settings() const { return settings_; }
  const EntityClassList& classes() const { return classes_; }
  ObjectCounters* counters() const { return counters_; }

  std::string name;  // the map's file, as given
  bool modified = false;
  int saves = 0;  // how often the file was written
  GroupList groups;
  std::array<camera, kCameras> cameras;
  int currentCamera = 0;
  clipper clip;
  HitList hits;
  std::vector<std::string> favourites;  // texture names; empty ones are free slots

  camera& activeCamera() { return cameras[static_cast<size_t>(currentCamera)]; }
  const camera& activeCamera() const { return cameras[static_cast<size_t>(currentCamera)]; }

  // Entities, owned; 0 is the world.
  int numentities() const { return static_cast<int>(entities_.size()); }
  entity* at(int index) const {
    return index >= 0 && index < numentities() ? entities_[static_cast<size_t>(index)].get() : nullptr;
  }
  Pointees<entity> entities() const { return Pointees(entities_); }
  entity* world() const { return at(0); }
  int indexOf(const entity* e) const;  // -1 when it is not there
  // A 1025th is fatal "map->addobject, too many brushes on entity...".
  entity& addobject(std::unique_ptr<entity> added);
  // Fatal as addobject is when there is no room for so many: before brushes leave their place for a new
  // entity.
  void requireRoom(int count = 1) const;
  // Takes an entity other than the world out; the last one moves into its slot. If it was current the
  // world becomes current. None when it is not there.
  std::unique_ptr<entity> removeEntity(const entity* e);

  // The entity that commands address; the world when none was set. None only in a map without entities.
  entity* currentEntity() const { return currentEntity_ ? currentEntity_ : world(); }
  void setCurrentEntity(entity* e);  // marks the map modified
  bool worldIsCurrent() const { return currentEntity() == world(); }

  // The current brush: the first selected one of the current entity, else of the others from the last to
  // the first; none when nothing is selected.
  brush* firstSelected() const;
  int selectedCount() const;  // in the current entity
  int totalSelected() const;  // in all entities
  int brushCount() const;     // of all entities
  // Middle of the bounds of the selection, or of everything when the current entity has none selected.
  // The group filter applies.
  vec3 selectionCentre() const;

  // The depth range of new brushes, per axis, on the grid.
  const vec3& workLow() const { return workLow_; }
  const vec3& workHigh() const { return workHigh_; }
  void setWorkLow(const vec3& low);    // axes above -2048 only
  void setWorkHigh(const vec3& high);  // axes below 2048 only
  // Takes the range as it is, off the grid or not.
  void setWorkRange(const vec3& low, const vec3& high);

  // In group mode, whether the brush's group is visible; otherwise true.
  bool passesGroupFilter(const brush& b) const { return !settings_.groupmode || groups.passes(b.group()); }
  // Whether the view filter leaves the brush out.
  bool isFiltered(const brush& b) const { return settings_.filter.omitsAny() && matchesFilter(b); }

  // Apply a method to brushes, visited as VisitBrushes does, and mark the map modified. A method outside
  // 0..15 is fatal, with the dispatcher's name: "MSPerform Unknown method...".
  void MUSPerform(const BrushMethod& method);  // visible groups, not selected
  void MSPerform(const BrushMethod& method);   // visible groups, selected
  void MAPerform(const BrushMethod& method);   // visible groups
  void MGPerform(const BrushMethod& method);   // every brush

  // Empties the map and gives it a world whose "wad" is `wads`. Current is the world; not modified.
  void initNew(const std::string& wads);
  // Removes every entity with its brushes, or hands them over.
  void clearEntities() { takeEntities(); }
  std::vector<std::unique_ptr<entity>> takeEntities();

  // Every selected brush joins the group; marks the map modified when one did. An index outside the list does
  // nothing.
  void assignGroupOfSelected(int index);

 private:
  bool matchesFilter(const brush& b) const;

  const Settings& settings_;
  const EntityClassList& classes_;
  ObjectCounters* counters_;
  std::vector<std::unique_ptr<entity>> entities_;
  entity* currentEntity_ = nullptr;
  vec3 workLow_{0, 0, 0};
  vec3 workHigh_{80, 80, 80};
};

// Whether views show the brush and picks meet it: neither its group nor the view filter leaves it out.
inline bool IsShown(const map& m, const brush& b) { return m.passesGroupFilter(b) && !m.isFiltered(b); }
// Whether a ray can meet it: an invalid brush may have no polygon left, and then every ray would seem to
// start inside it.
inline bool CanBeHit(const map& m, const brush& b) { return !b.invalid && IsShown(m, b); }

}  // namespace velk
