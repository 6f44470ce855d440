#include "model/brush.h"

#include <algorithm>
#include <cstdio>
#include <utility>

#include "base/error.h"
#include "geometry/texture_fit.h"
#include "model/map.h"

namespace velk {
namespace {

constexpr size_t kFewestFaces = 4;

vec3 Transformed(const vec3& p, const float m[3][3], const vec3& centre) {
  const double x = double(p.x) - centre.x;
  const double y = double(p.y) - centre.y;
  const double z = double(p.z) - centre.z;
  return {float(m[0][0] * x + m[0][1] * y + m[0][2] * z + centre.x),
          float(m[1][0] * x + m[1][1] * y + m[1][2] * z + centre.y),
          float(m[2][0] * x + m[2][1] * y + m[2][2] * z + centre.z)};
}

void SetPoints(face& f, const vec3& p0, const vec3& p1, const vec3& p2) {
  f.planepts[0] = p0;
  f.planepts[1] = p1;
  f.planepts[2] = p2;
}

// The faces of a box: four sides, top, bottom.
std::vector<face> BoxFaces(const vec3& mins, const vec3& maxs, const texturedef& texture) {
  const vec3 bottom[4] = {mins, {mins.x, maxs.y, mins.z}, {maxs.x, maxs.y, mins.z}, {maxs.x, mins.y, mins.z}};
  vec3 top[4];
  for (int i = 0; i < 4; ++i) top[i] = {bottom[i].x, bottom[i].y, maxs.z};

  std::vector<face> faces(6);
  for (face& f : faces) f.texture = texture;
  for (size_t i = 0; i < 4; ++i) SetPoints(faces[i], top[(i + 1) % 4], top[i], bottom[i]);
  SetPoints(faces[4], top[0], top[1], top[2]);
  SetPoints(faces[5], bottom[2], bottom[1], bottom[0]);
  return faces;
}

}  // namespace

brush::brush(ObjectCounters* counters) : counters_(counters) {
  if (counters_) ++counters_->brushesConstructed;
}

brush::brush(const brush& other)
    : invalid(other.invalid),
      owner(other.owner),
      mins(other.mins),
      maxs(other.maxs),
      selected_(other.selected_),
      currentFace_(other.currentFace_),
      group_(other.group_),
      color_(other.color_),
      faces_(other.faces_),
      counters_(other.counters_) {
  if (counters_) ++counters_->brushesConstructed;
}

brush::~brush() {
  if (hits) hits->forget(*this);
  if (counters_) ++counters_->brushesDestroyed;
}

const texturedef& brush::brushTexture() const {
  static const texturedef kNone;
  return faces_.empty() ? kNone : faces_.front().texture;
}

void brush::initBox(entity& boxOwner, const vec3& boxMins, const vec3& boxMaxs, const texturedef& texture) {
  owner = &boxOwner;
  setColor(ClassColour(boxOwner));
  setBox(boxMins, boxMaxs, texture);
}

std::weak_ptr<const void> brush::identity() {
  if (!identity_) identity_ = std::make_shared<int>(0);
  return identity_;
}

void brush::tellOwner() {
  if (owner) owner->touch();
}

void brush::setColor(const vec3& color) {
  if (VecEqual(color_, color)) return;
  touch();
  color_ = color;
}

void brush::setBox(const vec3& boxMins, const vec3& boxMaxs, const texturedef& texture) {
  if (boxMaxs.x - boxMins.x <= 0 || boxMaxs.y - boxMins.y <= 0 || boxMaxs.z - boxMins.z <= 0) {
    mins = boxMins;
    maxs = boxMaxs;
    invalid = true;
    editFaces().clear();
    return;
  }
  editFaces() = BoxFaces(boxMins, boxMaxs, texture);
  buildWindings();
}

void brush::setTexturedef(const texturedef& texture, int faceNumber) {
  if (faceNumber < 0 || faceNumber >= numfaces()) {
    Error("setTexturedef:forFace: bad face number %i", faceNumber);
  }
  editFaces()[static_cast<size_t>(faceNumber)].texture = texture;
  buildWindings();
}

void brush::setAllTexturedefs(const texturedef& texture) {
  // It may be that of one of these faces, which then keeps it.
  for (face& f : editFaces()) f.texture = texture;
  buildWindings();
}

bool brush::addFace(const face& added) {
  if (numfaces() >= MAX_FACES) Error("addFace: numfaces == MAX_FACES");
  face taken = added;
  if (!faces_.empty()) taken.texture = faces_.front().texture;
  editFaces().push_back(std::move(taken));
  buildWindings();
  std::erase_if(faces_, [](const face& f) { return !f.polygon; });
  setCurrentFace(std::max(std::min(currentFace_, numfaces() - 1), 0));
  if (faces_.size() < kFewestFaces) invalid = true;
  return faces_.size() >= kFewestFaces;
}

void brush::reverseFaces() {
  for (face& f : editFaces()) std::swap(f.planepts[0], f.planepts[2]);
  buildWindings();
}

bool brush::locksTextures() const {
  return owner && owner->isModel && owner->parent().settings().texture_lock;
}

void brush::translate(const vec3& offset) {
  const bool lock = locksTextures();
  for (face& f : editFaces()) {
    plane facePlane;
    if (lock && PlaneFromPoints(f.planepts[0], f.planepts[1], f.planepts[2], facePlane)) {
      f.texture = MovedTexture(f.texture, TextureAxisFromPlane(facePlane.normal, alignment()), offset);
    }
    for (vec3& p : f.planepts) p = add(p, offset);
  }
  buildWindings();
}

void brush::transform(const float m[3][3], const vec3& centre) {
  for (face& f : editFaces()) {
    for (vec3& p : f.planepts) p = Transformed(p, m, centre);
  }
  buildWindings();
}

void brush::deselect() {
  select(false);
  if (invalid) std::printf("WARNING: deselected invalid brush\n");
  if (!owner) return;
  owner->parent().setWorkLow(mins);
  owner->parent().setWorkHigh(maxs);
}

int brush::alignment() const { return owner ? owner->parent().settings().texture_alignment : 0; }

}  // namespace velk
