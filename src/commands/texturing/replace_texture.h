// Replacing one texture by another throughout a map.
#pragma once

#include "app/editor.h"

namespace velk {

// Opens the form that asks for both names.
Outcome AskForReplacing(Editor& editor, map& m);
// One press of its button: asks once more, then renames.
Outcome ReplaceTextureBy(Editor& editor, map& m, const std::string& from, const std::string& to);

}  // namespace velk
