// Feeds any bytes to the reader of velk.ini. What it keeps of them must lie within the limits, and be the
// same when it was saved and read again.
#include "settings/settings.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <variant>

#include "base/ini_file.h"
#include "require.h"
#include "settings/key_table.h"

namespace {

void RequireLimits(const velk::Settings& settings, const velk::SettingKey& key) {
  const auto* member = std::get_if<int velk::Settings::*>(&key.member);
  // Odd limits of single keys are not in the table.
  if (!member || key.limits.low >= key.limits.high) return;
  if (*member == &velk::Settings::texture_list_width || *member == &velk::Settings::granularity) return;
  const int value = settings.**member;
  Require(value >= key.limits.low && value <= key.limits.high, key.name);
}

// Every value can be said in text, and the text gives it back.
void RequireTextForms(const velk::Settings& settings) {
  velk::Settings again;
  for (const velk::SettingKey& key : velk::SettingKeys()) {
    const std::optional<std::string> text = velk::SettingText(settings, key.name);
    Require(text && velk::SetSettingText(again, key.name, *text), key.name);
    Require(velk::SettingText(again, key.name) == text, key.name);
  }
}

void RequireSameAfterSave(const velk::Settings& settings, velk::IniFile ini) {
  velk::StorePreferences(settings, ini);
  velk::StoreColours(settings, ini);
  velk::StoreDirectories(settings, ini);
  const velk::Settings again = velk::LoadSettings(velk::IniFile::Parse(ini.text()));
  for (const velk::SettingKey& key : velk::SettingKeys()) {
    Require(velk::SettingText(again, key.name) == velk::SettingText(settings, key.name), key.name);
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, size_t size) {
  const std::string_view text(reinterpret_cast<const char*>(data), size);
  const velk::IniFile ini = velk::IniFile::Parse(text);
  Require(ini.text() == text, "reading changed the file");
  const velk::Settings settings = velk::LoadSettings(ini);
  for (const velk::SettingKey& key : velk::SettingKeys()) RequireLimits(settings, key);
  // Saving is slow beside reading, and says as much on every third input.
  if (size % 3 == 0) RequireTextForms(settings);
  if (size % 3 == 1) RequireSameAfterSave(settings, ini);
  return 0;
}
