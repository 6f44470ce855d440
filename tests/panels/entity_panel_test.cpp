#include <gtest/gtest.h>

#include "panels/entities/entity_facts.h"
#include "support/builders.h"

namespace velk {
namespace {

TEST(EntityFacts, FieldsTakePrintableTextWithoutDoubleQuotes) {
  EXPECT_EQ(FieldText("a\"b\tc-\\`'{}~\xe9 !"), "abc-\\`'{}~ !");
}

TEST(EntityFacts, ClassesNameTheirKeysInQuotes) {
  EntityClass read;
  read.comments = "A door.\n\"angle\" way\n\"t_width\", \"t_length\" and \"angle\" \"two words\" \"open";
  EXPECT_EQ(KeysNamedBy(read), (std::vector<std::string>{"angle", "t_width", "t_length"}));
}

TEST(EntityFacts, ColoursKeepTheRangeOfTheirPair) {
  EXPECT_EQ(ColourOfValue("1 .5 0"), (Colour{255, 128, 0}));
  EXPECT_EQ(ColourOfValue("255 128 1"), (Colour{255, 128, 1}));
  EXPECT_FALSE(ColourOfValue("1 2"));
  EXPECT_EQ(ValueOfColour({255, 51, 0}, ""), "1 0.2 0");
  EXPECT_EQ(ValueOfColour({255, 51, 0}, "200 200 200"), "255 51 0");
}

using EntityFactsTest = test::MapTest;

TEST_F(EntityFactsTest, SharedPairsTellWhatDiffers) {
  entity& a = addPoint("light", {0, 0, 0});
  entity& b = addPoint("light", {64, 0, 0});
  a.setKey("light", "300");
  b.setKey("light", "200");
  b.setKey("style", "1");
  std::string text;
  for (const SharedPair& pair : SharedPairs({&a, &b})) text += PairText(pair) + "; ";
  EXPECT_EQ(text, "\"light\" - ...; \"classname\" - \"light\"; \"style\" - ...; ");
}

TEST_F(EntityFactsTest, LinksGoBothWays) {
  entity& button = addEntity("func_button");
  entity& door = addEntity("func_door");
  entity& relay = addEntity("trigger_relay");
  button.setKey("target", "t1");
  door.setKey("targetname", "t1");
  relay.setKey("killtarget", "t1");
  ASSERT_EQ(LinksOf(button).size(), 1u);
  EXPECT_EQ(LinksOf(button)[0].other, &door);
  EXPECT_TRUE(LinksOf(button)[0].pointsTo);
  ASSERT_EQ(LinksOf(door).size(), 2u);
  EXPECT_FALSE(LinksOf(door)[1].pointsTo);
}

}  // namespace
}  // namespace velk
