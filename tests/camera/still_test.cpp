// The picture of moving brushes drawn into what stays, against the whole picture drawn anew.
#include <algorithm>
#include <random>

#include <gtest/gtest.h>

#include "camera/live/wire_layer.h"
#include "model/snapshot.h"
#include "scene_builder.h"

namespace velk {
namespace {

class PlainCanvas : public RasterCanvas {
 public:
  explicit PlainCanvas(std::vector<std::uint32_t>& pixels) : RasterCanvas(pixels.data(), 97, 61, 97) {}
  void text(const std::string&, Pixel, int, Colour, const Colour*) override {}
  int textWidth(const std::string&, int) const override { return 0; }
};

struct StillTest : testing::Test, test::TestScene {
  StillTest() {
    countingTexture("a", 16, 16, 1);
    countingTexture("b", 32, 8, 100);
    m.cameras[0].origin = {-200, 3, 7};
    entity& door = addEntity("func_door");
    for (int i = 0; i < 80; ++i) {  // on a coarse grid, so that faces coincide
      const vec3 low{step(16), step(16), step(8)};
      const vec3 high = add(low, {16.0f + step(3), 16.0f + step(3), 16.0f + step(3)});
      box(i % 3, door, low, high);
    }
  }

  float step(int reach) { return float(int(random() % unsigned(2 * reach)) - reach) * 8; }
  void box(int kind, entity& door, const vec3& low, const vec3& high) {
    for (int axis = 0; axis < 3; ++axis) {
      if (high[axis] <= low[axis]) return;
    }
    boxIn(kind == 0 ? door : world(), low, high, kind == 1 ? "a" : "b");
  }

  static std::vector<std::uint32_t> wirePicture(const RenderScene& scene, WireLayer* layer) {
    std::vector<std::uint32_t> pixels(97 * 61);
    PlainCanvas canvas(pixels);
    if (layer) {
      DrawWire(canvas, {97, 61}, scene, *layer);
    } else {
      DrawWire(canvas, {97, 61}, scene);
    }
    return pixels;
  }

  std::mt19937 random{7};
  StillBrushes still;
};

TEST_F(StillTest, MovingBrushesAreDrawnAsInTheWholePicture) {
  Renderer layered, whole;
  WireLayer wire;
  for (int round = 0; round < 12; ++round) {
    settings.drawmode = 1 + round % 2;
    settings.solid_entities = settings.window_quality = round % 3 == 0;
    for (entity& e : m.entities()) {
      for (brush& b : e.brushes()) b.select(random() % 12 == 0);
    }
    world().at(round)->select();
    const MapSnapshot before = TakeSnapshot(m);
    brush cut(*m.firstSelected());
    for (int move = 0; move < 6; ++move) {
      for (entity& e : m.entities()) {
        for (brush& b : e.brushes()) {
          if (b.selected() && &b != m.firstSelected()) b.translate({step(2), step(2), 0});
        }
      }
      if (move == 3) m.firstSelected()->setGroup(m.groups.add("late"));
      if (move == 4) world().at(random() % 8)->setAllTexturedefs(test::Texture("a"));  // not selected
      cut.translate({0, 8, 0});
      preview = [&](const brush& b) -> const brush* {  // one shown elsewhere, or not at all
        if (&b != m.firstSelected()) return &b;
        return move % 2 ? &cut : nullptr;
      };
      RenderScene shown = scene();
      still.look(m);
      shown.still = &still;
      layered.renderFrame(shown, {97, 61});
      whole.renderFrame(scene(), {97, 61});
      ASSERT_TRUE(std::ranges::equal(layered.frameBuffer(), whole.frameBuffer())) << round << ' ' << move;
      ASSERT_TRUE(std::ranges::equal(layered.depthBuffer(), whole.depthBuffer())) << round << ' ' << move;
      ASSERT_EQ(wirePicture(shown, &wire), wirePicture(shown, nullptr)) << round << ' ' << move;
      if (move == 2) {
        EXPECT_TRUE(wire.isDrawn());
        EXPECT_LT(layered.statistics().facesDrawn, whole.statistics().facesDrawn / 2);
      }
    }
    RestoreSnapshot(m, before, false);
  }
}

}  // namespace
}  // namespace velk
