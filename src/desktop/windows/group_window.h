#pragma once

#include <QToolButton>

#include "app/editor.h"
#include "desktop/windows/group_list.h"
#include "desktop/windows/selection_handle.h"

class QBoxLayout;

namespace velk {

// The group window: the list of groups, the colour of the current one, and what is often done with them.
class TGroupWindow : public QWidget {
  Q_OBJECT
 public:
  // The editor must outlive the window.
  explicit TGroupWindow(Editor& editor, QWidget* parent = nullptr);

  // Shows the groups of the current map as they are now.
  void refresh();
  // Only how much is selected.
  void showSelection();

 private:
  GroupPanel& panel() { return editor_.panels().groups; }
  QBoxLayout* buttonRow();
  QToolButton* button(const QString& text, const QString& hint);

  Editor& editor_;
  TVelkGroupListBox* list_;
  QToolButton* swatch_ = nullptr;
  SelectionHandle* selection_;
};

}  // namespace velk
