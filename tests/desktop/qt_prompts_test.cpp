#include "desktop/dialogs/qt_prompts.h"

#include <QFileDialog>
#include <QLineEdit>
#include <QMessageBox>
#include <QTest>
#include <QTimer>

#include <gtest/gtest.h>

#include "application.h"
#include "commands/texturing/replace_form.h"
#include "support/temp_folder.h"

namespace velk {
namespace {

// Looks at the dialog that is asked in the meantime; it must close it.
template <typename Dialog, typename Look>
void OnceOpen(Look look) {
  test::Application();
  QTimer::singleShot(0, [look] {
    auto* dialog = qobject_cast<Dialog*>(QApplication::activeModalWidget());
    ASSERT_TRUE(dialog);
    look(*dialog);
  });
}

TEST(QtPrompts, BoxesHaveTheirButtonsAndClosingOneDeclines) {
  using Buttons = MessageBox::Buttons;
  using Box = QMessageBox;
  const struct {
    Buttons asked;
    Box::StandardButtons buttons;
    Box::StandardButton pressed;
    Answer answer;
    Answer closed;
  } cases[] = {
      {Buttons::Ok, Box::Ok, Box::Ok, Answer::Ok, Answer::Ok},
      {Buttons::OkCancel, Box::Ok | Box::Cancel, Box::Ok, Answer::Ok, Answer::Cancel},
      {Buttons::YesNo, Box::Yes | Box::No, Box::Yes, Answer::Yes, Answer::No},
      {Buttons::YesNoCancel, Box::Yes | Box::No | Box::Cancel, Box::No, Answer::No, Answer::Cancel},
  };
  QtPrompts prompts;
  for (const auto& c : cases) {
    MessageBox box;
    box.caption = "Caption";
    box.text = "<b>text & all</b>";
    box.buttons = c.asked;
    OnceOpen<Box>([&c](Box& dialog) {
      EXPECT_EQ(dialog.standardButtons(), c.buttons);
      EXPECT_EQ(dialog.textFormat(), Qt::PlainText);
      dialog.button(c.pressed)->click();
    });
    EXPECT_EQ(prompts.ask(box), c.answer);
    OnceOpen<Box>([](Box& dialog) { QTest::keyClick(&dialog, Qt::Key_Escape); });
    EXPECT_EQ(prompts.ask(box), c.closed) << static_cast<int>(c.asked);
  }
}

TEST(QtPrompts, EnterDoesNotRiskAnything) {
  QtPrompts prompts;
  for (const bool risky : {false, true}) {
    MessageBox box;
    box.buttons = MessageBox::Buttons::YesNo;
    box.risky = risky;
    OnceOpen<QMessageBox>([risky](QMessageBox& dialog) {
      EXPECT_EQ(dialog.defaultButton() == dialog.button(QMessageBox::No), risky);
      dialog.reject();
    });
    prompts.ask(box);
  }
}

TEST(QtPrompts, FileChoosersFilterWithoutRegardToCase) {
  const struct {
    const char* filter;
    const char* shown;
    const char* suffix;
  } cases[] = {
      {"Map Files (*.map)|*.map|", "Map Files (*.map *.MAP)", "map"},
      {"(*.*)|*.*|", "All Files (*)", ""},
  };
  const test::TempFolder folder;
  QtPrompts prompts;
  for (const auto& [filter, shown, suffix] : cases) {
    FileChooser chooser;
    chooser.title = "Select";
    chooser.filter = filter;
    chooser.fileName = (folder.path() / "new").string();
    chooser.kind = FileChooser::Kind::Save;
    OnceOpen<QFileDialog>([&, &wanted = shown, &end = suffix](QFileDialog& dialog) {
      EXPECT_EQ(dialog.windowTitle(), "Select");
      EXPECT_EQ(dialog.nameFilters().front(), wanted);
      EXPECT_EQ(dialog.defaultSuffix(), end);
      static_cast<QDialog&>(dialog).accept();
    });
    const std::string ending = *suffix ? std::string(".") + suffix : "";
    EXPECT_EQ(prompts.chooseFile(chooser), chooser.fileName + ending);
  }
}

TEST(QtPrompts, AFormBesideTheWindowsStaysOpenAndIsThereOnce) {
  test::Application();
  QWidget owner;
  QtPrompts prompts;
  prompts.setOwner(&owner);
  std::vector<std::string> done;
  const auto show = [&] {
    ModelessForm replace = ReplaceForm("wall1", "", {"wall1", "sky1"});
    replace.pressed = [&done](Form& form, size_t button) {
      done.push_back(form.text("find") + ' ' + NameIn(form, "replace") + ' ' + std::to_string(button));
    };
    prompts.show(std::move(replace));
  };
  const auto open = [&owner] { return owner.findChildren<FormDialog*>(); };
  show();
  show();
  ASSERT_EQ(open().size(), 1);
  FormDialog& dialog = *open().front();
  EXPECT_FALSE(dialog.isModal());
  const QList<QPushButton*> buttons = dialog.findChildren<QPushButton*>();
  EXPECT_FALSE(buttons[1]->isEnabled());
  dialog.findChild<QWidget*>("replace")->findChild<QLineEdit*>()->setText(" other ");
  buttons[1]->click();
  EXPECT_EQ(done, std::vector<std::string>{"wall1 other 1"});
  EXPECT_TRUE(dialog.isVisible());
  dialog.reject();
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  EXPECT_TRUE(open().isEmpty());
  show();
  EXPECT_EQ(open().size(), 1);
}

}  // namespace
}  // namespace velk
