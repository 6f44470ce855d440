// Commands that lay textures on faces, on the current face or all faces of the selection.
#pragma once

#include "app/editor.h"
#include "ops/texturing/align_texture.h"

namespace velk {

// Asks how many times across and down.
Outcome AskFitTexture(Editor& editor, map& m);
Outcome AlignTexture(Editor& editor, map& m, TextureEdge edge);
Outcome TurnTexture(Editor& editor, map& m);
// axis 0 across, 1 down.
Outcome MirrorTexture(Editor& editor, map& m, int axis);
Outcome WrapToNeighbours(Editor& editor, map& m);

// Whether the commands work on all faces of the selection.
Outcome ToggleAllFaces(Editor& editor);
bool WorksOnAllFaces(const Editor& editor);

Outcome ReloadAllWads(Editor& editor);

}  // namespace velk
