// The texture browser's grid: of a generated set of textures, 64 by 64 each. Arguments: textures, and device
// pixels a side of one of the editor's.
#include <string>

#include <benchmark/benchmark.h>

#include "panels/textures/texture_filter.h"
#include "panels/textures/thumbnail_painter.h"

namespace velk {
namespace {

constexpr int kSide = 64;

struct Collection {
  explicit Collection(int count) {
    for (int i = 0; i < count; ++i) {
      auto texture = std::make_unique<Texture>();
      texture->name = "TEXTURE" + std::to_string(10000 + i);
      texture->width = texture->height = kSide;
      texture->pixels.assign(kSide * kSide + Texture::kSparePixels, static_cast<unsigned char>(i));
      wad.textures.push_back(std::move(texture));
    }
    set.build({&wad});
  }
  Wad wad;
  TextureRef badtex;
  TextureSet set{badtex};
};

// What every key in the search box pays.
void Refill(benchmark::State& state) {
  const Collection collection(static_cast<int>(state.range(0)));
  const Settings settings;
  size_t shown = 0;
  for (auto _ : state) {
    const std::vector<int> places = FilterTextures({collection.set, {}}, "text 1");
    const TextureLayout layout({256, 800, kSide, kSide, static_cast<int>(places.size())}, settings);
    benchmark::DoNotOptimize(layout.scrollRange());
    shown = places.size();
  }
  state.counters["shown"] = static_cast<double>(shown);
}
BENCHMARK(Refill)->Arg(1000)->Arg(10000)->Unit(benchmark::kMicrosecond);

// The pictures of one step of scrolling in a window of 1280 by 1000; names left out.
void DrawGrid(benchmark::State& state) {
  const Collection collection(static_cast<int>(state.range(0)));
  const auto scale = static_cast<double>(state.range(1));
  Settings settings;
  settings.stretch_textures = true;
  const TextureLayout layout({1280, 1000, 48, 48, collection.set.count()}, settings);
  const int width = static_cast<int>(1280 * scale);
  const int height = static_cast<int>(1000 * scale);
  std::vector<std::uint32_t> out(static_cast<size_t>(width) * static_cast<size_t>(height));
  const PicturePixels picture{out.data(), width, height, width, scale};
  int scroll = 0;
  for (auto _ : state) {
    scroll = (scroll + 7) % std::max(1, layout.scrollRange());
    const int first = scroll / layout.cellHeight * layout.columns;
    const int last = std::min(first + (layout.visibleRows + 2) * layout.columns, layout.count);
    for (int i = first; i < last; ++i) {
      const PixelRect at = layout.thumbnail({TexturePlace::Kind::Grid, i}, scroll);
      DrawThumbnail(picture, *collection.set.at(i).texture, collection.wad.colours,
                    ThumbnailSizeOf(kSide, kSide, at.width, at.height, settings), {at.left, at.top},
                    {0, layout.gridTop, 1280, 1000});
    }
  }
  if (out.back() != 0 && out.back() >> 24 != 255) state.SkipWithError("nothing was drawn");
}
BENCHMARK(DrawGrid)->Args({1000, 1})->Args({1000, 2})->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace velk

BENCHMARK_MAIN();
