#include "entities/entity_class.h"

#include <gtest/gtest.h>

#include "base/text.h"
#include "entities/quaked_tokenizer.h"
#include "support/declining_prompts.h"
#include "support/fatal.h"
#include "support/temp_folder.h"

namespace velk {
namespace {

using Names = std::vector<std::string>;
using Corner = std::array<float, 3>;

EntityClass Parse(std::string_view text) {
  EntityClass parsed;
  parsed.parseDefinition(text);
  return parsed;
}

// "name (colour) (mins) (maxs) box|comments", "brush" for a class built of brushes, "-" for no comments.
std::string Shown(const EntityClass& c) {
  std::string text = c.name;
  for (const Corner& corner : {c.color, c.mins, c.maxs})
    text += Format(" (%g %g %g)", corner[0], corner[1], corner[2]);
  return text + (c.fixedSize ? " box|" : " brush|") + c.comments.value_or("-");
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
  const std::pair<std::string_view, Names> cases[] = {
      {" a\x80\xFF"
       "b\tc\n",
       {"a", "b", "c"}},
      {"a(b)c{d}e'f:g", {"a", "(", "b", ")", "c", "{", "d", "}", "e", "'", "f", ":", "g"}},
      {"\"a b\"c \"\" a\"b c\" \"open", {"a b", "c", "", "a\"b", "c\"", "open"}},
      {"a // b\n//c\nd e//f // b", {"a", "d", "e//f"}},
      {"a\0b"sv, {"a"}},
      {longWord, {longWord.substr(0, 1023)}},
  };
  for (const auto& [text, expected] : cases) {
    QuakedTokenizer tokenizer(text);
    Names tokens;
    while (tokenizer.next()) tokens.emplace_back(tokenizer.token());
    EXPECT_EQ(tokens, expected) << text;
  }
}

TEST(EntityClassTest, PointClass) {
  const EntityClass light =
      Parse("/*QUAKED light (0 1 .5) (-8 -7 -6) (8 7 6) START_OFF\r\nA lamp.\r\n*/ void() light");
  EXPECT_EQ(Shown(light), "light (0 1 0.5) (-8 -7 -6) (8 7 6) box|A lamp.\r\n");
  EXPECT_EQ(light.flagName(0), "START_OFF");
  EXPECT_EQ(light.flagName(7), "");
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
  const std::pair<const char*, const char*> cases[] = {
      {"/*QUAKED", " (0 0 0) (0 0 0) (0 0 0) box|-"},
      {"/*QUAKED x\n*/", "x (0 0 0) (0 0 0) (0 0 0) box|-"},
      {"/*QUAKED x (1 2", "x (1 2 0) (0 0 0) (0 0 0) box|-"},
      {"/*QUAKED x (1 2 inf)", "x (1 2 0) (0 0 0) (0 0 0) box|-"},
      {"/*QUAKED x (1 2 3)", "x (1 2 3) (0 0 0) (0 0 0) box|-"},
      {"/*QUAKED x (1 2 3) (4 5 6 7", "x (1 2 3) (4 5 6) (0 0 0) box|-"},
      {"/*QUAKED x (1 2 3) (4 5 6) (7 8)\n*/", "x (1 2 3) (4 5 6) (7 8 0) box|-"},
      {"/*QUAKED x (1e99 2 3) ?", "x (1e+06 2 3) (0 0 0) (0 0 0) brush|"},
      {"/*QUAKED x (1 2 3) ?\nto the end", "x (1 2 3) (0 0 0) (0 0 0) brush|to the end"},
  };
  for (const auto& [text, shown] : cases) EXPECT_EQ(Shown(Parse(text)), shown) << text;
}

TEST(EntityClassListTest, KeepsSortedOrFileOrderAndEveryMarkMakesAClass) {
  using namespace std::string_view_literals;
  for (const bool sorted : {true, false}) {
    EntityClassList list;
    list.setSorted(sorted);
    list.scanText("/*QUAKED b (1 1 1) ?\nsee /*QUAKED A (1 1 1) ?\n*/ /*QUAKED a /*quaked c\0/*QUAKED"sv);
    EXPECT_EQ(NamesOf(list), sorted ? Names({"", "A", "a", "b"}) : Names({"b", "A", "a", ""}));
  }
}

TEST(EntityClassListTest, FindsTheFirstOfItsNameOrTheUnknownClass) {
  EntityClassList list;
  list.setSorted(false);
  for (const char* name : {"b", "light", "a", "light"}) list.insert(Named(name));
  list.setSorted(true);
  list.insert(Named("a"));  // before "b", and so before the other "a"
  EXPECT_EQ(NamesOf(list), Names({"a", "b", "light", "a", "light"}));
  EXPECT_EQ(list.indexOf(list.findByName("light")), 2);
  EXPECT_EQ(list.indexOf(list.findByName("a")), 0);
  EXPECT_TRUE(list.isKnown(list.findByName("b")));
  for (const char* name : {"Light", "", "UNKNOWN_CLASS"}) {
    EXPECT_FALSE(list.isKnown(list.findByName(name)));
    EXPECT_EQ(Shown(list.findByName(name)), "UNKNOWN_CLASS (1 1 0) (0 0 0) (0 0 0) brush|");
  }
  while (list.count() < 1024) list.insert(Named("x"));
  EXPECT_FATAL(list.insert(Named("x")), "EntityClass->insert, too many classes");
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
  test::DecliningPrompts prompts_;
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
  prompts_.answer("").answer(elsewhere);
  load("one.qc;sub\\two.qc");
  ASSERT_EQ(prompts_.choosers.size(), 2u);
  EXPECT_EQ(prompts_.choosers[1].title, "Where is .qc file:  two.qc?");
  EXPECT_EQ(prompts_.choosers[0].filter, "Entity .qc Files (*.qc)|*.qc|");
  EXPECT_EQ(NamesOf(list_), Names({"a"}));
}

TEST_F(EntityClassFilesTest, UnreadableFilesAreFatal) {
  folder_.write("ents.qc/x", "");
  EXPECT_FATAL(load("ents.qc"), "Error scanning " + folder_.directory() + "ents.qc for eclasses...");
}

}  // namespace
}  // namespace velk
