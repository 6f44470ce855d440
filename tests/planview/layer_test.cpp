// A plan view drawn over the layer of what stays, against the whole picture drawn anew.
#include <algorithm>
#include <random>

#include "model/snapshot.h"
#include "planview/draw_plan_view.h"
#include "support/plan_fixture.h"

namespace velk {
namespace {

class Canvas200 : public RasterCanvas {
 public:
  explicit Canvas200(std::vector<std::uint32_t>& pixels, int dense)
      : RasterCanvas(pixels.data(), 200 * dense, 200 * dense, 200 * dense, dense) {}
  void text(const std::string& text, Pixel at, int height, Colour colour, const Colour*) override {
    fill({at.x, at.y, textWidth(text, height), height}, colour);
  }
  int textWidth(const std::string& text, int height) const override {
    return static_cast<int>(text.size()) * height / 2;
  }
};

struct LayerTest : test::PlanFixture {
  float step(int reach) { return float(int(random() % unsigned(2 * reach)) - reach) * 4; }

  std::vector<std::uint32_t> picture(int view, bool layered) {
    const int dense = 1 + view % 2;
    std::vector<std::uint32_t> pixels(static_cast<size_t>(200 * 200 * dense * dense));
    Canvas200 canvas(pixels, dense);
    const PlanScene scene{.set = set, .settings = settings, .shown = &m};
    if (layered) {
      DrawPlanView(canvas, scene, view, still, layers[view]);
    } else {
      DrawPlanView(canvas, scene, view);
    }
    return pixels;
  }

  std::mt19937 random{3};
  StillBrushes still;
  PlanLayer layers[kPlanViews];
};

TEST_F(LayerTest, MovingBrushesAreDrawnAsInTheWholePicture) {
  settings.show_grid = settings.show_names = settings.show_hits = settings.show_cameras = true;
  settings.scale = 0.5f;
  entity& door = addEntity("func_door");
  for (int i = 0; i < 90; ++i) {
    const vec3 low{step(40), step(40), step(40)};
    boxIn(i % 3 ? world() : door, low, add(low, {float(8 + i), float(8 + i / 2), 24}));
  }
  door.setKey("angle", "45");
  addPoint("light", {8, 8, 8});
  m.clip = {2, {{-40, 40, 0}, {40, -40, 0}, {}}, 1};
  int drawn = 0;
  for (int round = 0; round < 12; ++round) {
    settings.groupmode = round % 4 == 0;
    settings.filter.omitEntities = round % 5 == 4;
    m.setCurrentEntity(round % 3 ? m.world() : &door);
    for (entity& e : m.entities()) {
      for (brush& b : e.brushes()) b.select(random() % 12 == 0);
    }
    TakeSnapshot(m);
    for (int move = 0; move < 6; ++move) {
      for (entity& e : m.entities()) {
        for (brush& b : e.brushes()) {
          if (b.selected()) b.translate({step(2), step(2), step(2)});
        }
      }
      if (move == 3) door.at(0)->setColor({0.3f, float(round) / 12, 0.9f});
      if (move == 4) door.setKey("angle", std::to_string(round * 10));
      if (move == 5 && m.totalSelected() > 1) DestroyBrush(*m.firstSelected());
      still.look(m);
      for (int view = 0; view < kPlanViews; ++view) {
        ASSERT_EQ(picture(view, true), picture(view, false)) << round << ' ' << move << ' ' << view;
        drawn += layers[view].isDrawn();
      }
    }
  }
  EXPECT_GT(drawn, 12 * 3 * 3);
}

}  // namespace
}  // namespace velk
