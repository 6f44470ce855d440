#include <map>
#include <set>

#include "app/session.h"
#include "planview/viewsteps.h"

namespace velk {
namespace {

std::string named(const Command& command) { return std::to_string(command.id) + " " + command.name; }

TEST(CommandTable, EveryRowIsSound) {
  std::set<int> ids;
  std::set<std::string> names;
  std::set<std::string> places;
  for (const Command& command : Commands()) {
    EXPECT_TRUE(ids.insert(command.id).second) << "twice: " << named(command);
    if (*command.name) {
      EXPECT_TRUE(names.insert(command.name).second) << "twice: " << named(command);
    }
    EXPECT_STRNE(command.label, "") << named(command);
    if (*command.menu) {
      EXPECT_TRUE(places.insert(std::string(command.menu) + "|" + command.label).second) << named(command);
    } else {
      EXPECT_TRUE(*command.name || *command.keys || command.id == 229) << "nowhere: " << named(command);
    }
    // The one row that has no hint.
    EXPECT_NE(*command.hint == '\0', command.id != 560) << named(command);
    EXPECT_NE(command.run == nullptr, *command.reason == '\0') << "handler or reason: " << named(command);
  }
}

TEST(CommandTable, NoTwoRowsOnOneKey) {
  std::map<std::string, std::string> owners;
  for (const Command& command : Commands()) {
    for (const KeyStroke& stroke : StrokesOf(command)) {
      EXPECT_NE(stroke.key, KeyStroke::Key::None) << named(command);
      EXPECT_EQ(CommandOnKey(stroke), &command) << named(command) << " and " << named(*CommandOnKey(stroke));
    }
  }
}

TEST(CommandTable, Finding) {
  EXPECT_EQ(FindCommand("cm_filenew")->id, 24331);
  EXPECT_EQ(FindCommand("24331"), FindCommand("CM_FILENEW"));
  EXPECT_EQ(FindCommand(""), nullptr);
  EXPECT_EQ(FindCommand("CM_NOTHING"), nullptr);
  EXPECT_EQ(FindCommand(4711), nullptr);
}

TEST(CommandTable, HoldsWhatTheViewsMenusName) {
  const Settings settings;
  for (const auto& menu : {gridMenu(settings), scaleMenu(settings), cameraMenu(settings, nullptr)}) {
    for (const ViewMenuItem& item : menu) {
      if (item.separator) continue;
      const Command* command = FindCommand(item.command);
      ASSERT_NE(command, nullptr) << item.command;
      EXPECT_NE(command->run, nullptr) << item.command;
    }
  }
}

TEST(Keys, Strokes) {
  using Key = KeyStroke::Key;
  const auto stroke = [](Key key, char character, bool pad, bool ctrl, bool alt, bool shift) {
    return KeyStroke{key, character, pad, ctrl, alt, shift};
  };
  const std::vector<std::pair<const char*, KeyStroke>> cases{
      {"Ctrl+PgUp", stroke(Key::PageUp, 0, false, true, false, false)},
      {"alt+a", stroke(Key::Character, 'A', false, false, true, false)},
      {"Num4", stroke(Key::Character, '4', true, false, false, false)},
      {"Ctrl+Num+", stroke(Key::Character, '+', true, true, false, false)},
      {"Ctrl+-", stroke(Key::Character, '-', false, true, false, false)},
      {"Ctrl+comma", stroke(Key::Character, ',', false, true, false, false)},
      {"`", stroke(Key::Character, '`', false, false, false, false)},
      {"Ctrl+Alt+Shift+C", stroke(Key::Character, 'C', false, true, true, true)},
      {"F12", stroke(Key::F12, 0, false, false, false, false)},
      {"F", stroke(Key::Character, 'F', false, false, false, false)},
      {"F13", {}},
      {"Ctrl+", {}},
      {"Hyper", {}},
      {"", {}},
  };
  for (const auto& [text, expected] : cases) EXPECT_TRUE(ParseKeyStroke(text) == expected) << text;
}

TEST(Keys, WhatTheyRun) {
  const std::vector<std::pair<const char*, int>> cases{{"Ctrl+Space", 216},   {"Ctrl+Shift+Space", 184},
                                                       {"Ctrl+Alt+B", 77},    {"Alt+Enter", 254},
                                                       {"Num-", 270},         {"Ctrl+X", 270},
                                                       {"Ctrl+Num-", 274},    {"Ctrl+-", 215},
                                                       {"Ctrl+1", 1001},      {"Ctrl+Num1", 276},
                                                       {"Ctrl+period", 1025}, {"]", 1074},
                                                       {"F9", 217},           {"PgUp", 269}};
  for (const auto& [key, id] : cases) {
    const Command* command = CommandOnKey(ParseKeyStroke(key));
    ASSERT_NE(command, nullptr) << key;
    EXPECT_EQ(command->id, id) << key;
  }
  EXPECT_EQ(CommandOnKey(ParseKeyStroke("Ctrl+F11")), nullptr);
}

TEST(Commands, EnabledWithAndWithoutMap) {
  test::Session session;
  const auto enabled = [&](const char* name) { return session.editor.isEnabled(*FindCommand(name)); };
  for (const char* name : {"CM_FILENEW", "CM_FILEOPEN", "CM_FILEEXIT", "167", "300", "197", "CM_REDRAW"}) {
    EXPECT_TRUE(enabled(name)) << name;
  }
  const auto needMap = {"CM_FILESAVE", "CM_FILECLOSE",   "CM_SELECT_ALL", "CM_TOGGLE_NAMES", "555",
                        "585",         "CM_OMIT_LIGHTS", "CM_FLOOR_UP",   "CM_XUP",          "CM_NEXT_FACE"};
  for (const char* name : needMap) EXPECT_FALSE(enabled(name)) << name;
  session.run("CM_FILENEW");
  for (const char* name : needMap) EXPECT_TRUE(enabled(name)) << name;
  EXPECT_FALSE(enabled("24337"));
  while (session.editor.mapCount() < MAX_MAPS) session.run("CM_FILENEW");
  EXPECT_FALSE(enabled("CM_FILENEW"));
  EXPECT_FALSE(enabled("CM_FILEOPEN"));
}

TEST(Commands, CheckMarksFollowTheState) {
  test::Session session;
  session.run("CM_FILENEW");
  const std::vector<std::pair<const char*, bool>> toggles{
      {"CM_TOGGLE_NAMES", false}, {"CM_TOGGLE_COORDINATES", true}, {"CM_TOGGLE_HITS", false},
      {"CM_GRID_MODE", false},    {"CM_GROUP_MODE", false},        {"CM_TOGGLE_OUTLINE", false},
      {"CM_OMIT_WATER", false},   {"CM_DRAW_CONNECTIONS", false}};
  for (const auto& [name, before] : toggles) {
    const Command& command = *FindCommand(name);
    EXPECT_EQ(session.editor.isChecked(command), before) << name;
    EXPECT_TRUE(session.run(name)) << name;
    EXPECT_EQ(session.editor.isChecked(command), !before) << name;
  }
  const auto checkedOf = [&](int from, int to) {
    std::vector<int> ids;
    for (int id = from; id <= to; ++id) {
      if (session.editor.isChecked(*FindCommand(id))) ids.push_back(id);
    }
    return ids;
  };
  session.run("555");
  session.run("580");
  session.run("CM_MODEFLAT");
  EXPECT_EQ(checkedOf(550, 558), std::vector{555});
  EXPECT_EQ(checkedOf(580, 590), std::vector{580});
  EXPECT_EQ(checkedOf(187, 189), std::vector{188});
  session.editor.settings().scale = 0.3f;
  EXPECT_TRUE(checkedOf(580, 590).empty());
}

}  // namespace
}  // namespace velk
