#include "commands/files/named_files.h"

#include "documents/opening.h"

namespace velk {

void OpenNamed(Editor& editor, const std::string& file) {
  editor.door().perform({.name = "Open"},
                        [&] { return OpenFile(editor.services(), editor.documents(), editor.door(), file); });
}

void ShowNamed(Editor& editor, const std::string& file) {
  editor.door().perform({.name = "Open"},
                        [&] { return ShowFile(editor.services(), editor.documents(), editor.door(), file); });
}

}  // namespace velk
