// Undo as the editor takes it: of a generated map of 2,000 brushes, and of the map file that the environment
// variable VELK_BENCH_MAP names, with the entity classes of the file that VELK_BENCH_CLASSES names. The
// argument is undo_levels.
#include <cstdlib>
#include <filesystem>
#include <string>

#include <benchmark/benchmark.h>
#include <malloc.h>

#include "app/editor.h"
#include "commands/dispatch.h"
#include "mapfile/map_reader.h"
#include "support/declining_prompts.h"

namespace velk {
namespace {

constexpr int kGeneratedBrushes = 2000;

// An editor with one map open.
struct Desk {
  explicit Desk(int levels, int brushes = 0) : editor({}, prompts, observer) {
    editor.settings().undo_levels = levels;
    editor.settings().default_wad.clear();
    editor.documents().add(editor.documents().makeNew());
    if (const char* classes = std::getenv("VELK_BENCH_CLASSES")) {
      const std::filesystem::path path(classes);
      editor.settings().entity_qc_directory = (path.parent_path() / "").string();
      editor.settings().entities = path.filename().string();
      editor.classes().loadAll(editor.settings(), editor.services().paths, prompts);
    }
    const char* file = std::getenv("VELK_BENCH_MAP");
    if (file && brushes == 0) {
      ReadMapFile(m(), file, {});
    } else {
      generate(brushes > 0 ? brushes : kGeneratedBrushes);
    }
  }

  History& history() { return editor.documents().current()->history; }
  void save() {
    history().keep(History::copyOf(m(), UndoMode::All), "copy", History::Limits::of(editor.settings()));
  }
  void undo() { history().undo(m(), History::Limits::of(editor.settings())); }

  map& m() { return *editor.documents().currentMap(); }

  void generate(int brushes) {
    texturedef texture;
    texture.name = "wall";
    for (int i = 0; i < brushes; ++i) {
      const vec3 at{float(i % 32 * 128 - 2048), float(i / 32 % 32 * 128 - 2048), float(i / 1024 * 128)};
      auto made = std::make_unique<brush>();
      made->setBox(at, {at.x + 64, at.y + 64, at.z + 64}, texture);
      m().world()->addobject(std::move(made));
    }
  }

  void moveOne(int index) {
    brush& b = *m().world()->at(index % m().world()->numbrushes());
    b.translate({8, 0, 0});
    b.buildWindings();
  }

  void moveAll() {
    for (entity& e : m().entities()) {
      for (brush& b : e.brushes()) b.translate({8, 0, 0});
    }
  }

