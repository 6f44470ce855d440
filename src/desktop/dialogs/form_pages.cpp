#include "desktop/dialogs/form_pages.h"

#include <QComboBox>
#include <QFormLayout>
#include <QGridLayout>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <algorithm>

#include "desktop/dialogs/number_box.h"
#include "desktop/dialogs/shown_text.h"

namespace velk {
namespace {

constexpr int kColourRows = 7;
constexpr int kBetweenColumns = 24;
constexpr int kBetweenRows = 8;
constexpr int kWidestLabel = 190;  // beside its field in a narrow column
constexpr size_t kFewFields = 6;   // stand in one column, check boxes among them, as do all beside a picture

using Indices = std::vector<size_t>;

Indices FieldsOf(const Form& form, const std::string& page) {
  Indices fields;
  for (size_t i = 0; i < form.fields.size(); ++i) {
    if (form.fields[i].page == page) fields.push_back(i);
  }
  return fields;
}

// As wide as the widest of them.
void MakeAlike(const std::vector<QWidget*>& widgets) {
  int width = 0;
  for (const QWidget* widget : widgets) width = std::max(width, widget->sizeHint().width());
  for (QWidget* widget : widgets) widget->setMinimumWidth(width);
}

// A narrow one has radio buttons, and what a long label is for, below the label.
bool StandsBelow(const FieldEditor& editor) {
  if (qobject_cast<QRadioButton*>(editor.focus)) return true;
  return editor.label && editor.label->sizeHint().width() > kWidestLabel;
}

QLayout* Column(const std::vector<FieldEditor>& editors, const Indices& fields, bool narrow = false) {
  auto* layout = new QFormLayout;
  layout->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
  layout->setVerticalSpacing(kBetweenRows);
  std::vector<QWidget*> numbers;
  std::vector<QWidget*> buttons;
  for (const size_t i : fields) {
    const FieldEditor& editor = editors[i];
    if (qobject_cast<NumberBox*>(editor.focus)) numbers.push_back(editor.focus);
    if (qobject_cast<QPushButton*>(editor.label)) buttons.push_back(editor.label);
    if (narrow && StandsBelow(editor)) {
      layout->addRow(editor.label);
      layout->addRow(editor.widget);
    } else {
      editor.label ? layout->addRow(editor.label, editor.widget) : layout->addRow(editor.widget);
    }
  }
  MakeAlike(numbers);
  MakeAlike(buttons);
  return layout;
}

QLayout* ColourGrid(const std::vector<FieldEditor>& editors, const Indices& fields) {
  auto* grid = new QGridLayout;
  grid->setSpacing(kBetweenRows);
  int index = 0;
  for (const size_t i : fields) {
    grid->addWidget(editors[i].widget, index % kColourRows, index / kColourRows);
    ++index;
  }
  return grid;
}

}  // namespace

FormPages::FormPages(const Form& form, std::vector<FieldEditor> editors) : editors_(std::move(editors)) {
  auto* whole = new QVBoxLayout(this);
  whole->setContentsMargins(0, 0, 0, 0);
  if (QWidget* above = page(form, "")) {
    above->layout()->setContentsMargins(0, 0, 0, 0);
    whole->addWidget(above);
  }
  for (const FormField& field : form.fields) {
    if (field.page.empty()) continue;
    if (!tabs_) whole->addWidget(tabs_ = new QTabWidget, 1);
    const QString title = ShownText(field.page);
    if (tabs_->count() > 0 && tabs_->tabText(tabs_->count() - 1) == title) continue;
    tabs_->addTab(page(form, field.page), title);
  }
  whole->addStretch(0);
}

QWidget* FormPages::page(const Form& form, const std::string& name) {
  const Indices fields = FieldsOf(form, name);
  if (fields.empty()) return nullptr;
  const auto kindIs = [&form](FormField::Kind kind) {
    return [&form, kind](size_t i) { return form.fields[i].kind == kind; };
  };
  auto* widget = new QWidget;
  auto* columns = new QHBoxLayout(widget);
  columns->setSpacing(kBetweenColumns);
  if (std::all_of(fields.begin(), fields.end(), kindIs(FormField::Kind::Colour))) {
    columns->addLayout(ColourGrid(editors_, fields));
    return widget;
  }
  Indices left = fields;
  Indices flags;
  if (fields.size() > kFewFields && !form.picture) {
    std::copy_if(fields.begin(), fields.end(), std::back_inserter(flags), kindIs(FormField::Kind::Flag));
    std::erase_if(left, kindIs(FormField::Kind::Flag));
  }
  columns->addLayout(Column(editors_, left, form.picture != nullptr), 1);
  if (!flags.empty()) columns->addLayout(Column(editors_, flags));
  return widget;
}

void FormPages::refresh(const Form& form) {
  for (size_t i = 0; i < editors_.size(); ++i) editors_[i].show(form.fields[i]);
}

void FormPages::focus(size_t field) {
  const FieldEditor& editor = editors_[field];
  for (int i = 0; tabs_ && i < tabs_->count(); ++i) {
    if (tabs_->widget(i)->isAncestorOf(editor.widget)) tabs_->setCurrentIndex(i);
  }
  if (!editor.focus) return;
  editor.focus->setFocus();
  auto* line = qobject_cast<QLineEdit*>(editor.focus);
  if (!line) line = editor.focus->findChild<QLineEdit*>();
  if (line) line->selectAll();
}

}  // namespace velk
