#include "desktop/frame/frame_state.h"

#include <QGuiApplication>
#include <QScreen>
#include <QTimer>
#include <QToolBar>
#include <string>

#include "base/ini_file.h"

namespace velk {
namespace {

constexpr const char* kSection = "Frame";
constexpr const char* kGeometry = "geometry";
constexpr const char* kBars = "bars";
constexpr const char* kCheck = "check";  // Qt would take over half of a damaged state

QByteArray Read(const IniFile& file, const char* key) {
  return QByteArray::fromBase64(QByteArray::fromStdString(file.string(kSection, key, "")));
}

void Write(IniFile& file, const char* key, const QByteArray& bytes) {
  file.set(kSection, key, bytes.toBase64().toStdString());
}

int CheckOf(const QByteArray& geometry, const QByteArray& bars) { return qChecksum(geometry + bars); }

// Qt keeps restored bars from the window manager, as if they were being dragged, and shows them before the
// frame; both lets them sink below it. A bar whose handle is on no screen could not be caught again: it goes
// back to the frame.
void SettleFloating(QMainWindow& frame, QToolBar& bar) {
  const QRect place = bar.geometry();
  const bool hidden = bar.isHidden();
  bar.setWindowFlag(Qt::X11BypassWindowManagerHint, false);
  bar.setGeometry(place);
  if (!QGuiApplication::screenAt(place.topLeft())) {
    frame.removeToolBar(&bar);
    frame.addToolBarBreak();
    frame.addToolBar(&bar);
  }
  if (hidden) return;
  QTimer::singleShot(0, &bar, [&bar] {
    bar.hide();
    bar.show();
  });
}

}  // namespace

void RestoreFrame(QMainWindow& frame, const std::filesystem::path& stateFile) {
  const IniFile file = IniFile::Load(stateFile);
  const QByteArray geometry = Read(file, kGeometry);
  const QByteArray bars = Read(file, kBars);
  if (file.integer(kSection, kCheck, -1) != CheckOf(geometry, bars)) return;
  frame.restoreGeometry(geometry);
  frame.restoreState(bars);
  for (QToolBar* bar : frame.findChildren<QToolBar*>()) {
    if (bar->isFloating()) SettleFloating(frame, *bar);
  }
}

void RememberFrame(const QMainWindow& frame, const std::filesystem::path& stateFile) {
  IniFile file = IniFile::Load(stateFile);
  const QByteArray geometry = frame.saveGeometry();
  const QByteArray bars = frame.saveState();
  Write(file, kGeometry, geometry);
  Write(file, kBars, bars);
  file.set(kSection, kCheck, std::to_string(CheckOf(geometry, bars)));
  (void)file.save(stateFile);
}

}  // namespace velk
