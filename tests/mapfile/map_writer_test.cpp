#include "mapfile/map_writer.h"

#include <bit>
#include <cfloat>
#include <climits>
#include <cmath>
#include <cstdint>
#include <random>

#include <gtest/gtest.h>

#include "mapfile/sample_map.h"
#include "mapfile/text_out.h"
#include "support/fatal.h"
#include "support/temp_folder.h"

namespace velk {
namespace {

using test::Cube;
using test::CubeFaces;
using test::SampleMap;
using test::WithCrLf;

const std::string kLight = "{\n//\"0001\"\n\"origin\"\t\"8 16 24\"\n\"classname\"\t\"light\"\n}\n";
const std::string kTwoGroups =
    "//VELKGROUPS0002\n//VELKGROUPINFO\"None\" \"255 255 255\" \"1\"\n//VELKGROUPINFO\"a\" \"1 2 3\" \"0\"\n";
const std::string kMap = kTwoGroups + "{\n\"classname\"\t\"worldspawn\"\n{\n//\"0000\"\n" + CubeFaces(0) +
                         "}\n{\n//\"0001\"\n" + CubeFaces(1) + "}\n}\n" + kLight +
                         "{\n\"classname\"\t\"func_door\"\n{\n//\"0001\"\n" + CubeFaces(2) + "}\n}\n";
const std::string kStart = "{\n\"origin\"\t\"0 0 0\"\n\"classname\"\t\"info_player_start\"\n}\n";

TEST(MapWriter, WritesEntitiesAndBrushesAndTheThirdSaveEqualsTheFirst) {
  SampleMap sample(kMap + kStart);
  const std::string first = sample.text();
  // Pairs are written newest first.
  std::string expected = WithCrLf(kMap);
  const std::string light = WithCrLf("{\n//\"0001\"\n\"classname\"\t\"light\"\n\"origin\"\t\"8 16 24\"\n}\n");
  expected.replace(expected.find(WithCrLf(kLight)), light.size(), light);
  const size_t world = expected.find('{');
  EXPECT_TRUE(first.starts_with(expected.substr(0, world)));
  EXPECT_NE(first.find(expected.substr(world)), std::string::npos) << first;
  sample.read(first);
  const std::string second = sample.text();
  sample.read(second);
  EXPECT_EQ(sample.text(), first);
  EXPECT_NE(second, first);
}

TEST(MapWriter, TruncatesPointsAndQuotesWhatNeedsIt) {
  SampleMap sample(kMap);
  brush& b = *sample.m.world()->at(0);
  b.editFaces() = {test::Face({-0.9f, 15.99f, 64}, {0.5f, -0.5f, -1e20f}, {1, 2, 3})};
  texturedef& texture = b.editFaces()[0].texture;
  texture.rotate = 89.9f;
  texture.scale[0] = 0.5f;
  texture.scale[1] = 1;
  const std::pair<const char*, const char*> names[] = {
      {"plain", "plain"}, {"", "\"\""}, {"two words", "\"two words\""}, {"//x", "\"//x\""}, {"a\"b", "a\"b"}};
  for (const auto& [name, written] : names) {
    texture.name = name;
    TextOut out;
    Write(b, out, false);
    EXPECT_EQ(out.take(),
              Format("{\r\n( 0 15 64 ) ( 0 0 -2147483648 ) ( 1 2 3 ) %s 0 0 89 0.500000 1.000000\r\n}\r\n",
                     written));
  }
  sample.m.world()->setKey("message", std::string("say \"hi\"\n\0.", 11));
  EXPECT_NE(sample.text().find("\"message\"\t\"say 'hi'\n .\"\r\n"), std::string::npos);
}

TEST(MapWriter, LeavesOutInvalidBrushesAndKeepsLostOrigins) {
  SampleMap sample(kMap);
  sample.m.world()->at(1)->invalid = true;
  sample.m.at(1)->at(0)->translate({1, 1, 1});
  EXPECT_EQ(sample.text().find("( 64 64 64 ) ( 64 0 64 )"), std::string::npos);
  EXPECT_NE(sample.text().find("\"origin\"\t\"9 17 25\""), std::string::npos);
  sample.m.at(1)->at(0)->translate({1e6f, 0, 0});
  EXPECT_NE(sample.text().find("\"origin\"\t\"8 16 24\""), std::string::npos)
      << "a box beyond the model's range has lost its place; the pair still tells one";
}

TEST(MapWriter, WritesSelectionsAsMergeFiles) {
  SampleMap sample(kMap);
  sample.m.at(1)->at(0)->select(true);
  EXPECT_EQ(sample.text(false, true),
            WithCrLf("{\n}\n{\n\"classname\"\t\"light\"\n\"origin\"\t\"8 16 24\"\n}\n"));
  sample.m.at(1)->at(0)->select(false);
  sample.m.world()->at(1)->select(true);
  EXPECT_EQ(sample.text(false, true), WithCrLf("{\n" + Cube(1) + "}\n"));
}

TEST(MapWriter, ExportsGroupsWithAPlayerStart) {
  SampleMap sample(kMap + kStart + kStart);
  const std::string start = WithCrLf("{\n\"classname\"\t\"info_player_start\"\n\"origin\"\t\"0 0 0\"\n}\n");
  const std::string world = "{\n\"classname\"\t\"worldspawn\"\n";
  const std::string light = "{\n\"classname\"\t\"light\"\n\"origin\"\t\"8 16 24\"\n}\n";
  for (int i : {3, 4}) sample.m.at(i)->at(0)->setGroup(0);
  EXPECT_EQ(GroupExportText(sample.m, 1), WithCrLf(world + Cube(1) + "}\n" + light +
                                                   "{\n\"classname\"\t\"func_door\"\n" + Cube(2) + "}\n") +
                                              start);
  // Group 1 is hidden.
  EXPECT_EQ(GroupExportText(sample.m, -1), WithCrLf(world + Cube(0) + "}\n") + start + start);
}

TEST(MapWriter, ReplacesFilesAndSaysWhatBecameOfThem) {
  const test::TempFolder folder;
  const std::string name = folder.directory() + "a.map";
  SampleMap sample(kMap);
  sample.m.modified = true;
  EXPECT_TRUE(WriteMapFile(sample.m, Paths{}, name, {}).ok());
  EXPECT_FALSE(sample.m.modified);
  EXPECT_EQ(folder.read("a.map"), sample.text());

  SampleMap empty("{\n}\n");
  empty.m.world()->destroyBrushes();
  empty.m.modified = true;
  EXPECT_EQ(WriteMapFile(empty.m, Paths{}, name, {}).outcome, MapWriteResult::Outcome::NothingToSave);
  EXPECT_TRUE(empty.m.modified);

  sample.m.modified = true;
  const std::string nowhere = folder.directory("missing") + "a.map";
  EXPECT_FATAL(WriteMapFile(sample.m, Paths{}, nowhere, {}),
               "Couldn't write map file, unable to open " + nowhere);
  EXPECT_TRUE(sample.m.modified);
  EXPECT_TRUE(ExportGroup(sample.m, 0, Paths{}, name).ok());
  EXPECT_EQ(folder.read("a.map"), GroupExportText(sample.m, 0));
}

TEST(TextOut, SixDecimalsAreThoseOfPrintf) {
  std::vector<float> values = {0,       -0.0f,      0x1p-7f, 0x3p-7f,        0x1p-21f, 5e-7f,
                               1.5e-6f, 0.9999999f, FLT_MIN, 1e-45f,         FLT_MAX,  -FLT_MAX,
                               0x1p42f, 0x1p43f,    1e20f,   0x1.fffffep-1f, 1,        -1};
  std::mt19937 random(1);
  for (int i = 0; i < 20000; ++i)
    values.push_back(std::bit_cast<float>(static_cast<std::uint32_t>(random())));
  for (int i = 0; i < 20000; ++i) values.push_back(static_cast<float>(random() % 4096) / 2048 / 1024);
  for (const float value : values) {
    char text[kSixDecimalsLength];
    ASSERT_EQ(std::string(text, PutSixDecimals(text, value)),
              Format("%f", std::isfinite(value) ? double{value} : 0));
  }
}

TEST(TextOut, GrowsAndHandsItsTextOver) {
  TextOut out;
  std::string expected;
  for (const int value : {0, 9, 10, -1, INT_MAX, INT_MIN}) {
    for (int i = 0; i < 500; ++i) {
      out.taken(PutInteger(out.room(kIntegerLength), value));
      out.line("");
      expected += std::to_string(value) + "\r\n";
    }
  }
  EXPECT_EQ(out.take(), expected);
  EXPECT_EQ(out.take(), "");
}

}  // namespace
}  // namespace velk
