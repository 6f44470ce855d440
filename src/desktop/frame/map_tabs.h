#pragma once

#include <QTabBar>

#include "app/editor.h"

namespace velk {

// One tab for each open map. Choosing one makes its map the current one.
class MapTabs : public QTabBar {
  Q_OBJECT
 public:
  // The editor must outlive the tabs.
  explicit MapTabs(Editor& editor, QWidget* parent = nullptr);

  // Takes over the list of maps and the current one.
  void refresh();

 private:
  Editor& editor_;
  bool refreshing_ = false;
};

}  // namespace velk
