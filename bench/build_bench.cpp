// Checking a map: one of 2,000 generated brushes, and the map file that the environment variable
// VELK_BENCH_MAP names.
#include <cstdlib>
#include <stdexcept>

#include <benchmark/benchmark.h>

#include "build/check_map.h"
#include "mapfile/map_reader.h"

namespace velk {
namespace {

void Check(benchmark::State& state) {
  const Settings settings;
  const EntityClassList classes;
  map m(settings, classes);
  m.initNew("");
  if (const char* file = std::getenv("VELK_BENCH_MAP")) {
    ReadMapFile(m, file, {});
  } else {
    for (int i = 0; i < 2000; ++i) {
      auto made = std::make_unique<brush>();
      const vec3 at{64.0f * static_cast<float>(i % 40), 64.0f * static_cast<float>(i / 40), 0};
      made->initBox(*m.world(), at, add(at, {32, 32, 32}), {});
      m.world()->addobject(std::move(made));
    }
  }
  const TextureRef bad{};
  const TextureSet textures(bad);
  size_t found = 0;
  for (auto _ : state) found = CheckMap(m, textures).size();
  if (found == 0) throw std::runtime_error("nothing found, not even that the start is missing");
  state.counters["brushes"] = m.brushCount();
}
BENCHMARK(Check)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace velk

BENCHMARK_MAIN();
