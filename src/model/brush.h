// Brushes: convex solids of up to 64 faces.
#pragma once

#include <cstddef>
#include <memory>
#include <vector>

#include "geometry/face.h"
#include "model/counters.h"

namespace velk {

class entity;
struct BrushShape;
struct HitList;

inline constexpr int MAX_FACES = 64;

struct brush {
  explicit brush(ObjectCounters* counters = nullptr);
  // A copy carries everything but polygons and texture caches. Run buildWindings on it when polygons are
  // needed.
  brush(const brush& other);
  brush& operator=(const brush&) = delete;
  // Takes the brush out of the hit list. It must have left its owner's list before.
  ~brush();

  bool invalid = false;     // no valid solid; see buildWindings
  entity* owner = nullptr;  // the entity that holds this brush
  vec3 mins;                // bounds of all polygons, world units
  vec3 maxs;
  HitList* hits = nullptr;                 // the hit list that holds this brush, if any
  std::shared_ptr<const BrushShape> kept;  // of the last snapshot; none once something of it changed
  // Expires with the brush; made when first asked for.
  std::weak_ptr<const void> identity();

  bool selected() const { return selected_; }
  void select(bool on = true) { setAside(selected_, on); }
  int group() const { return group_; }
  void setGroup(int group) { set(group_, group); }
  int currentFace() const { return currentFace_; }  // 0..numfaces-1
  void setCurrentFace(int face) { setAside(currentFace_, face); }
  // Of the owner's entity class, channels nominally 0..1.
  const vec3& color() const { return color_; }
  void setColor(const vec3& color);

  // At most MAX_FACES.
  const std::vector<face>& faces() const { return faces_; }
  // To change points, textures or the list, at once: ask again for every change. Run buildWindings
  // afterwards.
  std::vector<face>& editFaces() {
    touch();
    return faces_;
  }
  int numfaces() const { return static_cast<int>(faces_.size()); }
  // The shape, the group or the colour is about to change: what the last snapshot kept is out of date.
  void touch() {
    kept.reset();
    tellOwner();
  }
  // The texture of face 0; an empty definition when there is no face.
  const texturedef& brushTexture() const;

  // Makes a box owned by `owner`, in its class colour. Without extent on every axis the brush is invalid
  // and has no faces.
  void initBox(entity& owner, const vec3& mins, const vec3& maxs, const texturedef& texture);
  // Faces of the box, in the fixed order: four sides, top, bottom.
  void setBox(const vec3& mins, const vec3& maxs, const texturedef& texture);

  // Rebuilds planes, polygons, shades and bounds from the plane points and textures; to be run after every
  // change of either. Degenerate and repeated faces get no polygon; the rest of the brush is built. Sets
  // invalid (and zero bounds) when no solid is left or a polygon is not acceptable.
  void buildWindings();

  // A face number not below numfaces is fatal "setTexturedef:forFace: bad face number %i".
  void setTexturedef(const texturedef& texture, int faceNumber);
  void setAllTexturedefs(const texturedef& texture);

  // Adds a face with the texture of face 0, rebuilds, and drops faces left without polygon. With fewer
  // than 4 faces left the brush is invalid and false is returned; the caller removes it from its entity
  // (see RemoveFromEntity). A full brush is fatal "addFace: numfaces == MAX_FACES".
  bool addFace(const face& added);

  void reverseFaces();
  // Whether textures are to move along with this brush: the setting texture_lock, but not for boxes of point
  // entities.
  bool locksTextures() const;
  void translate(const vec3& offset);
  // p becomes m (p - centre) + centre, m row by row.
  void transform(const float m[3][3], const vec3& centre);

  // Deselects; the owner map's work range takes the brush's depth.
  void deselect();

  struct Hit {
    double t = -1;  // distance from the start, -1 for a miss
    int face = -1;
  };
  // Where the segment enters the brush. A start inside without any crossing gives t 0 on face 0. A
  // negative distance is fatal "hitByRay: negative t".
  Hit hitByRay(const vec3& start, const vec3& end) const;

  struct RayClip {
    vec3 p1;
    vec3 p2;
    int entry = -2;  // faces crossed; -2 none crossed, -1 missed
    int exit = -2;
  };
  RayClip clipRay(const vec3& start, const vec3& end) const;

 private:
  friend class entity;
  template <typename T>
  void set(T& field, T value) {
    if (field == value) return;
    touch();
    field = value;
  }
  // Sets what a snapshot keeps beside the shape.
  template <typename T>
  void setAside(T& field, T value) {
    if (field == value) return;
    tellOwner();
    field = value;
  }
  void tellOwner();
  int alignment() const;
  // Makes room in the store for polygons of so many bytes; what it held is gone.
  std::byte* polygonStore(size_t bytes);

  std::unique_ptr<std::byte[]> store_;  // one block with the polygons of all faces, kept for the next build
  size_t storeSize_ = 0;
  int place_ = -1;  // in its owner's list, when it is there
  bool selected_ = false;
  int currentFace_ = 0;
  int group_ = 0;
  vec3 color_;
  std::vector<face> faces_;
  ObjectCounters* counters_ = nullptr;
  std::shared_ptr<const int> identity_;
};

}  // namespace velk
