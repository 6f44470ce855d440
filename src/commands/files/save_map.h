// Saving as the Save command does it, for the commands that save before they go on.
#pragma once

#include <optional>

#include "app/editor.h"

namespace velk {

inline constexpr const char* kMapFilter = "Map Files (*.map)|*.map|";

// To the map's file; a map that has none yet asks for one. None when it was not saved.
std::optional<Outcome> Save(Editor& editor, MapDocument& document);
// The same for commands that go on afterwards: says what was saved; false when nothing was.
bool SaveNow(Editor& editor);
// To a file that is asked for.
std::optional<Outcome> SaveUnder(Editor& editor, MapDocument& document);

}  // namespace velk
