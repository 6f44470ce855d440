#include <gtest/gtest.h>

#include "plan_fixture.h"
#include "planview/headerstrip.h"
#include "planview/viewsteps.h"

namespace velk {
namespace {

using test::PlanFixture;

TEST(Scale, StepsStopAtTheLimits) {
  const struct {
    float from, up, down;
  } cases[] = {
      {16, 16, 8}, {12, 16, 6}, {1, 2, 0.5f}, {0.02f, 0.04f, 0.015625f}, {0.015625f, 0.03125f, 0.015625f}};
  for (const auto& c : cases) {
    Settings settings;
    settings.scale = c.from;
    EXPECT_EQ(scaleUp(settings), "Scale increased...");
    EXPECT_FLOAT_EQ(settings.scale, c.up);
    settings.scale = c.from;
    EXPECT_EQ(scaleDown(settings), "Scale decreased...");
    EXPECT_FLOAT_EQ(settings.scale, c.down);
  }
}

TEST(Scale, OtherScaleTakesAPercentage) {
  const struct {
    const char* text;
    float expected;
    const char* status;
  } cases[] = {{"0.5", 0.01f, "Scale set to   0.0..."},
               {"5000", 16, "Scale set to  16.0..."},
               {"250", 2.5f, "Scale set to   2.5..."},
               {"nonsense", 0.01f, "Scale set to   0.0..."}};
  for (const auto& c : cases) {
    Settings settings;
    EXPECT_EQ(setScalePercent(settings, c.text), c.status);
    EXPECT_FLOAT_EQ(settings.scale, c.expected);
  }
  Settings settings;
  EXPECT_EQ(setScalePercent(settings, ""), std::nullopt);
  EXPECT_EQ(scalePercentText(settings), "100.0");
}

TEST(Scale, TextIsAReciprocalOrAPercentage) {
  const struct {
    double scale;
    const char* text;
  } cases[] = {{1.0 / 64, "1/64"}, {0.125, "1/8"},   {0.25, " 25.0%"}, {1, "100.0%"},
               {0.3f, " 30.0%"},   {0.01f, "1/100"}, {0.15f, " 15.0%"}};
  for (const auto& c : cases) EXPECT_EQ(formatScale(c.scale), c.text);
}

TEST(Grid, StepsStayBetweenOneAnd256) {
  Settings settings;
  settings.gridsize = 128;
  EXPECT_EQ(gridUp(settings), "Grid increased...");
  EXPECT_EQ(settings.gridsize, 256);
  EXPECT_EQ(gridUp(settings), "Grid increased...");
  EXPECT_EQ(settings.gridsize, 256);
  EXPECT_EQ(setGridPreset(settings, 1), "Grid set to 2");
  EXPECT_EQ(gridDown(settings), "Grid decreased...");
  EXPECT_EQ(gridDown(settings), "Grid decreased...");
  EXPECT_EQ(settings.gridsize, 1);
}

std::vector<std::string> labels(const std::vector<ViewMenuItem>& items) {
  std::vector<std::string> result;
  for (const ViewMenuItem& item : items) {
    result.push_back(item.separator ? "-" : (item.checked ? "*" : "") + item.label);
  }
  return result;
}

TEST_F(PlanFixture, StripFieldsOpenTheirMenus) {
  using Labels = std::vector<std::string>;
  m.currentCamera = 1;
  settings.scale = 0.5f;
  const auto menu = [&](StripField field) { return *stripMenu(field, settings, &m); };
  EXPECT_EQ(labels(menu(StripField::Grid).items),
            (Labels{"1", "2", "4", "*8", "16", "32", "64", "128", "256", "-", "Use Grid Dots..."}));
  EXPECT_EQ(labels(menu(StripField::Scale).items),
            (Labels{"1/64", "1/32", "1/16", "1/8", "25%", "*50%", "100%", "200%", "400%", "800%", "1600%",
                    "-", "Other Scale..."}));
  EXPECT_EQ(labels(menu(StripField::Camera).items),
            (Labels{"Camera 1", "*Camera 2", "Camera 3", "Camera 4", "Camera 5", "-", "Show Cameras...", "-",
                    "Unlock Cameras..."}));
  EXPECT_EQ(menu(StripField::Scale).at, (Pixel{30, 13}));
  EXPECT_EQ(menu(StripField::Camera).at, (Pixel{110, 13}));
  EXPECT_EQ(menu(StripField::Scale).items[10].command, "590");
  EXPECT_FALSE(stripMenu(StripField::Direction, settings, &m));
  toggleGridStyle(settings);
  EXPECT_EQ(menu(StripField::Grid).items.back().label, "Use Grid Lines...");
}

TEST(HeaderStrip, FieldsNeverOverlapAndLeaveWhole) {
  size_t shown = 0;
  for (int width = 0; width < 1000; ++width) {
    const std::vector<StripSlot> slots = layoutStrip(width);
    EXPECT_GE(slots.size(), shown);
    shown = slots.size();
    for (size_t i = 0; i < slots.size(); ++i) {
      const PixelRect& rect = slots[i].rect;
      EXPECT_LE(rect.left + rect.width, width);
      const PixelRect before = i > 0 ? slots[i - 1].rect : PixelRect{};
      EXPECT_GE(rect.left, before.left + before.width);
    }
  }
  EXPECT_EQ(shown, 8u);
  EXPECT_EQ(stripFieldAt(320, {25, 5}), StripField::Grid);
  EXPECT_EQ(stripFieldAt(320, {26, 5}), StripField::Scale);
  EXPECT_EQ(stripFieldAt(320, {110, 5}), StripField::Camera);
  EXPECT_EQ(stripFieldAt(320, {30, kStripHeight}), std::nullopt);
  EXPECT_EQ(stripFieldAt(100, {110, 5}), std::nullopt);
}

}  // namespace
}  // namespace velk
