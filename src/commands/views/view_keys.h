// Keys that the views take before they are commands: those of a running drag, and those that move the camera
// for as long as they are held.
#pragma once

#include "app/editor.h"
#include "commands/key_stroke.h"

namespace velk {

// Whether the views would take the key as things stand.
bool ViewsWantKey(Editor& editor, const KeyStroke& stroke);
// Takes it; false when it is left to the commands. Keys that repeat are given again and again.
bool GiveKeyToViews(Editor& editor, const KeyStroke& stroke);
void LetGoInViews(Editor& editor, const KeyStroke& stroke);
// Only to a running drag: for keys that are pressed without being held.
bool GiveKeyToDrag(Editor& editor, const KeyStroke& stroke);

}  // namespace velk
