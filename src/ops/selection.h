// Operations on a map that select or pick.
#pragma once

#include "model/map.h"

namespace velk {

// Selects what lies inside (or overlaps) the one selected brush, which is destroyed; nothing happens with
// any other number selected.
void SelectByBox(map& m, bool inside);

// Gives the face hit first by the ray, or all faces of its brush, the texture. Fixed-size entities keep
// theirs. True when a brush changed.
bool ApplyTextureByRay(map& m, const vec3& start, const vec3& end, const texturedef& texture,
                       bool wholeBrush);

// What a pick found: the brush and the face hit; none when nothing was.
struct RayPick {
  brush* hit = nullptr;
  int face = -1;
  bool firstOfSelection = false;  // nothing else was selected: the texture browser takes the face's texture
};

// What selectByRay would pick; changes nothing.
RayPick PickByRay(const map& m, const vec3& start, const vec3& end, bool entitiesFirst);

// Picks along a ray and toggles the selection of what it meets first; its entity becomes current. With
// entitiesFirst, world brushes count only when no other entity's was hit. Fills the hit list.
RayPick selectByRay(map& m, const vec3& start, const vec3& end, bool entitiesFirst);

// Links the current entity to the one picked: "target" and "targetname". True when linked. `picked`, when
// given, tells what the pick found.
bool Connect(map& m, const vec3& start, const vec3& end, RayPick* picked = nullptr);

}  // namespace velk
