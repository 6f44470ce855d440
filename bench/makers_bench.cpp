// Makers: what a step of a preview costs, and how soon too large an object is refused.
#include <benchmark/benchmark.h>

#include "base/error.h"
#include "makers/arch.h"
#include "makers/sphere.h"
#include "makers/stairs.h"

namespace velk {
namespace {

Seed BenchSeed() {
  Seed seed{0, {-256, -64, 0}, {256, 64, 512}, {}};
  seed.texture.name = "wall";
  return seed;
}

void Check(benchmark::State& state, const Made& made, size_t least) {
  if (made.brushes.size() < least) state.SkipWithError("brushes are missing");
}

// Arguments: stones, careful.
void BmArch(benchmark::State& state) {
  const ArchParams params{.stones = static_cast<int>(state.range(0))};
  const MakerRules rules{.careful = state.range(1) != 0};
  std::optional<Made> made;
  for (auto _ : state) made = MakeArch(BenchSeed(), params, rules);
  Check(state, *made, static_cast<size_t>(state.range(0)) + 2);
}
BENCHMARK(BmArch)->Unit(benchmark::kMicrosecond)->Args({32, 0})->Args({32, 1});

// Arguments: steps, type.
void BmStairs(benchmark::State& state) {
  const StairParams params{.steps = static_cast<int>(state.range(0)),
                           .type = static_cast<StairType>(state.range(1))};
  Made made;
  for (auto _ : state) made = MakeStairs(BenchSeed(), params, {});
  Check(state, made, static_cast<size_t>(state.range(0)));
}
BENCHMARK(BmStairs)->Unit(benchmark::kMicrosecond)->ArgsProduct({{32}, {0, 1, 2}});

// Arguments: strips both ways, careful. The map must be as it was.
void BmSphereRefused(benchmark::State& state) {
  Settings settings;
  EntityClassList classes;
  map m(settings, classes);
  m.initNew("");
  auto added = std::make_unique<brush>();
  added->initBox(*m.world(), BenchSeed().mins, BenchSeed().maxs, {});
  brush& seed = m.world()->addobject(std::move(added));
  const int strips = static_cast<int>(state.range(0));
  const MakerRules rules{.careful = state.range(1) != 0};
  for (auto _ : state) {
    const ErrorTrap trap;
    try {
      ReplaceSeed(m, seed, MakeSphere(SeedOf(seed), {strips, strips, 512, 1024}, rules), {});
      state.SkipWithError("it was not refused");
    } catch (const TrappedError&) {
    }
  }
  if (m.brushCount() != 1) state.SkipWithError("the map changed");
}
BENCHMARK(BmSphereRefused)->Unit(benchmark::kMillisecond)->Args({99, 0})->Args({99, 1});

}  // namespace
}  // namespace velk

BENCHMARK_MAIN();
