#include "commands/dispatch.h"

#include "base/text.h"

namespace velk {
namespace {

constexpr int kUndo = 11844;
constexpr int kRedo = 1100;

std::string Named(const char* verb, const std::string& name) {
  return name.empty() ? Format("&%s...", verb) : Format("&%s %s...", verb, name.c_str());
}

bool SelectionInEntity(const Editor& editor) {
  map* m = editor.current() ? &editor.current()->model : nullptr;
  return m && m->selectedCount() > 0;
}

}  // namespace

bool IsEnabled(const Editor& editor, const Command& command) {
  if (!command.run) return false;
  switch (command.when) {
    case When::Always:
      return true;
    case When::MapOpen:
      return editor.mapCount() > 0;
    case When::RoomForMap:
      return editor.mapCount() < MAX_MAPS;
    case When::SelectionInEntity:
      return SelectionInEntity(editor);
    case When::UndoKept:
      return editor.current() && editor.current()->history.canUndo();
    case When::RedoKept:
      return editor.current() && editor.current()->history.canRedo();
    case When::RecentMap:
      return command.id - kFirstRecentMap < editor.recentMaps().count();
    case When::RecentKept:
      return editor.recentMaps().count() > 0;
    case When::LeaksShown:
    case When::Never:
      return false;
  }
  return false;
}

bool CanRun(const Editor& editor, const Command& command) {
  return IsEnabled(editor, command) || command.when == When::RoomForMap;
}

bool IsChecked(const Editor& editor, const Command& command) {
  return command.checked && command.checked(editor);
}

bool IsHidden(const Editor& editor, const Command& command) {
  return command.when == When::RecentMap && !IsEnabled(editor, command);
}

std::string LabelOf(const Editor& editor, const Command& command) {
  const History* history = editor.current() ? &editor.current()->history : nullptr;
  if (command.id == kUndo) return Named("Undo", history ? history->undoName() : "");
  if (command.id == kRedo) return Named("Redo", history ? history->redoName() : "");
  if (command.when == When::RecentMap && IsEnabled(editor, command)) {
    const int index = command.id - kFirstRecentMap;
    return RecentMapLabel(index, editor.recentMaps().at(index));
  }
  return command.label;
}

bool RunCommand(Editor& editor, const Command& command) {
  if (!CanRun(editor, command)) return false;
  editor.beginChange();
  command.run(editor);
  editor.endChange(PlainLabel(command));
  editor.observer().commandsChanged();
  return true;
}

}  // namespace velk
