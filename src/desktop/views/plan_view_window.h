#pragma once

#include <QImage>
#include <QWidget>

#include "app/editor.h"
#include "desktop/views/pointer_events.h"

namespace velk {

// One plan view in the frame: shows the editor's picture of the view and passes its mouse events in.
class TXYViewWindow : public QWidget {
  Q_OBJECT
 public:
  // view: 0..2. The editor must outlive the window.
  TXYViewWindow(Editor& editor, int view, QWidget* parent = nullptr);

  // The next repaint draws a new picture.
  void markStale();
  // Only its header strip is out of date.
  void markStripStale();

 protected:
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void wheelEvent(QWheelEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;
  void changeEvent(QEvent* event) override;

 private:
  void openMenu(const std::string& name, StripField field);
  void drawPicture();

  Editor& editor_;
  int view_;
  QImage picture_;
  QImage strip_;
  bool stale_ = true;
  bool stripStale_ = true;
  WheelNotches wheel_;
};

// The picture of a plan view at the size it has in the editor.
QImage PictureOfPlanView(Editor& editor, int view, double devicePixelRatio, const QPalette& palette);

}  // namespace velk
