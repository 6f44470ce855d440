#include "settings/settings.h"

#include <algorithm>
#include <charconv>
#include <cstdlib>
#include <iterator>

#include "base/numbers.h"
#include "base/paths.h"
#include "base/text.h"
#include "settings/key_table.h"

namespace velk {
namespace {

constexpr size_t kMaxText = 127;
// A path that is cut leads elsewhere, so paths may be as long as the system's.
constexpr size_t kMaxPath = 4095;

// The member in the record, whether it lies in the record itself or among its colours.
template <typename Record, typename T>
auto& ValueOf(Record& settings, T Settings::*member) {
  return settings.*member;
}
template <typename Record>
auto& ValueOf(Record& settings, Colour ViewColours::*member) {
  return settings.colours.*member;
}

// "red green blue"; channels that are missing or unreadable keep their values.
Colour ParseColour(const std::string& text, Colour colour) {
  std::string_view rest = text;
  for (int* channel : {&colour.red, &colour.green, &colour.blue}) {
    const std::optional<int> number = TakeWhole(rest);
    if (!number) break;
    *channel = std::clamp(*number, 0, 255);
  }
  return colour;
}

// A value without digits keeps what the record holds.
int Limited(const SettingKey& key, const std::string& text, int held) {
  return std::clamp(LeadingInt(text).value_or(held), key.limits.low, key.limits.high);
}

void Assign(const SettingKey& key, const std::string& text, std::string& value) {
  if (text.empty()) return;
  value = text.substr(0, key.form == KeyForm::Text ? kMaxText : kMaxPath);
  if (key.form == KeyForm::Directory) value = WithSeparator(value);
}
void Assign(const SettingKey&, const std::string& text, Colour& value) { value = ParseColour(text, value); }
void Assign(const SettingKey&, const std::string& text, bool& value) {
  value = LeadingInt(text).value_or(value ? 1 : 0) != 0;
}
void Assign(const SettingKey& key, const std::string& text, int& value) { value = Limited(key, text, value); }
void Assign(const SettingKey& key, const std::string& text, double& value) {
  if (const auto hundredths = LeadingInt(text)) value = Limited(key, text, *hundredths) * 0.01;
}
void Assign(const SettingKey& key, const std::string& text, float& value) {
  if (key.form == KeyForm::Number) {
    value = static_cast<float>(Limited(key, text, Truncate(value)));
  } else if (const auto number = static_cast<float>(std::min(TextToDouble(text), 1e30)); number > 0) {
    value = number;
  }
}

std::string Shortest(float value) {
  char text[32];
  return {text, std::to_chars(std::begin(text), std::end(text), value).ptr};
}

std::string Written(const SettingKey&, const std::string& value) { return value; }
std::string Written(const SettingKey&, const Colour& value) {
  return Format("%i %i %i", value.red, value.green, value.blue);
}
std::string Written(const SettingKey&, bool value) { return value ? "1" : "0"; }
std::string Written(const SettingKey&, int value) { return std::to_string(value); }
// A fraction may lie just below its hundredth.
std::string Written(const SettingKey&, double value) { return std::to_string(Truncate(value * 100 + 1e-9)); }
std::string Written(const SettingKey& key, float value) {
  return key.form == KeyForm::Number ? std::to_string(Truncate(value)) : Shortest(value);
}

std::string TextOf(const SettingKey& key, const Settings& settings) {
  return std::visit([&](auto member) { return Written(key, ValueOf(settings, member)); }, key.member);
}

void ReadKey(const SettingKey& key, const std::string& text, Settings& settings) {
  std::visit([&](auto member) { Assign(key, text, ValueOf(settings, member)); }, key.member);
}

// Rules that are not a plain range.
void ApplyOddLimits(Settings& settings) {
  if (settings.texture_list_width < 0) settings.texture_list_width = 80;
  settings.texture_list_width = std::min(settings.texture_list_width, 320);
  settings.granularity = 1;  // the texture browser scrolls by single rows, whatever the file says
}

void Store(SavedBy dialog, const Settings& settings, IniFile& ini) {
  std::vector<const SettingKey*> keys;
  for (const SettingKey& key : SettingKeys()) {
    if (key.savedBy == dialog) keys.push_back(&key);
  }
  std::ranges::sort(keys, {}, &SettingKey::place);
  for (const SettingKey* key : keys) ini.set(SectionName(key->section), key->name, TextOf(*key, settings));
}

}  // namespace

Settings LoadSettings(const IniFile& ini) {
  Settings settings;
  for (const SettingKey& key : SettingKeys()) {
    if (const auto text = ini.find(SectionName(key.section), key.name)) ReadKey(key, *text, settings);
  }
  ApplyOddLimits(settings);
  settings.scale = static_cast<float>(0.01 * settings.start_set_scale);
  return settings;
}

void StorePreferences(const Settings& settings, IniFile& ini) {
  Settings saved = settings;
  saved.start_set_scale = std::max(1, Truncate(RoundHalfAway(settings.scale * 100.0)));
  Store(SavedBy::Preferences, saved, ini);
}

void StoreColours(const Settings& settings, IniFile& ini) { Store(SavedBy::Colours, settings, ini); }

void StoreDirectories(const Settings& settings, IniFile& ini) { Store(SavedBy::Directories, settings, ini); }

std::optional<std::string> SettingText(const Settings& settings, std::string_view name) {
  const SettingKey* key = FindSettingKey(name);
  if (!key) return std::nullopt;
  return TextOf(*key, settings);
}

bool SetSettingText(Settings& settings, std::string_view name, const std::string& text) {
  const SettingKey* key = FindSettingKey(name);
  if (!key) return false;
  ReadKey(*key, text, settings);
  ApplyOddLimits(settings);
  return true;
}

}  // namespace velk
