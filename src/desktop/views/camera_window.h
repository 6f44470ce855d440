#pragma once

#include <map>
#include <utility>

#include "desktop/views/view_window.h"

namespace velk {

// The camera view in the frame: shows the editor's picture of the current map and passes its mouse events
// in.
class TCameraWindow : public ViewWindow {
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
  QImage drawPicture() override;
  void drawOnTop(QPainter& painter) override;

 private:
  std::map<std::pair<int, int>, std::string> progress_;  // lines by place: top, left
};

// The picture of the camera view at the size it has in the editor, with what stands over it.
QImage PictureOfCamera(Editor& editor, double devicePixelRatio);

}  // namespace velk
