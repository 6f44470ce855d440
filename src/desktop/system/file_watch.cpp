#include "desktop/system/file_watch.h"

#include <QApplication>
#include <QEvent>
#include <QFile>
#include <chrono>

#include "build/leak_watch.h"
#include "desktop/system/path_text.h"

namespace velk {
namespace {

constexpr std::chrono::milliseconds kDelay{300};

bool IsBusy() {
  return QApplication::activeModalWidget() || QApplication::activePopupWidget() ||
         QApplication::mouseButtons() != Qt::NoButton;
}

}  // namespace

FileWatch::FileWatch(Editor& editor, QWidget& frame) : QObject(&frame), editor_(editor), frame_(frame) {
  delay_.setSingleShot(true);
  delay_.setInterval(kDelay);
  connect(&delay_, &QTimer::timeout, this, &FileWatch::check);
  connect(&watcher_, &QFileSystemWatcher::fileChanged, this, [this] { delay_.start(); });
  // In a busy folder the delay would never end if every change started it anew.
  connect(&watcher_, &QFileSystemWatcher::directoryChanged, this, [this] {
    if (!delay_.isActive()) delay_.start();
  });
  frame_.installEventFilter(this);
}

// A file that is replaced drops out of the watch, one that is gone cannot be watched: its folder tells.
void FileWatch::follow() {
  QStringList wanted;
  const auto want = [&](const std::string& path) {
    std::error_code failed;
    const std::filesystem::path file = editor_.services().paths.native(path);
    const std::filesystem::path actual = std::filesystem::weakly_canonical(file, failed);
    wanted << PathText(actual.string()) << PathText(actual.parent_path().string());
  };
  for (int i = 0; i < editor_.documents().count(); ++i) {
    const std::string& name = editor_.documents().at(i)->model.name;
    want(name);
    for (const std::string& leakFile : LeakFilesOf(name)) want(leakFile);
  }
  for (const auto& wad : editor_.textures().wads()) want(wad->path);
  const QStringList before = watcher_.files() + watcher_.directories();
  for (const QString& path : before) {
    if (!wanted.contains(path)) watcher_.removePath(path);
  }
  for (const QString& path : wanted) {
    if (!path.isEmpty() && !before.contains(path) && QFile::exists(path)) watcher_.addPath(path);
  }
}

bool FileWatch::eventFilter(QObject* watched, QEvent* event) {
  if (watched == &frame_ && event->type() == QEvent::WindowActivate) delay_.start();
  return false;
}

void FileWatch::check() {
  if (IsBusy() || editor_.door().busy()) {
    delay_.start();
  } else if (frame_.isActiveWindow()) {  // otherwise coming back starts the delay
    editor_.checkDisk();
    follow();
  }
}

}  // namespace velk
