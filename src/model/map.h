// The model of one open document: entities, selection, groups, cameras, clip points.
#pragma once

#include <array>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "model/camera.h"
#include "model/clipper.h"
#include "model/entity.h"
#include "model/groups.h"
#include "model/hit_list.h"
#include "settings/settings.h"

namespace velk {

inline constexpr int MAX_ENTITIES = 1024;

// What the owner of a map may want to hear of.
enum class MapNotice { CurrentEntity, WorkRange, Groups };

// The values that a command sets before it dispatches a method over brushes.
struct PerformValues {
  vec3 boundsMins;  // method 1
  vec3 boundsMaxs;
  float matrix[3][3] = {};  // method 2
  vec3 centre;
  entity* target = nullptr;  // method 4
  vec3 boxMins;              // methods 6 and 7
  vec3 boxMaxs;
  vec3 offset;  // method 9
  // Methods that later layers carry out; without one, the method does nothing. They leave their brush in
  // its entity; the dispatcher destroys what 8 and 13 leave invalid.
  std::function<void(brush&)> cut;          // 8
  std::function<void(brush&)> floorSearch;  // 10
  std::function<void(brush&)> draw;         // 12
  std::function<void(brush&)> split;        // 13
  std::function<void(brush&)> pick;         // 15
};

enum class Method {
  Deselect = 0,
  WidenBounds = 1,
  Transform = 2,
  ReverseFaces = 3,
  MoveToTarget = 4,
  Delete = 5,
  SelectInside = 6,
  SelectTouching = 7,
  Cut = 8,
  Translate = 9,
  FloorSearch = 10,
  Select = 11,
  Draw = 12,
  Split = 13,
  SetHidden = 14,
  Pick = 15,
};

// Widens a box by the bounds of a brush.
void WidenBounds(vec3& mins, vec3& maxs, const brush& by);

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
  PerformValues perform;
  std::function<void(MapNotice)> notice;  // may be empty

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
  entity* currentEntity();
  void setCurrentEntity(entity* e);  // marks the map modified
  bool worldIsCurrent() { return currentEntity() == world(); }

  // The current brush: the first selected one of the current entity, else of the others from the last to
  // the first; none when nothing is selected.
  brush* firstSelected();
  int selectedCount();        // in the current entity
  int totalSelected() const;  // in all entities
  int brushCount() const;     // of all entities
  // Middle of the bounds of the selection, or of everything when the current entity has none selected.
  // The group filter applies.
  vec3 selectionCentre();

  // The depth range of new brushes, per axis, on the grid.
  const vec3& workLow() const { return workLow_; }
  const vec3& workHigh() const { return workHigh_; }
  void setWorkLow(const vec3& low);    // axes above -2048 only
  void setWorkHigh(const vec3& high);  // axes below 2048 only
  // Takes the range as it is, off the grid or not.
  void setWorkRange(const vec3& low, const vec3& high);

  // In group mode, whether the brush's group is visible; otherwise true.
  bool passesGroupFilter(const brush& b) const { return !settings_.groupmode || groups.passes(b.group()); }
  // What the view filter says of the brush.
  bool isFiltered(const brush& b) const;

  // Visit entities from the last to the first and their brushes from the last to the first, so that a
  // method may delete its brush; mark the map modified. A method outside 0..15 is fatal, with the
  // dispatcher's name: "MSPerform Unknown method...".
  void MUSPerform(Method method);  // visible groups, not selected
  void MSPerform(Method method);   // visible groups, selected
  void MAPerform(Method method);   // visible groups
  void MGPerform(Method method);   // every brush

  // Empties the map and gives it a world whose "wad" is `wads`. Current is the world; not modified.
  void initNew(const std::string& wads);
  // Removes every entity with its brushes.
  void clearEntities();

  void assignGroupOfSelected(int index);
  void notify(MapNotice what) const {
    if (notice) notice(what);
  }

 private:
  template <typename Filter>
  void performOver(Method method, const char* dispatcher, Filter&& filter);

  const Settings& settings_;
  const EntityClassList& classes_;
  ObjectCounters* counters_;
  std::vector<std::unique_ptr<entity>> entities_;
  entity* currentEntity_ = nullptr;
  vec3 workLow_{0, 0, 0};
  vec3 workHigh_{80, 80, 80};
};

}  // namespace velk
