// Stairs that fill the seed's box: regular steps, blocks down to the far end of the run, or a spiral.
#pragma once

#include <optional>
#include <string>

#include "makers/maker_texts.h"
#include "makers/pieces.h"

namespace velk {

inline constexpr const char* kStairsTitle = "Make Stairs...";
inline constexpr const char* kStairsNotMade = "Couldn't create dialog";  // the form was cancelled
inline constexpr const char* kStairTypes[] = {"Regular", "Spiral", "Block"};
// Below the stairs' picture: step height, roll, pitch, yaw.
inline constexpr const char* kStairReadout = " Step Height: %3.2f R(%i) P(%i) Y(%i) ";
inline constexpr const char* kStepHeightCaption = "Velk - Confirm Step Height";

enum class StairType { Regular, Spiral, Block };

struct StairParams {
  int steps = 12;     // at least 2 are made
  int width = 64;     // of a step along the run; of a spiral's tread across it
  int gap = 0;        // left open between steps, upright
  double turns = 2;   // of a spiral
  int distance = 20;  // of a spiral's treads from the middle
  StairType type = StairType::Regular;
  bool onX = false;  // runs along x, else along y
  bool down = false;
};
inline constexpr MakerField kStairFields[] = {{"steps", "Number of Steps", 1},
                                              {"width", "Step Width", 1},
                                              {"gap", "Vertical Gap Between Steps", 0},
                                              {"turns", "Number of Turns (Spiral Only)", 0.1},
                                              {"distance", "Dist from center (Spiral Only)", 1},
                                              {"type", "Stair Type"},
                                              {"on_x", "On X Axis"},
                                              {"down", "Going Down"}};

// What the form's numbers become before they are remembered.
StairParams Limited(const StairParams& params);

// Steps in order. Regular steps and blocks stay even when they are degenerate; with care only solid steps
// do.
Made MakeStairs(const Seed& seed, const StairParams& params, const MakerRules& rules);

// From one step to the next, in world units.
double StepHeight(const Seed& seed, int steps);
// What to ask before steps of such a height are made; none for those that can be climbed.
std::optional<std::string> StepHeightQuestion(double height);
// The status; the height is truncated.
std::string StairsMade(double height);

// Bottom and top of the steps of a flight; `down` turns their order round.
class StepLevels {
 public:
  StepLevels(const Seed& seed, const StairParams& params);

  int steps() const { return steps_; }
  int bottom(int step) const;
  int top(int step) const;

 private:
  // Of the levels that part the seed's height evenly, 0 at its bottom.
  double level(int index) const { return bottom_ + index * height_ / steps_; }
  int place(int step) const { return down_ ? steps_ - step - 1 : step; }

  int steps_;
  double bottom_;
  double height_;  // of the whole flight
  int gap_;
  bool down_;
};

}  // namespace velk
