#include "commands/dispatch.h"

namespace velk {

bool MapOpen(const Editor& editor) { return editor.documents().count() > 0; }

bool SelectionInEntity(const Editor& editor) {
  map* m = editor.documents().currentMap();
  return m && m->selectedCount() > 0;
}

bool IsEnabled(const Editor& editor, const Command& command) {
  return command.run && (!command.enabled || command.enabled(editor));
}

bool CanRun(const Editor& editor, const Command& command) {
  return IsEnabled(editor, command) || command.saysWhy;
}

bool IsChecked(const Editor& editor, const Command& command) {
  return command.checked && command.checked(editor);
}

bool IsHidden(const Editor& editor, const Command& command) {
  return command.shown && !command.shown(editor);
}

std::string LabelOf(const Editor& editor, const Command& command) {
  return command.labelNow ? command.labelNow(editor) : command.label;
}

bool RunCommand(Editor& editor, const Command& command, bool byKey) {
  if (!CanRun(editor, command)) return false;
  Change change{.name = command.undoName ? command.undoName : PlainLabel(command), .byKey = byKey};
  if (command.classicUndo) change.classic = UndoMode::Selection;
  if (command.caption) change.caption = command.caption;
  if (command.failure) change.failure = command.failure;
  return editor.door().perform(change, [&] {
    if (command.run.plain) return command.run.plain(editor);
    map* m = editor.documents().currentMap();
    return m ? command.run.onMap(editor, *m) : Outcome{};
  });
}

}  // namespace velk
