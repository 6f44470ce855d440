#pragma once

#include <QWidget>

#include "app/editor.h"

namespace velk {

// The picture of the current brush alone: a drag turns it, the wheel zooms, a click makes a face current.
class BrushPreviewView : public QWidget {
  Q_OBJECT
 public:
  // The editor must outlive the widget.
  explicit BrushPreviewView(Editor& editor, QWidget* parent = nullptr);

  // Takes over the current brush as it is now.
  void refresh();
  QSize sizeHint() const override;

 protected:
  void paintEvent(QPaintEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void wheelEvent(QWheelEvent* event) override;

 private:
  BrushPreview& preview() { return editor_.panels().brush.preview(); }
  RenderSize pictureSize() const;
  void drawEdges(QPainter& painter);
  void drawTexts(QPainter& painter);

  Editor& editor_;
  QPoint pressed_;
  QPoint turned_;  // steps since the press
  bool dragged_ = false;
  int wheelRest_ = 0;
};

}  // namespace velk
