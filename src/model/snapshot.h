// Snapshots of a map: everything an undo brings back. Snapshots share what did not change between them, so
// that a hundred of a large map cost little more memory than the changes.
#pragma once

#include <cstdint>
#include <memory>
#include <vector>

#include "model/map.h"

namespace velk {

// A face without what is derived from its points.
struct KeptFace {
  vec3 points[3];
  float rotate = 0;
  float shift[2] = {};
  float scale[2] = {};
  std::uint32_t name = 0;  // of its texture, in the shape's list

  bool operator==(const KeptFace&) const;
};

// What makes a brush, without what is derived from it or belongs to the selection.
struct BrushShape {
  std::vector<KeptFace> faces;
  std::vector<std::string> names;  // the textures in order of first use
  vec3 color;
  int group = 0;

  bool operator==(const BrushShape&) const;
};

struct KeptBrush {
  std::shared_ptr<const BrushShape> shape;
  int currentFace = 0;
  bool selected = false;

  bool operator==(const KeptBrush&) const = default;
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

// Takes a snapshot. What did not change since the map's last one is shared with it and not looked at:
// entities of which nothing changed, and of the others the pages whose brushes did not.
MapSnapshot TakeSnapshot(const map& m);

// Makes the map what it was. Brushes that did not change stay the same objects, and so do entities of which
// nothing changed; the others are built anew. Cameras are brought back only when asked. A map saved since
// counts as modified.
void RestoreSnapshot(map& m, const MapSnapshot& snapshot, bool withCameras);

// One brush with its owner's pairs, and what was kept made anew. RestoreEntity's result is not in the list
// yet.
KeptEntity KeepBrush(const entity& owner, brush& b);
std::unique_ptr<brush> RestoreBrush(entity& owner, const KeptBrush& kept);
std::unique_ptr<entity> RestoreEntity(map& m, const KeptEntity& kept);

// Whether two snapshots of one map agree in what a file would hold: entities, brushes, groups.
bool SameContents(const MapSnapshot& a, const MapSnapshot& b);

// About how many bytes `a` keeps that `b` does not share.
size_t BytesOfItsOwn(const MapSnapshot& a, const MapSnapshot& b);

}  // namespace velk
