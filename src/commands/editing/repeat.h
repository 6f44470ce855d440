// Repeat: the last copy, move, turn or generator again, on what is selected now.
#pragma once

#include <functional>

#include "app/editor.h"

namespace velk {

inline constexpr const char* kNothingToRepeat = "Nothing to repeat...";

// Runs a change and keeps it, with the values that were asked for, to be repeated.
Outcome RunRepeatably(Editor& editor, map& m, std::function<Outcome(map&)> change);

bool RepeatKept(const Editor& editor);
Outcome RepeatLast(Editor& editor, map& m);

}  // namespace velk
