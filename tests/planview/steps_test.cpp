#include <gtest/gtest.h>

#include "planview/header_strip.h"
#include "planview/view_steps.h"
#include "support/plan_fixture.h"

namespace velk {
namespace {

using test::PlanFixture;

TEST(Scale, StepsStopAtTheLimits) {
  const float cases[][3] = {
      {16, 16, 8}, {12, 16, 6}, {0.02f, 0.04f, 1 / 64.0f}, {1 / 64.0f, 1 / 32.0f, 1 / 64.0f}};
  for (const auto& [from, up, down] : cases) {
    Settings settings;
    settings.scale = from;
    EXPECT_EQ(ScaleUp(settings), "Scale increased...");
    EXPECT_FLOAT_EQ(settings.scale, up);
    settings.scale = from;
    EXPECT_EQ(ScaleDown(settings), "Scale decreased...");
    EXPECT_FLOAT_EQ(settings.scale, down);
  }
}

TEST(Scale, TextIsAReciprocalOrAPercentage) {
  const std::pair<double, const char*> cases[] = {{1.0 / 64, "1/64"}, {0.125, "1/8"},   {0.25, " 25.0%"},
                                                  {1, "100.0%"},      {0.01f, "1/100"}, {0.15f, " 15.0%"}};
  for (const auto& [scale, text] : cases) EXPECT_EQ(formatScale(scale), text);
}

// The labels, a star before those that are checked and a bar for a separator.
std::string Labels(const std::vector<ViewMenuItem>& menu) {
  std::string result;
  for (const ViewMenuItem& item : menu) {
    result += item.separator ? "| " : (item.checked ? "*" : "") + item.label + ' ';
  }
  return result;
}

TEST_F(PlanFixture, StripFieldsOpenTheirMenus) {
  m.currentCamera = 1;
  settings.scale = 0.5f;
  EXPECT_EQ(Labels(GridMenu(settings)), "1 2 4 *8 16 32 64 128 256 | Use Grid Dots... ");
  EXPECT_EQ(Labels(ScaleMenu(settings)),
            "1/64 1/32 1/16 1/8 25% *50% 100% 200% 400% 800% 1600% | Other Scale... ");
  EXPECT_EQ(Labels(CameraMenu(settings, &m)),
            "Camera 1 *Camera 2 Camera 3 Camera 4 Camera 5 | Show Cameras... | Unlock Cameras... ");
  EXPECT_EQ(ScaleMenu(settings)[10].command, "590");
  ToggleGridStyle(settings);
  EXPECT_EQ(GridMenu(settings).back().label, "Use Grid Lines...");
}

TEST(HeaderStrip, FieldsNeverOverlapAndLeaveWhole) {
  size_t shown = 0;
  for (int width = 0; width < 1000; ++width) {
    const std::vector<StripSlot> slots = LayoutStrip(width);
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
  EXPECT_EQ(StripFieldAt(320, {25, 5}), StripField::Grid);
  EXPECT_EQ(StripFieldAt(320, {26, 5}), StripField::Scale);
  EXPECT_EQ(StripFieldAt(320, {110, 5}), StripField::Camera);
  EXPECT_EQ(StripFieldAt(320, {30, kStripHeight}), std::nullopt);
  EXPECT_EQ(StripFieldAt(100, {110, 5}), std::nullopt);
}

}  // namespace
}  // namespace velk
