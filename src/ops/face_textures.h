// Texture commands on the faces of a map. They ask nothing and post nothing; each marks the map modified
// when it changed what would be saved.
#pragma once

#include <string>
#include <string_view>

#include "model/map.h"

namespace velk {

// The current face of the current brush takes the definition. False without a current brush. A current
// face beyond the brush's faces is fatal "BnSetFaceTexture:  Bad face %i".
bool SetFaceTexture(map& m, const texturedef& definition);

// All faces of every selected brush take the definition. Returns the number of brushes.
int SetBrushTexture(map& m, const texturedef& definition);

// Moves the current brush's current face on by 1 or -1, wrapping round. False without a current brush.
bool StepCurrentFace(map& m, int direction);
// Makes a face of the current brush current; below 0 counts as 0, beyond the last as the last. False
// without a current brush.
bool ChooseCurrentFace(map& m, int index);

struct ReplacedTextures {
  int brushes = 0;
  int faces = 0;
};
// Renames textures throughout the map, except on brushes the group filter leaves out. `from` matches in
// any case; `to` is written in upper case, with careful_tools in lower case as all names of a map.
ReplacedTextures ReplaceTexture(map& m, std::string_view from, std::string_view to);

// Selects every brush with a face of that texture, in any case, that is not selected and that the group
// filter lets through. Returns the number of brushes.
int SelectByTexture(map& m, std::string_view name);

// The table of a brush's faces; columns are parted by tabs.
inline constexpr char FACE_LIST_HEADING[] = "#\tName\tShifts\tRotate\tScale";
std::string FaceListLine(const brush& b, int index);

}  // namespace velk
