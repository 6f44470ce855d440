#pragma once

#include <QTreeWidget>

#include "app/editor.h"
#include "desktop/windows/brush_preview_view.h"
#include "desktop/windows/face_fields.h"
#include "desktop/windows/selection_handle.h"
#include "panels/brush/brush_panel.h"

namespace velk {

// The selected-brush window: what is selected, a picture of the current brush, and its faces. Choosing a face
// makes it current.
class TSelectedBrushWindow : public QWidget {
  Q_OBJECT
 public:
  // The editor must outlive the window.
  explicit TSelectedBrushWindow(Editor& editor, QWidget* parent = nullptr);

  // Takes over the selection as it is now.
  void refresh();

 private:
  void buildFaces();
  void listFaces(const FaceLines& shown);
  void markCurrent(int current);
  void choose(int index);
  void useColours();

  Editor& editor_;
  SelectionHandle* readout_;
  QLabel* details_;
  BrushPreviewView* preview_;
  FaceFields* fields_;
  QTreeWidget* faces_;
  FaceLines listed_;
  bool refreshing_ = false;
};

}  // namespace velk
