#include "documents/rescue.h"

#include <fstream>

#include <gtest/gtest.h>
#include <sys/stat.h>

#include "commands/dispatch.h"
#include "commands/files/named_files.h"
#include "documents/opening.h"
#include "support/session.h"

namespace velk {
namespace {

using test::Session;
using test::TempFolder;

namespace fs = std::filesystem;

int FilesNamed(const fs::path& folder, const std::string& start) {
  int count = 0;
  for (const auto& entry : fs::directory_iterator(folder)) {
    count += entry.path().filename().string().starts_with(start);
  }
  return count;
}

// An editor in the place of a session, which keeps quiet.
struct Another {
  explicit Another(const Session& session) : editor(session.editor.place(), prompts, observer) {
    editor.start();
  }
  test::RecordingObserver observer;
  ScriptPrompts prompts;
  Editor editor;
};

TEST(Rescue, EditorsAtWorkKeepApart) {
  const TempFolder folder;
  auto first = std::make_unique<RescueFolder>(folder.path());
  RescueFolder second(folder.path());
  EXPECT_EQ(first->backupFile().filename(), "backup.map");
  EXPECT_EQ(second.backupFile().filename(), "backup2.map");
  folder.write(first->copyFile(0).filename().string(), RescueFolder::header("c:\\maps\\a.map") + "{\n}\n");
  EXPECT_TRUE(second.claim().empty());
  first.reset();
  const std::vector<RescueCopy> claimed = second.claim();
  ASSERT_EQ(claimed.size(), 1u);
  EXPECT_EQ(claimed[0].original, "c:\\maps\\a.map");
  EXPECT_EQ(claimed[0].file, second.copyFile(0));
  RescueFolder third(folder.path());
  EXPECT_TRUE(third.claim().empty());
}

TEST(Rescue, APipeAmongTheCopiesDoesNotHangTheStart) {
  const TempFolder folder;
  RescueFolder rescue(folder.path());
  ASSERT_EQ(::mkfifo(rescue.copyFile(0).c_str(), 0600), 0);
  const std::vector<RescueCopy> claimed = rescue.claim();
  ASSERT_EQ(claimed.size(), 1u);
  EXPECT_EQ(claimed[0].original, rescue.copyFile(0));
}

TEST(Rescue, CopiesOfUnsavedMapsComeBackUnderTheirNames) {
  Session session;
  auto first = std::make_unique<Another>(session);
  first->editor.rescue().offer();
  const std::string path = session.home.write("small.map", test::SmallMapText());
  OpenNamed(first->editor, path);
  OpenNamed(first->editor, session.home.write("untouched.map", test::SmallMapText()));
  first->editor.door().show(SwitchTo(first->editor.documents(), 0));
  RunCommand(first->editor, *FindCommand("CM_SELECT_ALL"));
  EXPECT_EQ(first->editor.rescue().writeCopies(), 1);
  EXPECT_EQ(first->editor.rescue().writeCopies(), 1);
  const fs::path folder = session.editor.services().paths.native("c:\\");
  EXPECT_EQ(FilesNamed(folder, "rescue"), 1);

  // While the first editor is at work, nothing is taken from it.
  Another second(session);
  second.editor.rescue().offer();
  EXPECT_EQ(second.editor.documents().count(), 0);

  first.reset();
  second.prompts.queue({"yes"}, false);
  second.editor.rescue().offer();
  ASSERT_EQ(second.editor.documents().count(), 1);
  EXPECT_EQ(second.editor.documents().currentMap()->name, path);
  EXPECT_TRUE(second.editor.documents().currentMap()->modified);
  EXPECT_EQ(second.editor.documents().currentMap()->brushCount(), 3);
  EXPECT_EQ(FilesNamed(folder, "rescue"), 1);
  RunCommand(second.editor, *FindCommand("CM_FILESAVE"));
  EXPECT_EQ(FilesNamed(folder, "rescue"), 0);
}

TEST(Rescue, DeclinedCopiesArePutAside) {
  Session session;
  session.editor.rescue().offer();
  const fs::path folder = session.editor.services().paths.native("c:\\");
  std::ofstream(folder / "rescue1-0.map") << RescueFolder::header("lost.map") << "{\n}\n";
  session.answer("no");
  session.editor.rescue().offer();
  EXPECT_EQ(session.editor.documents().count(), 0);
  EXPECT_EQ(FilesNamed(folder, "rescued-"), 1);
  EXPECT_EQ(FilesNamed(folder, "rescue1"), 0);
}

TEST(Rescue, TheBackupIsWrittenFromTheSeventhTickOn) {
  Session session;
  session.editor.rescue().offer();
  const std::string path = session.open();
  session.run("CM_SELECT_ALL");
  const fs::path backup = session.editor.services().paths.native("c:\\backup.map");
  for (int tick = 1; tick <= 6; ++tick) session.editor.rescue().tick();
  EXPECT_FALSE(fs::exists(backup));
  session.editor.rescue().tick();
  EXPECT_EQ(session.editor.documents().status(), "Autosaving");
  EXPECT_TRUE(fs::exists(backup));
  EXPECT_TRUE(session.current().modified);
  fs::remove(backup);
  session.editor.rescue().tick();
  EXPECT_TRUE(fs::exists(backup));
}

}  // namespace
}  // namespace velk
