// The texture browser's window: the five numbers of the chosen texture with their buttons.
#pragma once

#include <string>

#include "textures/texture_choice.h"

namespace velk {

// The numbers of a texture definition, as the browser's header shows them.
enum class TextureField { ShiftS, ShiftT, Rotate, ScaleS, ScaleT };

// One press of a field's "+" (direction 1) or "-" (-1) button.
void StepTextureField(TextureChoice& choice, TextureField field, int direction);
// The value as its field shows it.
std::string TextureFieldText(const TextureChoice& choice, TextureField field);

}  // namespace velk
