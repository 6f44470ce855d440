#include "panels/textures/texture_panel.h"

#include <gtest/gtest.h>

#include "panels/textures/thumbnail_painter.h"
#include "support/session.h"

namespace velk {
namespace {

using Lines = std::vector<std::string>;

TEST(TextureLayout, ThumbnailsAreStretchedByTheRules) {
  const struct {
    bool stretch, noSmall;
    int width, height;
    ThumbnailSize size;
  } cases[] = {{false, false, 64, 32, {48, 32, 48, 32}}, {true, false, 16, 16, {48, 48, 16, 16}},
               {true, true, 64, 64, {48, 48, 64, 64}},   {true, true, 32, 64, {24, 48, 32, 64}},
               {true, true, 96, 32, {48, 16, 96, 32}},   {true, true, 128, 64, {48, 24, 128, 64}},
               {true, true, 16, 32, {16, 32, 16, 32}}};
  for (const auto& c : cases) {
    Settings settings;
    settings.stretch_textures = c.stretch;
    settings.nosmallstretch = c.noSmall;
    EXPECT_EQ(ThumbnailSizeOf(c.width, c.height, 48, 48, settings), c.size) << c.width << "x" << c.height;
  }
}

TEST(TextureLayout, RowsStandAboveTheGrid) {
  Settings settings;
  const TextureLayout at({300, 400, 48, 48, 100}, settings);
  EXPECT_EQ(at.headerHeight, 30);
  EXPECT_EQ(at.favourites.top, 33);
  EXPECT_EQ(at.frequents.top, 33 + 46);
  EXPECT_EQ(at.gridTop, 33 + 2 * 46);
  EXPECT_EQ(at.columns * 1000 + at.visibleRows, 5004);
  EXPECT_EQ(at.scrollRange(), 16 * 62);
  EXPECT_EQ(at.thumbnail({TexturePlace::Kind::Grid, 7}, 62).left, 2 * 58 + 5);
  EXPECT_EQ(at.thumbnail({TexturePlace::Kind::Favourite, 2}, 0).left, 50 + 2 * 42 + 5);
  EXPECT_EQ(at.at({60, 130}, 62), (TexturePlace{TexturePlace::Kind::Grid, 6}));
  EXPECT_EQ(at.at({295, 130}, 0), TexturePlace{});
  EXPECT_EQ(at.at({50, 79}, 0), (TexturePlace{TexturePlace::Kind::Frequent, 0}));
  EXPECT_EQ(at.at({50 + 10 * 42, 33}, 0), TexturePlace{});

  settings.show_favorites = settings.show_tex_names = false;
  const TextureLayout bare({10, 20, 48, 48, 0}, settings);
  EXPECT_EQ(bare.frequents.top, 33);
  EXPECT_EQ(bare.gridTop, 65);
  EXPECT_EQ(bare.columns * 10 + bare.visibleRows, 11);
}

TEST(HeldTextureButton, RepeatsFromAQuarterOfASecondOn) {
  HeldTextureButton held;
  held.press(TextureField::Rotate, -1);
  for (int tick = 1; tick <= 4; ++tick) EXPECT_FALSE(held.tick());
  EXPECT_TRUE(held.tick() && held.tick());
  held.stop();
  EXPECT_FALSE(held.tick());
}

TEST(Thumbnails, AreShrunkByAveragesAndEnlargedSharply) {
  Texture texture;
  texture.width = texture.height = 2;
  texture.pixels = {0, 0, 1, 1, 0, 0, 0};
  ColourTable colours{0x000000, 0x604020};
  std::uint32_t out[16] = {};
  const PicturePixels picture{out, 4, 4, 4, 1};
  DrawThumbnail(picture, texture, colours, {1, 1, 2, 2}, {0, 0}, {0, 0, 4, 4});
  EXPECT_EQ(out[0], 0xff302010u);
  DrawThumbnail(picture, texture, colours, {4, 4, 2, 2}, {0, 0}, {0, 0, 4, 3});
  EXPECT_EQ(out[4], 0xff000000u);
  EXPECT_EQ(out[8], 0xff604020u);
  EXPECT_EQ(out[12], 0u);
  DrawThumbnail(picture, texture, colours, {4, 4, 2, 2}, {-3, -3}, {0, 0, 4, 4});
  EXPECT_EQ(out[0], 0xff604020u);
}

class TextureBrowser : public testing::Test {
 protected:
  TextureBrowser() {
    session.home.write("test.wad", test::WadBuilder()
                                       .palette()
                                       .texture("wall1", 64, 32)
                                       .texture("floor1")
                                       .texture("+0fire")
                                       .texture("+1fire", 2, 2, 9)
                                       .texture("sky1", 4, 2)
                                       .bytes());
    session.editor.textures().reload(*session.editor.textures().current(), {});
    session.open();
    panel.resize(300, 400);
  }
  void choose(const char* label) {
    for (const MenuItem& item : panel.contextMenu()) {
      if (item.label == label) item.run();
    }
  }
  std::string line(size_t index) { return panel.printed()[index]; }
  int side() { return panel.layout().thumbnailWidth; }
  void drag(Pixel from, Pixel to) {
    panel.press(from, false, false);
    panel.release(to);
  }

