// Pictures of a real map from 64 fixed views, one thread. The map, wad, palette and light table are named
// by VELK_BENCH_MAP, VELK_BENCH_WAD, VELK_BENCH_PAL and VELK_BENCH_COLORMAP; VELK_BENCH_QC may name the
// entity definitions.
//
// Times are those of the thread alone. "frame_ms" is the mean over the views, "best_ms" the mean of each
// view's fastest picture, which hardly depends on what else the machine does.
#include <algorithm>
#include <array>
#include <cmath>
#include <cstdlib>
#include <ctime>
#include <fstream>
#include <limits>
#include <memory>
#include <numbers>
#include <sstream>
#include <string>
#include <vector>

#include <benchmark/benchmark.h>

#include "camera/kernels.h"
#include "camera/renderer.h"
#include "mapfile/map_reader.h"
#include "textures/texture_manager.h"

namespace {

using namespace velk;

constexpr size_t kViews = 64;

// CPU time of this thread.
double Milliseconds() {
  timespec now;
  clock_gettime(CLOCK_THREAD_CPUTIME_ID, &now);
  return double(now.tv_sec) * 1e3 + double(now.tv_nsec) * 1e-6;
}

std::string FileText(const char* variable) {
  const char* file = std::getenv(variable);
  std::ifstream stream(file ? file : "", std::ios::binary);
  std::ostringstream text;
  text << stream.rdbuf();
  return text.str();
}

// Answers with the palette file; nothing else is asked.
class PalettePrompts : public Prompts {
 public:
  Answer ask(const MessageBox&) override { return Answer::Cancel; }
  std::vector<std::string> chooseFiles(const FileChooser&) override {
    return {std::getenv("VELK_BENCH_PAL")};
  }
  std::optional<std::string> input(const TextInput&) override { return std::nullopt; }
  std::optional<Colour> chooseColour(const ColourChooser&) override { return std::nullopt; }
  FormAnswer fill(Form&) override { return FormAnswer::Cancel; }
  void show(ModelessForm) override {}
};

struct Level {
  Settings settings;
  EntityClassList classes;
  map m{settings, classes};
  Paths paths;
  PalettePrompts prompts;
  TextureManager manager{WadServices{settings, paths, prompts}};
  TextureSet textures{manager.badtex()};
  std::string colormap = FileText("VELK_BENCH_COLORMAP");
  RenderAssets assets;
  std::vector<camera> views;

  Level() {
    classes.scanText(FileText("VELK_BENCH_QC"));
    ReadMapFile(m, std::getenv("VELK_BENCH_MAP"), {});
    Wad& wad = manager.openWad(std::getenv("VELK_BENCH_WAD"), {});
    buildMapTextures(m, textures, {&wad});
    assets.makeTextureRef = [this](const std::string& name) { return textures.makeTextureRef(name); };
    assets.palette = wad.palette.data();
    if (colormap.size() >= 64 * 256)
      assets.colormap = reinterpret_cast<const unsigned char*>(colormap.data());
    chooseViews();
  }

  // The player start, lights and monsters, 64 taken evenly in the order of the file; level.
  void chooseViews() {
    std::vector<vec3> places;
    for (const entity& e : m.entities()) {
      const std::string& name = e.valueOfKey("classname");
      const bool chosen =
          name == "info_player_start" || name.starts_with("light") || name.starts_with("monster_");
      if (chosen && !e.valueOfKey("origin").empty()) places.push_back(e.vectorOfKey("origin"));
    }
    for (size_t i = 0; i < kViews && !places.empty(); ++i) {
      camera c;
      c.origin = places[i * places.size() / kViews];
      c.yaw = float(std::fmod(double(i) * 137.5, 360) * std::numbers::pi / 180);
      views.push_back(c);
    }
  }
};

Level* TheLevel() {
  for (const char* needed : {"VELK_BENCH_MAP", "VELK_BENCH_WAD", "VELK_BENCH_PAL", "VELK_BENCH_COLORMAP"}) {
    if (!std::getenv(needed)) return nullptr;
  }
  static const std::unique_ptr<Level> kLevel = std::make_unique<Level>();
  return kLevel->views.empty() ? nullptr : kLevel.get();
}

struct Totals {
  std::array<double, kViews> fastest;
  double milliseconds = 0;
  long shown = 0;
  long tested = 0;
  long pictures = 0;
};

void RenderViews(Renderer& renderer, const RenderScene& scene, RenderSize size,
                 const std::vector<camera>& views, Totals& totals) {
  for (size_t i = 0; i < kViews; ++i) {
    scene.model.activeCamera() = views[i];
    const double start = Milliseconds();
    renderer.renderFrame(scene, size);
    const double taken = Milliseconds() - start;
    totals.fastest[i] = std::min(totals.fastest[i], taken);
    totals.milliseconds += taken;
    totals.shown += renderer.statistics().pixelsWritten;
    totals.tested += renderer.statistics().pixelsTested;
    ++totals.pictures;
  }
}

// Arguments: width, height, draw mode, and the instruction set (-1 the best).
void Pictures(benchmark::State& state) {
  Level* level = TheLevel();
  const Kernels* sets[3];
  const int count = AvailableKernels(sets, 3);
  const long set = state.range(3) < 0 ? count - 1 : state.range(3);
  if (!level || set >= count) {
    state.SkipWithError(level ? "this machine lacks the instruction set"
                              : "VELK_BENCH_MAP, _WAD, _PAL and _COLORMAP name no map to draw");
    return;
  }
  level->settings.drawmode = int(state.range(2));
  const RenderScene scene{level->m, level->settings, level->assets, {}, {}};
  Renderer renderer(*sets[set]);
  Totals totals;
  totals.fastest.fill(std::numeric_limits<double>::infinity());
  for (auto _ : state) {
    RenderViews(renderer, scene, {int(state.range(0)), int(state.range(1))}, level->views, totals);
  }
  double best = 0;
  for (const double fastest : totals.fastest) best += fastest / kViews;
  if (totals.shown == 0) state.SkipWithError("nothing was drawn");
  state.SetLabel(std::string(state.range(2) == 1 ? "flat " : "textured ") + sets[set]->name);
  state.counters["frame_ms"] = totals.milliseconds / double(totals.pictures);
  state.counters["best_ms"] = best;
  state.counters["ns_per_pixel"] = totals.milliseconds * 1e6 / double(totals.shown);
  state.counters["tested_per_shown"] = double(totals.tested) / double(totals.shown);
}

void Sizes(benchmark::internal::Benchmark* b) {
  const long sizes[][2] = {{320, 200}, {640, 480}, {1920, 1080}};
  for (const auto& [width, height] : sizes) {
    for (const long mode : {2, 1}) b->Args({width, height, mode, -1});
  }
  for (const long set : {0, 1}) b->Args({640, 480, 2, set});
}

BENCHMARK(Pictures)->Apply(Sizes)->Unit(benchmark::kMillisecond);

}  // namespace

BENCHMARK_MAIN();
