#include "mapfile/map_reader.h"

#include <algorithm>

#include <gtest/gtest.h>

#include "mapfile/sample_map.h"
#include "support/fatal.h"
#include "support/temp_folder.h"

namespace velk {
namespace {

using test::Cube;
using test::CubeFaces;
using test::SampleMap;

const std::string kWorld = "{\n\"classname\" \"worldspawn\"\n" + Cube(0) + "}\n";
const std::string kThreeGroups =
    "//VELKGROUPS0003\n//VELKGROUPINFO\"None\"\n//VELKGROUPINFO\"a\"\n//VELKGROUPINFO\"b\"\n";

TEST(MapReader, EndsLinesAtCarriageReturnsWhereThereIsNoOther) {
  std::string text = "//by hand\n" + kWorld;
  std::ranges::replace(text, '\n', '\r');
  EXPECT_EQ(SampleMap(text).m.world()->numbrushes(), 1);
}

TEST(MapReader, ReadsEntitiesWithTheirBrushesAndBoxes) {
  SampleMap sample("\xEF\xBB\xBF" + kWorld +
                   "{ \"classname\" \"light\"\n\"origin\" \"8 16 24\" }\n"
                   "{\n\"classname\"\t\"func_door\"\n" +
                   Cube(1) + "{\n" + CubeFaces(2, "a 0 0 0 1 1 0 0 0") + "}\n\"speed\" 100 }" +
                   std::string(8, '\0'));
  map& m = sample.m;
  ASSERT_EQ(sample.summary(), "worldspawn - light - func_door --");
  EXPECT_EQ(m.currentEntity(), m.world());
  EXPECT_FALSE(m.modified);
  EXPECT_TRUE(m.world()->isModel && !m.at(1)->isModel && m.at(2)->isModel);
  EXPECT_EQ(m.at(1)->at(0)->mins.z, 16);
  EXPECT_EQ(m.at(1)->at(0)->color().y, 1);
  EXPECT_EQ(m.at(2)->at(1)->mins.x, 128);
  EXPECT_EQ(m.at(2)->at(1)->numfaces(), 6);
  EXPECT_EQ(m.at(2)->at(1)->color().y, 0.5f);
  EXPECT_EQ(m.at(2)->valueOfKey("speed"), "100");
}

TEST(MapReader, AnEmptyTextGivesABareWorld) {
  for (const char* text : {"", "\n", "// nothing", "\x1A", "//VELKGROUPS0001"}) {
    EXPECT_EQ(SampleMap(text).summary(), "worldspawn ") << text;
  }
}

TEST(MapReader, GroupCommentsReachTheirBrushes) {
  const auto inGroup = [](const char* comment, int place) {
    return std::string("{\n") + comment + CubeFaces(place) + "}\n";
  };
  SampleMap sample(kThreeGroups + "{\n\"classname\" \"worldspawn\"\n" + inGroup("//\"0001\"\n", 0) +
                   inGroup("", 1) + inGroup("// words\n", 2) + inGroup("//\"0007\"\n", 3) +
                   "}\n{\n//\"0001\"\n\"classname\" \"light\"\n}\n");
  std::vector<int> groups;
  for (entity& e : sample.m.entities()) {
    for (const brush& b : e.brushes()) groups.push_back(b.group());
  }
  EXPECT_EQ(groups, (std::vector<int>{1, 1, 0, 2, 1}));
}

TEST(MapReader, GroupNamesAreCutToTheirLimit) {
  SampleMap sample;
  const std::string text = "//VELKGROUPS0001\n//VELKGROUPINFO\"abcdefghijklmnopqrst\" \"999 2 -3\" \"1\"\n";
  sample.read(text);
  EXPECT_EQ(sample.m.groups.at(0).name, "abcdefghijklmno");
  EXPECT_EQ(sample.m.groups.colour(0), (Colour{255, 2, 0}));
  MapReadOptions options;
  options.groupNameLength = GroupList::kMaxName;
  sample.read(text, options);
  EXPECT_EQ(sample.m.groups.at(0).name, "abcdefghijklmnopqrst");
}

TEST(MapReader, TellsWhatItChanged) {
  const std::string flat = "{\n( 0 0 0 ) ( 1 0 0 ) ( 2 0 0 ) a 0 0 0 1 1\n}\n";
  const std::string fractions =
      "{\n( 0.5 64.5 64 ) ( 0 0.25 64 ) ( 0 0 0.0 ) a 0 0 0 1 1\n" + CubeFaces(0) + "}\n";
  const struct {
    std::string text;
    const char* warnings;
    int brushes;
  } cases[] = {
      {kWorld, "", 1},
      {"{\n\"classname\" \"light\"\n" + Cube(0) + "}\n", "WARNING:Entity with brushes and wrong model type\n",
       1},
      {"{\n\"classname\" \"mystery\"\n}\n", "WARNING:Entity with no brushes and esize_model\n", 1},
      {"{\n" + Cube(0) + flat + "}\n", "WARNING: [test.map] invalid brushes left out: 1\n", 1},
      {"{\n" + fractions + "}\n", "WARNING: [test.map] plane points whose fractions were cut off: 2\n", 1},
      {"{\n" + Cube(0), "WARNING: [test.map] ends inside an entity\n", 1},
      {"{\n{\n" + CubeFaces(0), "WARNING: [test.map] ends inside an entity\n", 1},
  };
  for (const auto& c : cases) {
    testing::internal::CaptureStdout();
    SampleMap sample(c.text);
    EXPECT_EQ(testing::internal::GetCapturedStdout(), c.warnings) << c.text;
    EXPECT_EQ(sample.m.brushCount(), c.brushes) << c.text;
  }
}

TEST(MapReader, ABoxlessEntityGetsOneWithTheCurrentTexture) {
  SampleMap sample;
  MapReadOptions options;
  options.currentTexture.name = "current";
  sample.read("{\n\"origin\" \"100 0 0\"\n}\n", options);
  const brush& box = *sample.m.world()->at(0);
  EXPECT_TRUE(VecEqual(box.mins, {92, -8, -8}) && VecEqual(box.maxs, {108, 8, 8}));
  EXPECT_EQ(box.brushTexture().name, "current");
}

TEST(MapReader, EndsMalformedTextWithItsMessage) {
  std::string manyFaces = "{\n{\n";
  for (int i = 0; i < 11; ++i) manyFaces += CubeFaces(0);
  std::string manyEntities = kWorld;
  for (int i = 0; i < MAX_ENTITIES; ++i) manyEntities += "{\n\"classname\" \"light\"\n}\n";
  std::string manyGroups = "//VELKGROUPS9999\n";
  for (int i = 0; i < 257; ++i) manyGroups += "//VELKGROUPINFO\"g\"\n";
  const std::pair<std::string, std::string> cases[] = {
      {"worldspawn", "initFromTokens: { not found, worldspawn instead"},
      {"{\n\"classname\"\n", "Line 2 is incomplete"},
      {"{\n\"classname\" \"worldspawn", "EOF inside quoted token"},
      {"{\n{\nbrushDef\n", "parsing map file"},
      {"{\n{\n( 0 0 0 ) ( 1 1 1 ) ( 2 2 2 ) a 0 0 0 1 1 5\n", "parsing map file"},
      {manyFaces, "Line 67: brush with more than 64 faces"},
      {manyEntities, "map->addobject, too many brushes on entity..."},
      {manyGroups, "Group:  Too many groups 256"},
      {"{\n\"" + std::string(64, 'k') + "\" \"v\"\n}", "setKey: " + std::string(64, 'k') + " > MAX_KEY"},
      {"{\n\"k\" \"" + std::string(128, 'v') + "\"\n}", "setKey: " + std::string(128, 'v') + " > MAX_VALUE"},
      {kWorld + std::string("\n\0\n{", 4), "[test.map] is not a text file, line 13 holds a zero byte"},
  };
  for (const auto& [text, message] : cases) {
    SampleMap sample;
    const std::string& contents = text;
    EXPECT_FATAL(sample.read(contents), message);
  }
}

TEST(MapReader, CamerasStandAtThePlayerStartWhenTheFileHasNone) {
  const std::string start =
      "{\n\"classname\" \"Info_Player_Start\"\n\"origin\" \"1 2 3\"\n\"angle\" \"90\"\n}\n";
  SampleMap sample;
  EXPECT_FALSE(sample.read(kWorld + start + start).camerasRead);
  for (const camera& c : sample.m.cameras) {
    EXPECT_EQ(c.origin.y, 2);
    EXPECT_FLOAT_EQ(c.yaw, 3.1415927f);
  }
  EXPECT_TRUE(sample.read("//VELKCAMERAS0001\n//\"5 6 7 180 270 0\"\n" + kWorld + start).camerasRead);
  EXPECT_EQ(sample.m.cameras[0].origin.x, 5);
}

TEST(MapReader, ReportsProgressAndReadsFiles) {
  const test::TempFolder folder;
  const std::string name =
      folder.write("a.map", kWorld + "{\n" + Cube(1) + Cube(2) + Cube(3) + Cube(4) + "}\n");
  std::string texts;
  MapReadOptions options;
  options.progress = [&](const std::string& text) { texts += text + '|'; };
  SampleMap sample;
  ReadMapFile(sample.m, name, options);
  const std::string loading = "Loading " + name + ", ";
  EXPECT_EQ(texts, "Loading [" + name + "]|" + loading + "World Entity, [b0]...  |" + loading +
                       "[e2/b1]...  |" + loading + "[e2/b5]...  |" + loading + "[e3/b5]...  |");
  texts.clear();
  MergeMapFile(sample.m, name, options);
  const std::string merging = "Merging " + name + ", ";
  EXPECT_EQ(texts, "Merging [" + name + "]|" + merging + "[e1/b1]...  |" + merging + "[e2/b5]...  |");
  EXPECT_FATAL(ReadMapFile(sample.m, "/none", {}), "ReadMapFile:  Couldn't read [/none]...");
  EXPECT_FATAL(MergeMapFile(sample.m, "/none", {}), "MergeMapFile:  Couldn't read [/none]...");
}

TEST(MapReader, MergeAddsBrushesSelected) {
  SampleMap sample(kThreeGroups + kWorld);
  const std::string merged = "{\n\"message\" \"lost\"\n" + Cube(1) + Cube(2) + Cube(3) +
                             "}\n{\n\"classname\" \"func_door\"\n" + Cube(4) + "}\n";
  MergeMapText(sample.m, "//VELKGROUPS0001\n//VELKGROUPINFO\"other\"\n" + merged, "test.mrg", {});
  MergeMapText(sample.m, "{\n}\n{\n\"classname\" \"light\"\n}\n", "test.mrg", {});
  map& m = sample.m;
  EXPECT_EQ(sample.summary(), "worldspawn -*** func_door * light *");
  EXPECT_EQ(m.groups.count(), 3);
  for (int i = 0; i < m.world()->numbrushes(); ++i) {
    EXPECT_EQ(m.world()->at(i)->mins.x, 64 * i);
    EXPECT_EQ(m.world()->at(i)->owner, m.world());
  }
  EXPECT_EQ(m.world()->valueOfKey("message"), "");
  EXPECT_TRUE(m.modified);
}

}  // namespace
}  // namespace velk
