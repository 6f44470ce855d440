// Revolve profiles (.rev): a count, and so many pairs of numbers.
#pragma once

#include <optional>
#include <string_view>

#include "base/paths.h"
#include "geometry/profile.h"

namespace velk {

inline constexpr const char* kRevolveTitle = "Revolve Data File";
inline constexpr const char* kRevolveFilter = "Revolve Data (*.rev)|*.rev|";

// The profile in the text, which may go on after it. None when the count is not 2..99 or a number is
// missing.
std::optional<Profile> ReadRevolveProfile(std::string_view text);
// None too when there is no such file.
std::optional<Profile> ReadRevolveFile(const Paths& paths, std::string_view name);

}  // namespace velk
