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

CameraOutcome Moved(const char* status) { return {status, true, true, true, false}; }

CameraOutcome Turned(const char* status) { return {status, true, true, false, false}; }

CameraOutcome Tilted(const char* status) { return {status, false, true, false, false}; }

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

CameraOutcome Activate(map& m, int index, const char* ending, bool recentre) {
  m.currentCamera = index;
  return {Format("Camera %i Active%s", index + 1, ending), true, true, false, recentre};
}

CameraOutcome LensChanged(const char* name, double value) {
  return {Format("%s %04.2f", name, value), false, true, false, false};
}

CameraOutcome ParameterChanged(const char* name, double value) {
  return {Format("%s %04.2f", name, value), false, false, false, false};
}

}  // namespace

CameraOutcome MoveForward(map& m, const Settings& settings) {
  ShiftAlong(m, -kPi / 2, settings.stepsize);
  return Moved("Forward...");
}

CameraOutcome MoveBackward(map& m, const Settings& settings) {
  ShiftAlong(m, -kPi / 2, -double(settings.stepsize));
  return Moved("Backward...");
}

CameraOutcome StrafeLeft(map& m, const Settings& settings) {
  ShiftAlong(m, -kPi, -double(settings.stepsize));
  return Moved("Strafe Left...");
}

CameraOutcome StrafeRight(map& m, const Settings& settings) {
  ShiftAlong(m, -kPi, settings.stepsize);
  return Moved("Strafe Right...");
}

CameraOutcome MoveUp(map& m, const Settings& settings) {
  Shift(m, 0, 0, settings.stepsize);
  return Moved("Moving up...");
}

CameraOutcome MoveDown(map& m, const Settings& settings) {
  Shift(m, 0, 0, -double(settings.stepsize));
  return Moved("Moving down");
}

CameraOutcome MoveWest(map& m, const Settings& settings) {
  Shift(m, -double(settings.stepsize), 0, 0);
  return Moved("Left");
}

CameraOutcome MoveEast(map& m, const Settings& settings) {
  Shift(m, settings.stepsize, 0, 0);
  return Moved("Right");
}

CameraOutcome MoveNorth(map& m, const Settings& settings) {
  Shift(m, 0, settings.stepsize, 0);
  return Moved("Up");
}

CameraOutcome MoveSouth(map& m, const Settings& settings) {
  Shift(m, 0, -double(settings.stepsize), 0);
  return Moved("Down");
}

CameraOutcome TurnLeft(map& m, const Settings& settings) {
  TurnBy(m.activeCamera().yaw, settings.turnStep());
  return Turned("Left");
}

CameraOutcome TurnRight(map& m, const Settings& settings) {
  TurnBy(m.activeCamera().yaw, -settings.turnStep());
  return Turned("Right");
}

CameraOutcome TurnAround(map& m) {
  TurnBy(m.activeCamera().yaw, kPi);
  return Tilted("Turning around...");
}

CameraOutcome PitchUp(map& m, const Settings& settings) {
  TurnBy(m.activeCamera().pitch, settings.turnStep());
  return Tilted("Pitching up...");
}

CameraOutcome PitchDown(map& m, const Settings& settings) {
  TurnBy(m.activeCamera().pitch, -settings.turnStep());
  return Tilted("Pitching down...");
}

CameraOutcome RollUp(map& m, const Settings& settings) {
  TurnBy(m.activeCamera().roll, settings.turnStep());
  return Tilted("Rolling up...");
}

CameraOutcome RollDown(map& m, const Settings& settings) {
  TurnBy(m.activeCamera().roll, -settings.turnStep());
  return Tilted("Rolling down...");
}

CameraOutcome ResetAngles(map& m) {
  camera& active = m.activeCamera();
  const camera level;
  active.roll = level.roll;
  active.pitch = level.pitch;
  active.yaw = level.yaw;
  return Turned("Angles reset for current map...");
}

