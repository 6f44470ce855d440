#include "entities/entityclass.h"

#include <gtest/gtest.h>

#include "entities/quakedtokenizer.h"
#include "support/fatal.h"
#include "support/scripted_prompts.h"
#include "support/tempfolder.h"

namespace velk {
namespace {

using Names = std::vector<std::string>;
using Corner = std::array<float, 3>;

EntityClass Parse(std::string_view text) {
  EntityClass parsed;
  parsed.parseDefinition(text);
  return parsed;
}

EntityClass Named(const char* name) {
  EntityClass named;
  named.name = name;
  return named;
}

Names NamesOf(const EntityClassList& list) {
  Names names;
  for (int i = 0; i < list.count(); ++i) names.push_back(list.classAt(i).name);
  return names;
}

TEST(QuakedTokenizerTest, Tokens) {
  using namespace std::string_view_literals;
  const std::string longWord(2000, 'x');
  const struct {
    std::string_view text;
    Names tokens;
  } cases[] = {
      {" a\x80\xFF"
       "b\tc\n",
       {"a", "b", "c"}},
      {"a(b)c{d}e'f:g", {"a", "(", "b", ")", "c", "{", "d", "}", "e", "'", "f", ":", "g"}},
      {"\"a b\"c \"\" \"open", {"a b", "c", "", "open"}},
      {"a // b\n//c\nd e//f", {"a", "d", "e//f"}},
      {"a\"b c\"", {"a\"b", "c\""}},
      {"a // b", {"a"}},
      {"a\0b"sv, {"a"}},
      {longWord, {longWord.substr(0, 1023)}},
  };
  for (const auto& c : cases) {
    QuakedTokenizer tokenizer(c.text);
    Names tokens;
    while (tokenizer.next()) tokens.emplace_back(tokenizer.token());
    EXPECT_EQ(tokens, c.tokens) << c.text;
  }
}

TEST(EntityClassTest, PointClass) {
  const EntityClass light =
      Parse("/*QUAKED light (0 1 .5) (-8 -7 -6) (8 7 6) START_OFF\r\nA lamp.\r\n*/ void() light");
  EXPECT_EQ(light.name, "light");
  EXPECT_TRUE(light.fixedSize);
  EXPECT_EQ(light.color, (Corner{0, 1, 0.5f}));
  EXPECT_EQ(light.mins, (Corner{-8, -7, -6}));
  EXPECT_EQ(light.maxs, (Corner{8, 7, 6}));
  EXPECT_EQ(light.flagName(0), "START_OFF");
  EXPECT_EQ(light.flagName(7), "");
  EXPECT_EQ(light.comments, "A lamp.\r\n");
  for (const int bit : {-1, 8}) EXPECT_FATAL(light.flagName(bit), "EntityClass flagName: bad number");
}

TEST(EntityClassTest, ABoxOrAnyOtherWordAndFlagNames) {
  const std::string longName(40, 'f');
  const struct {
    std::string line;
    bool fixedSize;
    std::array<std::string, 8> names;
  } cases[] = {
      {"? START_OPEN x DOOR_DONT_LINK", false, {"START_OPEN", "x", "DOOR_DONT_LINK"}},
      {"?x START_OPEN // y", false, {"START_OPEN"}},
      {"? A \"two words\" // B", false, {"A", "two words"}},
      {"? 1 2 3 4 5 6 7 8 9", false, {"1", "2", "3", "4", "5", "6", "7", "8"}},
      {"( 0 0 0 ) ( 1 1 1 ) " + longName, true, {longName.substr(0, 31)}},
      {"? " + std::string(252, ' ') + "ab cd", false, {"ab"}},
      {"?", false, {}},
  };
  for (const auto& c : cases) {
    const EntityClass parsed = Parse("/*QUAKED x (0 0 0) " + c.line + "\ntext*/");
    EXPECT_EQ(parsed.fixedSize, c.fixedSize) << c.line;
    EXPECT_EQ(parsed.flagNames, c.names) << c.line;
    EXPECT_EQ(parsed.comments, "text") << c.line;
  }
}

TEST(EntityClassTest, MalformedDefinitionsKeepWhatWasReadBefore) {
  const struct {
    const char* text;
    const char* name;
    Corner color, mins;
    bool fixedSize;
    std::optional<std::string> comments;
  } cases[] = {
      {"/*QUAKED", "", {}, {}, true, {}},
      {"/*QUAKED x\n*/", "x", {}, {}, true, {}},
      {"/*QUAKED x (1 2", "x", {1, 2, 0}, {}, true, {}},
      {"/*QUAKED x (1 2 inf)", "x", {1, 2, 0}, {}, true, {}},
      {"/*QUAKED x (1 2 3)", "x", {1, 2, 3}, {}, true, {}},
      {"/*QUAKED x (1 2 3) (4 5 6 7", "x", {1, 2, 3}, {4, 5, 6}, true, {}},
      {"/*QUAKED x (1 2 3) (4 5 6) (7 8)\n*/", "x", {1, 2, 3}, {4, 5, 6}, true, {}},
      {"/*QUAKED x (1e99 2 3) ?", "x", {1e6f, 2, 3}, {}, false, ""},
      {"/*QUAKED x (1 2 3) ?\nto the end", "x", {1, 2, 3}, {}, false, "to the end"},
  };
  for (const auto& c : cases) {
    const EntityClass parsed = Parse(c.text);
    EXPECT_EQ(parsed.name, c.name) << c.text;
    EXPECT_EQ(parsed.color, c.color) << c.text;
    EXPECT_EQ(parsed.mins, c.mins) << c.text;
    EXPECT_EQ(parsed.fixedSize, c.fixedSize) << c.text;
    EXPECT_EQ(parsed.comments, c.comments) << c.text;
  }
}

TEST(EntityClassListTest, KeepsSortedOrFileOrder) {
  for (const bool sorted : {true, false}) {
    EntityClassList list;
    list.setSorted(sorted);
    for (const char* name : {"b", "A", "a"}) list.insert(Named(name));
    EXPECT_EQ(NamesOf(list), sorted ? Names({"A", "a", "b"}) : Names({"b", "A", "a"}));
  }
}

TEST(EntityClassListTest, FindsTheFirstOfItsNameOrTheUnknownClass) {
  EntityClassList list;
  list.setSorted(false);
  for (const char* name : {"b", "light", "a", "light"}) list.insert(Named(name));
  list.setSorted(true);
  EXPECT_EQ(list.indexOf(list.findByName("light")), 1);
  list.insert(Named("a"));  // before "b", and so before the other "a"
  EXPECT_EQ(NamesOf(list), Names({"a", "b", "light", "a", "light"}));
  EXPECT_EQ(list.indexOf(list.findByName("a")), 0);
  EXPECT_TRUE(list.isKnown(list.findByName("b")));
  for (const char* name : {"Light", "", "UNKNOWN_CLASS"}) {
    const EntityClass& unknown = list.findByName(name);
    EXPECT_FALSE(list.isKnown(unknown));
    EXPECT_FALSE(unknown.fixedSize);
    EXPECT_EQ(unknown.color, (Corner{1, 1, 0}));
  }
}

TEST(EntityClassListTest, HoldsAThousandAndTwentyFourClasses) {
  EntityClassList list;
  for (int i = 0; i < 1024; ++i) list.insert(Named("x"));
  EXPECT_FATAL(list.insert(Named("x")), "EntityClass->insert, too many classes");
}

TEST(EntityClassListTest, EveryMarkMakesAClass) {
  using namespace std::string_view_literals;
  EntityClassList list;
  list.setSorted(false);
  list.scanText("/*QUAKED a (1 1 1) ?\nsee /*QUAKED b (1 1 1) ?\n*/ /*quaked c\0/*QUAKED"sv);
  EXPECT_EQ(NamesOf(list), Names({"a", "b", ""}));
}

class EntityClassFilesTest : public testing::Test {
 protected:
  EntityClassFilesTest() { settings_.entity_qc_directory = folder_.directory(); }
  void load(const char* entities) {
    settings_.entities = entities;
    list_.loadAll(settings_, Paths(), prompts_);
  }

