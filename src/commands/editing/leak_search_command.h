// The leak search's command.
#pragma once

#include "app/editor.h"

namespace velk {

// Asks whether to save first, and whether to conform without asking. Else each pair is asked about, with the
// views centred on it; they go back afterwards. Cancel leaves what was conformed so far.
Outcome SearchLeaks(Editor& editor, map& m);

}  // namespace velk
