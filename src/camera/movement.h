// The commands that move and turn a map's active camera, choose another one, or change how far a command
// moves and how the wire view magnifies. Each changes the model or the settings and says what the caller
// has to redraw and post.
#pragma once

#include "base/outcome.h"
#include "model/map.h"
#include "settings/settings.h"

namespace velk {

// The lens of the wire view: its focal length in pixels is ppd * mag. A window 512 pixels wide then shows
// the same 90 degrees across as the flat and textured views.
struct WireLens {
  float ppd = 256;
  float mag = 1;
  double focalLength() const { return double(ppd) * mag; }
};

// Moves by settings.stepsize: along the heading, to its side, straight up and down, and along the axes of
// the world.
Outcome MoveForward(map& m, const Settings& settings);
Outcome MoveBackward(map& m, const Settings& settings);
Outcome StrafeLeft(map& m, const Settings& settings);
Outcome StrafeRight(map& m, const Settings& settings);
Outcome MoveUp(map& m, const Settings& settings);
Outcome MoveDown(map& m, const Settings& settings);
Outcome MoveWest(map& m, const Settings& settings);
Outcome MoveEast(map& m, const Settings& settings);
Outcome MoveNorth(map& m, const Settings& settings);
Outcome MoveSouth(map& m, const Settings& settings);

// Turns by settings.turnStep().
Outcome TurnLeft(map& m, const Settings& settings);
Outcome TurnRight(map& m, const Settings& settings);
Outcome TurnAround(map& m);
Outcome PitchUp(map& m, const Settings& settings);
Outcome PitchDown(map& m, const Settings& settings);
Outcome RollUp(map& m, const Settings& settings);
Outcome RollDown(map& m, const Settings& settings);
// Level, looking along -y.
Outcome ResetAngles(map& m);

// To 48 units above the nearest brush top above or below the feet, which are 48 under the eye. Marks
// nothing modified.
Outcome FloorUp(map& m);
Outcome FloorDown(map& m);

// stepsize, 1 to 2048 in powers of two of what it was.
Outcome SmallerStep(Settings& settings);
Outcome LargerStep(Settings& settings);
// far_clip_distance, -16384 to -2.
Outcome NearerFarLimit(Settings& settings);
Outcome FartherFarLimit(Settings& settings);
Outcome SmallerPpd(WireLens& lens);
Outcome LargerPpd(WireLens& lens);
Outcome SmallerMag(WireLens& lens);
Outcome LargerMag(WireLens& lens);

// number is 1..5; others change nothing.
Outcome SelectCamera(map& m, int number);
Outcome NextCamera(map& m);
Outcome PreviousCamera(map& m);
Outcome ToggleShowCameras(Settings& settings);
Outcome ToggleLockCameras(Settings& settings);

// Wire to flat to textured to wire.
Outcome CycleDrawMode(Settings& settings);

// The fixed sizes of the camera picture.
struct RenderQuality {
  int width = 0;
  int height = 0;
};
inline constexpr RenderQuality kRenderQualities[] = {{80, 60},   {100, 75},  {160, 80},  {200, 150},
                                                     {320, 200}, {400, 300}, {480, 360}, {640, 480}};
// Takes one of the fixed sizes by its index; leaves the window's own size when that was chosen.
Outcome SetRenderQuality(Settings& settings, int index);
// The picture has the window's own size in pixels from now on.
Outcome SetWindowQuality(Settings& settings);

}  // namespace velk
