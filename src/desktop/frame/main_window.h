#pragma once

#include <QMainWindow>
#include <QMdiArea>
#include <QProgressBar>
#include <QTimer>
#include <array>
#include <memory>

#include "app/editor.h"
#include "desktop/frame/bars.h"
#include "desktop/frame/child_windows.h"
#include "desktop/frame/map_tabs.h"
#include "desktop/frame/status_bar.h"
#include "desktop/system/escape_watch.h"
#include "desktop/system/file_watch.h"
#include "desktop/system/qt_programs.h"
#include "desktop/views/camera_window.h"
#include "desktop/views/input_clock.h"
#include "desktop/views/plan_view_window.h"
#include "desktop/windows/brush_window.h"
#include "desktop/windows/build_window.h"
#include "desktop/windows/entity_window.h"
#include "desktop/windows/group_window.h"
#include "desktop/windows/help_window.h"
#include "desktop/windows/texture_window.h"

namespace velk {

// The frame: menu bar, status line and the child windows in which the editor shows the current map.
class TVelkWindow : public QMainWindow, private Observer {
  Q_OBJECT
 public:
  TVelkWindow(EditorPlace place, Prompts& prompts);
  ~TVelkWindow() override;

  // Starts the editor and builds what shows it.
  void start();
  void openFiles(const std::vector<std::string>& files);
  // For a window with a user: the frame has the size, place and bars of the last run and remembers them for
  // the next, maps are listed as recent, and changes of their files are noticed.
  void keepState();
  // Writes a picture of the whole frame as PNG; false when it cannot be written.
  bool savePicture(const std::string& file);

  Editor& editor() { return editor_; }

 protected:
  void closeEvent(QCloseEvent* event) override;
  void showEvent(QShowEvent* event) override;
  void changeEvent(QEvent* event) override;
  void dragEnterEvent(QDragEnterEvent* event) override;
  void dropEvent(QDropEvent* event) override;
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void statusChanged(const std::string& text) override;
  void changed(const Changes& what) override;
  void loadProgress(const std::string& text, int done, int total) override;
  bool progress(const std::string& text, int left, int top) override;
  void helpRequested() override;
  void buildRequested() override;
  void exitRequested() override;

  void mapsChanged();
  void toolWindowsChanged(const Changes& what);
  void placeWindows();
  void buildCentre();
  void buildWindows();
  void rememberState() const;
  bool viewsTake(const QKeyEvent& key, bool pressed);
  bool takesKeys(const QKeyEvent& key) const;
  bool leftToMenus(const QKeyEvent& key, const Command& command) const;

  Editor editor_;
  QMdiArea* area_;
  TVelkStatusBar* status_;
  HelpWindow* help_ = nullptr;              // made when first asked for
  TBuildWindow* build_ = nullptr;           // the same
  FileWatch* watch_ = nullptr;              // none without a user
  MapTabs* tabs_ = nullptr;                 // none when tabs are switched off
  std::unique_ptr<QProgressBar> progress_;  // while start-up loads
  TSelectedBrushWindow* brush_ = nullptr;
  EntityView* entities_ = nullptr;
  TGroupWindow* groups_ = nullptr;
  TCameraWindow* camera_ = nullptr;
  TTextureWindow* textures_ = nullptr;
  std::array<TXYViewWindow*, kPlanViews> planViews_{};
  InputClock* clock_ = nullptr;
  ChildWindows* children_ = nullptr;
  std::vector<TVelkControlBar*> bars_;
  QtPrograms programs_;
  QTimer ticks_;
  EscapeWatch escape_;
  bool arranged_ = false;
  bool keepsState_ = false;
  bool leaving_ = false;
};

}  // namespace velk
