#pragma once

#include <QWidget>
#include <memory>

#include "base/form_picture.h"

namespace velk {

// A form's picture: turned by dragging, zoomed by the wheel.
class PictureView : public QWidget {
  Q_OBJECT
 public:
  explicit PictureView(std::shared_ptr<FormPicture> picture);

 protected:
  void paintEvent(QPaintEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void wheelEvent(QWheelEvent* event) override;

 private:
  std::shared_ptr<FormPicture> picture_;
  QPoint last_;     // where the mouse was during a drag
  int turned_ = 0;  // by the wheel, less than a notch
};

// The picture with its buttons and its hint below.
class PicturePanel : public QWidget {
  Q_OBJECT
 public:
  explicit PicturePanel(const std::shared_ptr<FormPicture>& picture);
};

}  // namespace velk
