// The model: building polygons, visiting brushes, undo. Arguments are brush counts.
#include <cmath>
#include <memory>
#include <numbers>

#include <benchmark/benchmark.h>
#include <malloc.h>

#include "model/history.h"

namespace velk {
namespace {

face Face(const vec3& p0, const vec3& p1, const vec3& p2) {
  face f;
  f.planepts[0] = p0;
  f.planepts[1] = p1;
  f.planepts[2] = p2;
  f.texture.name = "wall";
  return f;
}

void MakeBox(brush& b, const vec3& at, float size) {
  texturedef texture;
  texture.name = "wall";
  b.setBox(at, {at.x + size, at.y + size, at.z + size}, texture);
}

// A box with its upper edge cut off.
void MakeWedge(brush& b, const vec3& at, float size) {
  MakeBox(b, at, size);
  const vec3 top{at.x + size, at.y, at.z + size};
  b.addFace(Face({at.x, at.y + 8, at.z}, {top.x, at.y + 8, top.z}, top));
}

void MakeCylinder(brush& b, const vec3& at, float size) {
  constexpr int kSides = 12;
  const auto corner = [&](int i, float z) {
    const double angle = 2 * std::numbers::pi * i / kSides;
    return vec3{float(std::round(at.x + size * std::cos(angle))),
                float(std::round(at.y + size * std::sin(angle))), at.z + z};
  };
  b.editFaces().clear();
  for (int i = 0; i < kSides; ++i)
    b.editFaces().push_back(Face(corner(i, size), corner(i + 1, size), corner(i + 1, 0)));
  b.editFaces().push_back(Face(corner(2, size), corner(1, size), corner(0, size)));
  b.editFaces().push_back(Face(corner(0, 0), corner(1, 0), corner(2, 0)));
  b.buildWindings();
}

enum Shapes { kBoxes, kWedges, kCylinders, kMixed };

void MakeShape(brush& b, Shapes shapes, int index, const vec3& at) {
  const float size = float(16 + index % 7 * 8);
  // Of every ten mixed brushes one is a cylinder and two are wedges, much as in real levels.
  const int kind = shapes != kMixed  ? shapes
                   : index % 10 == 9 ? kCylinders
                   : index % 5 == 3  ? kWedges
                                     : kBoxes;
  if (kind == kBoxes) MakeBox(b, at, size);
  if (kind == kWedges) MakeWedge(b, at, size);
  if (kind == kCylinders) MakeCylinder(b, at, size);
}

struct BenchMap {
  Settings settings;
  EntityClassList classes;
  map m{settings, classes};

  BenchMap(Shapes shapes, int brushes) {
    m.initNew("");
    for (int i = 0; i < brushes; ++i) {
      const vec3 at{float(i % 32 * 128 - 2048), float(i / 32 % 32 * 128 - 2048), float(i / 1024 * 128)};
      auto made = std::make_unique<brush>();
      MakeShape(*made, shapes, i, at);
      m.world()->addobject(std::move(made));
    }
  }
};

void BuildWindings(benchmark::State& state, Shapes shapes) {
  BenchMap bench(shapes, int(state.range(0)));
  long corners = 0;
  for (auto _ : state) {
    for (brush& b : bench.m.world()->brushes()) b.buildWindings();
  }
  for (const brush& b : bench.m.world()->brushes()) {
    if (b.invalid) state.SkipWithError("a brush is invalid");
    for (const face& f : b.faces()) corners += f.polygon ? f.polygon->count : 0;
  }
  state.counters["corners"] = double(corners);
  state.counters["ns/brush"] =
      benchmark::Counter(double(state.range(0)) * 1e-9,
                         benchmark::Counter::kIsIterationInvariantRate | benchmark::Counter::kInvert);
}
BENCHMARK_CAPTURE(BuildWindings, boxes, kBoxes)->Arg(1257);
BENCHMARK_CAPTURE(BuildWindings, wedges, kWedges)->Arg(1257);
BENCHMARK_CAPTURE(BuildWindings, cylinders, kCylinders)->Arg(1257);
BENCHMARK_CAPTURE(BuildWindings, mixed, kMixed)->Arg(1257)->Arg(4000);

// One dispatch over every brush.
void Perform(benchmark::State& state, BrushMethod (*method)(int round)) {
  BenchMap bench(kMixed, int(state.range(0)));
  int round = 0;
  for (auto _ : state) bench.m.MAPerform(method(round++));
  if (bench.m.brushCount() != state.range(0)) state.SkipWithError("brushes were lost");
}
BrushMethod Select(int) { return Method::Select; }
BrushMethod Bounds(int) {
  static vec3 mins;
  static vec3 maxs;
  return BrushMethod::widenBounds(mins, maxs);
}
BrushMethod MoveForthAndBack(int round) { return BrushMethod::translate({round % 2 ? 8.0f : -8.0f, 0, 0}); }
BENCHMARK_CAPTURE(Perform, select, Select)->Arg(4000);
BENCHMARK_CAPTURE(Perform, bounds, Bounds)->Arg(4000);
BENCHMARK_CAPTURE(Perform, translate, MoveForthAndBack)->Arg(4000);

// Deletes every brush of an entity.
void DeleteAll(benchmark::State& state) {
  for (auto _ : state) {
    state.PauseTiming();
    auto bench = std::make_unique<BenchMap>(kBoxes, int(state.range(0)));
    state.ResumeTiming();
    bench->m.MAPerform(Method::Delete);
    if (bench->m.brushCount() != 0) state.SkipWithError("brushes were left");
  }
}
BENCHMARK(DeleteAll)->Arg(1000)->Arg(4000);

// A map of so many boxes, as many an entity as it may have.
struct LargeMap {
  Settings settings;
  EntityClassList classes;
  map m{settings, classes};
  History history;

