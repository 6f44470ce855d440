#include "desktop/dialogs/form_dialog.h"

#include <QHBoxLayout>
#include <QPointer>
#include <QStyle>
#include <QVBoxLayout>

#include "desktop/dialogs/picture_panel.h"
#include "desktop/dialogs/shown_text.h"

namespace velk {

FormDialog::FormDialog(Form& form, const Paths* paths, QWidget* parent)
    : QDialog(parent), form_(form), fieldsBefore_(form.fields), noteBefore_(form.note) {
  build(paths, modalButtons());
}

FormDialog::FormDialog(ModelessForm form, const Paths* paths, QWidget* parent)
    : QDialog(parent), modeless_(std::move(form)), form_(modeless_->form) {
  setAttribute(Qt::WA_DeleteOnClose);
  build(paths, modelessButtons());
}

// Upright buttons stand beside the fields, others below.
void FormDialog::build(const Paths* paths, QDialogButtonBox* buttons) {
  setWindowTitle(ShownText(form_.title));
  std::vector<FieldEditor> editors;
  for (size_t i = 0; i < form_.fields.size(); ++i) {
    const auto edited = [this, i](const std::string& value) { change(i, value); };
    editors.push_back(MakeFieldEditor(form_.fields[i], paths, edited));
  }
  auto* whole = new QVBoxLayout(this);
  auto* row = new QHBoxLayout;
  whole->addLayout(row, 1);
  row->addWidget(pages_ = new FormPages(form_, std::move(editors)));
  if (form_.picture) row->addWidget(picture_ = new PicturePanel(form_.picture), 1);
  whole->addWidget(note_ = new QLabel);
  whole->addWidget(refusal_ = refusalRow());
  if (buttons->orientation() == Qt::Vertical) {
    row->addWidget(buttons);
  } else {
    whole->addWidget(buttons);
  }
  tellChanged();
}

QWidget* FormDialog::refusalRow() {
  auto* widget = new QWidget;
  auto* row = new QHBoxLayout(widget);
  row->setContentsMargins(0, 0, 0, 0);
  auto* icon = new QLabel;
  const int size = style()->pixelMetric(QStyle::PM_SmallIconSize);
  icon->setPixmap(style()->standardIcon(QStyle::SP_MessageBoxWarning).pixmap(size, size));
  reason_ = new QLabel;
  reason_->setObjectName("reason");
  reason_->setTextFormat(Qt::PlainText);
  row->addWidget(icon);
  row->addWidget(reason_, 1);
  widget->hide();
  return widget;
}

QDialogButtonBox* FormDialog::modalButtons() {
  auto* box = new QDialogButtonBox(QDialogButtonBox::Ok);
  if (form_.cancel) box->addButton(QDialogButtonBox::Cancel);
  connect(box, &QDialogButtonBox::rejected, this, &QDialog::reject);
  const auto accepts = [this](QPushButton* button, FormAnswer answer) {
    accepting_.push_back(button);
    connect(button, &QPushButton::clicked, this, [this, answer] { finish(answer); });
  };
  accepts(box->button(QDialogButtonBox::Ok), FormAnswer::Ok);
  if (!form_.saveLabel.empty()) {
    accepts(box->addButton(ShownText(form_.saveLabel), QDialogButtonBox::ActionRole), FormAnswer::Save);
  }
  return box;
}

QDialogButtonBox* FormDialog::modelessButtons() {
  auto* box = new QDialogButtonBox(Qt::Vertical);
  for (const std::string& label : modeless_->buttons) {
    QPushButton* button = box->addButton(ShownText(label), QDialogButtonBox::ActionRole);
    connect(button, &QPushButton::clicked, this, [this, number = accepting_.size()] { press(number); });
    accepting_.push_back(button);
  }
  if (!accepting_.empty()) accepting_.front()->setDefault(true);
  box->addButton(QDialogButtonBox::Close)->setAutoDefault(false);
  connect(box, &QDialogButtonBox::rejected, this, &QWidget::close);
  return box;
}

FormAnswer FormDialog::run() {
  exec();
  if (answer_ == FormAnswer::Cancel) {
    form_.fields = fieldsBefore_;
    form_.note = noteBefore_;
  }
  return answer_;
}

void FormDialog::present() {
  show();
  raise();
  activateWindow();
  if (!form_.fields.empty()) pages_->focus(0);
}

void FormDialog::change(size_t field, const std::string& value) {
  form_.fields[field].value = value;
  refusal_->hide();
  tellChanged();
}

void FormDialog::tellChanged() {
  if (form_.changed) form_.changed(form_);
  pages_->refresh(form_);
  note_->setText(ShownText(form_.note));
  note_->setVisible(!form_.note.empty());
  for (QPushButton* button : accepting_) button->setEnabled(form_.complete);
  if (picture_) picture_->findChild<PictureView*>()->update();
}

bool FormDialog::isAccepted() {
  const auto refusal = form_.check ? form_.check(form_) : std::nullopt;
  if (refusal) showRefusal(*refusal);
  return !refusal;
}

void FormDialog::showRefusal(const FormRefusal& refusal) {
  QString reason = ShownText(refusal.text);
  if (const FormField* field = form_.find(refusal.field)) {
    reason = ShownText(field->label).remove('&') + ": " + reason;
    pages_->focus(static_cast<size_t>(field - form_.fields.data()));
  }
  reason_->setText(reason);
  refusal_->setVisible(!refusal.text.empty());
}

void FormDialog::finish(FormAnswer answer) {
  if (!isAccepted()) return;
  answer_ = answer;
  accept();
}

// What runs may end the program's windows, this one too.
void FormDialog::press(size_t button) {
  if (!isAccepted()) return;
  const QPointer<FormDialog> self(this);
  if (modeless_->pressed) modeless_->pressed(form_, button);
  if (self) present();
}

}  // namespace velk
