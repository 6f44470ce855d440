#include "mapfile/mapwriter.h"

#include <csignal>
#include <filesystem>
#include <fstream>

#include <gtest/gtest.h>
#include <sys/resource.h>

#include "mapfile/samplemap.h"
#include "support/fatal.h"

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

TEST(MapWriter, WritesEntitiesAndBrushes) {
  SampleMap sample(kMap);
  const std::string text = sample.text();
  const std::string body = WithCrLf(kMap.substr(kTwoGroups.size()));
  // Pairs are written newest first.
  std::string light = WithCrLf("{\n//\"0001\"\n\"classname\"\t\"light\"\n\"origin\"\t\"8 16 24\"\n}\n");
  std::string expected = body;
  expected.replace(expected.find(WithCrLf(kLight)), light.size(), light);
  EXPECT_EQ(text.substr(text.size() - expected.size()), expected);
  EXPECT_EQ(text.substr(0, WithCrLf(kTwoGroups).size()), WithCrLf(kTwoGroups));
}

TEST(MapWriter, TruncatesPointsAndQuotesWhatNeedsIt) {
  SampleMap sample(kMap);
  brush& b = *sample.m.world()->at(0);
  b.faces.resize(1);
  face& f = b.faces[0];
  f.planepts[0] = {-0.9f, 15.99f, 64};
  f.planepts[1] = {0.5f, -0.5f, -1e20f};
  f.planepts[2] = {1, 2, 3};
  const std::string points = "( 0 15 64 ) ( 0 0 -2147483648 ) ( 1 2 3 ) ";
  f.texture.rotate = 89.9f;
  f.texture.scale[0] = 0.5f;
  for (const auto& [name, written] :
       std::initializer_list<std::pair<std::string, std::string>>{{"plain", "plain"},
                                                                  {"", "\"\""},
                                                                  {"two words", "\"two words\""},
                                                                  {"//x", "\"//x\""},
                                                                  {"a\"b", "a\"b"}}) {
    f.texture.name = name;
    TextOut out;
    write(b, out, false);
    EXPECT_EQ(out.take(), "{\r\n" + points + written + " 0 0 89 0.500000 1.000000\r\n}\r\n");
  }
  sample.m.world()->setKey("message", "say \"hi\"\n");
  EXPECT_NE(sample.text().find("\"message\"\t\"say 'hi'\n\"\r\n"), std::string::npos);
}

TEST(MapWriter, LeavesOutInvalidBrushesAndKeepsLostOrigins) {
  SampleMap sample(kMap);
  sample.m.world()->at(1)->invalid = true;
  sample.m.at(1)->at(0)->translate({1, 1, 1});
  EXPECT_EQ(sample.text().find("( 64 64 64 ) ( 64 0 64 )"), std::string::npos);
  EXPECT_NE(sample.text().find("\"origin\"\t\"9 17 25\""), std::string::npos);
  sample.m.at(1)->at(0)->translate({1e6f, 0, 0});
  EXPECT_NE(sample.text().find("\"origin\"\t\"9 17 25\""), std::string::npos);
}

TEST(MapWriter, WritesSelectionsAsMergeFiles) {
  SampleMap sample(kMap);
  sample.m.at(1)->at(0)->selected = true;
  EXPECT_EQ(sample.text(false, true),
            WithCrLf("{\n}\n{\n\"classname\"\t\"light\"\n\"origin\"\t\"8 16 24\"\n}\n"));
  sample.m.at(1)->at(0)->selected = false;
  sample.m.world()->at(1)->selected = true;
  EXPECT_EQ(sample.text(false, true), WithCrLf("{\n" + Cube(1) + "}\n"));
}

TEST(MapWriter, ExportsGroupsWithAPlayerStart) {
  SampleMap sample(kMap + kStart + kStart);
  const std::string start = WithCrLf("{\n\"classname\"\t\"info_player_start\"\n\"origin\"\t\"0 0 0\"\n}\n");
  const std::string world = "{\n\"classname\"\t\"worldspawn\"\n";
  const std::string light = "{\n\"classname\"\t\"light\"\n\"origin\"\t\"8 16 24\"\n}\n";
  for (int i : {3, 4}) sample.m.at(i)->at(0)->group = 0;
  EXPECT_EQ(GroupExportText(sample.m, 1), WithCrLf(world + Cube(1) + "}\n" + light +
                                                   "{\n\"classname\"\t\"func_door\"\n" + Cube(2) + "}\n") +
                                              start);
  // Group 1 is hidden.
  EXPECT_EQ(GroupExportText(sample.m, -1), WithCrLf(world + Cube(0) + "}\n") + start + start);
}

std::string Bytes(const std::string& name) {
  std::ifstream file(name, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

TEST(MapWriter, ReplacesFilesAndSaysWhatBecameOfThem) {
  SampleMap sample(kMap);
  const std::string name = testing::TempDir() + "velk_writer_test.map";
  sample.m.modified = true;
  EXPECT_TRUE(WriteMapFile(sample.m, Paths{}, name, {}).ok());
  EXPECT_FALSE(sample.m.modified);
  EXPECT_EQ(Bytes(name), sample.text());

  SampleMap empty("{\n}\n");
  empty.m.world()->destroyBrushes();
  empty.m.modified = true;
  EXPECT_EQ(WriteMapFile(empty.m, Paths{}, name, {}).outcome, MapWriteResult::Outcome::NothingToSave);
  EXPECT_TRUE(empty.m.modified);
  EXPECT_EQ(Bytes(name), sample.text());

  // As on a full disk: no file may grow beyond 100 bytes.
  std::signal(SIGXFSZ, SIG_IGN);
  rlimit before{};
  getrlimit(RLIMIT_FSIZE, &before);
  const rlimit small{100, before.rlim_max};
  setrlimit(RLIMIT_FSIZE, &small);
  sample.m.modified = true;
  const MapWriteResult failed = WriteMapFile(sample.m, Paths{}, name, {});
  setrlimit(RLIMIT_FSIZE, &before);
  EXPECT_EQ(failed.outcome, MapWriteResult::Outcome::Failed);
  EXPECT_EQ(failed.reason, "File too large");
  EXPECT_TRUE(sample.m.modified);
  EXPECT_EQ(Bytes(name), sample.text());

  EXPECT_TRUE(ExportGroup(sample.m, 0, Paths{}, name).ok());
  EXPECT_EQ(Bytes(name), GroupExportText(sample.m, 0));
  std::filesystem::remove(name);

  const std::string nowhere = testing::TempDir() + "no such folder/a.map";
  sample.m.modified = true;
  EXPECT_FATAL(WriteMapFile(sample.m, Paths{}, nowhere, {}),
               "Couldn't write map file, unable to open " + nowhere);
  EXPECT_TRUE(sample.m.modified);
}

TEST(MapWriter, TheThirdSaveEqualsTheFirst) {
  SampleMap sample;
  sample.read(kMap + kStart);
  const std::string first = sample.text();
  sample.read(first);
  const std::string second = sample.text();
  sample.read(second);
  EXPECT_EQ(sample.text(), first);
  EXPECT_NE(second, first);  // pairs in reverse
}

}  // namespace
}  // namespace velk
