// Maps and brushes for tests, in a line or two: brush& b = box({0, 0, 0}, {64, 64, 64});
#pragma once

#include <memory>
#include <string>
#include <string_view>

#include <gtest/gtest.h>

#include "model/map.h"

namespace velk::test {

// A class list of: worldspawn and func_door (built of brushes), light (a box of 16 units), info_player_start
// (-16 -16 -24 to 16 16 32, red).
inline EntityClassList TestClasses() {
  EntityClassList classes;
  classes.scanText(
      "/*QUAKED worldspawn (0 0 0) ?\nThe world.\n*/\n"
      "/*QUAKED func_door (0 .5 .8) ? START_OPEN\nA door.\n*/\n"
      "/*QUAKED light (0 1 0) (-8 -8 -8) (8 8 8) START_OFF\nA light.\n*/\n"
      "/*QUAKED info_player_start (1 0 0) (-16 -16 -24) (16 16 32)\nThe start.\n*/\n");
  return classes;
}

inline texturedef Texture(std::string_view name) {
  texturedef texture;
  texture.name = name;
  return texture;
}

// A map with a world, its settings and its classes.
struct TestMap {
  Settings settings;
  EntityClassList classes = TestClasses();
  ObjectCounters counters;
  map m{settings, classes, &counters};

  TestMap() { m.initNew("test.wad"); }

  entity& world() { return *m.world(); }

  // Adds an empty entity built of brushes.
  entity& addEntity(std::string_view classname) {
    auto made = std::make_unique<entity>(m);
    made->isModel = true;
    made->setKey("classname", classname);
    return m.addobject(std::move(made));
  }

  // Adds an entity of a fixed-size class with its box.
  entity& addPoint(std::string_view classname, const vec3& origin) {
    entity& made = addEntity(classname);
    made.makeClassBox(origin);
    return made;
  }

  brush& boxIn(entity& owner, const vec3& mins, const vec3& maxs, std::string_view texture = "wall") {
    auto made = std::make_unique<brush>(&counters);
    made->initBox(owner, mins, maxs, Texture(texture));
    return owner.addobject(std::move(made));
  }

  brush& box(const vec3& mins, const vec3& maxs, std::string_view texture = "wall") {
    return boxIn(world(), mins, maxs, texture);
  }

  brush& selectedBox(const vec3& mins, const vec3& maxs, std::string_view texture = "wall") {
    brush& b = box(mins, maxs, texture);
    b.select();
    return b;
  }

  // Every entity with its brushes, '*' for a selected one: "worldspawn -*- light *".
  std::string summary() const {
    std::string text;
    for (const entity& e : m.entities()) {
      text += (text.empty() ? "" : " ") + e.valueOfKey("classname") + ' ';
      for (const brush& b : e.brushes()) text += b.selected() ? '*' : '-';
    }
    return text;
  }

  // A cube of 16 units at x = 32 * index, in a row that no two of share a side.
  brush& cube(int index) { return box({32.0f * index, 0, 0}, {32.0f * index + 16, 16, 16}); }
};

// Tests of one such map.
struct MapTest : testing::Test, TestMap {};

// A face through three points, seen from outside: (p0 - p1) x (p2 - p1) points out of the brush.
inline face Face(const vec3& p0, const vec3& p1, const vec3& p2, std::string_view texture = "wall") {
  face f;
  f.planepts[0] = p0;
  f.planepts[1] = p1;
  f.planepts[2] = p2;
  f.texture = Texture(texture);
  return f;
}

// A brush's bounds, truncated: "0..64 0..64 -8..8".
inline std::string Bounds(const brush& b) {
  std::string text;
  for (int axis = 0; axis < 3; ++axis) {
    text += (axis ? " " : "") + std::to_string(int(b.mins[axis])) + ".." + std::to_string(int(b.maxs[axis]));
  }
  return text;
}

}  // namespace velk::test
