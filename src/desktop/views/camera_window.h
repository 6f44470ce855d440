#pragma once

#include <QImage>
#include <QWidget>

#include "app/editor.h"
#include "desktop/views/pointer_events.h"

namespace velk {

// The camera view in the frame: shows the editor's picture of the current map and passes its mouse events
// in.
class TCameraWindow : public QWidget {
  Q_OBJECT
 public:
  // The editor must outlive the window.
  explicit TCameraWindow(Editor& editor, QWidget* parent = nullptr);

  // The next repaint draws a new picture.
  void markStale();
  // Takes the current map's name into the caption.
  void showTitle();

 protected:
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void wheelEvent(QWheelEvent* event) override;

 private:
  Editor& editor_;
  QImage picture_;
  bool stale_ = true;
  WheelNotches wheel_;
};

// The picture of the camera view at the size it has in the editor.
QImage PictureOfCamera(Editor& editor, double devicePixelRatio);

}  // namespace velk
