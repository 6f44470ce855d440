// Settings that commands turn over.
#pragma once

#include "app/editor.h"

namespace velk {

inline bool IsOn(const Editor& editor, bool Settings::*setting) { return editor.settings().*setting; }

// Turned over with or without a map; views and status follow only with one.
inline Outcome Toggle(Editor& editor, bool Settings::*setting, Redraw redraw, const char* text) {
  editor.settings().*setting = !(editor.settings().*setting);
  return editor.documents().currentMap() ? Outcome::Drawn(redraw, text) : Outcome{};
}

}  // namespace velk
