#include "desktop/frame/child_windows.h"

#include <QLabel>

#include <gtest/gtest.h>

#include "application.h"

namespace velk {
namespace {

TEST(ChildWindows, PlacementHasTheLastNormalPlaceOfIconsAndMaximisedWindows) {
  test::Application();
  QMdiArea area;
  area.resize(800, 600);
  ChildWindows windows(area);
  for (int i = 0; i < kToolWindows; ++i) windows.add(static_cast<ToolWindow>(i), new QLabel);
  area.show();
  windows.layOut();
  QMdiSubWindow& textures = *area.subWindowList()[static_cast<int>(ToolWindow::Textures)];
  textures.setGeometry(10, 20, 300, 200);  // as the user drags it
  const std::array<std::int32_t, 4> dragged{10, 20, 310, 220};

  textures.showMaximized();
  EXPECT_EQ(windows.placement(ToolWindow::Textures).state, ShowState::Maximised);
  EXPECT_EQ(windows.placement(ToolWindow::Textures).normal, dragged);

  windows.bringToFront(ToolWindow::Camera);
  EXPECT_EQ(windows.placement(ToolWindow::Camera).state, ShowState::Normal);

  textures.showMinimized();
  EXPECT_EQ(windows.placement(ToolWindow::Textures).state, ShowState::Minimised);
  EXPECT_EQ(windows.placement(ToolWindow::Textures).normal, dragged);
}

}  // namespace
}  // namespace velk
