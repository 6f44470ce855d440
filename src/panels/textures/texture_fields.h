// The five numbers of the chosen texture with their buttons, as the texture browser shows them.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "textures/texture_choice.h"

namespace velk {

// The numbers of a texture definition, as the browser's header shows them.
enum class TextureField { ShiftS, ShiftT, Rotate, ScaleS, ScaleT };
inline constexpr int kTextureFields = 5;
inline constexpr const char* kTextureFieldLabels[] = {"S", "T", "R", "SX", "SY"};
// By its label, in any case.
std::optional<TextureField> TextureFieldNamed(std::string_view label);

// One press of a field's "+" (direction 1) or "-" (-1) button.
void StepTextureField(TextureChoice& choice, TextureField field, int direction);
// Puts a number that was typed; a scale of 0 counts as 1, turns are brought below 360.
void SetTextureField(TextureChoice& choice, TextureField field, double value);
double TextureFieldValue(const TextureChoice& choice, TextureField field);
// The value as its field shows it.
std::string TextureFieldText(const TextureChoice& choice, TextureField field);

// A button that is held: the timer of kHeldButtonTick runs from the press, and its ticks from
// kHeldButtonDelay after the press on step once more, until any mouse button goes up or down.
inline constexpr int kHeldButtonTick = 50;    // milliseconds
inline constexpr int kHeldButtonDelay = 250;  // milliseconds

class HeldTextureButton {
 public:
  void press(TextureField field, int direction);
  void stop() { direction_ = 0; }
  bool runs() const { return direction_ != 0; }
  // A tick of the timer; whether it steps.
  bool tick();
  TextureField field() const { return field_; }
  int direction() const { return direction_; }

 private:
  TextureField field_ = TextureField::ShiftS;
  int direction_ = 0;
  int elapsed_ = 0;  // milliseconds
};

}  // namespace velk
