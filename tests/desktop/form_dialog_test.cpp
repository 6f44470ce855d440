#include "desktop/dialogs/form_dialog.h"

#include <QCheckBox>
#include <QColorDialog>
#include <QComboBox>
#include <QLineEdit>
#include <QRadioButton>
#include <QTest>
#include <QTimer>

#include <gtest/gtest.h>

#include "application.h"
#include "desktop/dialogs/number_box.h"
#include "desktop/dialogs/picture_panel.h"

namespace velk {
namespace {

template <typename Widget>
Widget& EditorOf(QWidget& dialog, const char* field) {
  auto* whole = dialog.findChild<QWidget*>(field);
  auto* itself = qobject_cast<Widget*>(whole);
  return itself ? *itself : *whole->findChild<Widget*>();
}

QPushButton& ButtonOf(QWidget& dialog, const QString& text) {
  for (QPushButton* button : dialog.findChildren<QPushButton*>()) {
    if (button->text().remove('&') == text) return *button;
  }
  throw std::runtime_error("no button " + text.toStdString());
}

void Type(QWidget& into, const char* text) {
  QTest::keyClick(&into, Qt::Key_A, Qt::ControlModifier);
  QTest::keyClicks(&into, text);
}

Form FormOf(std::vector<FormField> fields) {
  test::Application();
  Form form;
  form.title = "Form";
  form.fields = std::move(fields);
  return form;
}

FormField FieldOf(FormField::Kind kind, std::vector<std::string> choices = {}) {
  FormField field = TextField("field", "Field", "");
  field.kind = kind;
  field.choices = std::move(choices);
  return field;
}

void ChooseColour(QWidget& dialog) {
  QTimer::singleShot(0, [] {
    auto* chooser = qobject_cast<QColorDialog*>(QApplication::activeModalWidget());
    ASSERT_TRUE(chooser);
    chooser->setCurrentColor(QColor(1, 20, 255));
    chooser->accept();
  });
  EditorOf<QPushButton>(dialog, "field").click();
}

TEST(FormDialog, EveryKindOfFieldGivesWhatTheUserGave) {
  using Kind = FormField::Kind;
  const std::vector<std::string> three{"a", "b", "c"};
  const struct {
    FormField field;
    void (*edit)(QWidget& dialog);
    const char* value;
  } cases[] = {
      {FieldOf(Kind::Text), [](QWidget& d) { Type(EditorOf<QLineEdit>(d, "field"), "two words"); },
       "two words"},
      {FieldOf(Kind::Text, three), [](QWidget& d) { Type(EditorOf<QLineEdit>(d, "field"), "new"); }, "new"},
      {FieldOf(Kind::Whole), [](QWidget& d) { Type(EditorOf<NumberBox>(d, "field"), "-70000"); }, "-70000"},
      {FieldOf(Kind::Real), [](QWidget& d) { Type(EditorOf<NumberBox>(d, "field"), "1,5"); }, "1.5"},
      {FieldOf(Kind::Flag), [](QWidget& d) { EditorOf<QCheckBox>(d, "field").click(); }, "1"},
      {FieldOf(Kind::Choice, three),
       [](QWidget& d) { QTest::keyClick(&EditorOf<QComboBox>(d, "field"), Qt::Key_Down); }, "1"},
      {FieldOf(Kind::Radio, three),
       [](QWidget& d) { d.findChild<QWidget*>("field")->findChildren<QRadioButton*>()[2]->click(); }, "2"},
      {FieldOf(Kind::Folder), [](QWidget& d) { Type(EditorOf<QLineEdit>(d, "field"), "c:\\maps\\"); },
       "c:\\maps\\"},
      {FieldOf(Kind::Colour), ChooseColour, "1 20 255"},
  };
  for (const auto& [field, edit, value] : cases) {
    Form form = FormOf({field});
    FormDialog dialog(form, nullptr, nullptr);
    edit(dialog);
    EXPECT_EQ(form.text("FIELD"), value) << static_cast<int>(field.kind);
  }
}

TEST(FormDialog, NumbersOutsideTheirRangeShowItAndArrowsLeadBack) {
  const struct {
    NumberRange range;
    const char* typed;
    const char* limits;
    const char* afterUp;
  } cases[] = {
      {{.low = 1, .high = 99}, "7", "", "8"},
      {{.low = 1, .high = 99}, "0", "1 to 99", "1"},
      {{.low = 1, .high = 99}, "1000", "1 to 99", "1000"},
      {{.low = 0.1, .step = 0.5, .decimals = 1, .unit = "px"}, "0", "at least 0.1 px", "0.5"},
      {{.high = -2, .step = 256}, "-100", "", "-2"},
  };
  for (const auto& [range, typed, limits, afterUp] : cases) {
    Form form = FormOf({RealField("field", "Field", 50, range)});
    FormDialog dialog(form, nullptr, nullptr);
    auto& box = EditorOf<NumberBox>(dialog, "field");
    Type(box, typed);
    EXPECT_EQ(form.text("field"), typed);
    EXPECT_EQ(dialog.findChild<QLabel*>("limits")->text(), limits);
    QTest::keyClick(&box, Qt::Key_Up);
    EXPECT_EQ(form.text("field"), afterUp) << typed;
  }
}

TEST(FormDialog, ARefusedFormStaysOpenAtTheFieldAndIsAcceptedOnceItIsRight) {
  Form form = FormOf({FlagField("first", "First", false), WholeField("width", "Width", 0)});
  form.fields[0].page = "One";
  form.fields[1].page = "Two";
  form.check = [](Form& f) {
    return f.whole("width") > 0 ? std::nullopt : std::optional(FormRefusal{"must be above 0", "width"});
  };
  FormDialog dialog(form, nullptr, nullptr);
  QTimer::singleShot(0, [&dialog] {
    ButtonOf(dialog, "OK").click();
    EXPECT_TRUE(dialog.isVisible());
    EXPECT_EQ(dialog.findChild<QLabel*>("reason")->text(), "Width: must be above 0");
    auto& box = EditorOf<NumberBox>(dialog, "width");
    EXPECT_TRUE(box.isVisible());  // its page is in front
    EXPECT_EQ(dialog.focusWidget(), &box);
    Type(box, "3");
    EXPECT_FALSE(dialog.findChild<QLabel*>("reason")->isVisible());
    ButtonOf(dialog, "OK").click();
    EXPECT_FALSE(dialog.isVisible());
    dialog.reject();
  });
  EXPECT_EQ(dialog.run(), FormAnswer::Ok);
  EXPECT_EQ(form.whole("width"), 3);
}

TEST(FormDialog, ChangesReachOtherFieldsAndCancelTakesAllBack) {
  Form form = FormOf({FlagField("spiral", "Spiral", false), RealField("turns", "Turns", 2, {})});
  form.note = "before";
  form.changed = [](Form& f) {
    const bool spiral = f.flag("spiral");
    f.fields[1].enabled = spiral;
    if (spiral) f.fields[1].value = "4.5";
    f.fields[0].label = spiral ? "Spiral!" : "Spiral";
    f.note = spiral ? "after" : "before";
    f.complete = !spiral;
  };
  FormDialog dialog(form, nullptr, nullptr);
  auto& flag = EditorOf<QCheckBox>(dialog, "spiral");
  auto& turns = EditorOf<NumberBox>(dialog, "turns");
  QTimer::singleShot(0, [&] {
    EXPECT_FALSE(turns.isEnabled());
    flag.click();
    EXPECT_TRUE(turns.isEnabled());
    EXPECT_EQ(turns.value(), 4.5);
    EXPECT_EQ(flag.text(), "Spiral!");
    EXPECT_EQ(form.note, "after");
    EXPECT_FALSE(ButtonOf(dialog, "OK").isEnabled());
    ButtonOf(dialog, "Cancel").click();
  });
  EXPECT_EQ(dialog.run(), FormAnswer::Cancel);
  EXPECT_FALSE(form.flag("spiral"));
  EXPECT_EQ(form.real("turns"), 2);
  EXPECT_EQ(form.note, "before");
}

struct RecordedPicture : FormPicture {
  int width() const override { return 60; }
  int height() const override { return 40; }
  void draw(PictureImage& image) override { image.pixels.back() = 0xff102030; }
  void drag(int dx, int dy, bool shift) override { calls << QString("%1 %2 %3").arg(dx).arg(dy).arg(shift); }
  void wheel(int notches) override { calls << QString("wheel %1").arg(notches); }
  std::vector<std::string> buttons() const override { return {"In", "Out"}; }
  void press(size_t button) override { calls << QString("button %1").arg(button); }
  QStringList calls;
};

TEST(FormDialog, ThePictureIsTurnedByTheMouse) {
  Form form = FormOf({});
  const auto picture = std::make_shared<RecordedPicture>();
  form.picture = picture;
  FormDialog dialog(form, nullptr, nullptr);
  auto& view = *dialog.findChild<PictureView*>();
  dialog.show();
  const auto mouse = [&view](QEvent::Type kind, QPointF at, Qt::MouseButtons held,
                             Qt::KeyboardModifiers keys) {
    QMouseEvent event(kind, at, view.mapToGlobal(at), Qt::LeftButton, held, keys);
    QApplication::sendEvent(&view, &event);
  };
  mouse(QEvent::MouseButtonPress, {10, 10}, Qt::LeftButton, Qt::NoModifier);
  mouse(QEvent::MouseMove, {14, 7}, Qt::LeftButton, Qt::NoModifier);
  mouse(QEvent::MouseMove, {14, 9}, Qt::LeftButton, Qt::ShiftModifier);
  mouse(QEvent::MouseMove, {50, 30}, Qt::NoButton, Qt::NoModifier);
  for (int i = 0; i < 3; ++i) {
    QWheelEvent half({5, 5}, {5, 5}, {}, {0, -60}, Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
    QApplication::sendEvent(&view, &half);
  }
  ButtonOf(dialog, "Out").click();
  EXPECT_EQ(picture->calls, QStringList({"4 -3 0", "0 2 1", "wheel -1", "button 1"}));
  const QImage shown = view.grab().toImage();
  EXPECT_EQ(shown.pixel(shown.width() - 1, shown.height() - 1), 0xff102030);
}

}  // namespace
}  // namespace velk
