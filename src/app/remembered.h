// What the dialogs of commands remember until the editor ends: each shows the values last accepted.
#pragma once

#include <array>
#include <functional>

#include "makers/arch.h"
#include "makers/box.h"
#include "makers/cylinder.h"
#include "makers/lights.h"
#include "makers/prism.h"
#include "makers/pyramid.h"
#include "makers/revolve.h"
#include "makers/sphere.h"
#include "makers/stairs.h"

namespace velk {

// How often a fitted texture repeats on a face.
struct TextureRepeats {
  int across = 1;
  int down = 1;
};

struct Remembered {
  StairParams stairs;
  ArchParams arch;
  SphereParams sphere;
  CylinderParams cylinder;
  PrismParams prism;
  PyramidParams pyramid;
  BoxParams box;
  LightParams lights;
  RevolveParams revolve;
  std::array<double, 3> rotation{0, 0, 0};  // degrees: roll, pitch, yaw
  std::array<double, 3> scale{1, 1, 1};
  std::array<double, 3> copyOffset{16, 16, 0};
  bool moveOnly = false;
  // The last copy, move, turn or generator, with its values; empty before the first.
  std::function<Outcome(map&)> lastChange;
  TextureRepeats textureRepeats;
  bool textureAllFaces = false;
};

}  // namespace velk
