#include "commands/files/named_files.h"

#include "base/paths.h"
#include "base/text.h"
#include "commands/files/leak_commands.h"
#include "commands/files/side_files.h"
#include "documents/opening.h"

namespace velk {
namespace {

using OpenMap = Outcome (*)(const Services&, Documents&, Door&, const std::string&);

std::string EndingOf(const std::string& file) {
  const std::string name = FileNamePart(file);
  const size_t dot = name.rfind('.');
  return dot == std::string::npos ? "" : LowerCase(name.substr(dot));
}

void Add(Editor& editor, const Change& change, const std::string& file,
         Outcome (*add)(Editor&, map&, const std::string&)) {
  if (editor.documents().count() == 0) {
    editor.door().perform({.name = "New"},
                          [&] { return OpenNewMap(editor.services(), editor.documents(), editor.door()); });
  }
  map* m = editor.documents().currentMap();
  if (m) editor.door().perform(change, [&] { return add(editor, *m, file); });
}

void Take(Editor& editor, const std::string& file, OpenMap openMap) {
  const std::string ending = EndingOf(file);
  if (ending == ".mrg") {
    Add(editor, {.name = "Merge In", .caption = kCannotMerge}, file, MergeFile);
  } else if (ending == ".bru") {
    Add(editor, {.name = "Load Brushes", .caption = kCannotLoadBrushes}, file, LoadBrushFile);
  } else if (ending == ".pts" || ending == ".lin") {
    if (!editor.documents().currentMap()) return;
    editor.door().perform({.name = "Load .pts"}, [&] { return ShowLeakFile(editor, file); });
  } else {
    editor.door().perform({.name = "Open"}, [&] {
      return openMap(editor.services(), editor.documents(), editor.door(), file);
    });
  }
}

}  // namespace

void OpenNamed(Editor& editor, const std::string& file) { Take(editor, file, OpenFile); }

void ShowNamed(Editor& editor, const std::string& file) { Take(editor, file, ShowFile); }

}  // namespace velk
