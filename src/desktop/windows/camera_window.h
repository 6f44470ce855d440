#pragma once

#include <QImage>
#include <QWidget>
#include <map>
#include <utility>

#include "app/editor.h"

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
  // A line over the picture from the next repaint on; the next picture is without it.
  void keepProgress(const std::string& text, int left, int top);
  // Lines are shown.
  bool showsProgress() const { return !progress_.empty(); }
  // Takes the current map's name into the caption.
  void showTitle();

 protected:
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;

 private:
  QImage pictureInProgress() const;

  Editor& editor_;
  QImage picture_;
  bool stale_ = true;
  std::map<std::pair<int, int>, std::string> progress_;  // lines by place: top, left
};

// The picture of the camera view at the size it has in the editor.
QImage PictureOfCamera(Editor& editor, double devicePixelRatio);

}  // namespace velk
