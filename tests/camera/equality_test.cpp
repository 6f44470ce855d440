// The renderer against its plain form, pixel for pixel, with the inner loops of every instruction set that
// this machine runs.
#include <random>

#include <gtest/gtest.h>

#include "camera/kernels.h"
#include "reference_renderer.h"
#include "scene_builder.h"

namespace velk {
namespace {

using test::ReferenceRenderer;
using test::TestScene;

// A scene of boxes, prisms and entities on a coarse grid, so that faces touch, overlap and coincide.
class RandomScene : public TestScene {
 public:
  explicit RandomScene(unsigned seed) : random_(seed) {
    for (unsigned char& byte : palette_) byte = static_cast<unsigned char>(below(256));
    for (unsigned char& byte : colormap_) byte = static_cast<unsigned char>(below(256));
    countingTexture("a", 16, 16, 1);
    countingTexture("b", 32, 8, 100);
    countingTexture("c", 12, 20, 7);
    countingTexture("d", 5, 1, 50);
    if (below(8) != 0) assets.palette = palette_.data();
    if (below(8) != 0) assets.colormap = colormap_.data();
    assets.brushOutline = 251;
    assets.selectionOutline = 252;
    assets.faceOutline = 253;
    door_ = &addEntity("func_door");
    for (int i = 0; i < 60; ++i) addSolid();
    for (int i = 0; i < 5; ++i) addPoint("light", place());
    chooseSettings();
    aim();
  }

  int below(int limit) { return int(random_() % unsigned(limit)); }

  void aim() {
    camera& c = m.cameras[0];
    c.origin = place();
    c.yaw = below(2) ? float(below(16)) * test::kQuarterTurn / 4 : float(below(6283)) / 1000;
    if (below(3) == 0) c.pitch += float(below(200) - 100) / 100;
    if (below(3) == 0) c.roll += float(below(200) - 100) / 100;
  }

  void chooseSettings() {
    settings.drawmode = 1 + below(2);
    settings.outline = below(3) == 0;
    settings.shadetextures = below(4) != 0;
    settings.shadeflats = below(4) != 0;
    settings.groupmode = below(2) == 0;
    settings.filter.omitWater = below(4) == 0;
  }

  brush& anyBrush() { return *world().at(below(world().numbrushes())); }

 private:
  vec3 place() { return {float(below(33) - 16) * 8, float(below(33) - 16) * 8, float(below(17) - 8) * 8}; }

  void addSolid() {
    const std::string texture(1, char('a' + below(5)));  // there is no "e"
    const vec3 low = place();
    const vec3 high = add(low, {float(1 + below(12)) * 8, float(1 + below(12)) * 8, float(1 + below(6)) * 8});
    brush* made = nullptr;
    if (below(3) == 0) {
      made = &prism({{low.y, high.z}, {high.y, low.z}, {low.y, low.z}}, low.x, high.x - low.x, texture);
    } else {
      made = &boxIn(below(6) ? world() : *door_, low, high, texture);
    }
    made->select(below(10) == 0);
    made->setCurrentFace(below(5));
    texturedef definition = test::Texture(texture);
    definition.rotate = float(below(4)) * 30;
    definition.scale[0] = float(below(5) - 2) / 2;
    definition.scale[1] = float(below(5) - 2) / 2;
    definition.shift[0] = float(below(100000) - 50000) * (below(3) ? 1.0f : 40000.0f);
    made->setAllTexturedefs(definition);
    if (below(20) == 0) made->editFaces()[size_t(below(5))].polygon = nullptr;
  }

  std::mt19937 random_;
  std::vector<unsigned char> palette_ = std::vector<unsigned char>(768);
  std::vector<unsigned char> colormap_ = std::vector<unsigned char>(64 * 256);
  entity* door_ = nullptr;
};

void ExpectSame(const Renderer& fast, const ReferenceRenderer& plain) {
  ASSERT_EQ(fast.frameBuffer().size(), plain.frame.size());
  size_t different = 0;
  for (size_t i = 0; i < plain.frame.size(); ++i) {
    different += fast.frameBuffer()[i] != plain.frame[i] || fast.depthBuffer()[i] != plain.depth[i];
  }
  EXPECT_EQ(different, 0u);
}

const RenderSize kSizes[] = {{80, 60}, {37, 23}, {160, 80}, {13, 50}, {333, 97}, {1, 1}, {1024, 20}};

class EveryInstructionSet : public testing::TestWithParam<const Kernels*> {};

TEST_P(EveryInstructionSet, DrawsThePlainPicture) {
  for (unsigned seed = 0; seed < 40; ++seed) {
    SCOPED_TRACE(seed);
    RandomScene random(seed);
    Renderer fast(*GetParam());
    ReferenceRenderer plain;
    for (int view = 0; view < 3; ++view) {
      const RenderSize size = kSizes[random.below(int(std::size(kSizes)))];
      fast.renderFrame(random.scene(), size);
      plain.renderFrame(random.scene(), size);
      ExpectSame(fast, plain);
      random.chooseSettings();
      random.aim();
    }
  }
}

TEST_P(EveryInstructionSet, RedrawsSingleBrushes) {
  for (unsigned seed = 0; seed < 15; ++seed) {
    SCOPED_TRACE(seed);
    RandomScene random(seed);
    Renderer fast(*GetParam());
    ReferenceRenderer plain;
    fast.renderFrame(random.scene(), {80, 60});
    plain.renderFrame(random.scene(), {80, 60});
    for (int i = 0; i < 10; ++i) {
      brush& b = random.anyBrush();
      fast.noDepthTest = plain.noDepthTest = random.below(2) == 0;
      fast.renderBrush(random.scene(), b);
      plain.renderBrush(random.scene(), b);
      const int number = random.below(b.numfaces());
      fast.renderFace(random.scene(), b, number, FaceState::CurrentFace);
      plain.renderFace(random.scene(), b, number, FaceState::CurrentFace);
    }
    ExpectSame(fast, plain);
  }
}

std::vector<const Kernels*> Available() {
  const Kernels* sets[3];
  return {sets, sets + AvailableKernels(sets, 3)};
}

INSTANTIATE_TEST_SUITE_P(Renderer, EveryInstructionSet, testing::ValuesIn(Available()),
                         [](const auto& instance) { return "Set" + std::to_string(instance.index); });

}  // namespace
}  // namespace velk
