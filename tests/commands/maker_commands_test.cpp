// Making brushes with care: what cannot be made leaves the seed and says why, and what is made stays with it.
#include "support/cube_text.h"
#include "support/session.h"

namespace velk {
namespace {

using test::Session;

struct Careful {
  const char* command;
  const char* field;  // of its form; none: the value is the answer
  const char* value;
  const char* status;
};

TEST(MakerCommands, WithCareTheSeedIsKeptWhenNothingComesOfIt) {
  const Careful cases[] = {
      {"CM_MAKE_SPHERE", "vertical", "1", "Nothing valid comes of these values, brush kept..."},
      {"CM_REVOLVE", "strips", "5", "No profile could be read, brush kept..."},
      {"CM_MAKE_ARCH", "post", "30", "Brush is too short to create requested arch..."},
      {"CM_MAKE_ROOM", nullptr, "2000", "Bad thickness..."},
  };
  Session session;
  session.editor.settings().careful_tools = true;
  session.run("CM_FILENEW");
  session.prompts.set("dz", "16");
  session.answer("ok");
  session.run("CM_MAKE_BRUSH");
  for (const Careful& c : cases) {
    if (c.command == std::string("CM_REVOLVE")) session.answer("none.rev");
    if (c.field) session.prompts.set(c.field, c.value);
    session.answer(c.field ? "ok" : c.value);
    EXPECT_TRUE(session.run(c.command));
    EXPECT_EQ(session.editor.documents().status(), c.status);
    ASSERT_EQ(session.current().totalSelected(), 1) << c.command;
    EXPECT_EQ(session.current().firstSelected()->maxs.z, 16) << c.command;
  }
  session.run("CM_DESELECT_ALL");
  session.answer("8");
  session.run("CM_MAKE_ROOM");
  EXPECT_EQ(session.editor.documents().status(), "Must only have one selected brush...");
}

// The seed is the wall's only brush, and the world is current.
TEST(MakerCommands, WithCareWhatIsMadeStaysInTheSeedsEntity) {
  for (const bool careful : {false, true}) {
    for (const char* command : {"CM_MAKE_ROOM", "CM_EDITMAKESTAIRS", "CM_MAKE_ARCH"}) {
      Session session;
      session.editor.settings().careful_tools = careful;
      const std::string wall = "{\n\"classname\" \"worldspawn\"\n" + test::Cube(0, "wall1 0 0 0 1 1") +
                               "}\n{\n\"classname\" \"func_wall\"\n" + test::Cube(2, "floor1 0 0 0 1 1") +
                               "}\n";
      OpenNamed(session.editor, session.home.write("wall.map", wall));
      session.current().at(1)->at(0)->select();
      session.answer(command == std::string("CM_MAKE_ROOM") ? "8" : "ok");
      session.run(command);
      EXPECT_GT(session.current().totalSelected(), 1) << command;
      EXPECT_EQ(session.current().numentities(), careful ? 2 : 1) << command;
    }
  }
}

TEST(MakerCommands, ValuesAreRememberedWithinTheirLimits) {
  Session session;
  session.open();
  session.current().world()->at(0)->select();
  for (int round = 0; round < 2; ++round) {
    session.prompts.set(round == 0 ? "inner" : "strips", round == 0 ? "300" : "4");
    session.answer("ok");
    session.run("CM_MAKE_CYLINDER");
    EXPECT_EQ(session.editor.remembered().cylinder.inner, 300);
    EXPECT_EQ(session.editor.remembered().cylinder.outer, 301);
    session.run("CM_DESELECT_ALL");
    session.current().world()->at(0)->select();
  }
}

}  // namespace
}  // namespace velk
