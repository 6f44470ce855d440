#include "documents/recent.h"

#include <filesystem>

#include "commands/dispatch.h"
#include "support/session.h"

namespace velk {
namespace {

using test::Session;

std::vector<std::string> Listed(const RecentMaps& maps) {
  std::vector<std::string> paths;
  for (int i = 0; i < maps.count(); ++i) paths.push_back(maps.at(i));
  return paths;
}

TEST(Recent, TheLatestStandFirstAndOnceWhoeverWritesThem) {
  const test::TempFolder folder;
  const std::string file = folder.write("state.ini", "[Frame]\nwidth=5\n");
  RecentMaps one;
  RecentMaps two;
  one.add("unkept");
  one.keepIn(file);
  two.keepIn(file);
  EXPECT_EQ(one.count(), 0);
  one.add("/a b.map");
  two.add(" /b.map");
  one.add("/a\nb.map");
  one.add("/a b.map");
  EXPECT_EQ(Listed(one), (std::vector<std::string>{"/a b.map", " /b.map"}));
  for (int i = 0; i < 12; ++i) two.add("/" + std::to_string(i));
  two.remove("/10");
  one.keepIn(file);
  EXPECT_EQ(Listed(one), (std::vector<std::string>{"/11", "/9", "/8", "/7", "/6", "/5", "/4", "/3"}));
  one.clear();
  two.keepIn(file);
  EXPECT_EQ(two.count(), 0);
  EXPECT_EQ(folder.read("state.ini").find("[Frame]\nwidth=5\n"), 0u);
}

TEST(Recent, Labels) {
  const std::string deep = "/home/somebody/projects/maps/episode/one/sources/e1m1.map";
  const std::pair<std::string, std::string> cases[] = {
      {"/a&b/c\td.map", "&1 /a&&b/c?d.map"},
      {"/a/longer/way" + deep, "&1 \u2026/home/somebody/projects/maps/episode/one/sources/e1m1.map"},
      {"/" + std::string(40, 'x') + "\u00e9" + std::string(59, 'x'),
       "&1 \u2026\u00e9" + std::string(59, 'x')}};
  for (const auto& [path, label] : cases) EXPECT_EQ(RecentMapLabel(0, path), label);
}

TEST(Recent, OpensShowsAndForgets) {
  Session session;
  const auto recent = [&](int i) { return RunCommand(session.editor, *FindCommand(1010 + i)); };
  EXPECT_FALSE(recent(0));
  session.editor.attend();
  const std::string a = session.open("a.map");
  const std::string b = session.open("b.map");
  session.run("CM_FILENEW");
  EXPECT_EQ(Listed(session.editor.documents().recent()), (std::vector{b, a}));
  EXPECT_TRUE(recent(1));
  EXPECT_EQ(session.editor.documents().currentIndex(), 0) << "it was open already";
  EXPECT_EQ(session.editor.documents().count(), 3);
  EXPECT_EQ(session.editor.documents().recent().at(0), a);

  session.run("CM_FILECLOSE");
  EXPECT_TRUE(recent(0));
  EXPECT_EQ(session.editor.documents().currentMap()->name, a);
  std::filesystem::remove(a);
  session.answer("ok");
  recent(0);
  EXPECT_EQ(session.prompts.log().back(),
            "message \"Velk - Cannot Open\" \"The file " + a + " is not there any more.\" ok");

  session.run("CM_FILECLOSE");
  session.run("CM_FILECLOSE");
  session.run("CM_FILECLOSE");
  session.home.write("b.map", "{\n\"classname\" \"worldspawn\"\n{\nnonsense");
  session.answer("ok");
  recent(0);
  EXPECT_EQ(session.prompts.log().back(), "message \"Velk - Cannot Open\" \"Couldn't open " + b +
                                              "\\n\\nparsing map file\\n(reading [" + b + "], line 4)\" ok");
  EXPECT_EQ(Listed(session.editor.documents().recent()), std::vector{b});
}

}  // namespace
}  // namespace velk
