#include "commands/making/made_picture.h"

#include <algorithm>
#include <cmath>
#include <numbers>
#include <string_view>

#include "camera/view.h"
#include "makers/maker_texts.h"

namespace velk {
namespace {

constexpr int kWidth = 240;  // unscaled pixels, at least
constexpr int kHeight = 180;

constexpr int kFirstPitch = 25;  // degrees
constexpr int kFirstYaw = 30;
constexpr int kButtonTurn = 5;  // degrees a press
constexpr double kStep = 0.9;   // of the distance
constexpr double kNearest = 0.2;
constexpr double kFarthest = 10;
constexpr int kDragStep = 8;  // pixels of a drag in and out a step
constexpr double kRoomAround = 1.05;

int Wrapped(int degrees) { return (degrees % 360 + 360) % 360; }

double Radians(int degrees) { return degrees * std::numbers::pi / 180; }

vec3 Sum(const vec3& a, double ofA, const vec3& b, double ofB) {
  return add(scale(a, float(ofA)), scale(b, float(ofB)));
}

// The axes of an eye that looks at a middle from all around.
struct Axes {
  vec3 forward;
  vec3 up;
  vec3 right;

  Axes(int roll, int pitch, int yaw) {
    const double p = Radians(pitch), y = Radians(yaw), r = Radians(roll);
    const vec3 heading{float(std::sin(y)), float(std::cos(y)), 0};
    const vec3 level{heading.y, -heading.x, 0};
    const vec3 overhead{0, 0, 1};
    forward = Sum(heading, std::cos(p), overhead, -std::sin(p));
    const vec3 upright = Sum(heading, std::sin(p), overhead, std::cos(p));
    up = Sum(upright, std::cos(r), level, std::sin(r));
    right = Sum(level, std::cos(r), upright, -std::sin(r));
  }
};

// The angles of a camera with those axes: MakeEye turned round. Of the two solutions the one of a level
// camera, whose roll is pi.
camera CameraOf(const Axes& axes, const vec3& origin) {
  camera c;
  c.origin = origin;
  const double sine = -double(axes.up.x);
  c.roll = float(std::numbers::pi - std::asin(std::clamp(sine, -1.0, 1.0)));
  c.yaw = float(std::atan2(-double(axes.right.x), -double(axes.forward.x)) - std::numbers::pi / 2);
  c.pitch = float(std::atan2(-double(axes.up.z), -double(axes.up.y)));
  return c;
}

std::uint32_t Rgb(int red, int green, int blue) {
  return 0xff000000u | std::uint32_t(red) << 16 | std::uint32_t(green) << 8 | std::uint32_t(blue);
}

// The palette as an image has it; greys without one.
std::array<std::uint32_t, 256> ImageColours(const Wad* wad) {
  std::array<std::uint32_t, 256> colours{};
  for (int i = 0; i < 256; ++i) {
    const unsigned char* rgb = wad ? wad->palette.data() + i * 3 : nullptr;
    colours[size_t(i)] = rgb ? Rgb(rgb[0], rgb[1], rgb[2]) : Rgb(i, i, i);
  }
  return colours;
}

Settings PictureSettings(Settings settings) {
  settings.drawmode = kTexturedMode;
  settings.filter = {};
  settings.groupmode = false;
  settings.outline = true;
  settings.far_clip_distance = -1e6f;
  return settings;
}

}  // namespace

MadePicture::MadePicture(Editor& editor, const vec3& mins, const vec3& maxs,
                         std::span<const char* const> buttons)
    : editor_(editor),
      buttons_(buttons),
      settings_(PictureSettings(editor.settings())),
      map_(settings_, editor.classes()),
      centre_(scale(add(mins, maxs), 0.5f)),
      radius_(std::max(length(subtract(maxs, mins)) / 2, 1.0)) {
  map_.initNew("");
  reset();
}

void MadePicture::show(Made made) {
  entity& world = *map_.world();
  world.takeBrushes();
  for (std::unique_ptr<brush>& b : made.brushes) {
    if (!b->invalid && world.numbrushes() < MAX_ENTITY_BRUSHES) world.addobject(std::move(b));
  }
}

int MadePicture::width() const { return kWidth; }

int MadePicture::height() const { return kHeight; }

std::string MadePicture::hint() const { return kPictureHint; }

// So far away that all of it is seen, and moved up by what the view axis lies above the picture's middle.
void MadePicture::aim(int pictureWidth, int pictureHeight) {
  const Projection projection = MakeProjection(pictureWidth, pictureHeight);
  const double least = std::min(pictureWidth, pictureHeight) / 2.0;
  const double whole = radius_ * std::hypot(1.0, projection.halfWidth / least);
  const double distance = whole * kRoomAround * distance_;
  const double raised = (pictureHeight / 2.0 - projection.centerY) * distance / projection.halfWidth;
  const Axes axes(roll_, pitch_, yaw_);
  const vec3 origin = add(centre_, Sum(axes.forward, -distance, axes.up, raised));
  map_.activeCamera() = CameraOf(axes, origin);
}

void MadePicture::draw(PictureImage& image) {
  aim(image.width, image.height);
  renderer_.renderFrame(editor_.views().sceneOf(map_, settings_), {image.width, image.height});
  const std::array<std::uint32_t, 256> colours = ImageColours(editor_.views().paletteWad());
  const Colour ground = settings_.colours.bgcolor;
  const std::uint32_t empty = Rgb(ground.red, ground.green, ground.blue);
  const auto depth = renderer_.depthBuffer();
  const auto frame = renderer_.frameBuffer();
  for (size_t i = 0; i < image.pixels.size() && i < frame.size(); ++i) {
    image.pixels[i] = depth[i] > 0 ? colours[frame[i]] : empty;
  }
}

void MadePicture::reset() {
  roll_ = 0;
  pitch_ = kFirstPitch;
  yaw_ = kFirstYaw;
  distance_ = 1;
}

void MadePicture::turn(int roll, int pitch, int yaw) {
  roll_ = Wrapped(roll_ + roll);
  pitch_ = Wrapped(pitch_ + pitch);
  yaw_ = Wrapped(yaw_ + yaw);
}

void MadePicture::approach(int steps) {
  distance_ = std::clamp(distance_ * std::pow(kStep, steps), kNearest, kFarthest);
}

void MadePicture::drag(int dx, int dy, bool shift) {
  if (!shift) return turn(0, dy, dx);
  distance_ = std::clamp(distance_ * std::pow(kStep, -double(dy) / kDragStep), kNearest, kFarthest);
}

void MadePicture::wheel(int notches) { approach(notches); }

void MadePicture::press(std::size_t button) {
  if (button >= buttons_.size()) return;
  const auto pressed = std::ranges::find(kPictureButtons, std::string_view(buttons_[button]));
  switch (pressed - std::begin(kPictureButtons)) {
    case 0:
      return reset();
    case 1:
      return turn(0, 0, kButtonTurn);
    case 2:
      return turn(0, 0, -kButtonTurn);
    case 3:
      return approach(1);
    case 4:
      return approach(-1);
    case 5:
      return turn(0, kButtonTurn, 0);
    case 6:
      return turn(0, -kButtonTurn, 0);
    case 7:
      return turn(kButtonTurn, 0, 0);
    case 8:
      return turn(-kButtonTurn, 0, 0);
    default:
      return;
  }
}

}  // namespace velk
