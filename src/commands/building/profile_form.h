// The profiles of builds as the user edits them, and where they are kept.
#pragma once

#include "app/editor.h"
#include "build/profiles.h"

namespace velk {

// From velkbuild.ini in the editor's own folder.
BuildProfiles LoadProfiles(const Editor& editor);

// Edits a profile of the user's own, or makes another one; it is the chosen one then. One without a step is
// removed; without a name only the program to play with is kept.
Outcome EditProfiles(Editor& editor);
// Chooses one by its number, the six first.
Outcome ChooseProfile(Editor& editor, int number);
// Asks for the program that plays the level; false when there is none afterwards.
bool AskForPlay(Editor& editor, BuildProfiles& profiles);

}  // namespace velk
