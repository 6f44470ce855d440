#include "mapfile/revolve_file.h"

#include "base/files.h"
#include "base/numbers.h"
#include "base/text.h"

namespace velk {
namespace {

constexpr int kFewestPoints = 2;
constexpr int kMostPoints = 99;

}  // namespace

std::optional<Profile> ReadRevolveProfile(std::string_view text) {
  text = text.substr(0, text.find('\0'));
  const std::optional<int> count = TakeWhole(text);
  if (!count || *count < kFewestPoints || *count > kMostPoints) return std::nullopt;
  Profile profile;
  for (int i = 0; i < *count; ++i) {
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
