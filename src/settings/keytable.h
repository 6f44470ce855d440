// The keys of velk.ini as data: where each value lives in the record, how it is read and limited.
#pragma once

#include <span>
#include <variant>

#include "settings/settings.h"

namespace velk {

// How a value stands in the file.
enum class KeyForm {
  Number,          // integer, or a whole number held as float
  Fraction,        // whole number of hundredths, held as a fraction
  PositiveNumber,  // decimal number; a value not above 0 keeps the default
  Flag,
  Text,
  Directory,  // text that ends in a separator
  Rgb,
};

using SettingMember = std::variant<int Settings::*, float Settings::*, double Settings::*, bool Settings::*,
                                   std::string Settings::*, Colour Settings::*, Colour ViewColours::*>;

inline constexpr int kNoLimit = 1 << 30;

struct SettingKey {
  const char* name;
  KeyForm form;
  SettingMember member;
  int low = -kNoLimit;  // applied when read, in the file's units
  int high = kNoLimit;
};

// Section [Velk] and section [VelkColors].
std::span<const SettingKey> VelkKeys();
std::span<const SettingKey> ColourKeys();

}  // namespace velk
