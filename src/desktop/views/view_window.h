// What the windows of the views share: a picture that is drawn when it is out of date, what stands over it
// for a moment, and the mouse.
#pragma once

#include <QImage>
#include <QWidget>
#include <utility>

#include "app/editor.h"
#include "desktop/views/pointer_events.h"
#include "desktop/views/qt_canvas.h"

namespace velk {

class ViewWindow : public QWidget {
  Q_OBJECT
 public:
  // view: 0..2, kCameraView. The editor must outlive the window.
  ViewWindow(Editor& editor, int view, QWidget* parent);

  // The next repaint draws a new picture.
  void markStale();

 protected:
  virtual QImage drawPicture() = 0;
  // Draws over picture and overlay.
  virtual void drawOnTop(QPainter& /*painter*/) {}

  Editor& editor() const { return editor_; }
  int view() const { return view_; }

  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void leaveEvent(QEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void keyReleaseEvent(QKeyEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void wheelEvent(QWheelEvent* event) override;

 private:
  void showCursor();
  void takeModifiers(const QKeyEvent& event);

  Editor& editor_;
  int view_;
  QImage picture_;
  bool stale_ = true;
  WheelNotches wheel_;
  std::pair<const void*, int> hovered_{};  // brush and face of the last overlay, to tell when another is due
  CursorShape cursor_ = CursorShape::Idle;
};

}  // namespace velk
