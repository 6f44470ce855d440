// The settings dialogs, and reading settings and classes again.
#pragma once

#include "app/editor.h"

namespace velk {

Outcome AskPreferences(Editor& editor);
Outcome AskColours(Editor& editor);
Outcome AskDirectories(Editor& editor);
Outcome AskMouseSettings(Editor& editor);
// Reads the entity classes again.
Outcome ReloadClasses(Editor& editor, map& m);

}  // namespace velk