  test::DecliningPrompts prompts;
  Observer observer;
  Editor editor;
};

void Count(benchmark::State& state, Desk& desk) { state.counters["brushes"] = desk.m().brushCount(); }

enum Changed { kNothing, kOneBrush, kAllBrushes };

void Make(Desk& desk, Changed changed, int round) {
  if (changed == kOneBrush) desk.moveOne(round);
  if (changed == kAllBrushes) desk.moveAll();
}

// The copy alone, of a map that was changed since the last one.
void TakeCopy(benchmark::State& state, Changed changed) {
  Desk desk(static_cast<int>(state.range(0)));
  int round = 0;
  for (auto _ : state) {
    state.PauseTiming();
    Make(desk, changed, round++);
    state.ResumeTiming();
    desk.save();
  }
  Count(state, desk);
}
BENCHMARK_CAPTURE(TakeCopy, unchanged, kNothing)->Arg(1)->Arg(100)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(TakeCopy, one_brush_moved, kOneBrush)->Arg(1)->Arg(100)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(TakeCopy, all_brushes_moved, kAllBrushes)->Arg(1)->Arg(100)->Unit(benchmark::kMillisecond);

// What a command pays for being undoable, before and after its change.
void RunCommand(benchmark::State& state, Changed changed) {
  Desk desk(static_cast<int>(state.range(0)));
  int round = 0;
  for (auto _ : state) {
    desk.editor.door().perform({.name = "command"}, [&] {
      state.PauseTiming();
      Make(desk, changed, round++);
      state.ResumeTiming();
      return Outcome{};
    });
  }
  Count(state, desk);
}
BENCHMARK_CAPTURE(RunCommand, nothing_changed, kNothing)->Arg(1)->Arg(100)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(RunCommand, one_brush_moved, kOneBrush)->Arg(1)->Arg(100)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(RunCommand, all_brushes_moved, kAllBrushes)->Arg(100)->Unit(benchmark::kMillisecond);

void Undo(benchmark::State& state, Changed changed) {
  Desk desk(static_cast<int>(state.range(0)));
  int round = 0;
  for (auto _ : state) {
    state.PauseTiming();
    desk.save();
    Make(desk, changed, round++);
    state.ResumeTiming();
    desk.undo();
  }
  Count(state, desk);
}
BENCHMARK_CAPTURE(Undo, one_brush_moved, kOneBrush)->Arg(1)->Arg(100)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(Undo, all_brushes_moved, kAllBrushes)->Arg(1)->Arg(100)->Unit(benchmark::kMillisecond);

// What the entity window asks when another entity becomes current, of a map with 200 lights.
void ShowEntity(benchmark::State& state) {
  Desk desk(1);
  for (int i = 0; i < 200; ++i) {
    auto light = std::make_unique<entity>(desk.m());
    light->setKey("targetname", "t" + std::to_string(i));
    light->setClass("light");
    desk.m().addobject(std::move(light));
  }
  EntityPanel& panel = desk.editor.panels().entities;
  size_t lines = 0;
  int shown = 0;
  for (auto _ : state) {
    desk.m().setCurrentEntity(desk.m().at(1 + shown++ % 200));
    lines = panel.printed().size();
    benchmark::DoNotOptimize(panel.comment());
  }
  if (lines < 2 + 12 + 2) state.SkipWithError("the window is empty");
}
BENCHMARK(ShowEntity)->Unit(benchmark::kMicrosecond);

// What the selected-brush and group windows ask when everything is selected.
void ShowSelection(benchmark::State& state) {
  Desk desk(1, static_cast<int>(state.range(0)));
  desk.m().MAPerform(Method::Select);
  BrushPanel& panel = desk.editor.panels().brush;
  for (auto _ : state) {
    benchmark::DoNotOptimize(panel.printed());
    benchmark::DoNotOptimize(panel.details());
    benchmark::DoNotOptimize(desk.editor.panels().groups.lines());
  }
  Count(state, desk);
}
BENCHMARK(ShowSelection)->Arg(4000)->Unit(benchmark::kMicrosecond);

double HeapBytes() {
  const struct mallinfo2 heap = mallinfo2();
  return static_cast<double>(heap.uordblks + heap.hblkhd);
}

// The bytes that a hundred levels take, with one brush moved for each: the first keeps every brush, the
// others what changed.
void HundredLevels(benchmark::State& state) {
  double kept[3] = {};  // by the map, the first level, all of them
  for (auto _ : state) {
    const double before = HeapBytes();
    Desk desk(100, static_cast<int>(state.range(0)));
    kept[0] = HeapBytes() - before;
    for (int level = 0; level < 100; ++level) {
      desk.editor.door().perform({.name = "move"}, [&] {
        desk.moveOne(level);
        return Outcome{};
      });
      if (level == 0) kept[1] = HeapBytes() - before - kept[0];
    }
    if (desk.editor.documents().current()->history.undoCount() != 100)
      state.SkipWithError("levels were lost");
    kept[2] = HeapBytes() - before - kept[0];
  }
  state.counters["map_kB"] = kept[0] / 1000;
  state.counters["first_level_kB"] = kept[1] / 1000;
  state.counters["level_kB"] = (kept[2] - kept[1]) / 99 / 1000;
}
BENCHMARK(HundredLevels)->Arg(2000)->Iterations(3)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace velk

BENCHMARK_MAIN();
