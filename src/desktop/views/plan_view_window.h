#pragma once

#include "desktop/views/view_window.h"

namespace velk {

// One plan view in the frame: shows the editor's picture of the view and passes its mouse events in.
class TXYViewWindow : public ViewWindow {
  Q_OBJECT
 public:
  // view: 0..2. The editor must outlive the window.
  TXYViewWindow(Editor& editor, int view, QWidget* parent = nullptr);

  // Only its header strip is out of date.
  void markStripStale();

 protected:
  QImage drawPicture() override;
  void drawOnTop(QPainter& painter) override;
  void mousePressEvent(QMouseEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;
  void changeEvent(QEvent* event) override;

 private:
  void openMenu(const std::string& name, StripField field);

  QImage strip_;
  bool stripStale_ = true;
};

// The picture of a plan view at the size it has in the editor, with what stands over it.
QImage PictureOfPlanView(Editor& editor, int view, double devicePixelRatio, const QPalette& palette);

}  // namespace velk
