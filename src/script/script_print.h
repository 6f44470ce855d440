// What the scripts' "print" says.
#pragma once

#include <string>
#include <vector>

#include "base/menu.h"
#include "script/script_runner.h"

namespace velk {

// The view of that name, as the editor counts them. Throw ScriptFailure when there is none, or when the word
// is no whole number.
int ScriptViewNamed(const std::string& name);
int ScriptNumber(const ScriptWord& word);

// The tool window of that name. Throws ScriptFailure when there is none.
Panel& ScriptPanelNamed(Editor& editor, const std::string& name);

// The item of that name in a context menu: the text before a tab, "NAME#2" for the second of that text. None
// when there is none.
const MenuItem* FindMenuItem(const Menu& menu, const std::string& name);

// The lines for the words after "print". Throws ScriptFailure when they ask for nothing there is.
std::vector<std::string> ScriptPrint(Editor& editor, const ScriptPrompts& prompts,
                                     const std::vector<ScriptWord>& what);

}  // namespace velk
