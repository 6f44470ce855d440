// What a user feels while dragging: a step of moving brushes with every view drawn anew, and what a resting
// mouse and a click pay for looking under the cursor. Generated maps of boxes; text is not drawn, since its
// cost is the font engine's.
#include <array>
#include <memory>
#include <random>

#include <benchmark/benchmark.h>

#include "app/editor.h"
#include "ops/selection.h"
#include "planview/raster_canvas.h"
#include "support/declining_prompts.h"
#include "support/temp_folder.h"

namespace velk {
namespace {

constexpr RenderSize kPlanSize{800, 600};
constexpr RenderSize kCameraSize{640, 480};
constexpr int kMostInEntity = 4000;

class SilentCanvas : public RasterCanvas {
 public:
  explicit SilentCanvas(std::vector<std::uint32_t>& pixels)
      : RasterCanvas((pixels.resize(size_t(kPlanSize.width) * kPlanSize.height), pixels.data()),
                     kPlanSize.width, kPlanSize.height, kPlanSize.width) {}
  void text(const std::string&, Pixel, int, Colour, const Colour*) override {}
  int textWidth(const std::string& text, int height) const override {
    return static_cast<int>(text.size()) * height / 2;
  }
};

// Boxes of 16..128 units a side, spread over 4096 x 4096 x 1024 units, all of them in the views.
struct Desk {
  explicit Desk(int brushes) : editor(EditorPlace{home.path(), home.path()}, prompts, observer) {
    home.write("velkmouse.ini", "1 1\n{ Bench\n{ BRUSHDRAG LEFT }\n}\n");
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

  Pixel placeOf(const brush& b) {
    return editor.views()
        .plans.projection(0, editor.settings())
        .worldToScreen(scale(add(b.mins, b.maxs), 0.5));
  }

  void drawAll() {
    for (int view = 0; view < kPlanViews; ++view) {
      SilentCanvas canvas(pixels[static_cast<size_t>(view)]);
      editor.views().drawPlan(canvas, view, {});
    }
    if (editor.settings().drawmode != 0) return editor.views().renderCamera();
    SilentCanvas canvas(pixels[kPlanViews]);
    editor.views().drawWire(canvas);
  }

  std::array<std::vector<std::uint32_t>, kPlanViews + 1> pixels;  // the last for the wire picture
  test::TempFolder home;
  test::DecliningPrompts prompts;
  Observer observer;
  Editor editor;
};

// Arguments: brushes, whether all of them move or one, and the draw mode of the camera view.
void MoveStep(benchmark::State& state) {
  Desk desk(static_cast<int>(state.range(0)));
  desk.editor.settings().drawmode = static_cast<int>(state.range(2));
  for (entity& e : desk.m().entities()) {
    for (brush& b : e.brushes()) b.select(state.range(1) != 0);
  }
  brush& moved = *desk.m().world()->at(0);
  moved.select();
  PointerEvent event;
  event.at = desk.placeOf(moved);
  desk.editor.input().press(0, event);
  if (!desk.editor.input().pointer().drag()) state.SkipWithError("no drag began");
  const vec3 before = moved.mins;
  int step = 2;
  const auto move = [&] {
    event.at.x += step;
    step = -step;
    desk.editor.input().move(0, event);
    desk.drawAll();
  };
  for (int i = 0; i < 4; ++i) move();  // the layers are made
  for (auto _ : state) {
    move();
    benchmark::ClobberMemory();
  }
  if (state.iterations() % 2 != 0 && VecEqual(moved.mins, before)) state.SkipWithError("nothing moved");
  desk.editor.input().cancel();
}
BENCHMARK(MoveStep)
    ->Unit(benchmark::kMillisecond)
    ->ArgNames({"brushes", "all", "mode"})
    ->Args({4000, 0, 2})
    ->Args({15000, 0, 2})
    ->Args({60000, 0, 2})
    ->Args({4000, 1, 2})
    ->Args({15000, 0, 0});

// What a resting mouse pays to show what a click would take, in a plan view or in the camera's.
void HoverPick(benchmark::State& state) {
  Desk desk(static_cast<int>(state.range(0)));
  const int view = static_cast<int>(state.range(1));
  desk.editor.settings().hover_pick = true;
  PointerEvent event;
  long found = 0;
  int i = 0;
  for (auto _ : state) {
    event.at = {150 + i % 300, 100 + i % 250};
    i += 7;
    desk.editor.input().move(view, event);
    found += desk.editor.input().hovered(view).hit != nullptr;
  }
  if (found == 0 && state.iterations() > 100) state.SkipWithError("nothing was found");
}
BENCHMARK(HoverPick)
    ->Unit(benchmark::kMillisecond)
    ->ArgNames({"brushes", "view"})
    ->ArgsProduct({{4000, 15000}, {0, kCameraView}});

// The pick of a click, which keeps the brushes it met.
void ClickPick(benchmark::State& state) {
  Desk desk(static_cast<int>(state.range(0)));
  const PlanProjection projection = desk.editor.views().plans.projection(0, desk.editor.settings());
  long found = 0;
  int i = 0;
  for (auto _ : state) {
    const ViewPoint at = projection.screenToWorld({150 + i % 500, 100 + i % 400});
    i += 7;
    const vec3 start{float(at.u), float(at.v), 4096}, end{float(at.u), float(at.v), -4096};
    found += selectByRay(desk.m(), start, end, true).hit != nullptr;
  }
  if (found == 0 && state.iterations() > 100) state.SkipWithError("nothing was found");
}
BENCHMARK(ClickPick)->Unit(benchmark::kMillisecond)->ArgName("brushes")->Arg(4000)->Arg(15000);

}  // namespace
}  // namespace velk
