#include "camera/renderer.h"

#include <algorithm>

#include "camera/pick.h"
#include "camera/picture.h"
#include "camera/live/still_picture.h"

namespace velk {

namespace {

constexpr int kLargestSize = 16384;
// Below this focal length of the wire view the lens of the last picture stays.
constexpr double kShortestFocalLength = 0.001;

RenderSize ClampedSize(RenderSize size) {
  return {std::clamp(size.width, 1, kLargestSize), std::clamp(size.height, 1, kLargestSize)};
}

}  // namespace

struct Renderer::State {
  explicit State(const Kernels& kernels) : drawer(kernels) {}

  FrameView view;
  Picture picture;
  FaceList faces;
  PictureDrawer drawer;
  std::vector<BrushDraw> brushes;
  StillPicture still;
  RenderStatistics statistics;

  void aim(const RenderScene& scene, RenderSize size);
  void collectBrushes(const RenderScene& scene);
};

void Renderer::State::aim(const RenderScene& scene, RenderSize size) {
  view.eye = MakeEye(scene.model.activeCamera());
  const bool usable = scene.lens.focalLength() >= kShortestFocalLength;
  if (usable || view.projection.width == 0) view.projection = MakeProjection(size.width, size.height);
  view.projection.width = size.width;
  view.projection.height = size.height;
  view.projection.cutsExactly = scene.settings.window_quality;
}

void Renderer::State::collectBrushes(const RenderScene& scene) {
  const BrushCuller culler(view);
  brushes.clear();
  BrushDraw draw;
  std::uint32_t rank = 1;
  VisitShownBrushes(scene, [&](brush& b) {
    draw.shape = ShownShape(scene, b);
    draw.original = &b;
    draw.rank = rank;
    rank += MAX_FACES;
    if (!draw.shape || !culler.place(*draw.shape, draw)) return;
    brushes.push_back(draw);
    if (draw.shape != &b) faces.addBrush(brushes.back());  // what stands in may go with the next brush
  });
}

Renderer::Renderer() : Renderer(BestKernels()) {}
Renderer::Renderer(const Kernels& kernels) : state_(std::make_unique<State>(kernels)) {}
Renderer::~Renderer() = default;
Renderer::Renderer(Renderer&&) noexcept = default;
Renderer& Renderer::operator=(Renderer&&) noexcept = default;

RenderSize RenderSizeFor(const Settings& settings, int windowWidth, int windowHeight) {
  if (settings.window_quality) return {windowWidth, windowHeight};
  return {settings.render_width, settings.render_height};
}

void Renderer::renderFrame(const RenderScene& scene, RenderSize size) {
  State& s = *state_;
  size = ClampedSize(size);
  s.picture.resize(size.width, size.height);
  s.aim(scene, size);
  s.statistics = {};
  if (s.still.takes(scene, size)) {
    s.still.draw(scene, s.view, s.drawer, s.picture, s.faces, s.statistics);
    return;
  }
  s.faces.begin(scene, s.view);
  s.collectBrushes(scene);
  s.drawer.draw(s.picture, s.brushes, s.faces, DrawOver::Nothing, s.statistics);
}

void Renderer::renderBrush(const RenderScene& scene, brush& b) {
  State& s = *state_;
  if (s.picture.width == 0 || !IsShown(scene.model, b)) return;
  s.aim(scene, {s.picture.width, s.picture.height});
  s.still.forget();
  s.faces.begin(scene, s.view);
  s.brushes.assign(1, BrushDraw());
  BrushDraw& draw = s.brushes[0];
  draw.shape = ShownShape(scene, b);
  draw.original = &b;
  draw.rank = 1;
  if (!draw.shape || !BrushCuller(s.view).place(*draw.shape, draw)) return;
  s.drawer.draw(s.picture, s.brushes, s.faces,
                noDepthTest ? DrawOver::PictureWithoutDepthTest : DrawOver::Picture, s.statistics);
}

void Renderer::renderFace(const RenderScene& scene, brush& b, int face, FaceState state) {
  State& s = *state_;
  if (s.picture.width == 0 || face < 0 || face >= b.numfaces()) return;
  s.aim(scene, {s.picture.width, s.picture.height});
  s.still.forget();
  s.faces.begin(scene, s.view);
  s.brushes.assign(1, BrushDraw());
  BrushDraw& draw = s.brushes[0];
  draw.shape = &b;
  draw.original = &b;
  draw.isSetUp = true;
  draw.firstFace = s.faces.count();
  if (!BrushCuller(s.view).place(b, draw)) return;
  s.faces.addFace(b, face, state, s.faces.lookOf(b), 1, true);
  draw.faceCount = s.faces.count() - draw.firstFace;
  s.drawer.draw(s.picture, s.brushes, s.faces,
                noDepthTest ? DrawOver::PictureWithoutDepthTest : DrawOver::Picture, s.statistics);
}

FacePick Renderer::pickFace(const RenderScene& scene, RenderSize size, int px, int py) {
  State& s = *state_;
  s.aim(scene, ClampedSize(size));
  return PickFace(scene, s.view, px, py);
}

void Renderer::clearBuffers() {
  state_->still.forget();
  state_->picture.clear();
}

int Renderer::width() const { return state_->picture.width; }
int Renderer::height() const { return state_->picture.height; }

std::span<const unsigned char> Renderer::frameBuffer() const {
  const Picture& picture = state_->picture;
  return {picture.frame.data(), size_t(picture.width) * size_t(picture.height)};
}

std::span<const float> Renderer::depthBuffer() const {
  const Picture& picture = state_->picture;
  return {picture.depth.data(), size_t(picture.width) * size_t(picture.height)};
}

const RenderStatistics& Renderer::statistics() const { return state_->statistics; }

}  // namespace velk
