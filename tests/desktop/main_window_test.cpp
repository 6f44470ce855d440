#include "desktop/frame/main_window.h"

#include <QKeyEvent>
#include <QTest>

#include <gtest/gtest.h>

#include "application.h"
#include "support/session.h"

namespace velk {
namespace {

struct MainWindow : testing::Test {
  MainWindow() {
    test::FurnishHome(home);
    home.write("velkbars.ini", "bars 0\n");
    window.start();
    window.openFiles({home.write("small.map", test::SmallMapText())});
  }

  QApplication& application = test::Application();
  test::TempFolder home;
  ScriptPrompts prompts;
  TVelkWindow window{EditorPlace{home.path(), home.path() / "drives"}, prompts};
};

TEST_F(MainWindow, TakesItsOwnKeysAndLeavesThoseOfOtherWindowsAlone) {
  QWidget other(&window, Qt::Window);
  const auto selectedBy = [this](QWidget& widget) {
    QKeyEvent press(QEvent::KeyPress, Qt::Key_QuoteLeft, Qt::NoModifier, "`");
    QApplication::sendEvent(&widget, &press);
    return window.editor().documents().currentMap()->selectedCount();
  };
  EXPECT_EQ(selectedBy(other), 0);
  EXPECT_EQ(selectedBy(window), 2);
}

TEST_F(MainWindow, AKeyThatIsHeldMovesTheCameraByTime) {
  window.editor().settings().smooth_camera = true;
  const auto place = [this] { return window.editor().documents().currentMap()->activeCamera().origin; };
  const vec3 before = place();
  QKeyEvent press(QEvent::KeyPress, Qt::Key_Up, Qt::NoModifier);
  QApplication::sendEvent(&window, &press);
  QTest::qWait(100);
  const vec3 meanwhile = place();
  EXPECT_FALSE(VecEqual(before, meanwhile));
  QTest::qWait(100);
  EXPECT_FALSE(VecEqual(meanwhile, place())) << "one press is not one step";
  QKeyEvent release(QEvent::KeyRelease, Qt::Key_Up, Qt::NoModifier);
  QApplication::sendEvent(&window, &release);
  const vec3 after = place();
  QTest::qWait(60);
  EXPECT_TRUE(VecEqual(after, place()));
}

}  // namespace
}  // namespace velk
