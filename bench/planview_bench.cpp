// One full repaint of an 800 x 600 plan view: of the map named by VELK_BENCH_MAP and of a generated one.
// Text is not drawn, since its cost is the font engine's.
#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <memory>
#include <random>
#include <vector>

#include <benchmark/benchmark.h>

#include "mapfile/map_reader.h"
#include "planview/draw_plan_view.h"
#include "planview/raster_canvas.h"

namespace {

using namespace velk;

constexpr int kWidth = 800, kHeight = 600;

class BenchCanvas : public RasterCanvas {
 public:
  BenchCanvas(std::vector<std::uint32_t>& pixels, int width, int height, int dense)
      : RasterCanvas(pixels.data(), width, height, width, dense) {}
  void text(const std::string&, Pixel, int, Colour, const Colour*) override {}
  int textWidth(const std::string& text, int height) const override {
    return static_cast<int>(text.size()) * height / 2;
  }
};

struct Scene {
  Settings settings;
  EntityClassList classes;
  map m{settings, classes};
};

std::unique_ptr<Scene> FromFile() {
  const char* file = std::getenv("VELK_BENCH_MAP");
  if (!file) return nullptr;
  auto scene = std::make_unique<Scene>();
  ReadMapFile(scene->m, file, {});
  return scene;
}

// Boxes of 16..128 units a side, spread over 4096 x 4096 x 1024 units.
std::unique_ptr<Scene> Generated(int brushes) {
  auto scene = std::make_unique<Scene>();
  entity& world = scene->m.addobject(std::make_unique<entity>(scene->m));
  world.setKey("classname", "worldspawn");
  std::mt19937 random(1);
  const auto pick = [&](int low, int high) {
    return float(8 * std::uniform_int_distribution(low / 8, high / 8)(random));
  };
  for (int i = 0; i < brushes; ++i) {
    const vec3 mins{pick(-2048, 2048), pick(-2048, 2048), pick(-512, 512)};
    auto b = std::make_unique<brush>();
    b->initBox(world, mins, add(mins, {pick(16, 128), pick(16, 128), pick(16, 128)}), {});
    world.addobject(std::move(b));
  }
  return scene;
}

// Puts the map into the middle of the view at the largest power of two that shows all of it, or at `scale`.
void Frame(Scene& scene, PlanViewSet& set, float scale) {
  vec3 low{1e9f, 1e9f, 1e9f}, high{-1e9f, -1e9f, -1e9f};
  for (const entity& e : scene.m.entities()) {
    for (brush& b : e.brushes()) {
      for (int axis = 0; axis < 3; ++axis) {
        low[axis] = std::min(low[axis], b.mins[axis]);
        high[axis] = std::max(high[axis], b.maxs[axis]);
      }
    }
  }
  set.planCenter = velk::scale(add(low, high), 0.5);
  const double fit = std::min(kWidth / double(high.x - low.x), kHeight / double(high.y - low.y));
  scene.settings.scale = scale > 0 ? scale : float(std::exp2(std::floor(std::log2(fit))));
}

// Arguments: scale (0 shows the whole map), view, device pixels per pixel.
void Repaint(benchmark::State& state, Scene* scene) {
  if (!scene) return state.SkipWithError("VELK_BENCH_MAP names no map");
  PlanViewSet set;
  scene->settings.show_grid = true;
  Frame(*scene, set, float(state.range(0)));
  const int view = static_cast<int>(state.range(1)), dense = static_cast<int>(state.range(2));
  set.views[static_cast<size_t>(view)].clientWidth = kWidth;
  set.views[static_cast<size_t>(view)].clientHeight = kHeight;
  std::vector<std::uint32_t> pixels(static_cast<size_t>(kWidth * kHeight * dense * dense));
  const PlanScene shown{.set = set, .settings = scene->settings, .shown = &scene->m};
  for (auto _ : state) {
    BenchCanvas canvas(pixels, kWidth * dense, kHeight * dense, dense);
    DrawPlanView(canvas, shown, view);
    benchmark::ClobberMemory();
  }
  const auto inked = std::ranges::count(pixels, PixelOf(scene->settings.colours.fgcolor));
  if (inked == 0) state.SkipWithError("nothing was drawn");
  state.counters["brushes"] = scene->m.brushCount();
  state.counters["inked"] = double(inked);
}

void BmRepaintFile(benchmark::State& state) {
  static const std::unique_ptr<Scene> kScene = FromFile();
  Repaint(state, kScene.get());
}
void BmRepaintGenerated(benchmark::State& state) {
  const std::unique_ptr<Scene> scene = Generated(static_cast<int>(state.range(3)));
  Repaint(state, scene.get());
}

BENCHMARK(BmRepaintFile)
    ->Unit(benchmark::kMillisecond)
    ->ArgNames({"scale", "view", "dense"})
    ->ArgsProduct({{0, 1}, {0, 1, 2}, {1}})
    ->Args({0, 0, 2});
BENCHMARK(BmRepaintGenerated)
    ->Unit(benchmark::kMillisecond)
    ->ArgNames({"scale", "view", "dense", "brushes"})
    ->Args({0, 0, 1, 1000})
    ->Args({0, 0, 1, 2000})
    ->Args({0, 0, 1, 4000})
    ->Args({1, 0, 1, 4000})
    ->Args({0, 0, 2, 4000});

}  // namespace

BENCHMARK_MAIN();
