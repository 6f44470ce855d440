#include "panels/brush/brush_preview.h"

#include <algorithm>
#include <cmath>
#include <numbers>

#include "base/text.h"
#include "camera/view.h"

namespace velk {
namespace {

constexpr double kSteepest = 89;  // degrees; beyond, nothing says which side is up
constexpr double kNotch = 1.25;   // zoom of one notch
constexpr double kLeastZoom = 0.2;
constexpr double kLargestZoom = 8;
constexpr double kFilled = 0.85;  // of the picture at zoom 1
constexpr double kFullTurn = 360;

double Radians(double degrees) { return degrees * std::numbers::pi / 180; }

vec3 Middle(const brush& b) {
  return {(b.mins.x + b.maxs.x) / 2, (b.mins.y + b.maxs.y) / 2, (b.mins.z + b.maxs.z) / 2};
}

double RadiusOf(const brush& b) {
  const vec3 size = subtract(b.maxs, b.mins);
  return std::max(1.0, std::sqrt(dot(size, size)) / 2);
}

struct Axes {
  vec3 forward;
  vec3 up;
  vec3 right;
};

// Looking at something from a direction round it and from above.
Axes AxesOf(double turn, double tilt) {
  const double t = Radians(turn);
  const double d = Radians(tilt);
  Axes axes;
  axes.forward = {float(std::sin(t) * std::cos(d)), float(-std::cos(t) * std::cos(d)), float(-std::sin(d))};
  axes.up = {float(std::sin(t) * std::sin(d)), float(-std::cos(t) * std::sin(d)), float(std::cos(d))};
  axes.right = {float(-std::cos(t)), float(-std::sin(t)), 0};
  return axes;
}

// The angles of a camera with these axes, which MakeEye multiplies together; see there.
void Face(camera& c, const Axes& axes) {
  const double sine = std::clamp(-double(axes.up.x), -1.0, 1.0);
  const double cosine = -std::sqrt(1 - sine * sine);
  c.roll = float(std::atan2(sine, cosine));
  c.pitch = float(std::atan2(axes.up.z / cosine, axes.up.y / cosine));
  c.yaw = float(std::atan2(axes.right.x / cosine, axes.forward.x / cosine) - std::numbers::pi / 2);
}

Pixel PixelAt(const Eye& eye, const Projection& projection, const vec3& corner) {
  const vec3 seen = ToView(eye, corner);
  WindingPoint point{};
  point.x = seen.x;
  point.y = seen.y;
  point.z = seen.z;
  const ScreenVertex vertex = Project(projection, point);
  return {Truncate(vertex.x), Truncate(vertex.y)};
}

}  // namespace

BrushPreview::BrushPreview(const Settings& settings, const EntityClassList& classes)
    : wanted_(settings), model_(settings_, classes) {}

void BrushPreview::takeSettings() {
  settings_ = wanted_;
  settings_.drawmode = std::clamp(wanted_.camera_mode, kWireMode, kTexturedMode);
  settings_.groupmode = false;
  settings_.filter = {};
  settings_.outline = true;
}

void BrushPreview::show(const brush* shown) {
  brush_ = nullptr;
  takeSettings();
  model_.initNew("");
  if (!shown || shown->invalid || !shown->owner) return;
  auto owner = std::make_unique<entity>(model_);
  owner->isModel = shown->owner->isModel;
  owner->setKey("classname", shown->owner->valueOfKey("classname"));
  entity& added = model_.addobject(std::move(owner));
  model_.setCurrentEntity(&added);
  brush_ = &added.addobject(std::make_unique<brush>(*shown));
  brush_->buildWindings();
  // Its outlines are left to the edges, which are drawn in the views' colours.
  brush_->select(false);
}

void BrushPreview::turn(int right, int down) {
  const double step = kFullTurn / std::max(1, wanted_.camera_steps);
  turn_ = std::fmod(turn_ + right * step + kFullTurn, kFullTurn);
  tilt_ = std::clamp(tilt_ + down * step, -kSteepest, kSteepest);
}

void BrushPreview::zoom(int notches) {
  zoom_ = std::clamp(zoom_ * std::pow(kNotch, notches), kLeastZoom, kLargestZoom);
}

std::string BrushPreview::readout() const {
  return Format("turn %g  tilt %g  zoom %.3g", RoundHalfAway(turn_), RoundHalfAway(tilt_), zoom_);
}

// So far away that the brush fills the picture. The view axis does not pass through the picture's middle, so
// that the eye goes up or down.
void BrushPreview::placeCamera(RenderSize size) const {
  const Axes axes = AxesOf(turn_, tilt_);
  camera& eye = model_.activeCamera();
  Face(eye, axes);
  const Projection projection = MakeProjection(size.width, size.height);
  const double radius = RadiusOf(*brush_);
  const double smaller = std::min(size.width, size.height) / 2.0;
  const double fitting = radius * projection.halfWidth / (smaller * kFilled);
  const double distance = std::max(fitting / zoom_, radius * 1.05 + 1);
  const double drop = (size.height / 2.0 - projection.centerY) * distance / projection.halfWidth;
  eye.origin = add(subtract(Middle(*brush_), scale(axes.forward, distance)), scale(axes.up, drop));
}

RenderScene BrushPreview::scene(const RenderAssets& assets) {
  settings_.far_clip_distance = -(1 << 16);
  return {.model = model_, .settings = settings_, .assets = assets, .lens = {}, .preview = {}};
}

void BrushPreview::render(const RenderAssets& assets, RenderSize size) {
  if (empty()) return;
  placeCamera(size);
  renderer_.renderFrame(scene(assets), size);
}

std::vector<BrushPreview::Edge> BrushPreview::edges(RenderSize size) const {
  std::vector<Edge> edges;
  if (empty()) return edges;
  placeCamera(size);
  const Eye eye = MakeEye(model_.activeCamera());
  const Projection projection = MakeProjection(size.width, size.height);
  for (int i = 0; i < brush_->numfaces(); ++i) {
    const bool current = i == brush_->currentFace();
    const winding* w = brush_->faces()[size_t(i)].polygon;
    if (!w) continue;
    for (int k = 0; k < w->count; ++k) {
      edges.push_back({PixelAt(eye, projection, (*w)[k].position()),
                       PixelAt(eye, projection, (*w)[(k + 1) % w->count].position()), current});
    }
  }
  std::ranges::stable_partition(edges, [](const Edge& e) { return !e.current; });
  return edges;
}

int BrushPreview::faceAt(const RenderAssets& assets, RenderSize size, Pixel at) {
  if (empty()) return -1;
  placeCamera(size);
  return renderer_.pickFace(scene(assets), size, at.x, at.y).face;
}

}  // namespace velk
