#include "desktop/dialogs/field_editors.h"

#include <QButtonGroup>
#include <QCheckBox>
#include <QComboBox>
#include <QCompleter>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QRadioButton>
#include <QSignalBlocker>
#include <QVBoxLayout>

#include "base/text.h"
#include "desktop/dialogs/chooser_editors.h"
#include "desktop/dialogs/number_box.h"
#include "desktop/dialogs/shown_text.h"

namespace velk {
namespace {

constexpr int kTextWidth = 140;
constexpr int kChoiceWidth = 100;
constexpr size_t kInARow = 3;  // radio buttons

QColor WarningColour(const QPalette& palette) {
  return palette.color(QPalette::Window).lightness() < 128 ? QColor(255, 130, 120) : QColor(190, 20, 20);
}

// Has the limits beside it while the number lies outside.
FieldEditor NumberEditor(const FormField& field, const Edited& edited) {
  auto* widget = new QWidget;
  auto* row = new QHBoxLayout(widget);
  row->setContentsMargins(0, 0, 0, 0);
  auto* box = new NumberBox(field);
  auto* limits = new QLabel;
  limits->setObjectName("limits");
  limits->setMinimumWidth(limits->fontMetrics().horizontalAdvance(ShownText(field.range.text())));
  row->addWidget(box);
  row->addWidget(limits, 1);
  QObject::connect(box, &QDoubleSpinBox::valueChanged, box,
                   [edited](double value) { edited(NumberText(value)); });
  const auto show = [box, limits](const FormField& now) {
    const QSignalBlocker blocker(box);
    const double value = TextToDouble(now.value);
    box->setNumberRange(now.range);
    if (box->value() != value) box->setValue(value);
    QPalette palette = limits->palette();
    palette.setColor(QPalette::WindowText, WarningColour(palette));
    limits->setPalette(palette);
    limits->setText(now.range.holds(value) ? QString() : ShownText(now.range.text()));
  };
  return {nullptr, widget, box, show};
}

FieldEditor LineEditor(const FormField& field, const Edited& edited) {
  auto* edit = new QLineEdit;
  edit->setMinimumWidth(kTextWidth);
  edit->setMaxLength(static_cast<int>(field.maxLength));
  QObject::connect(
      edit, &QLineEdit::textChanged, edit,
      [edited, most = field.maxLength](const QString& text) { edited(CutText(GivenText(text), most)); });
  const auto show = [edit](const FormField& now) {
    const QSignalBlocker blocker(edit);
    if (GivenText(edit->text()) != now.value) edit->setText(ShownText(now.value));
  };
  return {nullptr, edit, edit, show};
}

void SetItems(QComboBox& box, const std::vector<std::string>& choices) {
  QStringList items;
  for (const std::string& choice : choices) items << ShownText(choice);
  QStringList shown;
  for (int i = 0; i < box.count(); ++i) shown << box.itemText(i);
  if (items == shown) return;
  box.clear();
  box.addItems(items);
}

// A text with suggestions.
FieldEditor SuggestingEditor(const FormField& field, const Edited& edited) {
  auto* box = new QComboBox;
  box->setEditable(true);
  box->setInsertPolicy(QComboBox::NoInsert);
  box->setMinimumWidth(kTextWidth);
  box->completer()->setCompletionMode(QCompleter::PopupCompletion);
  box->lineEdit()->setMaxLength(static_cast<int>(field.maxLength));
  QObject::connect(
      box, &QComboBox::editTextChanged, box,
      [edited, most = field.maxLength](const QString& text) { edited(CutText(GivenText(text), most)); });
  const auto show = [box](const FormField& now) {
    const QSignalBlocker blocker(box);
    SetItems(*box, now.choices);
    if (GivenText(box->currentText()) != now.value) box->setEditText(ShownText(now.value));
  };
  return {nullptr, box, box, show};
}

FieldEditor FlagEditor(const Edited& edited) {
  auto* box = new QCheckBox;
  QObject::connect(box, &QCheckBox::toggled, box, [edited](bool on) { edited(on ? "1" : "0"); });
  const auto show = [box](const FormField& now) {
    const QSignalBlocker blocker(box);
    box->setText(ShownText(now.label));
    box->setChecked(TextToInt(now.value) != 0);
  };
  return {nullptr, box, box, show};
}

FieldEditor ChoiceEditor(const Edited& edited) {
  auto* box = new QComboBox;
  box->setMinimumWidth(kChoiceWidth);
  box->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
  QObject::connect(box, &QComboBox::currentIndexChanged, box,
                   [edited](int index) { edited(NumberText(index)); });
  const auto show = [box](const FormField& now) {
    const QSignalBlocker blocker(box);
    SetItems(*box, now.choices);
    box->setCurrentIndex(TextToInt(now.value));
    box->setEnabled(now.enabled && !now.choices.empty());
  };
  return {nullptr, box, box, show};
}

FieldEditor RadioEditor(const FormField& field, const Edited& edited) {
  auto* widget = new QWidget;
  auto* group = new QButtonGroup(widget);
  auto* layout = field.choices.size() <= kInARow ? static_cast<QBoxLayout*>(new QHBoxLayout(widget))
                                                 : new QVBoxLayout(widget);
  layout->setContentsMargins(0, 0, 0, 0);
  for (const std::string& choice : field.choices) {
    auto* button = new QRadioButton(ShownText(choice));
    group->addButton(button, static_cast<int>(group->buttons().size()));
    layout->addWidget(button);
  }
  layout->addStretch(1);
  QObject::connect(group, &QButtonGroup::idToggled, widget, [edited](int id, bool on) {
    if (on) edited(NumberText(id));
  });
  const auto show = [group](const FormField& now) {
    const QSignalBlocker blocker(group);
    for (size_t i = 0; i < now.choices.size(); ++i) {
      group->button(static_cast<int>(i))->setText(ShownText(now.choices[i]));
    }
    if (QAbstractButton* button = group->button(TextToInt(now.value))) button->setChecked(true);
  };
  return {nullptr, widget, group->button(0), show};
}

FieldEditor BareEditor(const FormField& field, const Paths* paths, const Edited& edited) {
  switch (field.kind) {
    case FormField::Kind::Whole:
    case FormField::Kind::Real:
      return NumberEditor(field, edited);
    case FormField::Kind::Flag:
      return FlagEditor(edited);
    case FormField::Kind::Choice:
      return ChoiceEditor(edited);
    case FormField::Kind::Radio:
      return RadioEditor(field, edited);
    case FormField::Kind::Colour:
      return ColourEditor(field, edited);
    case FormField::Kind::Folder:
    case FormField::Kind::File:
      return PathEditor(field, paths, edited);
    case FormField::Kind::Text:
      break;
  }
  return field.choices.empty() ? LineEditor(field, edited) : SuggestingEditor(field, edited);
}

bool ShowsItsLabel(const FormField& field) {
  return field.kind == FormField::Kind::Flag || field.kind == FormField::Kind::Colour;
}

// A label in front of an editor that has none of its own.
void AddLabel(FieldEditor& editor, const std::string& text) {
  auto* label = new QLabel(ShownText(text));
  label->setBuddy(editor.focus);
  editor.label = label;
  editor.show = [label, show = editor.show](const FormField& now) {
    label->setText(ShownText(now.label));
    show(now);
  };
}

}  // namespace

FieldEditor MakeFieldEditor(const FormField& field, const Paths* paths, const Edited& edited) {
  FieldEditor editor = BareEditor(field, paths, edited);
  if (!editor.label && !ShowsItsLabel(field)) AddLabel(editor, field.label);
  editor.widget->setObjectName(ShownText(field.name));
  editor.show = [label = editor.label, widget = editor.widget, show = editor.show](const FormField& now) {
    widget->setEnabled(now.enabled);
    if (label) label->setEnabled(now.enabled);
    show(now);
  };
  return editor;
}

}  // namespace velk
