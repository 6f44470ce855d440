// Small scenes for the renderer: a map, textures made up for it, and its picture as rows of characters.
#pragma once

#include <map>
#include <memory>
#include <numbers>
#include <string>
#include <utility>
#include <vector>

#include "camera/renderer.h"
#include "support/builders.h"

namespace velk::test {

inline constexpr float kQuarterTurn = float(std::numbers::pi / 2);

// The camera stands at the origin and looks along +x, so +y is to the left.
struct TestScene : TestMap {
  struct Image {
    int width = 0;
    int height = 0;
    std::vector<unsigned char> pixels;
    int averageIndex = 0;
  };

  std::map<std::string, Image> images;
  RenderAssets assets;
  std::function<const brush*(const brush&)> preview;

  TestScene() {
    m.cameras[0].yaw = kQuarterTurn;
    settings.drawmode = 1;
    assets.makeTextureRef = [this](const std::string& name) { return makeRef(name); };
  }

  RenderScene scene() { return {m, settings, assets, WireLens(), preview, nullptr}; }

  // A texture of one colour, which is also its average.
  void plainTexture(const std::string& name, int colour, int size = 16) {
    images[name] = {size, size,
                    std::vector<unsigned char>(size_t(size * size), static_cast<unsigned char>(colour)),
                    colour};
  }

  // Pixel (column, row) holds first + column + width * row.
  void countingTexture(const std::string& name, int width, int height, int first) {
    Image image{width, height, {}, first};
    for (int i = 0; i < width * height; ++i) image.pixels.push_back(static_cast<unsigned char>(first + i));
    images[name] = image;
  }

  // A solid of that outline, given as (y, z) clockwise as the camera sees it, from x to x + depth.
  brush& prism(const std::vector<std::pair<float, float>>& outline, float x, float depth,
               const std::string& texture) {
    auto made = std::make_unique<brush>(&counters);
    const auto at = [&](size_t i, float dx) {
      const auto& [y, z] = outline[i % outline.size()];
      return vec3{x + dx, y, z};
    };
    made->editFaces().push_back(Face(at(0, 0), at(1, 0), at(2, 0), texture));
    made->editFaces().push_back(Face(at(2, depth), at(1, depth), at(0, depth), texture));
    for (size_t i = 0; i < outline.size(); ++i) {
      made->editFaces().push_back(Face(at(i, 0), at(i, depth), at(i + 1, 0), texture));
    }
    made->owner = &world();
    made->buildWindings();
    return world().addobject(std::move(made));
  }

 private:
  std::unique_ptr<TextureRef> makeRef(const std::string& name) const {
    const auto found = images.find(name);
    if (found == images.end()) return nullptr;
    const Image& image = found->second;
    auto ref = std::make_unique<TextureRef>();
    ref->name = name;
    ref->width = image.width;
    ref->height = image.height;
    ref->pixels = image.pixels.data();
    ref->paletteIndex = image.averageIndex;
    return ref;
  }
};

// '.' for index 0, digits and letters from 1 on.
inline std::vector<std::string> Rows(const Renderer& renderer) {
  std::vector<std::string> rows;
  for (int y = 0; y < renderer.height(); ++y) {
    std::string row;
    for (int x = 0; x < renderer.width(); ++x) {
      const int index = renderer.frameBuffer()[size_t(y * renderer.width() + x)];
      row += index == 0 ? '.' : (index < 10 ? char('0' + index) : char('a' + index - 10));
    }
    rows.push_back(row);
  }
  return rows;
}

}  // namespace velk::test
