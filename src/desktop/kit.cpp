#include "desktop/kit.h"

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

}  // namespace velk
