#include "desktop/frame/child_windows.h"

#include <QApplication>
#include <QCloseEvent>
#include <QPainter>
#include <QProxyStyle>
#include <QResizeEvent>
#include <QStyleOption>
#include <algorithm>
#include <optional>
#include <utility>

#include "app/shared_borders.h"

namespace velk {
namespace {

constexpr int kHalfLight = 128;
constexpr QColor kDarkTitle(0x96, 0x9a, 0xa2);
constexpr const char* kNormalRect = "velkNormalRect";  // where a window is while neither icon nor maximised

// Qt's own style draws the buttons of windows that are not active in black in any palette, and the windows
// do not take every change of the palette into their titles.
class TitleStyle : public QProxyStyle {
 public:
  using QProxyStyle::QProxyStyle;

  void drawComplexControl(ComplexControl control, const QStyleOptionComplex* option, QPainter* painter,
                          const QWidget* widget) const override {
    const auto* bar = qstyleoption_cast<const QStyleOptionTitleBar*>(option);
    if (control != CC_TitleBar || !bar || !widget || baseStyle()->name() != QLatin1String("fusion")) {
      QProxyStyle::drawComplexControl(control, option, painter, widget);
      return;
    }
    QStyleOptionTitleBar shown(*bar);
    shown.palette = widget->palette();
    const bool active = (bar->titleBarState & State_Active) != 0;
    if (shown.palette.color(QPalette::Window).lightness() < kHalfLight) {
      shown.palette.setColor(QPalette::Text, Qt::black);  // of an active title the shadow only
      if (!active) shown.palette.setColor(QPalette::Window, kDarkTitle);
    }
    QProxyStyle::drawComplexControl(control, &shown, painter, widget);
  }
};

class ChildWindow : public QMdiSubWindow {
 public:
  // Told what the window was before the user gave it another size by its border.
  using Resized = std::function<void(QMdiSubWindow& window, const QRect& before)>;

  ChildWindow(QWidget* content, Resized resized) : resized_(std::move(resized)) {
    setWidget(content);
    setWindowFlags(Qt::SubWindow | Qt::CustomizeWindowHint | Qt::WindowTitleHint |
                   Qt::WindowMinMaxButtonsHint);
  }

 protected:
  void closeEvent(QCloseEvent* event) override {
    event->ignore();
    showMinimized();
  }

  void moveEvent(QMoveEvent* event) override {
    QMdiSubWindow::moveEvent(event);
    noteNormalRect();
  }

  void mousePressEvent(QMouseEvent* event) override {
    held_ = geometry();
    QMdiSubWindow::mousePressEvent(event);
  }

  void mouseReleaseEvent(QMouseEvent* event) override {
    QMdiSubWindow::mouseReleaseEvent(event);
    held_.reset();
  }

  void resizeEvent(QResizeEvent* event) override {
    QMdiSubWindow::resizeEvent(event);
    noteNormalRect();
    if (!held_ || isMinimized() || isMaximized()) return;
    const QRect before = std::exchange(*held_, geometry());
    resized_(*this, before);
  }

 private:
  void noteNormalRect() {
    if (!isMinimized() && !isMaximized()) setProperty(kNormalRect, geometry());
  }