  test::Session session;
  TexturePanel& panel = session.editor.panels().textures;
};

TEST_F(TextureBrowser, MenuChangesSizesWithinTheirLimits) {
  const struct {
    const char* answer;
    const char* item;
    int after;
  } steps[] = {{"3", nullptr, 48},
               {"257", nullptr, 48},
               {"64", nullptr, 64},
               {"252", "Bigger Thumbnails", 256},
               {"253", "Bigger Thumbnails", 253},
               {"12", "Smaller Thumbnails", 8},
               {"11", "Smaller Thumbnails", 11}};
  for (const auto& step : steps) {
    session.answer(step.answer);
    choose("Set Thumbnail Size");
    if (step.item) choose(step.item);
    EXPECT_EQ(side(), step.after) << step.answer;
  }
  choose("Small Thumbnails");
  EXPECT_EQ(side(), 24);
  EXPECT_EQ(panel.layout().margin, 0);
  choose("Small Thumbnails");
  EXPECT_EQ(side(), 8);  // that "Smaller" reached last
  EXPECT_EQ(panel.layout().margin, 5);
}

TEST_F(TextureBrowser, MouseChoosesPinsAndMagnifies) {
  const Pixel first{10, 130};   // +0FIRE
  const Pixel second{70, 130};  // FLOOR1
  const Pixel favourite{140, 40};
  panel.move(second);
  EXPECT_EQ(panel.label(), "FLOOR1 2x2");
  drag(first, second);
  EXPECT_EQ(line(0), "current FLOOR1");
  drag(first, favourite);
  EXPECT_EQ(line(0), "current +0FIRE");
  EXPECT_EQ(line(3), "favorites +0FIRE FLOOR1 +0FIRE WALL1 - - - - - -");
  EXPECT_TRUE(session.current().modified);
  drag({60, 40}, {140, 40});  // from the favourites nothing is pinned
  EXPECT_EQ(line(3), "favorites +0FIRE FLOOR1 +0FIRE WALL1 - - - - - -");
  drag(first, {60, 90});  // an empty frequent
  EXPECT_EQ(line(0), "current +0FIRE");
  panel.press(second, true, false);
  panel.move({80, 120});
  EXPECT_EQ(panel.label(), "FLOOR1 2x2 2.0x");
  panel.move({700, 700});
  EXPECT_EQ(panel.magnification(), 12);
  panel.release(second);
  EXPECT_EQ(panel.drag(), TexturePanel::Drag::None);
}

TEST_F(TextureBrowser, FrequentsAreCountedAndCtrlApplies) {
  choose("Recalculate Frequents");
  EXPECT_EQ(line(4), "frequents FLOOR1 WALL1 - - - - - - - -");
  panel.move({60, 90});
  EXPECT_EQ(panel.label(), "FLOOR1 2x2 6");
  session.run("CM_SELECT_ALL");
  panel.press({70, 130}, false, true);
  panel.release({70, 130});
  choose("Recalculate Frequents");
  EXPECT_EQ(line(4).substr(0, 20), "frequents FLOOR1 - -");
}

TEST_F(TextureBrowser, SearchNarrowsTheGrid) {
  const struct {
    const char* search;
    size_t count;
  } cases[] = {{"", 4},           {"or fl", 1},      {"1fire", 1},  {"#used", 2},
               {"#used wall", 1}, {"#wad:TES l", 2}, {"#wad:no", 0}};
  for (const auto& c : cases) {
    EXPECT_TRUE(panel.control("search", c.search));
    panel.layout();
    EXPECT_EQ(panel.shown().size(), c.count) << c.search;
  }
}

TEST_F(TextureBrowser, TicksMoveWhatFacesShow) {
  const TextureSet& set = session.editor.documents().current()->textures;
  const auto ref = set.makeTextureRef("+1fire");
  const SkyRecord& sky = *set.findTexture("sky1")->sky;
  const int before = sky.columnOffset;
  EXPECT_EQ(ref->shownPixels()[0], 7);
  EXPECT_TRUE(panel.tick());
  EXPECT_EQ(ref->shownPixels()[0], 9);
  EXPECT_TRUE(panel.tick());
  EXPECT_EQ(ref->shownPixels()[0], 7);
  choose("Animate Sky");
  panel.tick();
  EXPECT_EQ(sky.columnOffset, (before + 2 * 3) % 2);
  panel.minimised = [] { return true; };
  EXPECT_FALSE(panel.tick());
}

TEST_F(TextureBrowser, ControlsAndNamesWithCarefulTools) {
  session.editor.settings().careful_tools = true;
  for (const char* control : {"S+", "T-", "R-", "SX+", "SY-"}) EXPECT_TRUE(panel.control(control, ""));
  EXPECT_EQ(line(1), "def 1 -1 355 1.1 0.9");
  EXPECT_TRUE(panel.control("SX", "0.25") && panel.control("r", "-90"));
  EXPECT_EQ(line(1), "def 1 -1 270 0.25 0.9");
  EXPECT_TRUE(panel.control("name", "Wall1"));
  EXPECT_EQ(line(0), "current wall1");
  EXPECT_FALSE(panel.control("name", "none") || panel.control("Q+", "") || panel.pick(4));
}

TEST_F(TextureBrowser, ReloadedWadsKeepFavouritesAndSpareWhatIsDamaged) {
  session.editor.settings().careful_tools = true;
  session.current().favourites = {"gone", "wall1"};
  session.home.write("test.wad", test::WadBuilder()
                                     .palette()
                                     .texture("wall1", 2, 2, 50)
                                     .lump("broken", 'D', std::string(20, '\x7f'))
                                     .bytes());
  session.editor.attend();
  session.run("CM_RELOAD_WADS");
  TextureSet& set = session.editor.documents().current()->textures;
  EXPECT_EQ(set.count(), 2);
  EXPECT_EQ(set.makeTextureRef("wall1")->pixels[0], 50);
  EXPECT_EQ(set.makeTextureRef("broken")->width, 32);
  EXPECT_EQ(session.current().favourites[0] + session.current().favourites[1], "goneWALL1");
  EXPECT_EQ(FavouriteAt(session.current(), set, 0), -1);
}

}  // namespace
}  // namespace velk
