#pragma once

#include <QLabel>

namespace velk {

// Names what a drag of the selection carries.
inline constexpr char kSelectionMime[] = "application/x-velk-selection";

// A line of text from which the selection can be dragged onto a group.
class SelectionHandle : public QLabel {
  Q_OBJECT
 public:
  explicit SelectionHandle(QWidget* parent = nullptr);

  // Whether there is something to drag.
  void setLoaded(bool loaded);

 protected:
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;

 private:
  QPoint pressed_;
  bool loaded_ = false;
};

}  // namespace velk
