#include "mapfile/brush_file.h"

#include "mapfile/map_reader.h"
#include "support/builders.h"
#include "support/cube_text.h"
#include "support/fatal.h"

namespace velk {
namespace {

using test::Cube;
using BrushFile = test::MapTest;

TEST_F(BrushFile, ReadsBackWhatWasWrittenIntoAnotherGroup) {
  selectedBox({0, 0, 0}, {64, 32, 16}, "WALL").setGroup(3);
  box({0, 0, 64}, {64, 32, 80});
  const auto brushes = ReadBrushText(m, BrushFileText(m), "a.bru", {.group = 2});
  ASSERT_EQ(brushes.size(), 1u);
  EXPECT_EQ(brushes[0]->group(), 2);
  EXPECT_TRUE(brushes[0]->selected());
  EXPECT_EQ(brushes[0]->brushTexture().name, "wall");
  EXPECT_EQ(brushes[0]->maxs.x, 64);
  EXPECT_EQ(summary(), "worldspawn *-");
}

TEST_F(BrushFile, DamageHasItsMessage) {
  const std::string good = Cube(0);
  const auto cut = [&](const char* at) { return good.substr(0, good.find(at)); };
  const std::vector<std::pair<std::string, std::string>> cases{
      {"", ""},
      {good + "{\n}\n", ""},  // no solid, no brush
      {cut("}"), ""},         // an end in a brush is its end
      {"{ x", "parsing brush file, ( expected"},
      {"{ ( 0 0 0 ) x", "parsing brush file, ( expected"},
      {"{ ( 0 0 0 x", "parsing brush file, ) expected"},
      {"{ ( 0 0", "Line 1 is incomplete"}};
  for (const auto& [text, message] : cases) {
    EXPECT_FATAL(ReadBrushText(m, text, "a.bru", {}), message) << text;
  }
  EXPECT_FATAL(ReadBrushText(m, cut("}"), "a.bru", {.group = 0, .whole = true}),
               "[a.bru] ends inside a brush");
  EXPECT_FATAL(ReadBrushFile(m, Paths(), "none.bru", {}), "ReadBrushFile:  Couldn't read [none.bru]...");
}

TEST_F(BrushFile, AMergeThatFailsLeavesTheMapAsItWas) {
  box({0, 0, 0}, {64, 64, 64});
  const std::string light = "{\n}\n{\n\"classname\" \"light\"\n}\n";
  EXPECT_FATAL(MergeMapText(m, light + "{\n\"classname\" \"func_door\"\n{ ( 0", "a.mrg", {}),
               "Line 8 is incomplete");
  EXPECT_EQ(summary(), "worldspawn -");
  MapReadOptions whole;
  whole.whole = true;
  EXPECT_FATAL(MergeMapText(m, light + "{", "a.mrg", whole), "[a.mrg] ends inside an entity");
  EXPECT_EQ(summary(), "worldspawn -");
  while (m.numentities() < MAX_ENTITIES) addPoint("light", {});
  EXPECT_FATAL(MergeMapText(m, light, "a.mrg", {}), "map->addobject, too many brushes on entity...");
  EXPECT_EQ(m.numentities(), MAX_ENTITIES);
}

}  // namespace
}  // namespace velk
