#include "desktop/frame_state.h"

#include <QGuiApplication>
#include <QScreen>
#include <QToolBar>
#include <string>

#include "base/inifile.h"

namespace velk {
namespace {

constexpr const char* kSection = "Frame";
constexpr const char* kGeometry = "geometry";
constexpr const char* kBars = "bars";

QByteArray read(const IniFile& file, const char* key) {
  return QByteArray::fromBase64(QByteArray::fromStdString(file.string(kSection, key, "")));
}

void write(IniFile& file, const char* key, const QByteArray& bytes) {
  file.set(kSection, key, bytes.toBase64().toStdString());
}

// A bar that floated on a screen that is gone could not be caught again: it goes back to the frame.
void dockLostBars(QMainWindow& frame) {
  for (QToolBar* bar : frame.findChildren<QToolBar*>()) {
    if (!bar->isFloating() || QGuiApplication::screenAt(bar->geometry().center())) continue;
    const bool hidden = bar->isHidden();
    frame.removeToolBar(bar);
    frame.addToolBar(bar);
    bar->setHidden(hidden);
  }
}

}  // namespace

void RestoreFrame(QMainWindow& frame, const std::filesystem::path& stateFile) {
  const IniFile file = IniFile::Load(stateFile);
  frame.restoreGeometry(read(file, kGeometry));
  frame.restoreState(read(file, kBars));
  dockLostBars(frame);
}

void RememberFrame(const QMainWindow& frame, const std::filesystem::path& stateFile) {
  IniFile file = IniFile::Load(stateFile);
  write(file, kGeometry, frame.saveGeometry());
  write(file, kBars, frame.saveState());
  (void)file.save(stateFile);
}

}  // namespace velk
