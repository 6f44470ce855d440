// What the entity and group windows do where care is taken, and what their texts cannot show in a script.
#include <gtest/gtest.h>

#include "support/session.h"

namespace velk {
namespace {

using test::Session;

entity& LightOf(Session& session) {
  session.open();
  session.current().setCurrentEntity(session.current().at(1));
  return *session.current().at(1);
}

void EnterPair(Session& session, const std::string& key, const std::string& value) {
  session.prompts.set("key", key);
  session.prompts.set("value", value);
  session.answer("ok");
  session.editor.panels().entities.addPair();
}

TEST(EntityPanel, QuotesBecomeSingleAndEveryPairIsOneLevel) {
  Session session;
  session.editor.settings().undo_levels = 10;
  entity& light = LightOf(session);
  EnterPair(session, "a\"b", "say \"hello\"");
  EXPECT_EQ(light.valueOfKey("a'b"), "say 'hello'");
  EXPECT_EQ(session.editor.documents().current()->history.undoNames(), std::vector<std::string>{"Set a'b"});
  session.run("CM_UNDO");
  EXPECT_FALSE(session.current().at(1)->hasKey("a'b"));
}

TEST(EntityPanel, BitsWithoutABoxAreKeptWithCare) {
  for (const bool careful : {false, true}) {
    Session session;
    session.editor.settings().careful_tools = careful;
    entity& light = LightOf(session);
    light.setKey("spawnflags", "8193");
    session.editor.panels().entities.toggleFlag(0);
    EXPECT_EQ(light.valueOfKey("spawnflags"), careful ? "8192" : "");
  }
}

TEST(EntityPanel, WithCareALongPairIsRefusedInTheDialog) {
  Session session;
  session.editor.settings().careful_tools = true;
  entity& light = LightOf(session);
  session.prompts.set("key", std::string(64, 'k'));
  session.prompts.set("value", "1");
  session.answer("ok");
  session.answer("cancel");
  session.editor.panels().entities.addPair();
  EXPECT_EQ(light.pairsInOrder().size(), 2u);
}

TEST(EntityPanel, SeveralSelectedEntitiesAreEditedTogetherWhenAsked) {
  Session session;
  entity& light = LightOf(session);
  auto made = std::make_unique<entity>(session.current());
  made->setClass("light");
  entity& other = session.current().addobject(std::move(made));
  other.at(0)->select();
  EntityPanel& panel = session.editor.panels().entities;
  panel.setAngle(90);
  EXPECT_FALSE(other.hasKey("angle"));
  panel.setEditsAll(true);
  EXPECT_EQ(PairText(panel.pairs()[0]), "\"angle\" - ...");
  panel.toggleFlag(8);
  EXPECT_EQ(light.valueOfKey("spawnflags") + other.valueOfKey("spawnflags"), "256256");
}

TEST(EntityPanel, AnUnknownClassIsShownAsItIsWritten) {
  Session session;
  entity& light = LightOf(session);
  light.setKey("classname", "no_such_class");
  EntityPanel& panel = session.editor.panels().entities;
  EXPECT_EQ(panel.classText(), "no_such_class");
  EXPECT_EQ(panel.classIndex(), 0);
  EXPECT_EQ(panel.comment(), "");
}

TEST(GroupPanel, WithCareTheFirstGroupStays) {
  for (const bool careful : {false, true}) {
    Session session;
    session.editor.settings().careful_tools = careful;
    session.open();
    session.current().groups.add("Walls");
    if (!careful) session.answer("ok");
    session.editor.panels().groups.remove(0);
    EXPECT_EQ(session.current().groups.at(0).name, careful ? "None" : "Walls");
  }
}

TEST(GroupPanel, LongNamesAreReadWhenTheyAreWanted) {
  for (const bool keptWhole : {false, true}) {
    Session session;
    session.editor.settings().long_group_names = keptWhole;
    session.open();
    session.current().groups.add("The upper corridor, west");
    session.current().groups.add("The upper corridor, east");
    session.run("CM_FILESAVE");
    OpenNamed(session.editor, session.current().name);
    EXPECT_EQ(session.current().groups.at(2).name,
              keptWhole ? "The upper corridor, east" : "The upper corri");
  }
}

TEST(GroupPanel, ANewMapStartsAtTheFirstGroup) {
  Session session;
  session.open();
  session.current().groups.add("Walls");
  GroupPanel& panel = session.editor.panels().groups;
  panel.pick(1);
  EXPECT_EQ(panel.current(), 1);
  session.run("CM_FILENEW");
  session.run("CM_NEXT_MAP");
  EXPECT_EQ(panel.current(), 0);
}

}  // namespace
}  // namespace velk
