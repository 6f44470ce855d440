// What runs the camera's commands, which are free functions on a map, the settings or the lens. They do
// nothing without a map.
#pragma once

#include "app/editor.h"

namespace velk {

inline Outcome MoveOnSettings(Editor& editor, map& m, Outcome (*move)(map&, const Settings&)) {
  return move(m, editor.settings());
}

inline Outcome MoveOnMap(Editor&, map& m, Outcome (*move)(map&)) { return move(m); }

inline Outcome ChangeCameraSettings(Editor& editor, map&, Outcome (*change)(Settings&)) {
  return change(editor.settings());
}

inline Outcome ChangeLens(Editor& editor, map&, Outcome (*change)(WireLens&)) {
  return change(editor.views().lens);
}

}  // namespace velk
