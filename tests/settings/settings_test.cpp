#include "settings/settings.h"

#include <map>
#include <set>
#include <sstream>

#include <gtest/gtest.h>

#include "base/text.h"
#include "settings/key_table.h"

namespace velk {
namespace {

struct DialogFiles {
  explicit DialogFiles(const Settings& settings) {
    StorePreferences(settings, preferences);
    StoreColours(settings, colours);
    StoreDirectories(settings, directories);
  }
  IniFile preferences, colours, directories;
};

TEST(SettingsTest, ValueForms) {
  const struct {
    const char* key;
    std::vector<std::pair<std::string, std::string>> held;  // as written, as held
  } cases[] = {
      {"gridsize", {{"16 units", "16"}, {"x", "8"}, {"", "8"}, {"0", "1"}}},
      {"far_clip_distance", {{"-100", "-100"}, {"5", "-2"}}},
      {"stepsize", {{"32.9", "32"}, {"x", "64"}, {"0", "1"}}},
      {"show_grid", {{"7", "1"}}},
      {"show_coordinates", {{"0", "0"}, {"off", "1"}}},
      {"newmap", {{"", "NEWMAP.MAP"}}},
      {"wad_directory", {{"c:\\wads", "c:\\wads\\"}, {"/wads/", "/wads/"}, {"", "c:\\qbsp\\"}}},
      {"texture_list_width", {{"-5", "80"}, {"500", "320"}, {"0", "0"}}},
      {"flatlevel", {{"70", "63"}}},
      {"lightintensity", {{"-3", "0"}}},
      {"ambientintensity", {{"64", "63"}}},
      {"min_epsilon", {{"0", "1e-06"}}},
      {"max_epsilon", {{".25", "0.25"}}},
      {"distance_epsilon", {{"x", "1"}}},
      {"face_drag_percent", {{"29", "29"}, {"90", "49"}}},
      {"steps_per_turn", {{"0", "4"}}},
      {"gammashift", {{"999999999999", "128"}}},
      {"granularity", {{"40", "1"}}},
      {"drag_brushes", {{"2", "2"}}},
      {"undo_levels", {{"5000", "1000"}}},
      {"brush_outline", {{"10 20", "10 20 255"}, {"0x10,2", "16 255 255"}, {"-5 999 x", "0 255 255"}}},
      {"START_SET->SCALE", {{"50", "50"}}},
  };
  for (const auto& [key, texts] : cases) {
    for (const auto& [text, held] : texts) {
      SCOPED_TRACE(key + ("=" + text));
      IniFile ini;
      ini.set("velk", key, text);
      EXPECT_EQ(SettingText(LoadSettings(ini), key), held);
      Settings settings;
      EXPECT_TRUE(SetSettingText(settings, key, text));
      EXPECT_EQ(SettingText(settings, key), held);
    }
  }
  Settings settings;
  EXPECT_EQ(SettingText(settings, "no_such_key"), std::nullopt);
  EXPECT_FALSE(SetSettingText(settings, "no_such_key", "1"));
}

TEST(SettingsTest, LongTextsAreCutAndLongPathsAreNot) {
  const std::string text(300, 'x');
  Settings settings;
  for (const char* key : {"newmap", "entities", "badtex", "map_directory"})
    SetSettingText(settings, key, text);
  EXPECT_EQ(settings.newmap, text.substr(0, 127));
  EXPECT_EQ(settings.entities, text.substr(0, 127));
  EXPECT_EQ(settings.badtex, text);
  EXPECT_EQ(settings.map_directory, text + "\\");
}

// Finds a key bound to another's member, a key named twice and limits that exclude the default.
TEST(SettingsTest, EveryKeyIsItsOwn) {
  std::set<std::string> names;
  for (const SettingKey& key : SettingKeys()) {
    EXPECT_TRUE(names.insert(LowerCase(key.name)).second) << key.name;
    Settings settings;
    const std::string before = *SettingText(settings, key.name);
    const bool on = key.form == KeyForm::Flag && before == "1";
    SetSettingText(settings, key.name, on ? "0" : "2 2 2");
    if (!EqualNoCase(key.name, "granularity")) {
      EXPECT_NE(*SettingText(settings, key.name), before) << key.name;
    }
    SetSettingText(settings, key.name, before);
    settings.granularity = Settings().granularity;
    for (const SettingKey& other : SettingKeys()) {
      // An empty text keeps what there is.
      if (&other == &key && before.empty()) continue;
      EXPECT_EQ(SettingText(settings, other.name), SettingText(Settings(), other.name))
          << key.name << ", " << other.name;
    }
  }
}

TEST(SettingsTest, PlacesOfADialogAreOneToN) {
  std::map<SavedBy, std::set<int>> places;
  for (const SettingKey& key : SettingKeys()) {
    if (key.savedBy == SavedBy::Nobody) continue;
    EXPECT_TRUE(places[key.savedBy].insert(key.place).second) << key.name;
  }
  for (const auto& [dialog, used] : places) EXPECT_EQ(*used.rbegin(), static_cast<int>(used.size()));
}

TEST(SettingsTest, SavedValuesComeBack) {
  Settings settings;
  for (const SettingKey& key : SettingKeys()) {
    const bool on = key.form == KeyForm::Flag && SettingText(settings, key.name) == "1";
    if (key.savedBy != SavedBy::Nobody) SetSettingText(settings, key.name, on ? "0" : " 2 2 2 ");
  }
  settings.face_drag_percent = 0.29;
  settings.stepsize = 12.75f;
  settings.scale = 0.125f;
  SetSettingText(settings, "start_set->scale", "13");
  const DialogFiles files(settings);
  Settings loaded = LoadSettings(
      IniFile::Parse(files.preferences.text() + files.colours.text() + files.directories.text()));
  EXPECT_DOUBLE_EQ(loaded.face_drag_percent, 0.29);
  EXPECT_EQ(loaded.stepsize, 12);
  EXPECT_FLOAT_EQ(loaded.scale, 0.13f);
  loaded.stepsize = settings.stepsize;
  for (const SettingKey& key : SettingKeys()) {
    if (key.savedBy == SavedBy::Nobody) continue;
    EXPECT_EQ(SettingText(loaded, key.name), SettingText(settings, key.name)) << key.name;
  }
}

}  // namespace
}  // namespace velk
