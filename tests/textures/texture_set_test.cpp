#include "textures/texture_set.h"

#include <gtest/gtest.h>

#include "support/builders.h"
#include "support/declining_prompts.h"
#include "support/temp_folder.h"
#include "support/wad_builder.h"
#include "textures/texture_manager.h"

namespace velk {
namespace {

using Names = std::vector<std::string>;

struct TextureSetTest : test::MapTest {
  TextureSetTest() { settings.wad_directory = folder.directory(); }

  // Writes a wad of textures with these names.
  void wad(const std::string& file, const Names& names, int pixel = 7) {
    test::WadBuilder builder;
    for (const std::string& name : names) builder.texture(name, 2, 2, pixel);
    folder.write(file, builder.palette().bytes());
  }
  void open(const std::string& wads) {
    m.world()->setKey("wad", wads);
    manager.openMapWads(m, set, {});
  }
  Names names() const {
    Names all;
    for (int i = 0; i < set.count(); ++i) all.push_back(set.at(i).texture->name);
    return all;
  }

  test::TempFolder folder;
  Paths paths;
  test::DecliningPrompts prompts;
  TextureManager manager{{settings, paths, prompts}};
  TextureSet set{manager.badtex()};
};

TEST_F(TextureSetTest, OfEqualNamesTheFirstWadsIsTaken) {
  wad("a.wad", {"wall2", "wall1"}, 1);
  wad("b.wad", {"wall1", "floor"}, 2);
  open("b.wad;a.wad");
  EXPECT_EQ(names(), (Names{"FLOOR", "WALL1", "WALL2"}));
  EXPECT_EQ(set.findTexture("Wall1")->pixels[0], 2);
  EXPECT_EQ(set.findTexture("wall3"), nullptr);
  EXPECT_EQ(manager.paletteWad(&set)->path, folder.directory() + "b.wad");
}

TEST_F(TextureSetTest, FramesStandBehindTheHeadOfTheirAnimation) {
  wad("a.wad", {"+alava", "+1lava", "+0lava", "*lava", "lava", "+0alone", "@0fire", "+1fire", "+"});
  open("a.wad");
  EXPECT_EQ(names(), (Names{"+", "+0ALONE", "+1FIRE", "*LAVA", "+0LAVA", "LAVA"}));
  const SetTexture& lava = set.at(set.find("+aLava"));
  EXPECT_EQ(lava.texture->name, "+0LAVA");
  EXPECT_EQ(lava.frames.size(), 3u);
  EXPECT_FALSE(set.at(set.find("+0alone")).animated());
  EXPECT_EQ(set.indexOf("+1lava"), -1);
  EXPECT_EQ(set.makeTextureRef("+1lava")->name, "+0LAVA");
}

TEST_F(TextureSetTest, LongNamesLeadToTheirFirstFifteenLetters) {
  wad("a.wad", {"abcdefghijklmno", "short"});
  open("a.wad");
  EXPECT_EQ(set.indexOf("abcdefghijklmnop"), set.find("ABCDEFGHIJKLMNO"));
  EXPECT_EQ(set.find("abcdefghijklmnxp"), -1);
  EXPECT_EQ(set.find("shorter"), -1);
}

TEST_F(TextureSetTest, ReferencesShareThePixels) {
  EXPECT_EQ(set.makeTextureRef("wall"), nullptr);
  wad("a.wad", {"wall"}, 100);
  open("a.wad");
  const auto ref = set.makeTextureRef("wall");
  EXPECT_EQ(ref->pixels, set.findTexture("WALL")->pixels.data());
  EXPECT_EQ(ref->colour, (std::array<unsigned char, 4>{177, 177, 177, 0}));
  EXPECT_EQ(ref->paletteIndex, 177);
  const auto bad = set.makeTextureRef("none");
  EXPECT_EQ(bad->name, "badtex");
  EXPECT_EQ(bad->width, 32);
  EXPECT_EQ(bad->paletteIndex, 255);
  EXPECT_GE(bad->pixels[0], 127);
}

TEST_F(TextureSetTest, MapsShareWads) {
  wad("gfx/a.wad", {"wall"});
  wad("b.wad", {"floor"});
  settings.default_wad = "gfx\\a.wad;";
  manager.loadDefaultWads({});
  open(" A.WAD ;; b.wad;a.wad;a.wad;a.wad;a.wad;a.wad;a.wad;the ninth");
  EXPECT_TRUE(prompts.choosers.empty());
  ASSERT_EQ(manager.wads().size(), 2u);
  EXPECT_EQ(manager.current()->path, folder.directory() + "b.wad");
  EXPECT_EQ(set.wads()[0], manager.wads()[1].get());

  settings.brush_outline = {9, 9, 9};
  manager.remapOutlineColours();
  EXPECT_EQ(manager.wads()[1]->outlines.brush, 9);
}

TEST_F(TextureSetTest, FavouritesAreTheMapsOrTheFirstOfTheSet) {
  wad("a.wad", {"a", "b", "+0c", "+1c", "d"});
  settings.numfav = 2;
  open("a.wad");
  EXPECT_EQ(m.favourites, (Names{"A", "B"}));
  m.favourites = {"none", "+1c", "d", "a"};
  open("a.wad");
  EXPECT_EQ(m.favourites, (Names{"+0C", "D"}));
  EXPECT_EQ(FavouriteAt(m, set, 1), set.find("d"));
  settings.careful_tools = true;
  m.favourites = {"none", "d"};
  open("a.wad");
  EXPECT_EQ(m.favourites, (Names{"none", "D"}));
  EXPECT_EQ(FavouriteAt(m, set, 0), -1);
  settings.careful_tools = false;
  open("a.wad");
  EXPECT_EQ(m.favourites, (Names{"D", ""}));
  EXPECT_EQ(FavouriteAt(m, set, 2), -1);

  m.favourites.clear();
  SetFavourite(m, 2, "A");  // beyond the row
  SetFavourite(m, 1, "A");
  EXPECT_EQ(m.favourites, (Names{"", "A"}));
  EXPECT_EQ(FavouriteAt(m, set, 0), -1);
}

TEST_F(TextureSetTest, FrequentsAreThoseUsedMost) {
  wad("a.wad", {"a", "b", "c", "+0d", "+1d", "e"});
  open("a.wad");
  recalculateFrequents(m, set);
  EXPECT_TRUE(set.frequents.empty());

  // Frames do not count for their head.
  for (const auto& [texture, count] :
       {std::pair{"A", 5}, {"b", 5}, {"c", 7}, {"e", 5}, {"+1d", 9}, {"none", 9}}) {
    for (int i = 0; i < count; ++i) box({0, 0, 0}, {8, 8, 8}, texture);
  }
  recalculateFrequents(m, set);
  EXPECT_EQ(set.frequents, (std::vector{2, 1, 0, 4}));
  EXPECT_EQ(set.at(2).useCount, 42);
}

}  // namespace
}  // namespace velk
