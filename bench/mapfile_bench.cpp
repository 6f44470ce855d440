// Reading and writing map files: a generated map of 4,000 world brushes, and the map file that the
// environment variable VELK_BENCH_MAP names.

#include <cstdlib>
#include <filesystem>
#include <random>
#include <string>

#include <benchmark/benchmark.h>

#include "base/files.h"
#include "base/text.h"
#include "mapfile/map_reader.h"
#include "mapfile/map_writer.h"

namespace velk {
namespace {

constexpr int kGeneratedBrushes = 4000;

// A brush of six to eight faces at a place on a lattice; every second one has corners cut off.
std::string GeneratedBrush(int index, std::mt19937& random) {
  const int x = index % 20 * 128 - 1280;
  const int y = index / 20 % 20 * 128 - 1280;
  const int z = index / 400 * 128 - 640;
  const int size = 32 + static_cast<int>(random() % 12) * 8;
  const int x2 = x + size, y2 = y + size, z2 = z + size;
  const int points[8][9] = {{x, y2, z2, x, y, z2, x, y, z},
                            {x2, y2, z2, x, y2, z2, x, y2, z},
                            {x2, y, z2, x2, y2, z2, x2, y2, z},
                            {x, y, z2, x2, y, z2, x2, y, z},
                            {x, y, z2, x, y2, z2, x2, y2, z2},
                            {x2, y2, z, x, y2, z, x, y, z},
                            {x2 - 8, y, z2, x2, y + 8, z2, x2, y + 8, z},
                            {x2, y2 - 8, z2, x2 - 8, y2, z2, x2 - 8, y2, z}};
  const int faces = index % 2 == 0 ? 6 : 8;
  std::string text = "{\n";
  for (int i = 0; i < faces; ++i) {
    const int* p = points[i];
    text += Format("( %d %d %d ) ( %d %d %d ) ( %d %d %d ) CITY%d_%d %d %d 0 1.000000 1.000000\n", p[0], p[1],
                   p[2], p[3], p[4], p[5], p[6], p[7], p[8], static_cast<int>(random() % 8), i,
                   static_cast<int>(random() % 64), -8 * i);
  }
  return text + "}\n";
}

std::string GeneratedMap() {
  std::mt19937 random(1);
  std::string text = "{\n\"classname\" \"worldspawn\"\n\"wad\" \"base.wad\"\n";
  for (int i = 0; i < kGeneratedBrushes; ++i) text += GeneratedBrush(i, random);
  return text + "}\n";
}

struct Source {
  std::string name;
  std::string text;
  EntityClassList classes;
};

// A class for every name in the text, built of brushes or with a box as in the game.
EntityClassList ClassesOf(const std::string& text) {
  EntityClassList classes;
  const std::string key = "\"classname\"";
  for (size_t at = text.find(key); at != std::string::npos; at = text.find(key, at)) {
    const size_t start = text.find('"', at += key.size()) + 1;
    const std::string name = text.substr(start, text.find('"', start) - start);
    if (classes.isKnown(classes.findByName(name))) continue;
    const bool ofBrushes = name == "worldspawn" || name.starts_with("func_") ||
                           (name.starts_with("trigger_") && name != "trigger_relay");
    classes.scanText("/*QUAKED " + name +
                     (ofBrushes ? " (0 1 0) ?\n*/\n" : " (1 0 0) (-16 -16 -24) (16 16 32)\n*/\n"));
  }
  return classes;
}

Source MakeSource(const std::string& name, const std::string& text) { return {name, text, ClassesOf(text)}; }

// A map with the settings that it needs.
struct Document {
  explicit Document(const Source& source) : m(settings, source.classes) {}

  Settings settings;
  map m;
};

void Rate(benchmark::State& state, const Source& source, const map& m) {
  long faces = 0;
  for (const entity& e : m.entities()) {
    for (const brush& b : e.brushes()) faces += b.numfaces();
  }
  state.counters["brushes"] = m.brushCount();
  state.counters["faces"] = static_cast<double>(faces);
  state.SetBytesProcessed(state.iterations() * static_cast<std::int64_t>(source.text.size()));
}

// Destroying the map of the round before is not part of the time.
template <typename Read>
void MeasureRead(benchmark::State& state, const Source& source, Read&& read) {
  auto document = std::make_unique<Document>(source);
  for (auto _ : state) {
    state.PauseTiming();
    document = std::make_unique<Document>(source);
    state.ResumeTiming();
    read(document->m);
  }
  Rate(state, source, document->m);
}

void Register(const Source& source) {
  const auto text = [&source](bool build) {
    return [&source, build](benchmark::State& state) {
      MapReadOptions options;
      options.build = build;
      MeasureRead(state, source, [&](map& m) { ReadMapText(m, source.text, source.name, options); });
    };
  };
  benchmark::RegisterBenchmark(("ReadText/" + source.name).c_str(), text(false))
      ->Unit(benchmark::kMillisecond);
  benchmark::RegisterBenchmark(("ReadTextAndBuild/" + source.name).c_str(), text(true))
      ->Unit(benchmark::kMillisecond);

  const auto file = std::filesystem::temp_directory_path() / ("velk_bench_" + source.name + ".map");
  benchmark::RegisterBenchmark(("ReadFileAndBuild/" + source.name).c_str(), [&source,
                                                                             file](benchmark::State& state) {
    ReplaceFile(file, source.text);
    MeasureRead(state, source, [&](map& m) { ReadMapFile(m, file.string(), {}); });
    std::filesystem::remove(file);
  })->Unit(benchmark::kMillisecond);

  benchmark::RegisterBenchmark(("WriteText/" + source.name).c_str(), [&source](benchmark::State& state) {
    Document document(source);
    ReadMapText(document.m, source.text, source.name, {});
    for (auto _ : state) benchmark::DoNotOptimize(MapFileText(document.m, {}));
    Rate(state, source, document.m);
  })->Unit(benchmark::kMillisecond);

  // With the wait for the disk that makes saving safe.
  benchmark::RegisterBenchmark(("WriteFile/" + source.name).c_str(),
                               [&source, file](benchmark::State& state) {
                                 Document document(source);
                                 ReadMapText(document.m, source.text, source.name, {});
                                 for (auto _ : state) WriteMapFile(document.m, Paths{}, file.string(), {});
                                 Rate(state, source, document.m);
                                 std::filesystem::remove(file);
                               })
      ->Unit(benchmark::kMillisecond)
      ->UseRealTime();
}

}  // namespace
}  // namespace velk

int main(int argc, char** argv) {
  benchmark::Initialize(&argc, argv);
  const velk::Source generated = velk::MakeSource("generated", velk::GeneratedMap());
  velk::Register(generated);
  velk::Source named;
  if (const char* file = std::getenv("VELK_BENCH_MAP")) {
    named =
        velk::MakeSource(std::filesystem::path(file).stem().string(), velk::LoadFile(velk::Paths{}, file));
    velk::Register(named);
  } else {
    std::puts("VELK_BENCH_MAP names no map file: only the generated map is measured");
  }
  benchmark::RunSpecifiedBenchmarks();
}
