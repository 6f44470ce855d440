#include "camera/movement.h"

#include <algorithm>
#include <cmath>
#include <numbers>

#include "base/text.h"

namespace velk {

namespace {

constexpr double kPi = std::numbers::pi;
constexpr double kTwoPi = 2 * std::numbers::pi;
constexpr double kEyeHeight = 48;       // of the eye above the feet, world units
constexpr float kFloorRay = 4096;       // floors are looked for between plus and minus this height
constexpr float kNearestFarLimit = -2;  // view depths
constexpr float kFarthestFarLimit = -16384;

Outcome Moved(const char* status) {
  Outcome outcome = Outcome::Drawn(Redraw::All, status);
  outcome.centre = Centre::Follow;
  return outcome;
}

Outcome Turned(const char* status) { return Outcome::Drawn(Redraw::All, status); }

Outcome Tilted(const char* status) { return Outcome::Drawn(Redraw::Camera, status); }

void Shift(map& m, double x, double y, double z) {
  vec3& origin = m.activeCamera().origin;
  origin = {float(origin.x + x), float(origin.y + y), float(origin.z + z)};
}

// Along the direction `turn` radians from the yaw axis.
void ShiftAlong(map& m, double turn, double distance) {
  const double angle = m.activeCamera().yaw + turn;
  Shift(m, std::cos(angle) * distance, std::sin(angle) * distance, 0);
}

// One correction at most, so an angle far out of range stays out of range.
void TurnBy(float& angle, double by) {
  angle = float(angle + by);
  if (by >= 0 && angle > kTwoPi) angle = float(angle - kTwoPi);
  if (by < 0 && angle < 0) angle = float(angle + kTwoPi);
}

// Heights of the brush tops under or over the camera, relative to the feet.
template <typename Visit>
void VisitFloors(const map& m, Visit&& visit) {
  const vec3& origin = m.activeCamera().origin;
  const vec3 top{origin.x, origin.y, kFloorRay};
  const vec3 bottom{origin.x, origin.y, -kFloorRay};
  const double feet = origin.z - kEyeHeight;
  for (const entity& e : m.entities()) {
    for (const brush& b : e.brushes()) {
      if (!m.passesGroupFilter(b)) continue;
      const brush::RayClip cut = b.clipRay(top, bottom);
      if (cut.entry >= 0) visit(cut.p1.z - feet);
    }
  }
}

Outcome Activate(map& m, int index, const char* ending, bool recentre) {
  m.currentCamera = index;
  Outcome outcome = Outcome::Drawn(Redraw::All, Format("Camera %i Active%s", index + 1, ending));
  if (recentre) outcome.centre = Centre::Jump;
  return outcome;
}

Outcome LensChanged(const char* name, double value) {
  return Outcome::Drawn(Redraw::Camera, Format("%s %04.2f", name, value));
}

Outcome ParameterChanged(const char* name, double value) {
  return Outcome::Said(Format("%s %04.2f", name, value));
}

}  // namespace

Outcome MoveForward(map& m, const Settings& settings) {
  ShiftAlong(m, -kPi / 2, settings.stepsize);
  return Moved("Forward...");
}

Outcome MoveBackward(map& m, const Settings& settings) {
  ShiftAlong(m, -kPi / 2, -double(settings.stepsize));
  return Moved("Backward...");
}

Outcome StrafeLeft(map& m, const Settings& settings) {
  ShiftAlong(m, -kPi, -double(settings.stepsize));
  return Moved("Strafe Left...");
}

Outcome StrafeRight(map& m, const Settings& settings) {
  ShiftAlong(m, -kPi, settings.stepsize);
  return Moved("Strafe Right...");
}

Outcome MoveUp(map& m, const Settings& settings) {
  Shift(m, 0, 0, settings.stepsize);
  return Moved("Moving up...");
}

Outcome MoveDown(map& m, const Settings& settings) {
  Shift(m, 0, 0, -double(settings.stepsize));
  return Moved("Moving down");
}

Outcome MoveWest(map& m, const Settings& settings) {
  Shift(m, -double(settings.stepsize), 0, 0);
  return Moved("Left");
}

Outcome MoveEast(map& m, const Settings& settings) {
  Shift(m, settings.stepsize, 0, 0);
  return Moved("Right");
}

Outcome MoveNorth(map& m, const Settings& settings) {
  Shift(m, 0, settings.stepsize, 0);
  return Moved("Up");
}

Outcome MoveSouth(map& m, const Settings& settings) {
  Shift(m, 0, -double(settings.stepsize), 0);
  return Moved("Down");
}

Outcome TurnLeft(map& m, const Settings& settings) {
  TurnBy(m.activeCamera().yaw, settings.turnStep());
  return Turned("Left");
}

Outcome TurnRight(map& m, const Settings& settings) {
  TurnBy(m.activeCamera().yaw, -settings.turnStep());
  return Turned("Right");
}

Outcome TurnAround(map& m) {
  TurnBy(m.activeCamera().yaw, kPi);
  return Tilted("Turning around...");
}

Outcome PitchUp(map& m, const Settings& settings) {
  TurnBy(m.activeCamera().pitch, settings.turnStep());
  return Tilted("Pitching up...");
}

Outcome PitchDown(map& m, const Settings& settings) {
  TurnBy(m.activeCamera().pitch, -settings.turnStep());
  return Tilted("Pitching down...");
}

Outcome RollUp(map& m, const Settings& settings) {
  TurnBy(m.activeCamera().roll, settings.turnStep());
  return Tilted("Rolling up...");
}

Outcome RollDown(map& m, const Settings& settings) {
  TurnBy(m.activeCamera().roll, -settings.turnStep());
  return Tilted("Rolling down...");
}

Outcome ResetAngles(map& m) {
  camera& active = m.activeCamera();
  const camera level;
  active.roll = level.roll;
  active.pitch = level.pitch;
  active.yaw = level.yaw;
  return Turned("Angles reset for current map...");
}

Outcome FloorUp(map& m) {
  constexpr double kNone = 32767;
  double best = kNone;
  VisitFloors(m, [&](double height) {
    if (height > 0 && height < best) best = height;
  });
  if (best == kNone) return Outcome::Said("Already at top level");
  Shift(m, 0, 0, best);
  return Moved("Moved up a floor");
}

Outcome FloorDown(map& m) {
  constexpr double kNone = -32765;
  double best = kNone;
  VisitFloors(m, [&](double height) {
    if (height < 0 && height > best) best = height;
  });
  if (best == kNone) return Outcome::Said("Already at bottom level");
  Shift(m, 0, 0, best);
  return Moved("Moved down a floor");
}

Outcome SmallerStep(Settings& settings) {
  if (settings.stepsize >= 2) settings.stepsize /= 2;
  return ParameterChanged("step:", settings.stepsize);
}

Outcome LargerStep(Settings& settings) {
  if (settings.stepsize < 1024) settings.stepsize *= 2;
  return ParameterChanged("step:", settings.stepsize);
}

Outcome NearerFarLimit(Settings& settings) {
  settings.far_clip_distance = std::min(kNearestFarLimit, settings.far_clip_distance + settings.stepsize);
  return ParameterChanged("zmax:", settings.far_clip_distance);
}

Outcome FartherFarLimit(Settings& settings) {
  settings.far_clip_distance = std::max(kFarthestFarLimit, settings.far_clip_distance - settings.stepsize);
  return ParameterChanged("zmax:", settings.far_clip_distance);
}

Outcome SmallerPpd(WireLens& lens) {
  if (lens.ppd > 0.25f) lens.ppd /= 2;
  return LensChanged("ppd:", lens.ppd);
}

Outcome LargerPpd(WireLens& lens) {
  if (lens.ppd < 1024) lens.ppd *= 2;
  return LensChanged("ppd:", lens.ppd);
}

Outcome SmallerMag(WireLens& lens) {
  lens.mag = float(std::max(0.25, lens.mag / 1.1));
  return LensChanged("mag: ", lens.mag);
}

Outcome LargerMag(WireLens& lens) {
  // No limit but what keeps the number finite.
  lens.mag = float(std::min(1e30, lens.mag * 1.1));
  return LensChanged("mag: ", lens.mag);
}

Outcome SelectCamera(map& m, int number) {
  if (number < 1 || number > kCameras) return {};
  return Activate(m, number - 1, "", true);
}

Outcome NextCamera(map& m) { return Activate(m, (m.currentCamera + 1) % kCameras, "...", false); }

Outcome PreviousCamera(map& m) {
  return Activate(m, m.currentCamera > 0 ? m.currentCamera - 1 : kCameras - 1, "...", false);
}

Outcome ToggleShowCameras(Settings& settings) {
  settings.show_cameras = !settings.show_cameras;
  return Turned("Toggled Camera Display and Tracking");
}

Outcome ToggleLockCameras(Settings& settings) {
  settings.lock_cameras = !settings.lock_cameras;
  return Turned("Toggled Camera Lock for 3D and XY Views");
}

Outcome CycleDrawMode(Settings& settings) {
  static constexpr const char* kNames[] = {"Wire", "Flat", "Texture"};
  settings.drawmode = settings.drawmode >= 0 && settings.drawmode < 2 ? settings.drawmode + 1 : 0;
  return Tilted(Format("Mode set to %s", kNames[settings.drawmode]).c_str());
}

Outcome SetRenderQuality(Settings& settings, int index) {
  if (index < 0 || index >= int(std::size(kRenderQualities))) return {};
  const RenderQuality& quality = kRenderQualities[index];
  settings.render_width = quality.width;
  settings.render_height = quality.height;
  settings.window_quality = false;
  return Tilted(Format("Render Quality set to %i x %i", quality.width, quality.height).c_str());
}

Outcome SetWindowQuality(Settings& settings) {
  settings.window_quality = true;
  return Tilted("Render Quality set to Window");
}

}  // namespace velk
