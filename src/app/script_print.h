// What the scripts' "print" says.
#pragma once

#include <string>
#include <vector>

#include "app/script.h"

namespace velk {

ScriptView ScriptViewNamed(const std::string& name);

// The lines for the words after "print". Throws ScriptFailure when they ask for nothing there is.
std::vector<std::string> ScriptPrint(Editor& editor, const ScriptPrompts& prompts,
                                     const std::vector<ScriptWord>& what);

}  // namespace velk
