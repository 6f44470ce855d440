#include "settings/settings.h"

#include <map>
#include <set>
#include <sstream>

#include <gtest/gtest.h>

#include "base/text.h"
#include "settings/keytable.h"

namespace velk {
namespace {

std::vector<std::string> KeysOf(const IniFile& ini) {
  std::vector<std::string> keys;
  for (const std::string& line : Split(ini.text(), '\n')) {
    if (!line.empty()) keys.push_back(line.substr(0, line.find('=')));
  }
  return keys;
}

TEST(SettingsTest, ValueForms) {
  const struct {
    const char *key, *text, *held;
  } cases[] = {
      {"gridsize", "16 units", "16"},
      {"gridsize", "x", "8"},
      {"gridsize", "", "8"},
      {"gridsize", "0", "1"},
      {"far_clip_distance", "-100", "-100"},
      {"far_clip_distance", "5", "-2"},
      {"stepsize", "32.9", "32"},
      {"stepsize", "0", "1"},
      {"show_grid", "7", "1"},
      {"show_coordinates", "0", "0"},
      {"show_coordinates", "off", "1"},
      {"newmap", "", "NEWMAP.MAP"},
      {"wad_directory", "c:\\wads", "c:\\wads\\"},
      {"wad_directory", "/wads/", "/wads/"},
      {"wad_directory", "", "c:\\qbsp\\"},
      {"texture_list_width", "-5", "80"},
      {"texture_list_width", "500", "320"},
      {"texture_list_width", "0", "0"},
      {"flatlevel", "70", "63"},
      {"lightintensity", "-3", "0"},
      {"ambientintensity", "64", "63"},
      {"min_epsilon", "0", "1e-06"},
      {"min_epsilon", "-1", "1e-06"},
      {"max_epsilon", ".25", "0.25"},
      {"distance_epsilon", "x", "1"},
      {"face_drag_percent", "29", "29"},
      {"face_drag_percent", "90", "49"},
      {"steps_per_turn", "0", "4"},
      {"gammashift", "999999999999", "128"},
      {"granularity", "40", "1"},
      {"drag_brushes", "2", "2"},
      {"undo_levels", "5000", "1000"},
      {"brush_outline", "1 2 3", "1 2 3"},
      {"brush_outline", "10 20", "10 20 255"},
      {"brush_outline", "0x10,2", "16 255 255"},
      {"brush_outline", "-5 999 x", "0 255 255"},
      {"brush_outline", "", "255 255 255"},
      {"START_SET->SCALE", "50", "50"},
  };
  for (const auto& c : cases) {
    IniFile ini;
    ini.set("velk", c.key, c.text);
    EXPECT_EQ(SettingText(LoadSettings(ini), c.key), c.held) << c.key << "=" << c.text;
    Settings settings;
    EXPECT_TRUE(SetSettingText(settings, c.key, c.text));
    EXPECT_EQ(SettingText(settings, c.key), c.held) << c.key << "=" << c.text;
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

TEST(SettingsTest, AnEmptyFileGivesTheDefaults) {
  const Settings loaded = LoadSettings(IniFile());
  Settings defaults;
  defaults.granularity = 1;
  for (const SettingKey& key : SettingKeys()) {
    EXPECT_EQ(SettingText(loaded, key.name), SettingText(defaults, key.name)) << key.name;
  }
  EXPECT_EQ(loaded.scale, 1.0f);
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
      EXPECT_EQ(SettingText(settings, other.name), SettingText(Settings(), other.name))
          << key.name << ", " << other.name;
    }
  }
}

TEST(SettingsTest, DialogsSaveTheirKeysInOrder) {
  const Settings settings;
  IniFile preferences, colours, directories;
  StorePreferences(settings, preferences);
  StoreColours(settings, colours);
  StoreDirectories(settings, directories);
  const std::vector<std::string> preferenceKeys = KeysOf(preferences);
  ASSERT_EQ(preferenceKeys.size(), 39u);
  EXPECT_EQ(preferenceKeys[1], "drag_vertex");
  EXPECT_EQ(preferenceKeys[18], "start_set->scale");
  EXPECT_EQ(preferenceKeys[35], "lock_cameras");
  EXPECT_EQ(KeysOf(colours), std::vector<std::string>({"[VelkColors]",
                                                       "fgcolor",
                                                       "bgcolor",
                                                       "majorgrid",
                                                       "minorgrid",
                                                       "color_gridlabel",
                                                       "color_currentclipface",
                                                       "color_otherclipface",
                                                       "color_clipborder",
                                                       "color_connection",
                                                       "color_selection",
                                                       "color_otherbrush",
                                                       "color_hitcolor",
                                                       "color_curfacecolor",
                                                       "color_textureselection",
                                                       "color_activecamera",
                                                       "color_othercamera",
                                                       "color_eyemarker",
                                                       "[Velk]",
                                                       "brush_outline",
                                                       "select_outline",
                                                       "face_outline"}));
  EXPECT_EQ(KeysOf(directories),
            std::vector<std::string>({"[Velk]", "map_directory", "entity_qc_directory", "wad_directory",
                                      "bat_directory", "badtex", "newmap", "default_wad", "entities"}));
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
  settings.lock_cameras = true;
  settings.texture_alignment = 0;
  settings.face_drag_percent = 0.29;
  settings.stepsize = 12.75f;
  settings.scale = 0.125f;
  settings.velk_font = " Sans ";
  settings.entities = "a.qc;b.qc";
  settings.colours.majorgrid = {1, 2, 3};
  settings.face_outline = {4, 5, 6};
  IniFile ini;
  StorePreferences(settings, ini);
  StoreColours(settings, ini);
  StoreDirectories(settings, ini);
  const Settings loaded = LoadSettings(IniFile::Parse(ini.text()));
  EXPECT_TRUE(loaded.lock_cameras);
  EXPECT_EQ(loaded.texture_alignment, 0);
  EXPECT_DOUBLE_EQ(loaded.face_drag_percent, 0.29);
  EXPECT_EQ(loaded.stepsize, 12);
  EXPECT_FLOAT_EQ(loaded.scale, 0.13f);
  EXPECT_EQ(loaded.velk_font, " Sans ");
  EXPECT_EQ(loaded.entities, "a.qc;b.qc");
  EXPECT_EQ(loaded.colours.majorgrid, (Colour{1, 2, 3}));
  EXPECT_EQ(loaded.face_outline, (Colour{4, 5, 6}));
}

}  // namespace
}  // namespace velk
