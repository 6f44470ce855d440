#include "settings/settings.h"

#include <algorithm>
#include <cstdio>

#include "base/paths.h"
#include "base/text.h"
#include "settings/keytable.h"

namespace velk {
namespace {

constexpr const char* kVelk = "Velk";
constexpr const char* kVelkColors = "VelkColors";
constexpr size_t kMaxText = 127;

constexpr const char* kPreferenceKeys[] = {
    "drag_vertex",       "lightintensity",    "ambientintensity", "vertex_drag_sensitivity",
    "face_drag_percent", "select_delta",      "steps_per_turn",   "gridsize",
    "stepsize",          "far_clip_distance", "gammashift",       "texture_width",
    "texture_height",    "height_frq",        "height_fav",       "velk_font_size",
    "velk_font",         "start_set->scale",  "show_tabs",        "vertex_use_grid",
    "groupmode",         "show_grid",         "show_coordinates", "show_names",
    "showeye",           "stretch_textures",  "query_wall_width", "show_favorites",
    "show_frequent",     "show_cameras",      "multi_select",     "texture_alignment",
    "shadetextures",     "shadeflats",        "lock_cameras"};
constexpr const char* kDirectoryKeys[] = {
    "map_directory", "entity_qc_directory", "wad_directory", "bat_directory", "badtex",
    "newmap",        "default_wad",         "entities"};
constexpr const char* kOutlineKeys[] = {"brush_outline", "select_outline", "face_outline"};

// The member in the record, whether it lies in the record itself or among its colours.
template <typename Record, typename T>
auto& valueOf(Record& settings, T Settings::*member) {
  return settings.*member;
}
template <typename Record>
auto& valueOf(Record& settings, Colour ViewColours::*member) {
  return settings.colours.*member;
}

Colour parseColour(const std::string& text, Colour colour) {
  std::sscanf(text.c_str(), "%i %i %i", &colour.red, &colour.green, &colour.blue);
  for (int* channel : {&colour.red, &colour.green, &colour.blue}) *channel = std::clamp(*channel, 0, 255);
  return colour;
}

int limited(const SettingKey& key, const std::string& text) {
  return std::clamp(TextToInt(text), key.low, key.high);
}

void assign(const SettingKey& key, const std::string& text, std::string& value) {
  if (text.empty()) return;
  value = text.substr(0, kMaxText);
  if (key.form == KeyForm::Directory) value = WithSeparator(value);
}
void assign(const SettingKey&, const std::string& text, Colour& value) {
  if (!text.empty()) value = parseColour(text, value);
}
void assign(const SettingKey&, const std::string& text, bool& value) { value = TextToInt(text) != 0; }
void assign(const SettingKey& key, const std::string& text, int& value) { value = limited(key, text); }
void assign(const SettingKey& key, const std::string& text, double& value) {
  value = limited(key, text) * 0.01;
}
void assign(const SettingKey& key, const std::string& text, float& value) {
  if (key.form == KeyForm::Number) {
    value = static_cast<float>(limited(key, text));
  } else if (const double number = TextToDouble(text); number > 0) {
    value = static_cast<float>(number);
  }
}

std::string written(const SettingKey&, const std::string& value) { return value; }
std::string written(const SettingKey&, const Colour& value) {
  return Format("%i %i %i", value.red, value.green, value.blue);
}
std::string written(const SettingKey&, bool value) { return value ? "1" : "0"; }
std::string written(const SettingKey&, int value) { return Format("%i", value); }
// The rounding guards against fractions that lie just below their hundredth.
std::string written(const SettingKey&, double value) { return Format("%i", Truncate(value * 100 + 1e-9)); }
std::string written(const SettingKey& key, float value) {
  return key.form == KeyForm::Number ? Format("%i", Truncate(value)) : Format("%g", double(value));
}

std::string textOf(const Settings& settings, const SettingKey& key) {
  return std::visit([&](auto member) { return written(key, valueOf(settings, member)); }, key.member);
}

void readKeys(std::span<const SettingKey> keys, const char* section, const IniFile& ini, Settings& settings) {
  for (const SettingKey& key : keys) {
    const auto text = ini.find(section, key.name);
    if (text) std::visit([&](auto member) { assign(key, *text, valueOf(settings, member)); }, key.member);
  }
}

const SettingKey* findKey(std::string_view name) {
  for (const auto keys : {VelkKeys(), ColourKeys()}) {
    for (const SettingKey& key : keys) {
      if (EqualNoCase(key.name, name)) return &key;
    }
  }
  return nullptr;
}

void store(std::span<const char* const> names, const Settings& settings, IniFile& ini) {
  for (const char* name : names) ini.set(kVelk, name, textOf(settings, *findKey(name)));
}

// Rules that are not a plain range.
void applyOddLimits(Settings& settings) {
  if (settings.texture_list_width < 0) settings.texture_list_width = 80;
  settings.texture_list_width = std::min(settings.texture_list_width, 320);
  settings.granularity = 1;  // the classic scroll step, whatever the file says
  settings.scale = static_cast<float>(0.01 * settings.start_set_scale);
}

}  // namespace

Settings LoadSettings(const IniFile& ini) {
  Settings settings;
  readKeys(VelkKeys(), kVelk, ini, settings);
  readKeys(ColourKeys(), kVelkColors, ini, settings);
  applyOddLimits(settings);
  return settings;
}

void StorePreferences(const Settings& settings, IniFile& ini) {
  Settings saved = settings;
  saved.start_set_scale = std::max(1, Truncate(RoundHalfAway(settings.scale * 100.0)));
  store(kPreferenceKeys, saved, ini);
}

void StoreDirectories(const Settings& settings, IniFile& ini) { store(kDirectoryKeys, settings, ini); }

void StoreColours(const Settings& settings, IniFile& ini) {
  for (const SettingKey& key : ColourKeys()) ini.set(kVelkColors, key.name, textOf(settings, key));
  store(kOutlineKeys, settings, ini);
}

std::optional<std::string> SettingText(const Settings& settings, std::string_view name) {
  const SettingKey* key = findKey(name);
  if (!key) return std::nullopt;
  return textOf(settings, *key);
}

}  // namespace velk
