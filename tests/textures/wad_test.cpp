#include "textures/wad.h"

#include <gtest/gtest.h>

#include "support/declining_prompts.h"
#include "support/fatal.h"
#include "support/temp_folder.h"
#include "support/wad_builder.h"
#include "textures/colormap.h"

namespace velk {
namespace {

using test::DecliningPrompts;
using test::TempFolder;
using test::TextureLump;
using test::WadBuilder;

class WadTest : public testing::Test {
 protected:
  WadTest() {
    settings.wad_directory = folder.directory("wads");
    settings.entity_qc_directory = folder.directory("qc");
  }

  Wad load(const std::string& name) {
    Wad wad;
    LoadWad(wad, name, services, random, [this](const WadProgress& p) { told.push_back(p.text); });
    return wad;
  }
  // The textures of a wad with these contents.
  Wad read(const std::string& contents) {
    Wad wad;
    wad.path = "a.wad";
    LoadTextures(contents, wad, 3, random, {});
    return wad;
  }

  TempFolder folder;
  Settings settings;
  Paths paths;
  DecliningPrompts prompts;
  Random random;
  WadServices services{settings, paths, prompts};
  std::vector<std::string> told;
};

TEST_F(WadTest, TexturesComeSortedWithUpperCaseNames) {
  WadBuilder builder;
  builder.texture("wall2", 3, 2, "abcdef").texture("wall11234567890x").palette().texture("WALL2");
  const Wad wad = read(builder.bytes());
  ASSERT_EQ(wad.count(), 3);
  const Texture& second = *wad.textures[1];
  EXPECT_EQ(wad.textures[0]->name, "WALL11234567890");
  EXPECT_EQ(second.name, "WALL2");
  EXPECT_TRUE(second.index == 0 && second.width == 3 && second.height == 2);
  EXPECT_EQ(std::string(second.pixels.begin(), second.pixels.end()), std::string("abcdef\0\0\0", 9));
  EXPECT_EQ(wad.textures[2]->index, 3);
}

TEST_F(WadTest, LumpsThatAreNoPictureBecomeBlank) {
  const WadBuilder wads[] = {
      WadBuilder().lump("a", 'D', TextureLump(2, 2, "abcd"), 256001),
      WadBuilder().lump("a", 'D', TextureLump(2, 2, "abcd"), -1),
      WadBuilder().texture("a", 0, 2, "abcd"),
      WadBuilder().texture("a", 2, 0, "abcd"),
      WadBuilder().texture("sky", 1, 2, "abcd"),
  };
  for (const WadBuilder& builder : wads) {
    const Wad wad = read(builder.bytes());
    const Texture& blank = *wad.textures[0];
    EXPECT_EQ(blank.width * blank.height, 1024);
    EXPECT_EQ(blank.pixels, std::vector<unsigned char>(1027, 255));
  }
}

TEST_F(WadTest, SkiesAreHalvedAndComposed) {
  const Wad wad =
      read(WadBuilder().texture("Sky1", 5, 2, std::string("\1\2\13\14\11\3\0\15\16\11", 10)).bytes());
  const Texture& sky = *wad.textures[0];
  EXPECT_EQ(sky.width, 2);
  EXPECT_EQ(sky.pixels, (std::vector<unsigned char>{3, 12, 1, 2, 0, 0, 0}));
  ASSERT_TRUE(sky.sky);
  EXPECT_EQ(sky.sky->rowOffset, 1);
}

TEST_F(WadTest, PlacesOutsideTheFileAreRefused) {
  const std::string whole = WadBuilder().texture("a", 2, 2, "abcd").bytes();
  auto patched = [&](size_t at, std::uint32_t value) {
    return std::string(whole).replace(at, 4, test::LittleEndian(value));
  };
  const size_t entry = whole.size() - 32;
  const std::string broken[] = {
      whole.substr(0, 8),
      whole.substr(0, whole.size() - 1),
      patched(4, 2),  // lumps
      patched(4, 0xffffffff),
      patched(8, 0x7fffffff),  // directory
      patched(8, 0xfffffff0),
      patched(entry, 0x7fffffff),  // lump
      patched(entry, 0xffffffff),
      patched(12 + 16, 3000),  // width
      patched(12 + 16, 0xffffffff),
      patched(12 + 24, 0xffffffff),  // first mip
  };
  for (const std::string& contents : broken) EXPECT_FATAL(read(contents), "Error:  couldn't read bits...");
  EXPECT_FATAL(read(patched(0, 0)), "Error: a.wad isn't a WAD type wadfile");

  // Entries that share their bytes cannot fill the memory.
  std::string shared = WadBuilder().texture("a", 300, 300).bytes();
  for (int i = 1; i < 20; ++i) shared += shared.substr(shared.size() - 32);
  EXPECT_FATAL(read(shared.replace(4, 4, test::LittleEndian(20))), "Error:  couldn't read bits...");
}

TEST_F(WadTest, FilesAreFoundInTheWadDirectory) {
  folder.write("wads/base.wad", WadBuilder().texture("wall").palette().bytes("WAD3"));
  folder.write("wads/gfx/deep.wad", WadBuilder().palette().bytes());
  for (const char* name : {"base.wad", "gfx/base.wad", "\\quake\\id1\\gfx\\BASE.WAD", "gfx/deep.wad"}) {
    EXPECT_TRUE(load(name).path.starts_with(settings.wad_directory)) << name;
  }
}

TEST_F(WadTest, AMissingWadIsAskedFor) {
  prompts.answer(folder.write("else.wad", WadBuilder().texture("wall").palette().bytes()));
  EXPECT_EQ(load("gfx\\none.wad").count(), 1);
  ASSERT_EQ(prompts.choosers.size(), 1u);
  EXPECT_EQ(prompts.choosers[0].title, "Where is texture .wad file: gfx\\none.wad?");
  EXPECT_EQ(prompts.choosers[0].filter, "Wad Files (*.wad)|*.wad|");
  EXPECT_EQ(prompts.choosers[0].directory, settings.wad_directory);

  EXPECT_FATAL(load("none.wad"), "You must select a valid .wad file...");
  prompts.answer("/nowhere/none.wad");
  EXPECT_FATAL(load("none.wad"), "Texture:  Couldn't open wad file...");
}

TEST_F(WadTest, PaletteComesFromTheLumpTheTextFileOrTheUser) {
  const std::string plain =
      folder.write("plain.wad", WadBuilder().lump("palette", '@', test::GreyPalette()).bytes());
  std::string lines;
  for (int i = 0; i < 256; ++i) lines += "1 2 3\n";
  EXPECT_FATAL(load(plain), "You must either use a WAD2 with a palette or select a valid palette file...");
  EXPECT_EQ(prompts.choosers.back().title, "Select Quake.Pal File");
  prompts.answer(folder.write("own.pal", lines));
  EXPECT_EQ(load(plain).palette[2], 3);
  folder.write("qc/QUAKE.PAL", lines);
  EXPECT_EQ(load(plain).palette[765], 1);

  const std::string own = folder.write("own.wad", WadBuilder().palette(test::GreyPalette() + "more").bytes());
  settings.gammashift = 128;
  EXPECT_EQ(load(own).palette[3 * 100], 177);
  EXPECT_FATAL(load(folder.write("short.wad", "not a wad")),
               "Error: " + folder.directory() + "short.wad isn't a wadfile");
}

TEST_F(WadTest, OutlinesAndProgress) {
  settings.brush_outline = {100, 100, 100};
  WadBuilder builder;
  for (int i = 0; i < 6; ++i) builder.texture("t");
  const std::string path = folder.write("t.wad", builder.palette().bytes());
  EXPECT_EQ(load(path).outlines.brush, 100);
  EXPECT_EQ(told, (std::vector<std::string>{"", "Loading " + path + " [0/7] ", "Loading " + path + " [5/7] ",
                                            "Done..."}));
}

TEST_F(WadTest, ColormapIsWholeOrNone) {
  EXPECT_FATAL(loadColormap(services), "You must select a valid colormap.lmp file.");
  EXPECT_EQ(prompts.choosers[0].title, "Where is the colormap.lmp file?");
  prompts.answer("/nowhere/colormap.lmp");
  EXPECT_FATAL(loadColormap(services), "Invalid colormap.lmp file.");
  prompts.answer(folder.write("own.lmp", std::string(16000, 'x')));
  EXPECT_EQ(loadColormap(services), nullptr);
  folder.write("qc/colormap.lmp", std::string(16384, 'x'));
  const auto table = loadColormap(services);
  ASSERT_TRUE(table);
  EXPECT_EQ(table->back(), 'x');
}

}  // namespace
}  // namespace velk
