// The entity, group and selected-brush windows as their users touch them.
#include <QCheckBox>
#include <QElapsedTimer>
#include <QLineEdit>
#include <QMimeData>
#include <QTest>
#include <algorithm>

#include <gtest/gtest.h>

#include "application.h"
#include "desktop/windows/brush_window.h"
#include "desktop/windows/build_window.h"
#include "desktop/windows/entity_window.h"
#include "desktop/windows/group_window.h"
#include "support/session.h"

namespace velk {
namespace {

struct ToolWindows : testing::Test {
  ToolWindows() {
    test::Application();
    session.open();
  }
  EntityPanel& entities() { return session.editor.panels().entities; }

  test::Session session;
};

QString TextOf(const QAbstractItemView& list, int line) {
  return list.model()->index(line, 0).data().toString();
}

TEST_F(ToolWindows, AFlagBoxSetsAndALineEditsInPlace) {
  session.current().setCurrentEntity(session.current().at(1));
  EntityView window(session.editor);
  window.show();
  auto& box = *window.findChildren<QCheckBox*>()[1];
  EXPECT_EQ(box.text(), "START_OFF");
  box.click();
  EXPECT_EQ(session.current().at(1)->valueOfKey("spawnflags"), "1");
  window.refresh();
  auto& pairs = *window.findChild<EntityPairList*>();
  ASSERT_EQ(TextOf(pairs, 0), "\"spawnflags\" - \"1\"");
  pairs.setCurrentIndex(pairs.model()->index(0, 0));
  QTest::keyClick(&pairs, Qt::Key_F2);
  auto* value = pairs.viewport()->findChild<QLineEdit*>("value");
  ASSERT_TRUE(value);
  value->setText("2\"3");
  QTest::keyClick(value, Qt::Key_Return);
  EXPECT_EQ(session.current().at(1)->valueOfKey("spawnflags"), "2'3");
  EXPECT_EQ(session.editor.documents().current()->history.undoCount(), 0) << "the classic way keeps none";
}

TEST_F(ToolWindows, ShowingAnotherEntityIsQuick) {
  for (int i = 0; i < 200; ++i) {
    auto light = std::make_unique<entity>(session.current());
    light->setKey("targetname", "t" + std::to_string(i));
    light->setClass("light");
    session.current().addobject(std::move(light));
  }
  EntityView window(session.editor);
  QElapsedTimer timer;
  timer.start();
  for (int i = 1; i <= 200; ++i) {
    session.current().setCurrentEntity(session.current().at(i));
    window.refresh();
  }
  RecordProperty("microseconds", std::to_string(timer.nsecsElapsed() / 200 / 1000));
  EXPECT_EQ(TextOf(*window.findChild<EntityPairList*>(), 0), "\"origin\" - \"0 0 0\"");
  EXPECT_LT(timer.elapsed(), 2000);
}

TEST_F(ToolWindows, ACheckMarkHidesAGroupAndADropMovesTheSelection) {
  session.current().groups.add("Walls");
  session.current().world()->at(0)->select();
  TGroupWindow window(session.editor);
  auto& model = *window.findChild<TVelkGroupListBox*>()->model();
  EXPECT_EQ(model.index(1, 0).data().toString(), "[V] Walls");
  model.setData(model.index(1, 0), Qt::Unchecked, Qt::CheckStateRole);
  QMimeData carried;
  carried.setData(kSelectionMime, {});
  EXPECT_TRUE(model.dropMimeData(&carried, Qt::MoveAction, -1, -1, model.index(1, 0)));
  QApplication::processEvents();
  window.refresh();
  EXPECT_EQ(model.index(1, 0).data().toString(), "[I] Walls");
  EXPECT_EQ(session.current().world()->at(0)->group(), 1);
}

TEST_F(ToolWindows, TypedNumbersChangeTheCurrentFaceAlone) {
  brush& shown = *session.current().world()->at(0);
  shown.select();
  TSelectedBrushWindow window(session.editor);
  QLineEdit& rotation = *window.findChildren<QLineEdit*>()[1];
  rotation.setText("45");
  rotation.setModified(true);
  Q_EMIT rotation.editingFinished();
  EXPECT_EQ(shown.faces()[0].texture.rotate, 45);
  EXPECT_EQ(shown.faces()[1].texture.rotate, 0);
}

TEST_F(ToolWindows, AClickOnAFindingSelectsWhatItIsOfAndStaysChosen) {
  BuildPanel& panel = session.editor.panels().build;
  panel.check();
  TBuildWindow window(session.editor, nullptr);
  window.resize(400, 300);
  window.show();
  auto& lines = *window.findChild<BuildLines*>();
  const auto lists = window.findChildren<QListView*>();
  QListView& list =
      **std::ranges::find_if(lists, [&](const QListView* shown) { return shown->model() == &lines; });
  const auto found = std::ranges::find(panel.findings(), 1, &CheckFinding::entityNumber);
  const auto row = static_cast<int>(found - panel.findings().begin());
  QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, list.visualRect(lines.index(row)).center());
  EXPECT_TRUE(session.current().at(1)->at(0)->selected());
  EXPECT_EQ(list.currentIndex().row(), row);
}

}  // namespace
}  // namespace velk
