// The one application that widgets need.
#pragma once

#include <QApplication>

namespace velk::test {

inline QApplication& Application() {
  static int count = 1;
  static char name[] = "desktop_tests";
  static char* arguments[] = {name, nullptr};
  // Never ended: what Qt holds in statics of its own would go first.
  static auto* app = new QApplication(count, arguments);
  return *app;
}

}  // namespace velk::test
