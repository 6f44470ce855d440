#include "desktop/main_window.h"

#include <QAbstractSpinBox>
#include <QApplication>
#include <QCloseEvent>
#include <QComboBox>
#include <QLineEdit>
#include <QMdiSubWindow>
#include <QStatusBar>
#include <QTextEdit>

#include "desktop/keys.h"
#include "desktop/menus.h"

namespace velk {
namespace {

constexpr QSize kFirstSize{1280, 800};

QString shown(const std::string& text) { return QString::fromLocal8Bit(text.c_str()); }

// Child windows live as long as the frame: they can be shrunk to icons, but not closed.
class ChildWindow : public QMdiSubWindow {
 public:
  explicit ChildWindow(QWidget* content) {
    setWidget(content);
    setWindowFlags(Qt::SubWindow | Qt::CustomizeWindowHint | Qt::WindowTitleHint |
                   Qt::WindowMinMaxButtonsHint);
    setWindowIcon(QIcon());
  }

 protected:
  void closeEvent(QCloseEvent* event) override {
    event->ignore();
    showMinimized();
  }
};

// Quarters of the area, from the top left to the bottom right.
QRect quarter(const QSize& area, int index) {
  const int width = area.width() / 2;
  const int height = area.height() / 2;
  return {index % 2 * width, index / 2 * height, width, height};
}

}  // namespace

TVelkWindow::TVelkWindow(EditorPlace place, Prompts& prompts)
    : editor_(std::move(place), prompts, *this), area_(new QMdiArea(this)), message_(new QLabel(this)) {
  setCentralWidget(area_);
  area_->setHorizontalScrollBarPolicy(Qt::ScrollBarAsNeeded);
  area_->setVerticalScrollBarPolicy(Qt::ScrollBarAsNeeded);
  message_->setTextFormat(Qt::PlainText);
  statusBar()->addWidget(message_, 1);
  resize(kFirstSize);
}

TVelkWindow::~TVelkWindow() { qApp->removeEventFilter(this); }

void TVelkWindow::start() {
  editor_.start();
  BuildMenus(*menuBar(), editor_);
  buildViews();
  setWindowTitle(shown(editor_.title()));
  qApp->installEventFilter(this);
}

void TVelkWindow::openFiles(const std::vector<std::string>& files) {
  for (const std::string& file : files) editor_.openFile(file);
}

void TVelkWindow::buildViews() {
  for (int view = 0; view < kPlanViews; ++view) {
    auto* window = new TXYViewWindow(editor_, view);
    planViews_[static_cast<size_t>(view)] = window;
    children_.push_back(area_->addSubWindow(new ChildWindow(window)));
  }
  camera_ = new TCameraWindow(editor_);
  children_.insert(children_.begin() + 1, area_->addSubWindow(new ChildWindow(camera_)));
  for (QMdiSubWindow* child : children_) child->show();
}

// The first layout waits for the frame to have its size.
void TVelkWindow::showEvent(QShowEvent* event) {
  QMainWindow::showEvent(event);
  if (arranged_) return;
  arranged_ = true;
  for (int i = 0; i < static_cast<int>(children_.size()); ++i) {
    children_[static_cast<size_t>(i)]->setGeometry(quarter(area_->viewport()->size(), i));
  }
  area_->setActiveSubWindow(children_.front());
}

bool TVelkWindow::savePicture(const QString& file) {
  QApplication::processEvents();
  return grab().save(file);
}

void TVelkWindow::closeEvent(QCloseEvent* event) {
  if (!leaving_) editor_.run(*FindCommand("CM_FILEEXIT"));
  event->setAccepted(leaving_);
}

// Keys go to the key table unless a dialog or a menu is open or a text is being typed.
bool TVelkWindow::takesKeys() const {
  if (QApplication::activeModalWidget() || QApplication::activePopupWidget()) return false;
  const QWidget* focus = QApplication::focusWidget();
  if (focus && focus->window() != this) return false;
  return !qobject_cast<const QLineEdit*>(focus) && !qobject_cast<const QTextEdit*>(focus) &&
         !qobject_cast<const QComboBox*>(focus) && !qobject_cast<const QAbstractSpinBox*>(focus);
}

bool TVelkWindow::eventFilter(QObject* watched, QEvent* event) {
  const bool override = event->type() == QEvent::ShortcutOverride;
  if (!override && event->type() != QEvent::KeyPress) return false;
  if (!watched->isWidgetType() || !takesKeys()) return false;
  const Command* command = CommandForKey(*static_cast<QKeyEvent*>(event));
  if (!command) return false;
  event->accept();
  if (!override) editor_.run(*command);
  return true;
}

void TVelkWindow::statusChanged(const std::string& text) { message_->setText(shown(text)); }

void TVelkWindow::redrawPlanViews() {
  for (TXYViewWindow* view : planViews_) {
    if (view) view->markStale();
  }
}

void TVelkWindow::redrawCamera() {
  if (camera_) camera_->markStale();
}

void TVelkWindow::mapsChanged() {
  setWindowTitle(shown(editor_.title()));
  if (camera_) camera_->showTitle();
}

void TVelkWindow::exitRequested() {
  leaving_ = true;
  close();
}

}  // namespace velk
