// The starter kit as it stands in the build: everything a first start reads is there and sound.
#include <algorithm>
#include <filesystem>
#include <set>

#include <gtest/gtest.h>

#include "app/editor.h"
#include "base/files.h"
#include "base/text.h"
#include "commands/bars.h"
#include "commands/files/named_files.h"
#include "entities/entity_class.h"
#include "mapfile/map_reader.h"
#include "mouse/operations.h"
#include "support/declining_prompts.h"
#include "support/temp_folder.h"
#include "textures/texture_manager.h"

namespace velk {
namespace {

const std::string kFolder = std::string(VELK_KIT_FOLDER) + "/";

class Kit : public testing::Test {
 protected:
  Kit() {
    settings.entity_qc_directory = settings.wad_directory = kFolder;
    classes.loadAll(settings, paths, prompts);
  }
  // A prompt means that something was missing.
  ~Kit() override { EXPECT_TRUE(prompts.choosers.empty()); }

  const IniFile ini = IniFile::Load(kFolder + "velk.ini");
  Settings settings = LoadSettings(ini);
  Paths paths;
  test::DecliningPrompts prompts;
  EntityClassList classes;
};

TEST_F(Kit, SettingsPointAtTheKit) {
  for (const char* key : {"entity_qc_directory", "wad_directory", "map_directory", "bat_directory"}) {
    EXPECT_EQ(ini.string("Velk", key, ""), ".\\") << key;
  }
  EXPECT_TRUE(std::filesystem::exists(kFolder + settings.badtex));
  EXPECT_TRUE(settings.wheel_zoom && settings.middle_drag && settings.window_quality);
  EXPECT_EQ(settings.undo_levels, 100);
}

// Every operation is on some button, and no binding names what there is not.
TEST_F(Kit, BindingsNameEveryOperation) {
  for (const auto& [file, operations] :
       {std::pair{"velkmouse.ini", PlanOperations()}, std::pair{"velkmou3D.ini", CameraOperations()}}) {
    const MouseBindings bindings = loadMouseBindings(file, {kFolder});
    std::set<int> bound;
    for (const MouseSetup& setup : bindings.setups) {
      for (const MouseBinding& binding : setup.bindings) {
        for (const std::string& name : binding.names) bound.insert(lookupOperation(operations, name));
      }
    }
    EXPECT_EQ(bound.count(0), 0u) << file;
    EXPECT_EQ(bound.size(), operations.size()) << file;
  }
}

TEST_F(Kit, NoClassIsMalformedOrTwice) {
  std::set<std::string> names;
  for (int i = 0; i < classes.count(); ++i) {
    const EntityClass& c = classes.classAt(i);
    EXPECT_TRUE(names.insert(c.name).second) << c.name;
    EXPECT_TRUE(c.comments && !c.comments->empty()) << c.name;
    for (size_t axis = 0; c.fixedSize && axis < 3; ++axis) EXPECT_LT(c.mins[axis], c.maxs[axis]) << c.name;
  }
  EXPECT_GE(names.size(), 87u) << "every class of the game's maps";
  const EntityClass& door = classes.findByName("func_door");
  EXPECT_EQ(door.flagName(0), "START_OPEN");
  EXPECT_EQ(door.flagName(5), "TOGGLE");
  EXPECT_EQ(classes.findByName("monster_zombie").flagName(1), "AMBUSH");
}

class KitTextures : public Kit {
 protected:
  TextureManager textures_{{settings, paths, prompts}};
};

TEST_F(KitTextures, WadHoldsTextures) {
  const Wad& wad = textures_.openWad(settings.default_wad, {});
  EXPECT_GE(wad.count(), 48);
  for (const auto& texture : wad.textures) {
    EXPECT_TRUE(texture->width % 16 == 0 && texture->height % 16 == 0) << texture->name;
    EXPECT_FALSE(texture->pixels.empty()) << texture->name;
  }
}

// Row 32 leaves colours as they are, row 63 is black, and the last 32 colours glow in every row.
TEST_F(KitTextures, LightTableFits) {
  const auto table = loadColormap({settings, paths, prompts});
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
  map m(settings, classes);
  const MapReadResult read = ReadMapFile(m, kFolder + "start.map", {});
  EXPECT_TRUE(read.complete && read.camerasRead);
  EXPECT_EQ(read.cutPoints + read.invalidBrushes + read.brushesOfFixedSize, 0);
  TextureSet set(textures_.badtex());
  textures_.openMapWads(m, set, {});
  bool start = false;
  for (const entity& e : m.entities()) {
    EXPECT_TRUE(classes.isKnown(e.entityClass())) << e.valueOfKey("classname");
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

// Reading ends at the first line that names no command.
TEST_F(Kit, BarsHoldCommandsOnly) {
  size_t gadgets = 0;
  for (const ButtonBar& bar : LoadButtonBars(kFolder)) gadgets += bar.size();
  const std::vector<std::string> lines = Split(LoadFile(paths, kFolder + "velkbars.ini"), '\n');
  EXPECT_EQ(gadgets, std::ranges::count_if(lines, [](const auto& l) { return l.starts_with("bar "); }));
  EXPECT_GT(gadgets, 20u);
}

// With nothing of Velk's on the machine: the kit is copied and nothing is asked.
TEST_F(Kit, FirstStartNeedsNoAnswer) {
  const test::TempFolder folder;
  const Surroundings bare{folder.path(), folder.directory("home"), "", ""};
  Observer nobody;
  Editor editor(FindPlace(bare, kFolder), prompts, nobody);
  editor.start();
  EXPECT_EQ(editor.documents().status(), "Welcome to Velk...");
  OpenNamed(editor, folder.directory("home") + "start.map");
  ASSERT_TRUE(editor.documents().current());
  EXPECT_GE(editor.documents().current()->textures.count(), 48);
}

}  // namespace
}  // namespace velk
