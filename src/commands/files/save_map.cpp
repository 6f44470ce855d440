#include "commands/files/save_map.h"

#include "base/paths.h"
#include "documents/saving.h"

namespace velk {
namespace {

// Where the map's file is; for a new map, where maps are kept.
std::string FolderOf(const Editor& editor, const std::string& path) {
  if (path == editor.settings().newmap) return editor.settings().map_directory;
  const std::string folder = path.substr(0, path.size() - FileNamePart(path).size());
  return folder.empty() ? "./" : folder;
}

}  // namespace

std::optional<Outcome> SaveUnder(Editor& editor, MapDocument& document) {
  const auto path = editor.services().prompts.chooseFile({.title = "Output Map File",
                                                          .filter = kMapFilter,
                                                          .directory = FolderOf(editor, document.model.name),
                                                          .fileName = FileNamePart(document.model.name),
                                                          .kind = FileChooser::Kind::Save});
  if (!path) return std::nullopt;
  // The chooser asked already whether the file is to be replaced.
  return SaveDocument(editor.services(), editor.documents(), document, *path, true);
}

std::optional<Outcome> Save(Editor& editor, MapDocument& document) {
  const std::string path = document.model.name;
  if (path == editor.settings().newmap) return SaveUnder(editor, document);
  return SaveDocument(editor.services(), editor.documents(), document, path);
}

bool SaveNow(Editor& editor) {
  const auto saved = Save(editor, *editor.documents().current());
  if (saved) editor.door().show(*saved);
  return saved.has_value();
}

}  // namespace velk
