// The one application that widgets need.
#pragma once

#include <QApplication>

namespace velk::test {

inline QApplication& application() {
  static int count = 1;
  static char name[] = "desktop_tests";
  static char* arguments[] = {name, nullptr};
  static QApplication app(count, arguments);
  return app;
}

}  // namespace velk::test
