#include "makers/lights.h"

#include <algorithm>

#include "base/text.h"

namespace velk {
namespace {

// Of one axis, as many as could be of use.
std::vector<double> PlacesAlong(double low, double high, int count) {
  if (count < 2) return {RoundHalfAway((low + high) / 2)};
  const int step = Truncate((high - low) / (count - 1.0));
  std::vector<double> places;
  for (int i = 0; i < std::min(count, MAX_ENTITIES + 1); ++i) places.push_back(low + double(i) * step);
  return places;
}

void AddLight(map& m, const vec3& origin, const LightParams& params, int group) {
  auto made = std::make_unique<entity>(m);
  made->setKey("classname", params.type);
  made->setKey("origin", Format("%i %i %i", int(origin.x), int(origin.y), int(origin.z)));
  made->makeClassBox(origin);
  made->setKey("light", Format("%i", params.value));
  made->at(0)->setGroup(group);
  made->at(0)->select();
  m.addobject(std::move(made));
}

// The seed's entity goes with it.
bool EmptiesItsEntity(const brush& seed) { return !seed.owner->isWorld() && seed.owner->numbrushes() == 1; }

}  // namespace

std::vector<std::string> LightTypes(const EntityClassList& classes) {
  std::vector<std::string> names;
  for (int i = 0; i < classes.count(); ++i) {
    const std::string& name = classes.classAt(i).name;
    if (StartsWithNoCase(name, kLightType)) names.push_back(name);
  }
  return names;
}

std::vector<vec3> LightOrigins(const Seed& seed, const LightParams& params) {
  std::vector<double> places[3];
  for (int axis = 0; axis < 3; ++axis) {
    places[axis] = PlacesAlong(seed.mins[axis], seed.maxs[axis], params.counts[axis]);
  }
  std::vector<vec3> origins;
  for (const double x : places[0]) {
    for (const double y : places[1]) {
      for (const double z : places[2]) {
        origins.push_back({float(Truncate(x)), float(Truncate(y)), float(Truncate(z))});
        if (origins.size() > MAX_ENTITIES) return origins;
      }
    }
  }
  return origins;
}

Made LightBoxes(const Seed& seed, const LightParams& params, const EntityClassList& classes) {
  const EntityClass& type = classes.findByName(params.type);
  vec3 mins{-8, -8, -8};  // of unknown classes
  vec3 maxs{8, 8, 8};
  for (int axis = 0; axis < 3 && classes.isKnown(type); ++axis) {
    mins[axis] = type.mins[static_cast<size_t>(axis)];
    maxs[axis] = type.maxs[static_cast<size_t>(axis)];
  }
  Made made;
  for (const vec3& origin : LightOrigins(seed, params)) {
    made.brushes.push_back(std::make_unique<brush>());
    made.brushes.back()->setBox(add(origin, mins), add(origin, maxs), {});
  }
  return made;
}

Outcome MakeLights(map& m, brush& seed, const LightParams& params, bool careful) {
  if (params.type.empty()) return Outcome::Said(careful ? kNoLightClass : kLightsTexts.made);
  const std::vector<vec3> origins = LightOrigins(SeedOf(seed), params);
  m.requireRoom(static_cast<int>(origins.size()) - (EmptiesItsEntity(seed) ? 1 : 0));
  const Seed taken = TakeSeed(m, seed);
  for (const vec3& origin : origins) AddLight(m, origin, params, taken.group);
  return Outcome::Drawn(Redraw::All, kLightsTexts.made);
}

}  // namespace velk
