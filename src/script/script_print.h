// What the scripts' "print" says.
#pragma once

#include <string>
#include <vector>

#include "script/script_runner.h"

namespace velk {

// Throw ScriptFailure when there is no such view, or when the word is no whole number.
ScriptView ScriptViewNamed(const std::string& name);
int ScriptNumber(const ScriptWord& word);

// The lines for the words after "print". Throws ScriptFailure when they ask for nothing there is.
std::vector<std::string> ScriptPrint(Editor& editor, const ScriptPrompts& prompts,
                                     const std::vector<ScriptWord>& what);

}  // namespace velk
