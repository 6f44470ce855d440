// Snapshots of a map: everything an undo brings back. Snapshots share what did not change between them, so
// that a hundred of a large map cost little more memory than the changes.
#pragma once

#include <memory>
#include <vector>

#include "model/map.h"

namespace velk {

// What makes a brush, without what is derived from it or belongs to the selection.
struct BrushShape {
  std::vector<face> faces;
  vec3 color;
  int group = 0;
};

struct KeptBrush {
  std::shared_ptr<const BrushShape> shape;
  int currentFace = 0;
  bool selected = false;
};

// Some of an entity's brushes: a change costs the page that it is on, not the whole list.
using KeptPage = std::vector<KeptBrush>;

struct KeptEntity {
  std::shared_ptr<const std::vector<KeyPair>> pairs;   // oldest first
  std::vector<std::shared_ptr<const KeptPage>> pages;  // all full but the last, none empty
  bool isModel = false;
};

struct MapSnapshot {
  std::vector<std::shared_ptr<const KeptEntity>> entities;
  int currentEntity = 0;
  GroupList groups;
  clipper clip;
  std::array<camera, kCameras> cameras;
  int currentCamera = 0;
  vec3 workLow;
  vec3 workHigh;
  bool modified = false;
  int saves = 0;  // of the map when the snapshot was taken
};

// Takes a snapshot. Shares the shapes of brushes that are as they were at their last snapshot, and of
// `previous`, when one is given, whole pages and entities.
MapSnapshot TakeSnapshot(map& m, const MapSnapshot* previous = nullptr);

// Makes the map what it was. Brushes that did not change stay the same objects; the others are built anew.
// Cameras are brought back only when asked. A map saved since counts as modified.
void RestoreSnapshot(map& m, const MapSnapshot& snapshot, bool withCameras);

// One brush with its owner's pairs, and what was kept made anew. RestoreEntity's result is not in the list
// yet.
KeptEntity KeepBrush(const entity& owner, brush& b);
std::unique_ptr<brush> RestoreBrush(entity& owner, const KeptBrush& kept);
std::unique_ptr<entity> RestoreEntity(map& m, const KeptEntity& kept);

// Whether two snapshots of one map differ in what a file would hold: entities, brushes, groups.
bool SameContents(const MapSnapshot& a, const MapSnapshot& b);

}  // namespace velk
