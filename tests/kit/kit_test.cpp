// The starter kit as it stands in the build: everything a first start reads is there and sound.
#include <filesystem>
#include <set>

#include <gtest/gtest.h>

#include "app/editor.h"
#include "base/text.h"
#include "base/tokenizer.h"
#include "commands/command.h"
#include "commands/named_files.h"
#include "entities/entity_class.h"
#include "mapfile/map_reader.h"
#include "support/scripted_prompts.h"
#include "support/temp_folder.h"
#include "textures/texture_manager.h"

namespace velk {
namespace {

const std::string kFolder = std::string(VELK_KIT_FOLDER) + "/";

class Kit : public testing::Test {
 protected:
  Kit() {
    settings_.entity_qc_directory = settings_.wad_directory = kFolder;
    classes_.loadAll(settings_, paths_, prompts_);
  }
  // A prompt means that something was missing.
  ~Kit() override { EXPECT_TRUE(prompts_.choosers.empty()); }

  const IniFile ini_ = IniFile::Load(kFolder + "velk.ini");
  Settings settings_ = LoadSettings(ini_);
  Paths paths_;
  test::ScriptedPrompts prompts_;
  EntityClassList classes_;
};

TEST_F(Kit, SettingsPointAtTheKit) {
  for (const char* key : {"entity_qc_directory", "wad_directory", "map_directory", "bat_directory"}) {
    EXPECT_EQ(ini_.string("Velk", key, ""), ".\\") << key;
  }
  EXPECT_TRUE(std::filesystem::exists(kFolder + settings_.badtex));
  EXPECT_TRUE(settings_.wheel_zoom && settings_.middle_drag && settings_.window_quality);
  EXPECT_EQ(settings_.undo_levels, 100);
}

// Classes of the game's maps, with what the others of their family have in common.
constexpr const char* kPoints =
    "air_bubbles ambient_comp_hum ambient_drip ambient_drone ambient_suck_wind ambient_swamp1 "
    "ambient_swamp2 event_lightning info_intermission info_null info_notnull info_player_coop "
    "info_player_deathmatch info_player_start info_player_start2 info_teleport_destination item_armor1 "
    "item_armor2 item_armorInv item_artifact_envirosuit item_artifact_invisibility "
    "item_artifact_invulnerability item_artifact_super_damage item_cells item_health item_key1 item_key2 "
    "item_rockets item_shells item_sigil item_spikes item_weapon light light_flame_large_yellow "
    "light_flame_small_white light_flame_small_yellow light_fluoro light_fluorospark light_globe "
    "light_torch_small_walltorch misc_explobox misc_explobox2 misc_fireball misc_teleporttrain "
    "monster_army monster_boss monster_demon1 monster_dog monster_enforcer monster_fish "
    "monster_hell_knight monster_knight monster_ogre monster_oldone monster_shalrath monster_shambler "
    "monster_tarbaby monster_wizard monster_zombie path_corner trap_shooter trap_spikeshooter "
    "trigger_relay weapon_grenadelauncher weapon_lightning weapon_nailgun weapon_rocketlauncher "
    "weapon_supernailgun weapon_supershotgun";
constexpr const char* kSolids =
    "func_bossgate func_button func_door func_door_secret func_episodegate func_illusionary func_plat "
    "func_train func_wall trigger_changelevel trigger_counter trigger_hurt trigger_monsterjump "
    "trigger_multiple trigger_once trigger_onlyregistered trigger_push trigger_secret trigger_setskill "
    "trigger_teleport worldspawn";

TEST_F(Kit, EveryClassOfTheGameIsDefined) {
  for (const std::string& name : Split(kPoints, ' ')) {
    const EntityClass& found = classes_.findByName(name);
    EXPECT_TRUE(classes_.isKnown(found) && found.fixedSize) << name;
  }
  for (const std::string& name : Split(kSolids, ' ')) {
    const EntityClass& found = classes_.findByName(name);
    EXPECT_TRUE(classes_.isKnown(found) && !found.fixedSize) << name;
  }
}

TEST_F(Kit, NoClassIsMalformedOrTwice) {
  std::set<std::string> names;
  for (int i = 0; i < classes_.count(); ++i) {
    const EntityClass& c = classes_.classAt(i);
    EXPECT_TRUE(names.insert(c.name).second) << c.name;
    EXPECT_TRUE(c.comments && !c.comments->empty()) << c.name;
    for (size_t axis = 0; c.fixedSize && axis < 3; ++axis) EXPECT_LT(c.mins[axis], c.maxs[axis]) << c.name;
  }
  const EntityClass& door = classes_.findByName("func_door");
  EXPECT_EQ(door.flagName(0), "START_OPEN");
  EXPECT_EQ(door.flagName(5), "TOGGLE");
  EXPECT_EQ(classes_.findByName("monster_zombie").flagName(1), "AMBUSH");
}

class KitTextures : public Kit {
 protected:
  TextureManager textures_{{settings_, paths_, prompts_}};
};

TEST_F(KitTextures, WadHoldsTextures) {
  const Wad& wad = textures_.openWad(settings_.default_wad, {});
  EXPECT_GE(wad.count(), 48);
  for (const auto& texture : wad.textures) {
    EXPECT_TRUE(texture->width % 16 == 0 && texture->height % 16 == 0) << texture->name;
    EXPECT_FALSE(texture->pixels.empty()) << texture->name;
  }
}

// Row 32 leaves colours as they are, row 63 is black, and the last 32 colours glow in every row.
TEST_F(KitTextures, LightTableFits) {
  const auto table = loadColormap({settings_, paths_, prompts_});
  ASSERT_TRUE(table);
  const auto lit = [&](size_t row, size_t colour) {
    return size_t{(*table)[row * PALETTE_COLOURS + colour]};
  };
  for (size_t colour = 0; colour < PALETTE_COLOURS; ++colour) {
    EXPECT_EQ(lit(32, colour), colour);
    const bool glows = colour >= 224;
    EXPECT_EQ(lit(0, colour) == colour && lit(63, colour) == colour, glows || colour == 0) << colour;
  }
}

TEST_F(KitTextures, MapIsSound) {
  map m(settings_, classes_);
  const MapReadResult read = ReadMapFile(m, kFolder + "start.map", {});
  EXPECT_TRUE(read.complete && read.camerasRead);
  EXPECT_EQ(read.cutPoints + read.invalidBrushes + read.brushesOfFixedSize, 0);
  TextureSet set(textures_.badtex());
  textures_.openMapWads(m, set, {});
  bool start = false;
  for (const entity& e : m.entities()) {
    EXPECT_TRUE(classes_.isKnown(e.entityClass())) << e.valueOfKey("classname");
    start = start || e.valueOfKey("classname") == "info_player_start";
    for (const brush& b : e.brushes()) {
      EXPECT_FALSE(b.invalid);
      for (const face& f : b.faces()) {
        EXPECT_TRUE(f.polygon);
        EXPECT_TRUE(!e.isModel || set.findTexture(f.texture.name)) << f.texture.name;
      }
    }
  }
  EXPECT_TRUE(start);
}

TEST_F(Kit, BarsHoldCommandsOnly) {
  const std::string text = LoadFile(paths_, kFolder + "velkbars.ini");
  Tokenizer tokens(text);
  ASSERT_TRUE(tokens.GetScriptToken(true) && tokens.token() == "bars" && tokens.GetScriptToken(false));
  int gadgets = 0;
  for (; tokens.GetScriptToken(true); ++gadgets) {
    ASSERT_TRUE(tokens.token() == "bar" && tokens.GetScriptToken(false) && tokens.GetScriptToken(false));
    const bool other = tokens.token() == "Separator" || tokens.token() == "TextureList";
    EXPECT_TRUE(other || FindCommand(tokens.token())) << tokens.token();
  }
  EXPECT_GT(gadgets, 20);
}

// With nothing of Velk's on the machine: the kit is copied and nothing is asked.
TEST_F(Kit, FirstStartNeedsNoAnswer) {
  const test::TempFolder folder;
  const Surroundings bare{folder.path(), folder.directory("home"), "", ""};
  Observer nobody;
  Editor editor(FindPlace(bare, kFolder), prompts_, nobody);
  editor.start();
  EXPECT_EQ(editor.documents().status(), "Welcome to Velk...");
  OpenNamed(editor, folder.directory("home") + "start.map");
  ASSERT_TRUE(editor.documents().current());
  EXPECT_GE(editor.documents().current()->textures.count(), 48);
  EXPECT_TRUE(prompts_.asked.empty());
}

}  // namespace
}  // namespace velk