  test::TempFolder folder_;
  Settings settings_;
  test::ScriptedPrompts prompts_;
  EntityClassList list_;
};

TEST_F(EntityClassFilesTest, ReadsEveryFileInTheDirectory) {
  folder_.write("Ents.qc", "/*QUAKED b (0 0 0) ?\n*/");
  folder_.write("more.qc", "/*QUAKED a (0 0 0) ?\n*/");
  load("c:\\elsewhere\\ents.qc; more.qc;");
  EXPECT_EQ(NamesOf(list_), Names({"a", "b"}));
  settings_.sort_entities = false;
  load("ents.qc;more.qc");
  EXPECT_EQ(NamesOf(list_), Names({"b", "a"}));
  load("");
  EXPECT_EQ(list_.count(), 0);
  EXPECT_FALSE(list_.isKnown(list_.findByName("a")));
}

TEST_F(EntityClassFilesTest, AsksForMissingFiles) {
  const std::string elsewhere = folder_.write("other/defs.txt", "/*QUAKED a (0 0 0) ?\n*/");
  prompts_.cancel().answer(elsewhere);
  load("one.qc;sub\\two.qc");
  EXPECT_EQ(prompts_.asked, Names({"Where is .qc file:  one.qc?|", "Where is .qc file:  two.qc?|"}));
  EXPECT_EQ(prompts_.choosers[0].filter, "Entity .qc Files (*.qc)|*.qc|");
  EXPECT_EQ(NamesOf(list_), Names({"a"}));
}

TEST_F(EntityClassFilesTest, UnreadableFilesAreFatal) {
  folder_.write("ents.qc/x", "");
  EXPECT_FATAL(load("ents.qc"), "Error scanning " + folder_.directory() + "ents.qc for eclasses...");
}

}  // namespace
}  // namespace velk