  explicit LargeMap(int brushes) {
    m.initNew("");
    entity* owner = m.world();
    for (int i = 0; i < brushes; ++i) {
      if (owner->numbrushes() == MAX_ENTITY_BRUSHES) {
        owner = &m.addobject(std::make_unique<entity>(m));
        owner->isModel = true;
      }
      auto made = std::make_unique<brush>();
      MakeBox(*made, {float(i % 32 * 128 - 2048), float(i / 32 % 32 * 128 - 2048), float(i / 1024 * 128)},
              64);
      owner->addobject(std::move(made));
    }
  }

  // A change as the editor keeps it: what the map was, the change, and a level when there is one.
  template <typename Change>
  void perform(const History::Limits& limits, Change&& change) {
    MapSnapshot before = TakeSnapshot(m);
    change();
    if (!SameContents(before, TakeSnapshot(m))) history.changed(std::move(before), "nudge", limits);
  }
};

constexpr History::Limits kKit{100, 256};

void CommandThatChangesNothing(benchmark::State& state) {
  LargeMap large(int(state.range(0)));
  for (auto _ : state) large.perform(kKit, [] {});
  if (large.history.canUndo()) state.SkipWithError("something changed");
}
BENCHMARK(CommandThatChangesNothing)->Arg(15000)->Unit(benchmark::kMillisecond);

void NudgeOfOneBrush(benchmark::State& state) {
  LargeMap large(int(state.range(0)));
  int round = 0;
  for (auto _ : state) {
    brush& b = *large.m.world()->at(round++ % 4000);
    large.perform(kKit, [&] { b.translate({8, 0, 0}); });
  }
  if (!large.history.canUndo()) state.SkipWithError("nothing changed");
}
BENCHMARK(NudgeOfOneBrush)->Arg(15000)->Unit(benchmark::kMillisecond);

// Selects everything, which is no level.
void SelectionOfAll(benchmark::State& state) {
  LargeMap large(int(state.range(0)));
  int round = 0;
  for (auto _ : state) {
    large.perform(kKit, [&] { large.m.MGPerform(round++ % 2 ? Method::Deselect : Method::Select); });
  }
  if (large.history.canUndo()) state.SkipWithError("the contents changed");
}
BENCHMARK(SelectionOfAll)->Arg(15000)->Unit(benchmark::kMillisecond);

// Moves everything a hundred times, and takes it all back: the heap in use, with the map.
void HundredNudgesOfAll(benchmark::State& state) {
  for (auto _ : state) {
    LargeMap large(int(state.range(0)));
    for (int i = 0; i < 100; ++i) {
      large.perform(kKit, [&] { large.m.MGPerform(BrushMethod::translate({8, 0, 0})); });
    }
    const struct mallinfo2 heap = mallinfo2();
    state.counters["heap_MB"] = double(heap.uordblks + heap.hblkhd) / (1 << 20);
    state.counters["counted_MB"] = double(large.history.bytes()) / (1 << 20);
    state.counters["levels"] = large.history.undoCount();
    while (large.history.undo(large.m, kKit)) {
    }
  }
}
BENCHMARK(HundredNudgesOfAll)->Arg(15000)->Iterations(1)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace velk

BENCHMARK_MAIN();
