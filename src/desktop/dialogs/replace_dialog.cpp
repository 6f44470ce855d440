#include "desktop/dialogs/replace_dialog.h"

#include <QDialogButtonBox>
#include <QFormLayout>
#include <QHBoxLayout>

#include "commands/handlers.h"
#include "desktop/dialogs/shown_text.h"

namespace velk {
namespace {

constexpr int kLongestName = 15;  // that a wad holds

std::string nameIn(const QLineEdit* field) { return GivenText(field->text().trimmed()); }

}  // namespace

ReplaceDialog::ReplaceDialog(Editor& editor, QWidget* parent)
    : QDialog(parent), editor_(editor), find_(new QLineEdit), with_(new QLineEdit) {
  setWindowTitle(QStringLiteral("Velk - Replace Texture"));
  with_->setMaxLength(kLongestName);
  auto* fields = new QFormLayout;
  fields->addRow(QStringLiteral("Fi&nd what:"), find_);
  fields->addRow(QStringLiteral("Re&place with:"), with_);

  auto* buttons = new QDialogButtonBox(Qt::Vertical);
  replace_ = buttons->addButton(QStringLiteral("&Replace"), QDialogButtonBox::ActionRole);
  replaceAll_ = buttons->addButton(QStringLiteral("Replace &All"), QDialogButtonBox::ActionRole);
  QPushButton* close = buttons->addButton(QDialogButtonBox::Close);
  replace_->setDefault(true);
  close->setAutoDefault(false);

  auto* whole = new QHBoxLayout(this);
  whole->addLayout(fields);
  whole->addWidget(buttons);
  for (const QLineEdit* field : {find_, with_}) {
    connect(field, &QLineEdit::textChanged, this, &ReplaceDialog::enableButtons);
  }
  // A name stands for all its faces, so both buttons do the same.
  for (const QPushButton* button : {replace_, replaceAll_}) {
    connect(button, &QPushButton::clicked, this, &ReplaceDialog::replace);
  }
  connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
  enableButtons();
}

void ReplaceDialog::present() {
  show();
  raise();
  activateWindow();
  find_->setFocus();
  find_->selectAll();
}

void ReplaceDialog::enableButtons() {
  const bool complete = !nameIn(find_).empty() && !nameIn(with_).empty();
  replace_->setEnabled(complete);
  replaceAll_->setEnabled(complete);
}

void ReplaceDialog::replace() {
  editor_.beginChange();
  commands::replaceTextureBy(editor_, nameIn(find_), nameIn(with_));
  editor_.endChange("Replace");
  editor_.observer().commandsChanged();
  present();
}

}  // namespace velk
