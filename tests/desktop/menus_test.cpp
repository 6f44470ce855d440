#include "desktop/frame/menus.h"

#include <QMenu>

#include <gtest/gtest.h>

#include "application.h"
#include "support/session.h"

namespace velk {
namespace {

// The item of a command, brought up to date as an opening menu does.
QAction& ItemOf(QMenuBar& bar, int id) {
  for (QMenu* menu : bar.findChildren<QMenu*>()) {
    for (QAction* action : menu->actions()) {
      if (action->menu() || action->data().toInt() != id) continue;
      Q_EMIT menu->aboutToShow();
      return *action;
    }
  }
  throw std::runtime_error("no item of the command " + std::to_string(id));
}

TEST(Menus, ItemsHaveLabelsKeysMarksAndStates) {
  test::Application();
  test::Session session;
  QMenuBar bar;
  BuildMenus(bar, session.editor);
  const auto item = [&bar](const char* name) -> QAction& { return ItemOf(bar, FindCommand(name)->id); };

  EXPECT_EQ(item("CM_FILESAVE").text(), "&Save\tCtrl-S");
  EXPECT_FALSE(item("CM_FILESAVE").isEnabled());
  EXPECT_FALSE(item("CM_FILESAVE").isCheckable());
  session.open();
  EXPECT_TRUE(item("CM_FILESAVE").isEnabled());

  QAction& outline = item("CM_TOGGLE_OUTLINE");
  EXPECT_TRUE(outline.isCheckable());
  for (const bool on : {true, false}) {
    outline.trigger();
    EXPECT_EQ(item("CM_TOGGLE_OUTLINE").isChecked(), on);
  }
}

// A map's name may hold what the menu takes for the sign of a mnemonic.
TEST(Menus, NamesOfMapsAreShownAsTheyAre) {
  test::Application();
  test::Session session;
  QMenuBar bar;
  BuildMenus(bar, session.editor);
  EXPECT_FALSE(ItemOf(bar, 1010).isVisible());
  session.editor.attend();
  session.open("this & that.map");
  EXPECT_TRUE(ItemOf(bar, 1010).isVisible());
  EXPECT_TRUE(ItemOf(bar, 1010).text().contains("this && that.map"));
}

}  // namespace
}  // namespace velk
