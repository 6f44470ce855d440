#include "desktop/system/kit.h"

#include <QCoreApplication>

namespace velk {

std::filesystem::path FindKit() {
  namespace fs = std::filesystem;
  const fs::path program = QCoreApplication::applicationDirPath().toStdString();
  for (const fs::path& candidate : {program / "kit", program / "../share/velk/kit"}) {
    std::error_code ignored;
    if (fs::exists(candidate / "velk.ini", ignored)) return fs::weakly_canonical(candidate, ignored);
  }
  return {};
}

EditorPlace FindEditorPlace() { return FindPlace(CurrentSurroundings(), FindKit()); }

std::string KitMap(const EditorPlace& place) {
  const char* const name = "start.map";
  std::error_code ignored;
  const bool copied = std::filesystem::exists(place.home / name, ignored);
  return ((copied ? place.home : FindKit()) / name).string();
}

}  // namespace velk
