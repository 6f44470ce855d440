#include "desktop/dialogs/chooser_editors.h"

#include <QColorDialog>
#include <QFileDialog>
#include <QLineEdit>
#include <QPainter>
#include <QPushButton>
#include <QSignalBlocker>
#include <cstdio>
#include <memory>

#include "base/text.h"
#include "desktop/dialogs/shown_text.h"

namespace velk {
namespace {

constexpr int kSwatchWidth = 28;
constexpr int kSwatchHeight = 16;
constexpr int kPathWidth = 280;

QColor ColourOf(const std::string& value) {
  int red = 0;
  int green = 0;
  int blue = 0;
  std::sscanf(value.c_str(), "%i %i %i", &red, &green, &blue);
  return QColor(red, green, blue);
}

// Framed, since a colour may be that of the button.
QIcon Swatch(const std::string& value) {
  QPixmap pixmap(kSwatchWidth, kSwatchHeight);
  pixmap.fill(ColourOf(value));
  QPainter painter(&pixmap);
  painter.setPen(Qt::gray);
  painter.drawRect(0, 0, kSwatchWidth - 1, kSwatchHeight - 1);
  painter.end();
  return QIcon(pixmap);
}

// What is chosen replaces the text; nothing chosen leaves it.
void ChoosePath(QLineEdit& edit, const FormField& field, const Paths* paths) {
  const std::string now = GivenText(edit.text());
  const QString start = ShownText(paths ? paths->native(now).string() : now);
  const QString title = ShownText(field.title);
  const bool folder = field.kind == FormField::Kind::Folder;
  const QString chosen = folder ? QFileDialog::getExistingDirectory(edit.window(), title, start)
                                : QFileDialog::getOpenFileName(edit.window(), title, start);
  if (!chosen.isEmpty()) edit.setText(folder ? ShownText(WithSeparator(GivenText(chosen + '/'))) : chosen);
}

}  // namespace

FieldEditor ColourEditor(const FormField& field, const Edited& edited) {
  auto* button = new QPushButton;
  button->setIconSize(QSize(kSwatchWidth, kSwatchHeight));
  button->setStyleSheet("text-align: left; padding: 4px 8px;");
  button->setAutoDefault(false);
  const auto held = std::make_shared<std::string>();
  QObject::connect(button, &QPushButton::clicked, button, [button, held, edited, title = field.title] {
    const QColor chosen = QColorDialog::getColor(ColourOf(*held), button->window(), ShownText(title));
    if (chosen.isValid()) edited(Format("%i %i %i", chosen.red(), chosen.green(), chosen.blue()));
  });
  const auto show = [button, held](const FormField& now) {
    *held = now.value;
    button->setText(ShownText(now.label));
    button->setIcon(Swatch(now.value));
  };
  return {nullptr, button, button, show};
}

FieldEditor PathEditor(const FormField& field, const Paths* paths, const Edited& edited) {
  auto* edit = new QLineEdit;
  edit->setMinimumWidth(kPathWidth);
  auto* button = new QPushButton(ShownText(field.label));
  button->setAutoDefault(false);
  QObject::connect(button, &QPushButton::clicked, edit,
                   [edit, field, paths] { ChoosePath(*edit, field, paths); });
  QObject::connect(edit, &QLineEdit::textChanged, edit,
                   [edited](const QString& text) { edited(GivenText(text)); });
  const auto show = [edit, button](const FormField& now) {
    const QSignalBlocker blocker(edit);
    button->setText(ShownText(now.label));
    if (GivenText(edit->text()) != now.value) edit->setText(ShownText(now.value));
  };
  return {button, edit, edit, show};
}

}  // namespace velk
