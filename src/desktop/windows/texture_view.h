#pragma once

#include <QAbstractScrollArea>

#include "app/editor.h"

namespace velk {

// The rows and the grid of the texture browser. The panel's header is a widget of its own, above: positions
// in the panel are those of the viewport moved down by its height.
class TextureView : public QAbstractScrollArea {
  Q_OBJECT
 public:
  // The editor must outlive the view.
  explicit TextureView(Editor& editor, QWidget* parent = nullptr);

  // Takes over sizes, textures and the choice as they are now.
  void refresh();

 Q_SIGNALS:
  // The label or the magnified texture is another.
  void pointed();

 protected:
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void scrollContentsBy(int dx, int dy) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void wheelEvent(QWheelEvent* event) override;
  void contextMenuEvent(QContextMenuEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  bool viewportEvent(QEvent* event) override;

 private:
  TexturePanel& panel() const { return editor_.panels().textures; }
  Pixel inPanel(const QPointF& at) const;
  void showDrag(const QPoint& at);
  void endDrag();
  void bounds();

  Editor& editor_;
  QPoint from_;
  bool dragShown_ = false;
  bool bounding_ = false;
};

// The browser's contents at the size they have in the editor; `header` draws label and numbers above.
QImage PictureOfTextures(Editor& editor, double devicePixelRatio, bool header);
// The magnified texture, in the area that it takes.
QImage PictureOfMagnified(Editor& editor, double devicePixelRatio);

}  // namespace velk
