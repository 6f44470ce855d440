#pragma once

#include "desktop/views/view_window.h"

namespace velk {

// The camera view in the frame: shows the editor's picture of the current map and passes its mouse events
// in.
class TCameraWindow : public ViewWindow {
  Q_OBJECT
 public:
  // The editor must outlive the window.
  explicit TCameraWindow(Editor& editor, QWidget* parent = nullptr);

  // Takes the current map's name into the caption.
  void showTitle();

 protected:
  QImage drawPicture() override;
  void drawOverlay(QtCanvas& canvas) override;
};

// The picture of the camera view at the size it has in the editor, with what stands over it.
QImage PictureOfCamera(Editor& editor, double devicePixelRatio);

}  // namespace velk
