// Operations on brushes: of a generated map, whose brushes are boxes, wedges and slanted prisms as in real
// levels, or (those named File) of the map file that the environment variable VELK_BENCH_MAP names. Arguments
// are brush counts.
#include <cstdlib>
#include <fstream>
#include <iterator>
#include <memory>
#include <string>

#include <benchmark/benchmark.h>

#include "mapfile/map_reader.h"
#include "model/snapshot.h"
#include "model/visit.h"
#include "ops/clip.h"
#include "ops/clip_preview.h"
#include "ops/leak_search.h"
#include "ops/snap_to_grid.h"
#include "ops/subtract.h"
#include "ops/transform.h"

namespace velk {
namespace {

constexpr int kFromFile = 0;  // in place of a brush count

face Through(const vec3& p0, const vec3& p1, const vec3& p2) {
  face f;
  f.planepts[0] = p0;
  f.planepts[1] = p1;
  f.planepts[2] = p2;
  return f;
}

std::string ReadFile(const char* path) {
  std::ifstream in(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(in), {}};
}

// A map's text without the entities behind the first one.
std::string WorldOf(std::string text) {
  int depth = 0;
  size_t line = 0;
  do {
    depth += text[line] == '{' ? 1 : text[line] == '}' ? -1 : 0;
    line = text.find('\n', line) + 1;
  } while (depth > 0 && line > 0 && line < text.size());
  text.resize(line);
  return text;
}

struct BenchMap {
  Settings settings;
  EntityClassList classes;
  map m{settings, classes};
  bool usable = true;

  explicit BenchMap(int brushes) {
    m.initNew("");
    const char* file = std::getenv("VELK_BENCH_MAP");
    if (brushes != kFromFile) {
      generate(brushes);
    } else if (file) {
      ReadMapText(m, WorldOf(ReadFile(file)), file, {});
    } else {
      usable = false;
    }
  }

  brush& addBox(const vec3& at, float size) {
    texturedef texture;
    texture.name = "wall";
    auto made = std::make_unique<brush>();
    made->owner = m.world();
    made->setBox(at, {at.x + size, at.y + size, at.z + size}, texture);
    return m.world()->addobject(std::move(made));
  }

  // Three of ten have an edge cut off, one of these by a slanted plane.
  void generate(int brushes) {
    for (int i = 0; i < brushes; ++i) {
      const vec3 at{float(i % 32 * 128 - 2048), float(i / 32 % 32 * 128 - 2048), float(i / 1024 * 128)};
      const float size = float(16 + i % 7 * 16);
      brush& b = addBox(at, size);
      const vec3 top{at.x + size, at.y, at.z + size};
      if (i % 10 >= 7)
        b.addFace(Through({at.x, at.y + 8, at.z}, {top.x, at.y + (i % 10 == 9 ? 12 : 8), top.z}, top));
    }
  }

  void selectAll() {
    VisitBrushes(m, BrushFilter::Every, [](brush& b) { b.select(); });
  }

  // Boxes over every so many brushes, selected.
  void addSubtractors(int count) {
    const int brushes = m.world()->numbrushes();
    for (int i = 0; i < count; ++i) {
      const brush& under = *m.world()->at(i * brushes / count);
      addBox(add(under.mins, {8, 8, 8}), 64).select();
    }
  }
};

// Runs the operation again and again on the same map.
template <typename Operation>
void Repeat(benchmark::State& state, BenchMap& bench, Operation&& operation) {
  if (!bench.usable) return state.SkipWithError("VELK_BENCH_MAP names no map");
  bench.settings.undo_levels = 2;
  const MapSnapshot before = TakeSnapshot(bench.m);
  for (auto _ : state) {
    operation(bench.m);
    state.PauseTiming();
    RestoreSnapshot(bench.m, before, false);
    state.ResumeTiming();
  }
}

void Subtract(benchmark::State& state) {
  BenchMap bench(int(state.range(0)));
  bench.addSubtractors(int(state.range(1)));
  int after = 0;
  Repeat(state, bench, [&](map& m) {
    subtractSelection(m, true);
    after = m.brushCount();
  });
  state.counters["pieces"] = after - bench.m.brushCount();
}
BENCHMARK(Subtract)
    ->ArgNames({"brushes", "subtractors"})
    ->Args({4000, 1})
    ->Args({1257, 64})
    ->Args({kFromFile, 64})
    ->Unit(benchmark::kMillisecond);

void Apply(benchmark::State& state, void (*operation)(map&)) {
  BenchMap bench(int(state.range(0)));
  bench.selectAll();
  Repeat(state, bench, operation);
  if (bench.m.totalSelected() != state.range(0)) state.SkipWithError("brushes were lost");
}
BENCHMARK_CAPTURE(Apply, mirror, [](map& m) { MirrorSelection(m, 0, true); })
    ->Arg(4000)
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(Apply, turn, [](map& m) { QuarterTurnSelection(m, 2, true); })
    ->Arg(4000)
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(Apply, rotate90, [](map& m) { RotateSelection(m, 0, 0, 90, true); })
    ->Arg(4000)
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(Apply, rotate30, [](map& m) { RotateSelection(m, 0, 0, 30, true); })
    ->Arg(4000)
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(Apply, snap, [](map& m) { SnapSelectionToGrid(m, false); })
    ->Arg(4000)
    ->Unit(benchmark::kMillisecond);

// What of the generated map must be looked at: every box pair, and the faces of near ones.
void SearchLeaks(benchmark::State& state) {
  BenchMap bench(int(state.range(0)));
  int pairs = 0;
  Repeat(state, bench, [&](map& m) {
    LeakSearch search(m, true);
    search.conformAll();
    pairs = search.conformed();
  });
  state.counters["pairs"] = pairs;
}
BENCHMARK(SearchLeaks)->Arg(1257)->Arg(4000)->Arg(kFromFile)->Unit(benchmark::kMillisecond);

// A picture's worth of previews, most of them of brushes that the plane does not cross.
void Preview(benchmark::State& state) {
  BenchMap bench(int(state.range(0)));
  bench.selectAll();
  bench.m.clip.count = 2;
  bench.m.clip.points[1] = {64, 512, 0};
  ClipPreview preview;
  long shown = 0;
  for (auto _ : state) {
    preview.begin(bench.m, 2, true);
    for (const brush& b : bench.m.world()->brushes()) shown += preview.of(b) != nullptr;
  }
  if (shown == 0) state.SkipWithError("nothing was shown");
}
BENCHMARK(Preview)->Arg(4000)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace velk

BENCHMARK_MAIN();
