#include "desktop/windows/face_fields.h"

#include <QDoubleValidator>
#include <QGridLayout>
#include <QLabel>
#include <algorithm>

#include "base/text.h"
#include "desktop/dialogs/shown_text.h"

namespace velk {
namespace {

constexpr const char* kLabels[] = {"S", "T", "Rot", "SX", "SY"};
constexpr const char* kHints[] = {"Shift across", "Shift down", "Rotation in degrees", "Scale across",
                                  "Scale down"};

std::array<float*, 5> NumbersOf(texturedef& t) {
  return {&t.shift[0], &t.shift[1], &t.rotate, &t.scale[0], &t.scale[1]};
}

// Within what a file can hold.
float NumberIn(const QLineEdit& field) {
  constexpr double kMost = 1e6;
  return float(std::clamp(TextToDouble(GivenText(field.text())), -kMost, kMost));
}

}  // namespace

FaceFields::FaceFields(BrushPanel& panel, QWidget* parent)
    : QWidget(parent), panel_(panel), name_(new QLineEdit) {
  auto* grid = new QGridLayout(this);
  grid->setContentsMargins(3, 0, 3, 0);
  grid->setHorizontalSpacing(3);
  grid->setVerticalSpacing(1);
  name_->setToolTip("The current face's texture");
  grid->addWidget(name_, 0, 0, 1, 6);
  const auto place = [&](int field, int row, int column) {
    numbers_[static_cast<size_t>(field)] = new QLineEdit;
    QLineEdit* edit = numbers_[static_cast<size_t>(field)];
    auto* validator = new QDoubleValidator(edit);
    validator->setLocale(QLocale::c());
    edit->setValidator(validator);
    edit->setToolTip(kHints[field]);
    grid->addWidget(new QLabel(kLabels[field]), row, column, Qt::AlignRight);
    grid->addWidget(edit, row, column + 1);
  };
  place(2, 0, 6);
  place(0, 1, 0);
  place(1, 1, 2);
  place(3, 1, 4);
  place(4, 1, 6);
  for (const int column : {1, 3, 5, 7}) grid->setColumnStretch(column, 1);
  for (QLineEdit* edit : findChildren<QLineEdit*>()) {
    edit->setFocusPolicy(Qt::ClickFocus);
    edit->setMinimumWidth(24);
    connect(edit, &QLineEdit::returnPressed, edit, &QLineEdit::clearFocus);
    connect(edit, &QLineEdit::editingFinished, this, &FaceFields::take);
  }
}

void FaceFields::take() {
  std::optional<texturedef> definition = panel_.faceTexture();
  if (!definition) return;
  if (name_->isModified()) definition->name = LowerCase(GivenText(name_->text()));
  const auto numbers = NumbersOf(*definition);
  for (size_t i = 0; i < numbers.size(); ++i) {
    if (numbers_[i]->isModified()) *numbers[i] = NumberIn(*numbers_[i]);
  }
  panel_.setFaceTexture(*definition);
  refresh();
}

void FaceFields::refresh() {
  std::optional<texturedef> definition = panel_.faceTexture();
  setEnabled(definition.has_value());
  const bool known = definition.has_value();
  texturedef shown = definition.value_or(texturedef{});
  name_->setText(ShownText(shown.name));
  const auto numbers = NumbersOf(shown);
  for (size_t i = 0; i < numbers.size(); ++i) {
    numbers_[i]->setText(known ? ShownText(Format("%g", double(*numbers[i]))) : QString());
  }
}

}  // namespace velk
