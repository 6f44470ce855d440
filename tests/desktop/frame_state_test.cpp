#include "desktop/frame/frame_state.h"

#include <QToolBar>

#include <gtest/gtest.h>

#include "application.h"
#include "base/ini_file.h"
#include "support/temp_folder.h"

namespace velk {
namespace {

// A frame with bars as the editor's frame has them.
class Frame : public QMainWindow {
 public:
  explicit Frame(int bars) {
    test::Application();
    for (int i = 1; i <= bars; ++i) {
      auto* bar = new QToolBar;
      bar->setObjectName(QStringLiteral("velkBar%1").arg(i));
      bar->addAction(QStringLiteral("action"));
      addToolBar(bar);
    }
    resize(500, 300);
  }
  QToolBar& bar(int number) { return *findChild<QToolBar*>(QStringLiteral("velkBar%1").arg(number)); }
  bool holds(int number) { return toolBarArea(&bar(number)) != Qt::NoToolBarArea; }
};

TEST(FrameState, KeepsSizeAndBarsWhateverBarsThereAre) {
  const struct {
    int barsThen;
    int barsNow;
  } cases[] = {{2, 2}, {3, 2}, {2, 3}, {2, 0}};
  for (const auto& [then, now] : cases) {
    SCOPED_TRACE(testing::Message() << then << " bars, now " << now);
    const test::TempFolder folder;
    const auto file = folder.path() / "state.ini";
    folder.write("state.ini", "[Recent]\nfile1=a.map\n");
    Frame old(then);
    old.resize(640, 480);
    old.addToolBar(Qt::LeftToolBarArea, &old.bar(1));
    old.bar(2).hide();
    RememberFrame(old, file);
    EXPECT_EQ(IniFile::Load(file).string("Recent", "file1", ""), "a.map");

    Frame frame(now);
    RestoreFrame(frame, file);
    EXPECT_EQ(frame.size(), QSize(640, 480));
    for (int i = 1; i <= now; ++i) {
      EXPECT_TRUE(frame.holds(i)) << i;
      EXPECT_EQ(frame.bar(i).isHidden(), i == 2) << i;
    }
    if (now > 0) {
      EXPECT_EQ(frame.toolBarArea(&frame.bar(1)), Qt::LeftToolBarArea);
    }
  }
}

TEST(FrameState, BarsOnLostScreensGoBackToTheFrame) {
  const test::TempFolder folder;
  const auto file = folder.path() / "state.ini";
  Frame old(1);
  old.show();
  old.bar(1).setWindowFlags(Qt::Tool);
  old.bar(1).move(90000, 90000);
  old.bar(1).show();
  RememberFrame(old, file);
  Frame frame(1);
  RestoreFrame(frame, file);
  frame.show();
  QApplication::processEvents();
  EXPECT_FALSE(frame.bar(1).isFloating());
  EXPECT_TRUE(frame.holds(1));
  EXPECT_TRUE(frame.bar(1).isVisible());
}

TEST(FrameState, DamagedStatesChangeNothing) {
  const test::TempFolder folder;
  const auto file = folder.path() / "state.ini";
  RememberFrame(Frame(2), file);
  for (const char* key : {"geometry", "bars"}) {
    const std::string good = IniFile::Load(file).string("Frame", key, "");
    for (size_t length = 0; length < good.size(); length += 4) {
      IniFile damaged = IniFile::Load(file);
      damaged.set("Frame", key, good.substr(0, length));
      ASSERT_TRUE(damaged.save(folder.path() / "damaged.ini").ok);
      Frame frame(2);
      RestoreFrame(frame, folder.path() / "damaged.ini");
      EXPECT_TRUE(frame.holds(1) && frame.holds(2)) << key << " of " << length;
      EXPECT_EQ(frame.size(), QSize(500, 300)) << key << " of " << length;
    }
  }
}

}  // namespace
}  // namespace velk
