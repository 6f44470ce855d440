#include <map>
#include <set>
#include <utility>

#include "base/text.h"
#include "commands/dispatch.h"
#include "commands/files/named_files.h"
#include "commands/key_stroke.h"
#include "documents/opening.h"
#include "planview/view_steps.h"
#include "support/declining_prompts.h"
#include "support/session.h"

namespace velk {
namespace {

std::string Named(const Command& command) { return std::to_string(command.id) + " " + command.name; }

TEST(CommandTable, EveryRowIsSound) {
  std::set<int> ids;
  std::set<std::string> names;
  std::set<std::string> places;
  for (const Command& command : Commands()) {
    EXPECT_TRUE(ids.insert(command.id).second) << "twice: " << Named(command);
    if (*command.name) {
      EXPECT_TRUE(names.insert(command.name).second) << "twice: " << Named(command);
    }
    EXPECT_STRNE(command.label, "") << Named(command);
    if (*command.menu) {
      EXPECT_TRUE(places.insert(std::string(command.menu) + "|" + command.label).second) << Named(command);
    } else {
      EXPECT_TRUE(*command.name || *command.keys || command.id == 229) << "nowhere: " << Named(command);
    }
    // The one row that has no hint.
    EXPECT_NE(*command.hint == '\0', command.id != 560) << Named(command);
    EXPECT_NE(!command.run, *command.reason == '\0') << "handler or reason: " << Named(command);
  }
}

TEST(CommandTable, NoTwoRowsOnOneKey) {
  std::map<std::string, std::string> owners;
  for (const Command& command : Commands()) {
    for (const KeyStroke& stroke : StrokesOf(command)) {
      EXPECT_NE(stroke.key, KeyStroke::Key::None) << Named(command);
      EXPECT_EQ(CommandOnKey(stroke), &command) << Named(command) << " and " << Named(*CommandOnKey(stroke));
    }
  }
}

TEST(CommandTable, HoldsWhatTheViewsMenusName) {
  const Settings settings;
  for (const auto& menu : {GridMenu(settings), ScaleMenu(settings), CameraMenu(settings, nullptr)}) {
    for (const ViewMenuItem& item : menu) {
      if (item.separator) continue;
      const Command* command = FindCommand(item.command);
      ASSERT_NE(command, nullptr) << item.command;
      EXPECT_TRUE(command->run) << item.command;
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
                                                       {"F9", 217},           {"PgUp", 269},
                                                       {"NumIns", 132},       {"NumEnd", 1043},
                                                       {"NumPgDn", 1045},     {"NumDel", 1044},
                                                       {"NumLeft", 1021},     {"NumHome", 279},
                                                       {"Ctrl+NumEnd", 276},  {"Ctrl+NumIns", 164},
                                                       {"Ctrl+NumPgUp", 561}, {"Alt+NumEnter", 254},
                                                       {"Ctrl+Shift+,", 1024}};
  for (const auto& [key, id] : cases) {
    const Command* command = CommandForStroke(ParseKeyStroke(key));
    ASSERT_NE(command, nullptr) << key;
    EXPECT_EQ(command->id, id) << key;
  }
  for (const char* free : {"Ctrl+F11", "Num0", "Num5", "Ctrl+Num9", "NumHome2"}) {
    EXPECT_EQ(CommandForStroke(ParseKeyStroke(free)), nullptr) << free;
  }
}

// Disabled rows are called, too, as a stale button would.
TEST(Commands, LoseNothingWhenDeclined) {
  test::TempFolder home;
  test::FurnishHome(home);
  const std::string empty = home.write("empty.map", "{\n\"classname\" \"worldspawn\"\n}\n");
  const std::string full = home.write("small.map", test::SmallMapText());
  for (const std::string& path : {std::string(), empty, full}) {
    test::DecliningPrompts prompts;
    test::RecordingObserver observer;
    Editor editor({home.path(), home.path()}, prompts, observer);
    editor.start();
    if (!path.empty()) OpenNamed(editor, path);
    const int maps = editor.documents().count();
    for (const Command& command : Commands()) {
      map* m = editor.documents().currentMap();
      if (m) m->MGPerform(Method::Deselect);
      if (m) m->modified = true;
      const int brushes = m ? m->brushCount() : 0;
      if (!RunCommand(editor, command) && command.run.plain) command.run.plain(editor);
      EXPECT_GE(editor.documents().count(), maps) << Named(command);
      EXPECT_TRUE(!m || editor.documents().at(0)->model.brushCount() == brushes) << Named(command);
      EXPECT_EQ(std::exchange(observer.exiting, false), !m && command.id == 99) << Named(command);
      while (editor.documents().count() > maps) editor.door().show(CloseDocument(editor.documents(), maps));
    }
  }
}

TEST(Commands, CheckMarksFollowTheState) {
  test::Session session;
  session.run("CM_FILENEW");
  const auto checkedOf = [&](int from, int to) {
    std::vector<int> ids;
    for (int id = from; id <= to; ++id) {
      if (IsChecked(session.editor, *FindCommand(id))) ids.push_back(id);
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
