#include "commands/files/side_files.h"

#include "base/text.h"
#include "documents/saving.h"
#include "mapfile/brush_file.h"
#include "mapfile/map_writer.h"

namespace velk {
namespace {

constexpr const char* kMergeFilter = "Merge Files (*.mrg)|*.mrg|";

std::optional<std::string> Choose(Editor& editor, const char* title, const char* filter,
                                  FileChooser::Kind kind = FileChooser::Kind::Open) {
  return editor.services().prompts.chooseFile({.title = title,
                                               .filter = filter,
                                               .directory = editor.settings().map_directory,
                                               .fileName = {},
                                               .kind = kind});
}

// The selected brushes of a map, of the clipboard all. `what` begins the status.
Outcome WriteMerge(Editor& editor, map& from, const std::string& path, bool needsWorldBrush,
                   const char* what) {
  if (!WritePlace(editor.services(), path)) return {};
  const MapWriteOptions options{.comments = false, .selectedOnly = true, .needsWorldBrush = needsWorldBrush};
  const MapWriteResult written = WriteMapFile(from, editor.services().paths, path, options);
  if (written.outcome == MapWriteResult::Outcome::NothingToSave) {
    editor.services().tell("Velk - Save", "Nothing to save...\nMap must have at least one world brush!",
                           MessageBox::Icon::Warning);
    return {};
  }
  if (!written.ok()) {
    editor.services().tell("Velk - Save",
                           Format("Couldn't write map file %s: %s", path.c_str(), written.reason.c_str()));
    return {};
  }
  Outcome outcome = Outcome::Said(Format("%s [%s] saved...", what, path.c_str()));
  outcome.names = true;
  return outcome;
}

}  // namespace

Outcome SaveBrushes(Editor& editor, map& m) {
  if (m.selectedCount() == 0) return {};
  const auto path = Choose(editor, "Output Brush (.bru) File", kBrushFilter, FileChooser::Kind::Save);
  if (!path) return Outcome::Said("Cancelled...");
  const auto place = WritePlace(editor.services(), *path);
  if (!place) return Outcome::Said("Cancelled...");
  const bool written = ReplaceFile(*place, BrushFileText(m)).ok;
  return Outcome::Said(Format(
      written ? "Wrote selected brushes to file %s..." : "Couldn't write brush file %s", path->c_str()));
}

Outcome LoadBrushes(Editor& editor, map& m) {
  const auto path = Choose(editor, "Input Brush (.bru) File", kBrushFilter);
  return path ? LoadBrushFile(editor, m, *path) : Outcome::Said("Cancelled...");
}

Outcome LoadBrushFile(Editor& editor, map& m, const std::string& path) {
  editor.documents().post(Format("Loading [%s]", path.c_str()));
  auto brushes =
      ReadBrushFile(m, editor.services().paths, path, {.group = editor.panels().groups.current(), .whole = editor.settings().careful_tools});
  m.world()->requireRoom(static_cast<int>(brushes.size()));
  for (auto& read : brushes) m.world()->addobject(std::move(read));
  m.modified = true;
  return Outcome::Drawn(Redraw::All, Format("Read brushes from file %s...", path.c_str()));
}

Outcome MergeIn(Editor& editor, map& m) {
  const auto path = Choose(editor, "Select .MRG File", kMergeFilter);
  return path ? MergeFile(editor, m, *path) : Outcome{};
}

Outcome MergeFile(Editor& editor, map& m, const std::string& path) {
  editor.documents().merge(m, path);
  return Outcome::Drawn(Redraw::All, Format("File [%s] processed...", path.c_str()));
}

Outcome MergeOut(Editor& editor, map& m) {
  const auto path = Choose(editor, "Name .MRG File", kMergeFilter, FileChooser::Kind::Save);
  return path ? WriteMerge(editor, m, *path, true, "Merge file") : Outcome{};
}

Outcome SaveClipboard(Editor& editor, map&) {
  map* clipboard = editor.documents().clipboard();
  if (!clipboard || clipboard->numentities() == 0) return {};
  const auto path = Choose(editor, "Name .MRG File", kMergeFilter, FileChooser::Kind::Save);
  if (!path) return {};
  // Point entities without any world brush are worth saving, too.
  const bool needsWorldBrush = !editor.settings().careful_tools || clipboard->brushCount() == 0;
  return WriteMerge(editor, *clipboard, *path, needsWorldBrush, "Clipboard merge file");
}

}  // namespace velk
