#include "desktop/dialogs/form_dialog.h"

#include <QCheckBox>
#include <QColorDialog>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QFileDialog>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPainter>
#include <QPushButton>
#include <QVBoxLayout>
#include <algorithm>
#include <cstdio>
#include <memory>

#include "base/text.h"
#include "desktop/dialogs/shown_text.h"

namespace velk {
namespace {

constexpr int kColourRows = 10;
constexpr int kSwatchWidth = 28;
constexpr int kSwatchHeight = 16;

QColor colourOf(const std::string& value) {
  int red = 0;
  int green = 0;
  int blue = 0;
  std::sscanf(value.c_str(), "%i %i %i", &red, &green, &blue);
  return QColor(red, green, blue);
}

// Framed, since a colour may be that of the button.
QIcon swatch(const std::string& value) {
  QPixmap pixmap(kSwatchWidth, kSwatchHeight);
  pixmap.fill(colourOf(value));
  QPainter painter(&pixmap);
  painter.setPen(Qt::gray);
  painter.drawRect(0, 0, kSwatchWidth - 1, kSwatchHeight - 1);
  painter.end();
  return QIcon(pixmap);
}

bool isColour(const FormField& field) { return field.kind == FormField::Kind::Colour; }
bool isFlag(const FormField& field) { return field.kind == FormField::Kind::Flag; }

}  // namespace

FormDialog::FormDialog(Form& form, const Paths* paths, QWidget* parent)
    : QDialog(parent), form_(form), paths_(paths) {
  setWindowTitle(ShownText(form.title));
  auto* whole = new QVBoxLayout(this);
  auto* columns = new QHBoxLayout;
  columns->setSpacing(24);
  const bool colours = std::any_of(form.fields.begin(), form.fields.end(), isColour);
  const bool flags = std::any_of(form.fields.begin(), form.fields.end(), isFlag);
  columns->addWidget(colours ? colourGrid() : column(false));
  if (flags) columns->addWidget(column(true), 0, Qt::AlignTop);
  whole->addLayout(columns);
  if (!form.note.empty()) whole->addWidget(new QLabel(ShownText(form.note)));
  whole->addWidget(buttons());
}

FormAnswer FormDialog::run() {
  exec();
  if (answer_ != FormAnswer::Cancel) {
    for (const auto& collect : collect_) collect();
  }
  return answer_;
}

QWidget* FormDialog::column(bool flags) {
  auto* widget = new QWidget;
  auto* layout = new QFormLayout(widget);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->setVerticalSpacing(flags ? 6 : 3);
  layout->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
  for (FormField& field : form_.fields) {
    if (isFlag(field) != flags) continue;
    QWidget* editor = editorFor(field);
    if (flags) {
      layout->addRow(editor);
    } else {
      layout->addRow(ShownText(field.label), editor);
    }
  }
  return widget;
}

QWidget* FormDialog::colourGrid() {
  auto* widget = new QWidget;
  auto* grid = new QGridLayout(widget);
  grid->setContentsMargins(0, 0, 0, 0);
  int index = 0;
  for (FormField& field : form_.fields) {
    grid->addWidget(colourEditor(field), index % kColourRows, index / kColourRows);
    ++index;
  }
  return widget;
}

QWidget* FormDialog::editorFor(FormField& field) {
  switch (field.kind) {
    case FormField::Kind::Flag:
      return flagEditor(field);
    case FormField::Kind::Choice:
      return choiceEditor(field);
    case FormField::Kind::Colour:
      return colourEditor(field);
    case FormField::Kind::Folder:
    case FormField::Kind::File:
      return pathEditor(field);
    case FormField::Kind::Text:
      break;
  }
  return textEditor(field);
}

QWidget* FormDialog::textEditor(FormField& field) {
  auto* edit = new QLineEdit(ShownText(field.value));
  edit->setMinimumWidth(110);
  collect_.emplace_back([edit, &field] { field.value = GivenText(edit->text()); });
  return edit;
}

QWidget* FormDialog::flagEditor(FormField& field) {
  auto* box = new QCheckBox(ShownText(field.label));
  box->setChecked(TextToInt(field.value) != 0);
  collect_.emplace_back([box, &field] { field.value = box->isChecked() ? "1" : "0"; });
  return box;
}

QWidget* FormDialog::choiceEditor(FormField& field) {
  auto* list = new QComboBox;
  list->setMinimumWidth(180);
  for (const std::string& choice : field.choices) list->addItem(ShownText(choice));
  list->setCurrentIndex(TextToInt(field.value));
  list->setEnabled(!field.choices.empty());
  collect_.emplace_back([list, &field] { field.value = Format("%i", list->currentIndex()); });
  return list;
}

QWidget* FormDialog::colourEditor(FormField& field) {
  auto* button = new QPushButton(swatch(field.value), ShownText(field.label));
  button->setIconSize(QSize(kSwatchWidth, kSwatchHeight));
  button->setStyleSheet("text-align: left; padding: 4px 8px;");
  button->setAutoDefault(false);
  auto chosen = std::make_shared<std::string>(field.value);
  connect(button, &QPushButton::clicked, this, [this, button, chosen, &field] {
    const QColor colour = QColorDialog::getColor(colourOf(*chosen), this, ShownText(field.title));
    if (!colour.isValid()) return;
    *chosen = Format("%i %i %i", colour.red(), colour.green(), colour.blue());
    button->setIcon(swatch(*chosen));
  });
  collect_.emplace_back([chosen, &field] { field.value = *chosen; });
  return button;
}

QWidget* FormDialog::pathEditor(FormField& field) {
  auto* widget = new QWidget;
  auto* row = new QHBoxLayout(widget);
  row->setContentsMargins(0, 0, 0, 0);
  auto* edit = new QLineEdit(ShownText(field.value));
  edit->setMinimumWidth(320);
  auto* button = new QPushButton("Choose...");
  button->setAutoDefault(false);
  row->addWidget(edit, 1);
  row->addWidget(button);
  connect(button, &QPushButton::clicked, this, [this, edit, &field] {
    const QString start = paths_ ? ShownText(paths_->native(GivenText(edit->text())).string()) : edit->text();
    const bool folder = field.kind == FormField::Kind::Folder;
    const QString chosen = folder ? QFileDialog::getExistingDirectory(this, ShownText(field.title), start)
                                  : QFileDialog::getOpenFileName(this, ShownText(field.title), start);
    if (!chosen.isEmpty()) edit->setText(folder ? ShownText(WithSeparator(GivenText(chosen + '/'))) : chosen);
  });
  collect_.emplace_back([edit, &field] { field.value = GivenText(edit->text()); });
  return widget;
}

QWidget* FormDialog::buttons() {
  auto* box = new QDialogButtonBox(QDialogButtonBox::Ok);
  if (form_.cancel) box->addButton(QDialogButtonBox::Cancel);
  const auto finish = [this](FormAnswer answer) {
    answer_ = answer;
    accept();
  };
  connect(box, &QDialogButtonBox::rejected, this, &QDialog::reject);
  connect(box->button(QDialogButtonBox::Ok), &QPushButton::clicked, this,
          [finish] { finish(FormAnswer::Ok); });
  if (!form_.saveLabel.empty()) {
    QPushButton* save = box->addButton(ShownText(form_.saveLabel), QDialogButtonBox::ActionRole);
    connect(save, &QPushButton::clicked, this, [finish] { finish(FormAnswer::Save); });
  }
  return box;
}

}  // namespace velk
