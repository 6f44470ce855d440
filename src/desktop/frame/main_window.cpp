#include "desktop/frame/main_window.h"

#include <QAbstractItemView>
#include <QAbstractSpinBox>
#include <QApplication>
#include <QCloseEvent>
#include <QComboBox>
#include <QDragEnterEvent>
#include <QLineEdit>
#include <QMimeData>
#include <QScreen>
#include <QStatusBar>
#include <QTextEdit>
#include <QUrl>
#include <QVBoxLayout>
#include <algorithm>
#include <chrono>

#include "commands/dispatch.h"
#include "commands/files/named_files.h"
#include "commands/views/view_keys.h"
#include "desktop/dialogs/shown_text.h"
#include "desktop/frame/frame_state.h"
#include "desktop/frame/keys.h"
#include "desktop/frame/menus.h"
#include "desktop/system/picture_file.h"

namespace velk {
namespace {

constexpr QSize kFirstSize{1280, 800};
constexpr int kBuildHeight = 220;  // pixels
constexpr QSize kProgressSize{250, 20};
constexpr int kProgressDrop = 78;  // pixels below the middle of the screen
constexpr std::chrono::seconds kTick{10};
constexpr std::chrono::milliseconds kMaximising{200};

// A list that can be edited in place keeps the key for it.
bool KeepsKey(const QAbstractItemView& list, const QKeyEvent& key) {
  return list.editTriggers().testFlag(QAbstractItemView::EditKeyPressed) && key.key() == Qt::Key_F2;
}

}  // namespace

TVelkWindow::TVelkWindow(EditorPlace place, Prompts& prompts)
    : editor_(std::move(place), prompts, *this),
      area_(new QMdiArea(this)),
      status_(new TVelkStatusBar(this)) {
  area_->setHorizontalScrollBarPolicy(Qt::ScrollBarAsNeeded);
  area_->setVerticalScrollBarPolicy(Qt::ScrollBarAsNeeded);
  setStatusBar(status_);
  setAcceptDrops(true);
  resize(kFirstSize);
}

// No program outlives the frame unwatched, and none tells a window that is gone.
TVelkWindow::~TVelkWindow() {
  qApp->removeEventFilter(this);
  editor_.panels().build.changed = [] {};
  editor_.build().startPrograms(false);
  programs_.output = [](std::string_view) {};
  programs_.ended = [](const ProgramEnd&) {};
}

void TVelkWindow::start() {
  editor_.start();
  editor_.build().setRunner(&programs_);
  editor_.build().startPrograms(true);
  BuildMenus(*menuBar(), editor_);
  bars_ = BuildBars(*this, editor_);
  buildCentre();
  buildWindows();
  setWindowTitle(ShownText(FrameTitle(editor_)));
  qApp->installEventFilter(this);
  connect(&ticks_, &QTimer::timeout, this, [this] { editor_.rescue().tick(); });
  ticks_.start(kTick);
}

void TVelkWindow::openFiles(const std::vector<std::string>& files) {
  for (const std::string& file : files) ShowNamed(editor_, file);
}

// The windows' area, with the tabs above or below it.
void TVelkWindow::buildCentre() {
  auto* centre = new QWidget(this);
  auto* column = new QVBoxLayout(centre);
  column->setContentsMargins(0, 0, 0, 0);
  column->setSpacing(0);
  column->addWidget(area_, 1);
  if (editor_.settings().show_tabs != 0) {
    const bool below = editor_.settings().show_tabs == 2;
    tabs_ = new MapTabs(editor_);
    tabs_->setShape(below ? QTabBar::RoundedSouth : QTabBar::RoundedNorth);
    column->insertWidget(below ? 1 : 0, tabs_);
    tabs_->refresh();
  }
  setCentralWidget(centre);
}

void TVelkWindow::buildWindows() {
  children_ = new ChildWindows(*area_);
  brush_ = new TSelectedBrushWindow(editor_);
  textures_ = new TTextureWindow(editor_);
  children_->add(ToolWindow::Textures, textures_);
  children_->add(ToolWindow::SelectedBrush, brush_);
  for (int view = 0; view < kPlanViews; ++view) {
    auto* window = new TXYViewWindow(editor_, view);
    planViews_[static_cast<size_t>(view)] = window;
    children_->add(static_cast<ToolWindow>(static_cast<int>(ToolWindow::Plan1) + view), window);
  }
  entities_ = new EntityView(editor_);
  children_->add(ToolWindow::Entities, entities_);
  camera_ = new TCameraWindow(editor_);
  children_->add(ToolWindow::Camera, camera_);
  groups_ = new TGroupWindow(editor_);
  children_->add(ToolWindow::Groups, groups_);
  clock_ = new InputClock(editor_.input(), *this);
  children_->setSharedBorders([this] { return editor_.settings().shared_borders; });
  children_->setBars(bars_);
  editor_.windows().setWindows(*children_);
}

// The first layout waits for the frame to have its size. A maximised frame gets it from the window manager,
// soon; the layout then grows with it, but saved arrangements are for that size.
void TVelkWindow::showEvent(QShowEvent* event) {
  QMainWindow::showEvent(event);
  if (arranged_) return;
  arranged_ = true;
  children_->layOut();
  if (isMaximized()) {
    QTimer::singleShot(kMaximising, this, [this] { placeWindows(); });
  } else {
    placeWindows();
  }
}

void TVelkWindow::placeWindows() { editor_.door().show(editor_.windows().apply()); }

void TVelkWindow::keepState() {
  keepsState_ = true;
  RestoreFrame(*this, editor_.place().stateFile());
  editor_.attend();
  editor_.input().readBindings();
  watch_ = new FileWatch(editor_, *this);
  watch_->follow();
  // The session may end the program without closing the frame.
  connect(qApp, &QGuiApplication::commitDataRequest, this, [this] { rememberState(); });
}

void TVelkWindow::rememberState() const {
  if (keepsState_) RememberFrame(*this, editor_.place().stateFile());
}

void TVelkWindow::changeEvent(QEvent* event) {
  QMainWindow::changeEvent(event);
  if (event->type() == QEvent::PaletteChange) area_->setBackground(palette().dark());
}

bool TVelkWindow::savePicture(const std::string& file) {
  QApplication::processEvents();
  return SavePng(grab().toImage(), file);
}

void TVelkWindow::closeEvent(QCloseEvent* event) {
  if (!leaving_) RunCommand(editor_, *FindCommand("CM_FILEEXIT"));
  event->setAccepted(leaving_);
  if (leaving_) rememberState();
}

void TVelkWindow::dragEnterEvent(QDragEnterEvent* event) {
  if (event->mimeData()->hasUrls()) event->acceptProposedAction();
}

void TVelkWindow::dropEvent(QDropEvent* event) {
  std::vector<std::string> files;
  for (const QUrl& url : event->mimeData()->urls()) {
    const QByteArray path = url.path(QUrl::FullyEncoded).toLatin1();
    if (url.isLocalFile()) files.push_back(QByteArray::fromPercentEncoding(path).toStdString());
  }
  event->acceptProposedAction();
  openFiles(files);
}

// Keys go to the key table unless a dialog or a menu is open or a text is being typed.
bool TVelkWindow::takesKeys(const QKeyEvent& key) const {
  if (QApplication::activeModalWidget() || QApplication::activePopupWidget()) return false;
  const QWidget* focus = QApplication::focusWidget();
  if (focus && focus->window() != this) return false;
  if (const auto* list = qobject_cast<const QAbstractItemView*>(focus)) {
    if (KeepsKey(*list, key)) return false;
  }
  return !qobject_cast<const QLineEdit*>(focus) && !qobject_cast<const QTextEdit*>(focus) &&
         !qobject_cast<const QComboBox*>(focus) && !qobject_cast<const QAbstractSpinBox*>(focus);
}

// What cannot be run leaves its key to the menus' mnemonics. No command on Alt does anything without a map,
// whether it is enabled or not.
bool TVelkWindow::leftToMenus(const QKeyEvent& key, const Command& command) const {
  const bool idle = editor_.documents().count() == 0 && key.modifiers().testFlag(Qt::AltModifier);
  return idle || !CanRun(editor_, command);
}

// Keys that a drag takes, or that move the camera while they are held, are no commands.
bool TVelkWindow::viewsTake(const QKeyEvent& key, bool pressed) {
  const KeyStroke stroke = StrokeOf(key);
  if (!ViewsWantKey(editor_, stroke)) return false;
  return !pressed || GiveKeyToViews(editor_, stroke);
}

bool TVelkWindow::eventFilter(QObject* watched, QEvent* event) {
  if (watched == this && event->type() == QEvent::WindowDeactivate) editor_.input().focusLost();
  const bool override = event->type() == QEvent::ShortcutOverride;
  const bool released = event->type() == QEvent::KeyRelease;
  if (!override && !released && event->type() != QEvent::KeyPress) return false;
  const auto& key = *static_cast<QKeyEvent*>(event);
  // Wherever the focus is by now.
  if (released && !key.isAutoRepeat()) LetGoInViews(editor_, StrokeOf(key));
  // Other windows keep their keys; one that was just shown may not have the focus yet.
  const auto* widget = qobject_cast<const QWidget*>(watched);
  if (released || !widget || widget->window() != this || !takesKeys(key)) return false;
  const Command* command = CommandForStroke(StrokeOf(key));
  const bool taken = viewsTake(key, !override);
  if (!taken && (!command || leftToMenus(key, *command))) return false;
  event->accept();
  if (!override && !taken) RunCommand(editor_, *command, true);
  return true;
}

// A hint makes way, such as that of the button just pressed, which is still under the pointer.
void TVelkWindow::statusChanged(const std::string& text) { status_->post(ShownText(text)); }

void TVelkWindow::changed(const Changes& what) {
  if (what.maps) mapsChanged();
  for (TXYViewWindow* view : planViews_) {
    if (view && what.planViews) view->markStale();
    if (view && what.strips) view->markStripStale();
  }
  if (what.camera && camera_) camera_->markStale();
  toolWindowsChanged(what);
  for (TVelkControlBar* bar : bars_) {
    if (what.textures) bar->texturesChanged();
    if (what.commands || what.maps) bar->commandsChanged();
  }
}

// The entities that are edited together are those selected.
void TVelkWindow::toolWindowsChanged(const Changes& what) {
  // Its picture holds textures: it must not outlive theirs.
  if (brush_ && (what.selectedBrush || what.maps || what.textures)) brush_->refresh();
  if (textures_ && what.textures) textures_->refresh();
  if (textures_ && what.entity) textures_->contentsChanged();
  if (entities_ && what.maps) entities_->reloadClasses();
  if (entities_ && (what.entity || what.selectedBrush)) entities_->refresh();
  if (build_ && what.maps) build_->refresh();
  if (!groups_) return;
  if (what.groups || what.entity || what.maps) {
    groups_->refresh();
  } else if (what.selectedBrush) {
    groups_->showSelection();
  }
}

// A bar below the middle of the screen, gone when there is nothing more to load.
void TVelkWindow::loadProgress(const std::string& text, int done, int total) {
  if (text.empty()) {
    progress_.reset();
    return;
  }
  if (!progress_) {
    progress_ = std::make_unique<QProgressBar>();
    progress_->setWindowFlag(Qt::SplashScreen);
    const QPoint middle = screen()->geometry().center();
    progress_->setGeometry(middle.x() - kProgressSize.width() / 2, middle.y() + kProgressDrop,
                           kProgressSize.width(), kProgressSize.height());
    progress_->show();
  }
  progress_->setRange(0, std::max(total, 1));
  progress_->setValue(done);
  progress_->setFormat(ShownText(text));
  progress_->repaint();
}

bool TVelkWindow::progress(const std::string& text, int left, int top) {
  if (!camera_) return true;
  if (!camera_->showsProgress()) escape_.begin();
  camera_->keepProgress(text, left, top);
  if (escape_.due()) camera_->repaint();
  return !escape_.pressed();
}

void TVelkWindow::mapsChanged() {
  setWindowTitle(ShownText(FrameTitle(editor_)));
  if (tabs_) tabs_->refresh();
  if (camera_) camera_->showTitle();
  if (watch_) watch_->follow();
}

void TVelkWindow::helpRequested() {
  if (!help_) help_ = new HelpWindow(this);
  help_->showContents();
}

void TVelkWindow::buildRequested() {
  if (!build_) {
    build_ = new TBuildWindow(editor_, this);
    // Where it was, when the frame's state was restored before it was made.
    if (!restoreDockWidget(build_)) {
      addDockWidget(Qt::BottomDockWidgetArea, build_);
      resizeDocks({build_}, {kBuildHeight}, Qt::Vertical);
    }
  }
  build_->follow();
}

void TVelkWindow::exitRequested() {
  leaving_ = true;
  close();
}

}  // namespace velk
