#pragma once

#include <QComboBox>
#include <QDockWidget>
#include <QLabel>
#include <QListView>
#include <QPushButton>
#include <QTabBar>
#include <QTimer>

#include "app/editor.h"
#include "desktop/windows/build_lines.h"

namespace velk {

// The build window: the profile and the buttons, what the compiler writes and what the check found. A dock of
// the frame, made when it is first asked for. A click on an underlined line goes to what it names.
class TBuildWindow : public QDockWidget {
  Q_OBJECT
 public:
  // The editor must outlive the window.
  TBuildWindow(Editor& editor, QWidget* parent);

  // Shows everything as it is now.
  void refresh();
  // Follows a build that starts.
  void follow();

 private:
  QWidget* buildContents();
  QWidget* buildButtons();
  void connectContents();
  QPushButton* addButton(QWidget* row, const QString& label, const char* command);
  void showMenu(const QPoint& at);
  void fillProfiles();
  void tick();

  Editor& editor_;
  BuildLines* lines_;
  QListView* list_ = nullptr;
  QTabBar* pages_ = nullptr;
  QComboBox* profiles_ = nullptr;
  QLabel* headline_ = nullptr;
  QPushButton* start_ = nullptr;
  QPushButton* stop_ = nullptr;
  QPushButton* play_ = nullptr;
  QPushButton* mend_ = nullptr;
  QTimer delay_;    // between two refreshes, since output comes in a flood
  QTimer seconds_;  // while a build runs
  bool filling_ = false;
};

}  // namespace velk