  Resized resized_;
  std::optional<QRect> held_;  // while a button is held on its frame: its place at the last size
};

BorderedWindow BorderedWindowOf(const QMdiSubWindow& window, const QRect& place) {
  const QSize least = window.minimumSizeHint().expandedTo(window.minimumSize());
  return {{place.x(), place.y(), place.x() + place.width(), place.y() + place.height()},
          {least.width(), least.height()}};
}

QRect RectOf(const WindowPlacement& placement) {
  const auto& [left, top, right, bottom] = placement.normal;
  return {QPoint(left, top), QSize(right - left, bottom - top)};
}

int Share(int position, int from, int to) { return from > 0 ? (position * to + from / 2) / from : position; }

}  // namespace

ChildWindows::ChildWindows(QMdiArea& area) : QObject(&area), area_(area), titles_(new TitleStyle) {
  titles_->setParent(this);
  // Bringing a window to the front does not change its size, whatever the one before it was.
  area_.setOption(QMdiArea::DontMaximizeSubWindowOnActivation);
  area_.viewport()->installEventFilter(this);
  connect(&area_, &QMdiArea::subWindowActivated, this, [this] { raiseIcons(); });
}

// Windows shrunk to icons are not lost behind the others.
void ChildWindows::raiseIcons() {
  for (QMdiSubWindow* window : children_) {
    if (window && window->isMinimized()) window->raise();
  }
}

void ChildWindows::add(ToolWindow window, QWidget* content) {
  QMdiSubWindow*& child = children_[static_cast<size_t>(window)];
  child = area_.addSubWindow(new ChildWindow(
      content, [this](QMdiSubWindow& resized, const QRect& before) { follow(resized, before); }));
  child->setStyle(titles_);
  child->show();
}

// The windows across the border that the user moves.
void ChildWindows::follow(QMdiSubWindow& resized, const QRect& before) {
  if (!sharesBorders_()) return;
  std::vector<QMdiSubWindow*> windows;
  std::vector<BorderedWindow> places;
  size_t self = 0;
  for (QMdiSubWindow* window : children_) {
    if (!window || window->isMinimized() || window->isMaximized()) continue;
    if (window == &resized) self = windows.size();
    windows.push_back(window);
    places.push_back(BorderedWindowOf(*window, window == &resized ? before : window->geometry()));
  }
  ResizeWithNeighbours(places, self, BorderedWindowOf(resized, resized.geometry()).edges);
  for (size_t i = 0; i < windows.size(); ++i) {
    const auto& [left, top, right, bottom] = places[i].edges;
    if (i != self) windows[i]->setGeometry(left, top, right - left, bottom - top);
  }
}

void ChildWindows::layOut() {
  const QSize size = area_.viewport()->size();
  const Arrangement layout = FirstLayout(size.width(), size.height());
  for (int i = 0; i < kToolWindows; ++i) {
    place(static_cast<ToolWindow>(i), layout[static_cast<size_t>(i)]);
  }
  bringToFront(ToolWindow::Plan1);
}

WindowPlacement ChildWindows::placement(ToolWindow window) const {
  const QMdiSubWindow& from = child(window);
  WindowPlacement placement;
  if (from.isMinimized()) placement.state = ShowState::Minimised;
  if (from.isMaximized()) placement.state = ShowState::Maximised;
  const bool normal = placement.state == ShowState::Normal;
  const QRect rect = normal ? from.geometry() : from.property(kNormalRect).toRect();
  placement.normal = {rect.left(), rect.top(), rect.left() + rect.width(), rect.top() + rect.height()};
  if (from.isMinimized()) placement.minimised = {from.x(), from.y()};
  return placement;
}

void ChildWindows::place(ToolWindow window, const WindowPlacement& placement) {
  const QRect rect = RectOf(placement);
  if (rect.width() <= 0 || rect.height() <= 0) return;
  QMdiSubWindow& target = child(window);
  target.showNormal();
  target.setGeometry(rect);
  target.setProperty(kNormalRect, rect);
  if (placement.state == ShowState::Minimised) target.showMinimized();
  if (placement.state == ShowState::Maximised) target.showMaximized();
}

bool ChildWindows::hasFocus(ToolWindow window) const { return area_.activeSubWindow() == &child(window); }

void ChildWindows::bringToFront(ToolWindow window) {
  QMdiSubWindow& target = child(window);
  if (target.isMinimized()) target.showNormal();
  target.raise();
  area_.setActiveSubWindow(&target);
  target.widget()->setFocus();
}

void ChildWindows::minimise(ToolWindow window) { child(window).showMinimized(); }

// One below the title bar of the other, the front one last; the area's own cascade goes by what the
// contents would like and makes some windows tiny.
void ChildWindows::cascade() {
  const QSize room = area_.viewport()->size() - QSize(0, iconHeight());
  const QSize size = room * 2 / 3;
  const QSize step = (room - size) / (kToolWindows - 1);
  QPoint at(0, 0);
  for (QMdiSubWindow* window : area_.subWindowList(QMdiArea::StackingOrder)) {
    if (window->isMinimized()) continue;
    window->showNormal();
    window->setGeometry(QRect(at, size));
    at += QPoint(step.width(), step.height());
  }
  arrangeIcons();
}

void ChildWindows::tile() {
  const QSize area = area_.viewport()->size();
  area_.tileSubWindows();
  keepShares(area, area - QSize(0, iconHeight()));
  arrangeIcons();
}

// Of the row of icons; 0 when there are none.
int ChildWindows::iconHeight() const {
  int height = 0;
  for (const QMdiSubWindow* window : children_) {
    if (window->isMinimized()) height = std::max(height, window->height());
  }
  return height;
}

// Icons in a row along the bottom, as many as fit, then the next row above.
void ChildWindows::arrangeIcons() {
  int left = 0;
  int bottom = area_.viewport()->height();
  for (QMdiSubWindow* icon : children_) {
    if (!icon->isMinimized()) continue;
    if (left > 0 && left + icon->width() > area_.viewport()->width()) {
      left = 0;
      bottom -= icon->height();
    }
    icon->move(left, bottom - icon->height());
    left += icon->width();
  }
}

// Also before the frame is shown.
bool ChildWindows::barVisible(int bar) const {
  return bar < barCount() && !bars_[static_cast<size_t>(bar)]->isHidden();
}

void ChildWindows::showBar(int bar, bool visible) { bars_[static_cast<size_t>(bar)]->setVisible(visible); }

bool ChildWindows::eventFilter(QObject* watched, QEvent* event) {
  // The type first: while the area is destroyed, other events come that find no viewport to ask for.
  if (event->type() == QEvent::Resize && watched == area_.viewport()) {
    const auto* resized = static_cast<QResizeEvent*>(event);
    keepShares(resized->oldSize(), resized->size());
  }
  return QObject::eventFilter(watched, event);
}

void ChildWindows::keepShares(const QSize& from, const QSize& to) {
  if (from.width() <= 0 || from.height() <= 0) return;
  for (QMdiSubWindow* window : children_) {
    if (!window || window->isMinimized() || window->isMaximized()) continue;
    const QRect old = window->geometry();
    const int left = Share(old.left(), from.width(), to.width());
    const int top = Share(old.top(), from.height(), to.height());
    const int right = Share(old.left() + old.width(), from.width(), to.width());
    const int bottom = Share(old.top() + old.height(), from.height(), to.height());
    window->setGeometry(left, top, right - left, bottom - top);
  }
}

}  // namespace velk
