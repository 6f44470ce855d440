// Commands as the editor stands: whether one can be given, how its menu item looks, and giving it.
#pragma once

#include <string>

#include "app/editor.h"
#include "commands/command_tables.h"

namespace velk {

bool IsEnabled(const Editor& editor, const Command& command);
// Enabled, or one that says itself why it refuses.
bool CanRun(const Editor& editor, const Command& command);
bool IsChecked(const Editor& editor, const Command& command);
// Not shown in its menu: a place in the list of recent maps that is not taken.
bool IsHidden(const Editor& editor, const Command& command);
// The command's label in the menu as things stand: undo and redo name what they would take back.
std::string LabelOf(const Editor& editor, const Command& command);
// Gives a command. False when it cannot be given, when a drag runs, or when it failed; the user was told why
// then. With `byKey` repeats within a second are one undo level.
bool RunCommand(Editor& editor, const Command& command, bool byKey = false);

}  // namespace velk
