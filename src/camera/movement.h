// The commands that move and turn a map's active camera, choose another one, or change how far a command
// moves and how the wire view magnifies. Each changes the model or the settings and says what the caller
// has to redraw and post.
#pragma once

#include <string>

#include "model/map.h"
#include "settings/settings.h"

namespace velk {

// What a camera command did.
struct CameraOutcome {
  std::string status;  // for the status line
  bool redrawPlans = false;
  bool redrawCamera = false;
  // The plan views go to the active camera unless they are locked (setPlanCenter with lock_cameras).
  bool follow = false;
  // The plan views go to the active camera whether locked or not.
  bool recentre = false;
};

// The lens of the wire view: its focal length in pixels is ppd * mag. A window 512 pixels wide then shows
// the same 90 degrees across as the flat and textured views.
struct WireLens {
  float ppd = 256;
  float mag = 1;
  double focalLength() const { return double(ppd) * mag; }
};

// Moves by settings.stepsize: along the heading, to its side, straight up and down, and along the axes of
// the world.
CameraOutcome MoveForward(map& m, const Settings& settings);
CameraOutcome MoveBackward(map& m, const Settings& settings);
CameraOutcome StrafeLeft(map& m, const Settings& settings);
CameraOutcome StrafeRight(map& m, const Settings& settings);
CameraOutcome MoveUp(map& m, const Settings& settings);
CameraOutcome MoveDown(map& m, const Settings& settings);
CameraOutcome MoveWest(map& m, const Settings& settings);
CameraOutcome MoveEast(map& m, const Settings& settings);
CameraOutcome MoveNorth(map& m, const Settings& settings);
CameraOutcome MoveSouth(map& m, const Settings& settings);

// Turns by settings.turnStep().
CameraOutcome TurnLeft(map& m, const Settings& settings);
CameraOutcome TurnRight(map& m, const Settings& settings);
CameraOutcome TurnAround(map& m);
CameraOutcome PitchUp(map& m, const Settings& settings);
CameraOutcome PitchDown(map& m, const Settings& settings);
CameraOutcome RollUp(map& m, const Settings& settings);
CameraOutcome RollDown(map& m, const Settings& settings);
// Level, looking along -y.
CameraOutcome ResetAngles(map& m);

// To 48 units above the nearest brush top above or below the feet, which are 48 under the eye. Marks
// nothing modified.
CameraOutcome FloorUp(map& m);
CameraOutcome FloorDown(map& m);

// stepsize, 1 to 2048 in powers of two of what it was.
CameraOutcome SmallerStep(Settings& settings);
CameraOutcome LargerStep(Settings& settings);
// far_clip_distance, -16384 to -2.
CameraOutcome NearerFarLimit(Settings& settings);
CameraOutcome FartherFarLimit(Settings& settings);
CameraOutcome SmallerPpd(WireLens& lens);
CameraOutcome LargerPpd(WireLens& lens);
CameraOutcome SmallerMag(WireLens& lens);
CameraOutcome LargerMag(WireLens& lens);

// number is 1..5; others change nothing.
CameraOutcome SelectCamera(map& m, int number);
CameraOutcome NextCamera(map& m);
CameraOutcome PreviousCamera(map& m);
CameraOutcome ToggleShowCameras(Settings& settings);
CameraOutcome ToggleLockCameras(Settings& settings);

// Wire to flat to textured to wire.
CameraOutcome CycleDrawMode(Settings& settings);

// The fixed sizes of the camera picture.
struct RenderQuality {
  int width = 0;
  int height = 0;
};
inline constexpr RenderQuality kRenderQualities[] = {{80, 60},   {100, 75},  {160, 80},  {200, 150},
                                                     {320, 200}, {400, 300}, {480, 360}, {640, 480}};
// Takes one of the fixed sizes by its index; leaves the window's own size when that was chosen.
CameraOutcome SetRenderQuality(Settings& settings, int index);
// The picture has the window's own size in pixels from now on.
CameraOutcome SetWindowQuality(Settings& settings);

}  // namespace velk
