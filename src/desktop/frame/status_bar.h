#pragma once

#include <QLabel>
#include <QStatusBar>

namespace velk {

// The frame's status line: the editor's last message, and over it, for as long as the pointer stays there,
// the hint of a menu item or button.
class TVelkStatusBar : public QStatusBar {
  Q_OBJECT
 public:
  explicit TVelkStatusBar(QWidget* parent = nullptr);
  // Shows at once, also over a hint.
  void post(const QString& message);

 private:
  QLabel* message_;
};

}  // namespace velk
