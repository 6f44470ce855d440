#include "mapfile/revolve_file.h"

#include <cstdlib>

#include "base/files.h"
#include "base/text.h"

namespace velk {
namespace {

constexpr long kFewestPoints = 2;
constexpr long kMostPoints = 99;

// The number at the front of the text, which may be written in base 8 or 16 as in a program.
std::optional<long> TakeCount(std::string_view& text) {
  const std::string copy(text.substr(0, text.find('\0')));
  char* end = nullptr;
  const long count = std::strtol(copy.c_str(), &end, 0);
  if (end == copy.c_str()) return std::nullopt;
  text.remove_prefix(static_cast<size_t>(end - copy.c_str()));
  return count;
}

}  // namespace

std::optional<Profile> ReadRevolveProfile(std::string_view text) {
  const std::optional<long> count = TakeCount(text);
  if (!count || *count < kFewestPoints || *count > kMostPoints) return std::nullopt;
  Profile profile;
  for (long i = 0; i < *count; ++i) {
    const std::optional<double> radius = TakeNumber(text);
    const std::optional<double> along = radius ? TakeNumber(text) : std::nullopt;
    if (!along) return std::nullopt;
    profile.push_back({*radius, *along});
  }
  return profile;
}

std::optional<Profile> ReadRevolveFile(const Paths& paths, std::string_view name) {
  const ReadResult read = ReadFile(paths.native(name));
  if (!read.ok) return std::nullopt;
  return ReadRevolveProfile(read.contents);
}

}  // namespace velk
