// The child windows of the frame and their places.
#pragma once

#include <QMdiArea>
#include <QMdiSubWindow>
#include <array>
#include <functional>

#include "app/windows.h"
#include "desktop/frame/bars.h"

namespace velk {

// The eight windows live as long as the frame: they can be shrunk to icons, not closed. When the frame
// changes its size they keep their share of it.
class ChildWindows : public QObject, public WindowHost {
  Q_OBJECT
 public:
  explicit ChildWindows(QMdiArea& area);

  // Gives a window its contents, which it owns.
  void add(ToolWindow window, QWidget* content);
  // The bars that commands show and hide; owned by the frame.
  void setBars(std::vector<TVelkControlBar*> bars) { bars_ = std::move(bars); }

  // Whether windows across a border follow when the user moves it.
  void setSharedBorders(std::function<bool()> shares) { sharesBorders_ = std::move(shares); }

  WindowPlacement placement(ToolWindow window) const override;
  void place(ToolWindow window, const WindowPlacement& placement) override;
  bool hasFocus(ToolWindow window) const override;
  void bringToFront(ToolWindow window) override;
  void minimise(ToolWindow window) override;
  void cascade() override;
  void tile() override;
  void arrangeIcons() override;
  void layOut() override;
  int barCount() const override { return static_cast<int>(bars_.size()); }
  bool barVisible(int bar) const override;
  void showBar(int bar, bool visible) override;

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  QMdiSubWindow& child(ToolWindow window) const { return *children_[static_cast<size_t>(window)]; }
  void raiseIcons();
  void follow(QMdiSubWindow& resized, const QRect& before);
  int iconHeight() const;
  void keepShares(const QSize& from, const QSize& to);

  QMdiArea& area_;
  QStyle* titles_;
  std::array<QMdiSubWindow*, kToolWindows> children_{};
  std::vector<TVelkControlBar*> bars_;
  std::function<bool()> sharesBorders_ = [] { return false; };
};

}  // namespace velk
