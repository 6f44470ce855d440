// The tokenizer over the text of a map: a generated one of the given number of faces, or the file that
// the environment variable VELK_BENCH_MAP names.

#include <cstdlib>
#include <string>

#include <benchmark/benchmark.h>

#include "base/files.h"
#include "base/text.h"
#include "base/tokenizer.h"

namespace velk {
namespace {

std::string FaceLines(int count) {
  std::string text;
  for (int i = 0; i < count; ++i) {
    const int a = i % 97 * 16 - 800, b = i % 13, c = -i % 4000;
    text += Format("( %d %d %d ) ( %d %d 0 ) ( %d 0 %d ) CITY%d_%d %d 0 0 1.000000 1.000000\n", a, b, c, c, a,
                   b, a, i % 8, a, c % 64);
  }
  return text;
}

void Tokenize(benchmark::State& state, const std::string& text) {
  size_t tokens = 0;
  for (auto _ : state) {
    Tokenizer tokenizer(text);
    for (tokens = 0; tokenizer.GetScriptToken(true); ++tokens) benchmark::DoNotOptimize(tokenizer.token());
  }
  state.SetBytesProcessed(static_cast<int64_t>(text.size()) * state.iterations());
  state.counters["tokens"] = static_cast<double>(tokens);
}

void TokenizeGenerated(benchmark::State& state) {
  Tokenize(state, FaceLines(static_cast<int>(state.range(0))));
}
BENCHMARK(TokenizeGenerated)->Arg(1000)->Arg(8000)->Arg(64000);

void TokenizeFile(benchmark::State& state) {
  const char* file = std::getenv("VELK_BENCH_MAP");
  if (!file) return state.SkipWithError("VELK_BENCH_MAP names no map");
  Tokenize(state, LoadFile(Paths(), file));
}
BENCHMARK(TokenizeFile);

}  // namespace
}  // namespace velk

BENCHMARK_MAIN();
