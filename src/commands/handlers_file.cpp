#include "base/text.h"
#include "commands/handlers.h"

namespace velk::commands {
namespace {

constexpr const char* kMapFilter = "Map Files (*.map)|*.map|";

// Where the map's file is; for a new map, where maps are kept.
std::string folderOf(const Editor& editor, const std::string& path) {
  if (path == editor.settings().newmap) return editor.settings().map_directory;
  const std::string folder = path.substr(0, path.size() - FileNamePart(path).size());
  return folder.empty() ? "./" : folder;
}

bool saveAs(Editor& editor, MapDocument& document) {
  const auto path = editor.prompts().chooseFile({.title = "Output Map File",
                                                 .filter = kMapFilter,
                                                 .directory = folderOf(editor, document.model.name),
                                                 .fileName = FileNamePart(document.model.name),
                                                 .kind = FileChooser::Kind::Save});
  // The chooser asked already whether the file is to be replaced.
  return path && editor.saveDocument(document, *path, true);
}

bool save(Editor& editor, MapDocument& document) {
  const std::string path = document.model.name;
  if (path == editor.settings().newmap) return saveAs(editor, document);
  return editor.saveDocument(document, path);
}

// Asks what becomes of unsaved changes; false when the map has to stay open.
bool mayClose(Editor& editor, MapDocument& document) {
  if (!document.isUnsaved()) return true;
  const Answer answer =
      editor.prompts().ask({.caption = "Velk - Save Changes?",
                            .text = Format("Save changes to map %s?", document.model.name.c_str()),
                            .buttons = MessageBox::Buttons::YesNoCancel,
                            .icon = MessageBox::Icon::Question});
  if (answer == Answer::Yes) return save(editor, document);
  return answer == Answer::No;
}

void switchMap(Editor& editor, int step) {
  const int count = editor.mapCount();
  if (count > 0) editor.setCurrentIndex((editor.currentIndex() + step + count) % count);
}

}  // namespace

void newMap(Editor& editor) { editor.newMap(); }

void openMaps(Editor& editor) {
  if (!editor.hasRoom(kCannotOpen)) return;
  const auto paths = editor.prompts().chooseFiles({.title = "Select MAP File",
                                                   .filter = kMapFilter,
                                                   .directory = editor.settings().map_directory,
                                                   .fileName = {},
                                                   .kind = FileChooser::Kind::OpenMany});
  for (const std::string& path : paths) {
    const bool full = editor.mapCount() >= MAX_MAPS;
    editor.openFile(path);
    if (full) return;
  }
}

void openRecentMap(Editor& editor, int index) { editor.openRecent(index); }

void clearRecentMaps(Editor& editor) { editor.recentMaps().clear(); }

void closeMap(Editor& editor) {
  MapDocument* document = editor.current();
  if (document && mayClose(editor, *document)) editor.closeDocument(editor.currentIndex());
}

void saveMap(Editor& editor) {
  if (MapDocument* document = editor.current()) save(editor, *document);
}

void saveMapAs(Editor& editor) {
  if (MapDocument* document = editor.current()) saveAs(editor, *document);
}

void exitEditor(Editor& editor) {
  for (int i = 0; i < editor.mapCount(); ++i) {
    if (!mayClose(editor, *editor.document(i))) return;
  }
  editor.requestExit();
}

void nextMap(Editor& editor) { switchMap(editor, 1); }

void previousMap(Editor& editor) { switchMap(editor, -1); }

void reloadClasses(Editor& editor) { editor.reloadClasses(); }

void about(Editor& editor) {
  editor.prompts().ask({.caption = "About Velk...",
                        .text = "Velk " VELK_VERSION "\nA level editor for Quake maps.",
                        .buttons = MessageBox::Buttons::Ok,
                        .icon = MessageBox::Icon::Program});
}

void help(Editor& editor) { editor.observer().helpRequested(); }

}  // namespace velk::commands
