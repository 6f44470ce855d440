// What a user feels while dragging: a step of moving brushes with every view drawn anew, and what a resting
// mouse and a click pay for looking under the cursor. Generated maps of boxes; text is not drawn, since its
// cost is the font engine's.
#include <memory>
#include <random>

#include <benchmark/benchmark.h>

#include "app/editor.h"
#include "ops/move_selection.h"
#include "ops/selection.h"
#include "planview/raster_canvas.h"
#include "support/declining_prompts.h"

namespace velk {
namespace {

constexpr RenderSize kPlanSize{800, 600};
constexpr RenderSize kCameraSize{640, 480};
constexpr int kMostInEntity = 4000;

class SilentCanvas : public RasterCanvas {
 public:
  explicit SilentCanvas(std::vector<std::uint32_t>& pixels)
      : RasterCanvas(pixels.data(), kPlanSize.width, kPlanSize.height, kPlanSize.width) {}
  void text(const std::string&, Pixel, int, Colour, const Colour*) override {}
  int textWidth(const std::string& text, int height) const override {
    return static_cast<int>(text.size()) * height / 2;
  }
};

// Boxes of 16..128 units a side, spread over 4096 x 4096 x 1024 units, all of them in the views.
struct Desk {
  explicit Desk(int brushes) : editor({}, prompts, observer) {
    Settings& settings = editor.settings();
    settings.default_wad.clear();
    settings.drawmode = 2;
    settings.show_grid = settings.window_quality = true;
    settings.scale = 0.125f;
    settings.gridsize = 16;
    editor.documents().add(editor.documents().makeNew());
    std::mt19937 random(1);
    const auto pick = [&](int low, int high) {
      return float(8 * std::uniform_int_distribution(low / 8, high / 8)(random));
    };
    entity* owner = m().world();
    for (int i = 0; i < brushes; ++i) {
      if (owner->numbrushes() == kMostInEntity) {
        owner = &m().addobject(std::make_unique<entity>(m()));
        owner->setKey("classname", "func_wall");
        owner->isModel = true;
      }
      const vec3 mins{pick(-2048, 2048), pick(-2048, 2048), pick(-512, 512)};
      auto b = std::make_unique<brush>();
      b->initBox(*owner, mins, add(mins, {pick(16, 128), pick(16, 128), pick(16, 128)}), {});
      owner->addobject(std::move(b));
    }
    m().setCurrentEntity(m().world());
    m().activeCamera().origin = {0, 2400, 0};
    for (int view = 0; view < kPlanViews; ++view)
      editor.views().resize(view, kPlanSize.width, kPlanSize.height);
    editor.views().resize(kCameraView, kCameraSize.width, kCameraSize.height);
  }

  map& m() { return *editor.documents().currentMap(); }

  void drawAll() {
    for (int view = 0; view < kPlanViews; ++view) {
      SilentCanvas canvas(pixels[static_cast<size_t>(view)]);
      DrawPlanView(canvas, editor.views().planScene({}), view);
    }
    editor.views().renderCamera();
  }

  std::vector<std::uint32_t> pixels[kPlanViews] = {
      std::vector<std::uint32_t>(kPlanSize.width * kPlanSize.height),
      std::vector<std::uint32_t>(kPlanSize.width* kPlanSize.height),
      std::vector<std::uint32_t>(kPlanSize.width* kPlanSize.height)};
  test::DecliningPrompts prompts;
  Observer observer;
  Editor editor;
};

// Arguments: brushes, and whether all of them move or one.
void MoveStep(benchmark::State& state) {
  Desk desk(static_cast<int>(state.range(0)));
  for (entity& e : desk.m().entities()) {
    for (brush& b : e.brushes()) b.select(state.range(1) != 0);
  }
  desk.m().world()->at(0)->select();
  float step = 16;
  const auto stays = [] { return true; };
  desk.editor.door().press(
      {.name = "move"}, [] { return Outcome{}; }, stays);
  desk.drawAll();
  for (auto _ : state) {
    desk.editor.door().drag([&] {
      MoveSelection(desk.m(), {step, 0, 0});
      return Outcome::Drawn(Redraw::All);
    });
    step = -step;
    desk.drawAll();
    benchmark::ClobberMemory();
  }
  desk.editor.door().cancelDrag();
}
BENCHMARK(MoveStep)
    ->Unit(benchmark::kMillisecond)
    ->ArgNames({"brushes", "all"})
    ->Args({4000, 0})
    ->Args({15000, 0})
    ->Args({60000, 0})
    ->Args({4000, 1});

}  // namespace
}  // namespace velk
