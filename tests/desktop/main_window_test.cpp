#include "desktop/frame/main_window.h"

#include <QKeyEvent>

#include <gtest/gtest.h>

#include "application.h"
#include "support/session.h"

namespace velk {
namespace {

TEST(MainWindow, TakesItsOwnKeysAndLeavesThoseOfOtherWindowsAlone) {
  test::Application();
  test::TempFolder home;
  test::FurnishHome(home);
  home.write("velkbars.ini", "bars 0\n");
  ScriptPrompts prompts;
  TVelkWindow window(EditorPlace{home.path(), home.path() / "drives"}, prompts);
  window.start();
  window.openFiles({home.write("small.map", test::SmallMapText())});
  QWidget other(&window, Qt::Window);
  const auto selectedBy = [&window](QWidget& widget) {
    QKeyEvent press(QEvent::KeyPress, Qt::Key_QuoteLeft, Qt::NoModifier, "`");
    QApplication::sendEvent(&widget, &press);
    return window.editor().documents().currentMap()->selectedCount();
  };
  EXPECT_EQ(selectedBy(other), 0);
  EXPECT_EQ(selectedBy(window), 2);
}

}  // namespace
}  // namespace velk
