#include "desktop/system/escape_watch.h"

#include <QKeyEvent>
#include <QLineEdit>
#include <QThread>

#include <gtest/gtest.h>

#include "application.h"

namespace velk {
namespace {

TEST(EscapeWatch, SeesEscInLongWorkAndThrowsOtherKeysAway) {
  test::Application();
  QLineEdit line;
  EscapeWatch watch;
  const auto press = [&line](int key, const char* text) {
    QCoreApplication::postEvent(&line, new QKeyEvent(QEvent::KeyPress, key, {}, text));
  };
  watch.begin();
  press(Qt::Key_Escape, "");
  EXPECT_FALSE(watch.pressed()) << "too early to look";
  QThread::msleep(210);
  EXPECT_TRUE(watch.pressed());
  watch.begin();
  press(Qt::Key_A, "a");
  QThread::msleep(210);
  EXPECT_FALSE(watch.pressed());
  EXPECT_EQ(line.text(), "");
  press(Qt::Key_B, "b");
  QCoreApplication::processEvents();
  EXPECT_EQ(line.text(), "b");
}

}  // namespace
}  // namespace velk