CameraOutcome FloorUp(map& m) {
  constexpr double kNone = 32767;
  double best = kNone;
  VisitFloors(m, [&](double height) {
    if (height > 0 && height < best) best = height;
  });
  if (best == kNone) return {"Already at top level"};
  Shift(m, 0, 0, best);
  return Moved("Moved up a floor");
}

CameraOutcome FloorDown(map& m) {
  constexpr double kNone = -32765;
  double best = kNone;
  VisitFloors(m, [&](double height) {
    if (height < 0 && height > best) best = height;
  });
  if (best == kNone) return {"Already at bottom level"};
  Shift(m, 0, 0, best);
  return Moved("Moved down a floor");
}

CameraOutcome SmallerStep(Settings& settings) {
  if (settings.stepsize >= 2) settings.stepsize /= 2;
  return ParameterChanged("step:", settings.stepsize);
}

CameraOutcome LargerStep(Settings& settings) {
  if (settings.stepsize < 1024) settings.stepsize *= 2;
  return ParameterChanged("step:", settings.stepsize);
}

CameraOutcome NearerFarLimit(Settings& settings) {
  settings.far_clip_distance = std::min(kNearestFarLimit, settings.far_clip_distance + settings.stepsize);
  return ParameterChanged("zmax:", settings.far_clip_distance);
}

CameraOutcome FartherFarLimit(Settings& settings) {
  settings.far_clip_distance = std::max(kFarthestFarLimit, settings.far_clip_distance - settings.stepsize);
  return ParameterChanged("zmax:", settings.far_clip_distance);
}

CameraOutcome SmallerPpd(WireLens& lens) {
  if (lens.ppd > 0.25f) lens.ppd /= 2;
  return LensChanged("ppd:", lens.ppd);
}

CameraOutcome LargerPpd(WireLens& lens) {
  if (lens.ppd < 1024) lens.ppd *= 2;
  return LensChanged("ppd:", lens.ppd);
}

CameraOutcome SmallerMag(WireLens& lens) {
  lens.mag = float(std::max(0.25, lens.mag / 1.1));
  return LensChanged("mag: ", lens.mag);
}

CameraOutcome LargerMag(WireLens& lens) {
  // No limit but what keeps the number finite.
  lens.mag = float(std::min(1e30, lens.mag * 1.1));
  return LensChanged("mag: ", lens.mag);
}

CameraOutcome SelectCamera(map& m, int number) {
  if (number < 1 || number > kCameras) return {};
  return Activate(m, number - 1, "", true);
}

CameraOutcome NextCamera(map& m) { return Activate(m, (m.currentCamera + 1) % kCameras, "...", false); }

CameraOutcome PreviousCamera(map& m) {
  return Activate(m, m.currentCamera > 0 ? m.currentCamera - 1 : kCameras - 1, "...", false);
}

CameraOutcome ToggleShowCameras(Settings& settings) {
  settings.show_cameras = !settings.show_cameras;
  return Turned("Toggled Camera Display and Tracking");
}

CameraOutcome ToggleLockCameras(Settings& settings) {
  settings.lock_cameras = !settings.lock_cameras;
  return Turned("Toggled Camera Lock for 3D and XY Views");
}

CameraOutcome CycleDrawMode(Settings& settings) {
  static constexpr const char* kNames[] = {"Wire", "Flat", "Texture"};
  settings.drawmode = settings.drawmode >= 0 && settings.drawmode < 2 ? settings.drawmode + 1 : 0;
  return Tilted(Format("Mode set to %s", kNames[settings.drawmode]).c_str());
}

CameraOutcome SetRenderQuality(Settings& settings, int index) {
  if (index < 0 || index >= int(std::size(kRenderQualities))) return {};
  const RenderQuality& quality = kRenderQualities[index];
  settings.render_width = quality.width;
  settings.render_height = quality.height;
  settings.window_quality = false;
  return Tilted(Format("Render Quality set to %i x %i", quality.width, quality.height).c_str());
}

CameraOutcome SetWindowQuality(Settings& settings) {
  settings.window_quality = true;
  return Tilted("Render Quality set to Window");
}

}  // namespace velk
