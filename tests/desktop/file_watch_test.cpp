#include "desktop/system/file_watch.h"

#include <QTest>

#include <gtest/gtest.h>

#include "application.h"
#include "support/session.h"

namespace velk {
namespace {

TEST(FileWatch, NoticesChangedAndReplacedFilesOfOpenMapsWhileTheUserIsThere) {
  test::Application();
  test::Session session;
  session.editor.attend();
  const std::string path = session.open();
  QWidget frame;
  FileWatch watch(session.editor, frame);
  watch.follow();
  const auto asked = [&session] { return session.prompts.log().size(); };
  const auto grown = [](int lights) {
    std::string text = test::SmallMapText();
    for (int i = 0; i < lights; ++i) text += "{\n\"classname\" \"light\"\n}\n";
    return text;
  };

  // Nobody is there yet: the question waits.
  session.answer("yes");
  session.home.write("small.map", grown(1));
  QTest::qWait(500);
  EXPECT_EQ(asked(), 0u);

  frame.show();
  frame.activateWindow();
  ASSERT_TRUE(QTest::qWaitFor([&] { return asked() == 1; }));
  EXPECT_EQ(session.current().numentities(), 3);

  // Twice, since a file that is replaced drops out of the watch.
  for (int lights = 2; lights < 4; ++lights) {
    session.answer("yes");
    std::filesystem::rename(session.home.write("other", grown(lights)), path);
    ASSERT_TRUE(QTest::qWaitFor([&] { return session.current().numentities() == 2 + lights; }));
  }
}

}  // namespace
}  // namespace velk
