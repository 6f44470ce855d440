#pragma once

#include <QLabel>
#include <QTreeWidget>

#include "app/editor.h"
#include "panels/brush/brush_panel.h"

namespace velk {

// The selected-brush window: what is selected, and the faces of the current brush. Choosing a face makes it
// current.
class TSelectedBrushWindow : public QWidget {
  Q_OBJECT
 public:
  // The editor must outlive the window.
  explicit TSelectedBrushWindow(Editor& editor, QWidget* parent = nullptr);

  // Takes over the selection as it is now.
  void refresh();

 private:
  void listFaces(const FaceLines& shown);
  void choose(int index);
  void useColours();

  Editor& editor_;
  QLabel* readout_;
  QTreeWidget* faces_;
  bool refreshing_ = false;
};

}  // namespace velk
