#include "panels/textures/texture_fields.h"

#include <gtest/gtest.h>

namespace velk {
namespace {

TEST(BrowserSteps, ButtonsStepAndWrap) {
  using enum TextureField;
  const struct {
    TextureField field;
    float before;
    int direction;
    const char* after;
  } cases[] = {{ShiftS, 3, 1, "4"},           {ShiftT, -0.4f, -1, "-1"}, {Rotate, 0, -1, "355"},
               {Rotate, 355, 1, "0"},         {Rotate, -700, 1, "25"},   {Rotate, 1e30f, 1, nullptr},
               {Rotate, -5.0000005f, 1, "0"}, {ScaleS, 1, 1, "1.1"},     {ScaleS, 0.1f, -1, "-0.1"},
               {ScaleT, -0.1f, 1, "0.1"},     {ScaleT, 0.2f, -1, "0.1"}, {ScaleT, 0, 1, "0.1"}};
  for (const auto& c : cases) {
    TextureChoice browser;
    texturedef start = browser.current();
    float* const values[] = {&start.shift[0], &start.shift[1], &start.rotate, &start.scale[0],
                             &start.scale[1]};
    *values[static_cast<size_t>(c.field)] = c.before;
    browser.setCurrent(start);
    StepTextureField(browser, c.field, c.direction);
    if (c.after) {
      EXPECT_EQ(TextureFieldText(browser, c.field), c.after) << c.before;
    }
    EXPECT_GE(browser.current().rotate, 0);
    EXPECT_LT(browser.current().rotate, 360);
  }
}

class BrowserSelection : public testing::Test {
 protected:
  BrowserSelection() {
    for (const char* name : {"FLOOR", "WALL"}) {
      wad_.textures.push_back(std::make_unique<Texture>());
      wad_.textures.back()->name = name;
    }
    set_.build({&wad_});
  }
  Wad wad_;
  TextureRef badtex_;
  TextureSet set_{badtex_};
  TextureChoice browser_;
};

TEST_F(BrowserSelection, SelectingKeepsTheNumbers) {
  browser_.takeFirstTexture(set_);
  EXPECT_EQ(browser_.current().name, "FLOOR");
  StepTextureField(browser_, TextureField::Rotate, 1);
  EXPECT_TRUE(browser_.selectTexture(set_, 1));
  for (const int outside : {-1, 2}) EXPECT_FALSE(browser_.selectTexture(set_, outside));
  EXPECT_EQ(browser_.currentIndex(), 1);
  EXPECT_EQ(set_.currentName + browser_.current().name, "WALLWALL");
  EXPECT_EQ(browser_.current().rotate, 5);
  browser_.wadLoaded();
  EXPECT_TRUE(browser_.currentIndex() == 0 && browser_.current().rotate == 0);
}

TEST_F(BrowserSelection, LiftingTakesTheDefinition) {
  EXPECT_FALSE(browser_.liftTexture({"Entity", 90, {1, 2}, {3, 4}}, &set_));
  EXPECT_EQ(browser_.current().rotate, 0);
  EXPECT_TRUE(browser_.liftTexture({"none", 45, {1, 2}, {3, 4}}, &set_));
  EXPECT_EQ(browser_.currentIndex(), 0);
  EXPECT_TRUE(browser_.liftTexture({"wall", 90, {1, 2}, {3, 4}}, &set_));  // the set's is WALL
  EXPECT_EQ(browser_.currentIndex(), 1);
  EXPECT_EQ(set_.currentName + browser_.current().name, "WALLwall");
  EXPECT_EQ(browser_.current().rotate, 90);
}

}  // namespace
}  // namespace velk
