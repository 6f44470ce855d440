// The keys of velk.ini as data: where each value lives in the record, how it is read and limited, and
// which dialog saves it.
#pragma once

#include <span>
#include <string_view>
#include <variant>

#include "settings/settings.h"

namespace velk {

enum class Section { Velk, VelkColors };
const char* SectionName(Section section);

// How a value stands in the file.
enum class KeyForm {
  Number,          // integer, or a whole number held as float
  Fraction,        // whole number of hundredths, held as a fraction
  PositiveNumber,  // decimal number; a value not above 0 keeps the default
  Flag,
  Text,
  Path,
  Directory,  // path that ends in a separator
  Rgb,
};

using SettingMember = std::variant<int Settings::*, float Settings::*, double Settings::*, bool Settings::*,
                                   std::string Settings::*, Colour Settings::*, Colour ViewColours::*>;

// Applied whenever a number is read, in the file's units.
struct Limits {
  int low;
  int high;
};

enum class SavedBy { Nobody, Preferences, Colours, Directories };

struct SettingKey {
  const char* name;
  KeyForm form;
  SettingMember member;
  Limits limits{};
  SavedBy savedBy = SavedBy::Nobody;
  int place = 0;  // among the keys that the dialog saves, from 1
  Section section = Section::Velk;
};

// Every key, in the order in which the documentation lists them.
std::span<const SettingKey> SettingKeys();
// Keys are compared without regard to case; null for an unknown one.
const SettingKey* FindSettingKey(std::string_view name);

}  // namespace velk
