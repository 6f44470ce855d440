#include "desktop/frame/bars.h"

#include <QImage>
#include <QToolButton>

#include <gtest/gtest.h>

#include "application.h"
#include "desktop/frame/child_windows.h"
#include "desktop/frame/command_icons.h"
#include "support/session.h"

namespace velk {
namespace {

using test::Application;
using test::Session;

// How many pixels are drawn, and how many at all.
int DrawnPixels(const QPixmap& picture) {
  const QImage image = picture.toImage().convertToFormat(QImage::Format_ARGB32);
  int drawn = 0;
  for (int y = 0; y < image.height(); ++y) {
    for (int x = 0; x < image.width(); ++x) drawn += qAlpha(image.pixel(x, y)) > 64 ? 1 : 0;
  }
  return drawn;
}

TEST(CommandIcons, EveryCommandOfTheBarsHasOneOfItsOwn) {
  Application();
  QStringList drawings;
  for (const Command& command : Commands()) {
    const QIcon icon = CommandIcon(command.name);
    if (icon.isNull()) continue;
    for (const int size : {16, 32}) {
      const int drawn = DrawnPixels(icon.pixmap(size, size));
      EXPECT_GT(drawn, size * size / 12) << command.name;
      EXPECT_LT(drawn, size * size * 9 / 10) << command.name;
    }
    drawings << QString::fromUtf8(CommandSvg(command.name, {Qt::black, Qt::red}));
  }
  EXPECT_GE(drawings.size(), 109);
  EXPECT_EQ(drawings.removeDuplicates(), 0);
  EXPECT_TRUE(CommandIcon("CM_NOTHING").isNull());
}

TEST(CommandIcons, FollowTheThemeAndTheStateOfTheButton) {
  const QPalette before = Application().palette();
  const QIcon icon = CommandIcon("CM_FILESAVE");
  QApplication::setPalette(QPalette(QColor(30, 30, 30)));
  const QImage dark = icon.pixmap(32, 32).toImage();
  EXPECT_NE(icon.pixmap(QSize(32, 32), QIcon::Disabled).toImage(), dark);
  QApplication::setPalette(QPalette(QColor(240, 240, 240)));
  EXPECT_NE(icon.pixmap(32, 32).toImage(), dark);
  QApplication::setPalette(before);
}

TEST(Bars, DockInOrderAndKeepTheirButtonsUpToDate) {
  Application();
  Session session;
  session.home.write("velkbars.ini",
                     "bars 2\nbar 1 CM_FILENEW\nbar 1 Separator\nbar 1 CM_GRID_MODE\nbar 2 TextureList\n");
  QMainWindow frame;
  QMdiArea area;
  const std::vector<TVelkControlBar*> bars = BuildBars(frame, session.editor);
  ASSERT_EQ(bars.size(), 2u);
  EXPECT_EQ(bars[1]->windowTitle(), "Velk Bar 2");
  EXPECT_EQ(bars[0]->allowedAreas(), Qt::AllToolBarAreas);
  EXPECT_EQ(frame.toolBarArea(bars[0]), Qt::TopToolBarArea);

  const QList<QAction*> actions = bars[0]->actions();
  EXPECT_TRUE(actions[1]->isSeparator());
  EXPECT_FALSE(actions[2]->isEnabled());
  actions[0]->trigger();
  EXPECT_EQ(session.editor.documents().count(), 1);
  EXPECT_TRUE(actions[2]->isEnabled());
  actions[2]->trigger();
  EXPECT_TRUE(actions[2]->isChecked());

  ChildWindows windows(area);
  windows.setBars(bars);
  session.editor.windows().setWindows(windows);
  for (const bool shown : {false, true}) {
    session.run("351");
    EXPECT_EQ(windows.barVisible(1), shown);
  }
  EXPECT_FALSE(windows.barVisible(2));
}

TEST(Bars, TheTextureListFollowsTheBrowserAndSetsIt) {
  Application();
  Session session;
  session.open();
  TextureList list(session.editor);
  EXPECT_EQ(list.width(), session.editor.settings().texture_list_width);
  ASSERT_EQ(list.count(), 3);
  ChooseTexture(session.editor, list.itemText(2).toStdString());
  list.refresh();
  EXPECT_EQ(list.currentIndex(), 2);
  list.setCurrentIndex(0);
  Q_EMIT list.activated(0);
  EXPECT_EQ(session.editor.texture().current().name, list.itemText(0).toStdString());
}

}  // namespace
}  // namespace velk
