#include "desktop/dialogs/qt_prompts.h"

#include <QApplication>
#include <QColorDialog>
#include <QFileDialog>
#include <QGridLayout>
#include <QHeaderView>
#include <QInputDialog>
#include <QLineEdit>
#include <QMessageBox>
#include <QTreeView>

#include "base/text.h"
#include "desktop/dialogs/qt_colour.h"
#include "desktop/dialogs/shown_text.h"

namespace velk {
namespace {

constexpr QSize kProgramIcon{64, 64};
constexpr QSize kChooser{760, 480};
constexpr int kTitleButtons = 120;  // pixels a title bar needs besides its text

QMessageBox::StandardButtons ButtonsOf(MessageBox::Buttons buttons) {
  switch (buttons) {
    case MessageBox::Buttons::Ok:
      return QMessageBox::Ok;
    case MessageBox::Buttons::OkCancel:
      return QMessageBox::Ok | QMessageBox::Cancel;
    case MessageBox::Buttons::YesNo:
      return QMessageBox::Yes | QMessageBox::No;
    case MessageBox::Buttons::YesNoCancel:
      return QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel;
  }
  return QMessageBox::Ok;
}

QMessageBox::Icon IconOf(MessageBox::Icon icon) {
  switch (icon) {
    case MessageBox::Icon::None:
    case MessageBox::Icon::Program:
      return QMessageBox::NoIcon;
    case MessageBox::Icon::Information:
      return QMessageBox::Information;
    case MessageBox::Icon::Warning:
      return QMessageBox::Warning;
    case MessageBox::Icon::Question:
      return QMessageBox::Question;
    case MessageBox::Icon::Error:
      return QMessageBox::Critical;
  }
  return QMessageBox::NoIcon;
}

// "Map Files (*.map)|*.map|" as Qt writes it, upper-case names included.
QString NameFilter(const std::string& filter) {
  const std::vector<std::string> pieces = Split(filter, '|');
  if (pieces.size() < 2) return QString();
  const std::string label = pieces[0].substr(0, pieces[0].find(" ("));
  const std::string& pattern = pieces[1];
  if (pattern == "*.*") return QStringLiteral("All Files (*)");
  return ShownText(label) + " (" + ShownText(LowerCase(pattern)) + " " + ShownText(UpperCase(pattern)) +
         ");;All Files (*)";
}

QString SuffixOf(const std::string& filter) {
  const std::vector<std::string> pieces = Split(filter, '|');
  if (pieces.size() < 2 || !pieces[1].starts_with("*.") || pieces[1] == "*.*") return QString();
  return ShownText(pieces[1].substr(2));
}

// Boxes are as wide as their text, which may be shorter than the title.
int TitleWidth(const QDialog& dialog) {
  return dialog.fontMetrics().horizontalAdvance(dialog.windowTitle()) + kTitleButtons;
}

void MakeRoomForTitle(QMessageBox& dialog) {
  if (auto* grid = qobject_cast<QGridLayout*>(dialog.layout())) {
    grid->addItem(new QSpacerItem(TitleWidth(dialog), 0), grid->rowCount(), 0, 1, grid->columnCount());
  }
}

// Qt's own chooser cuts sizes and dates short; a desktop's has no such table.
void MakeRoomForColumns(QFileDialog& dialog) {
  const auto* table = dialog.findChild<QTreeView*>();
  if (!table) return;
  table->header()->setSectionResizeMode(QHeaderView::ResizeToContents);
  table->header()->setSectionResizeMode(0, QHeaderView::Stretch);
  dialog.resize(kChooser);
}

// The first line of the text is the program's name.
void PresentProgram(QMessageBox& dialog) {
  const QString text = dialog.text();
  dialog.setTextFormat(Qt::RichText);
  dialog.setText("<h2>" + text.section('\n', 0, 0).toHtmlEscaped() + "</h2>" +
                 text.section('\n', 1).toHtmlEscaped());
  dialog.setInformativeText(QStringLiteral("Built with Qt %1, in C++20.").arg(qVersion()));
  dialog.setIconPixmap(QApplication::windowIcon().pixmap(kProgramIcon));
}

}  // namespace

Answer QtPrompts::ask(const MessageBox& box) {
  QMessageBox dialog(IconOf(box.icon), ShownText(box.caption), ShownText(box.text), ButtonsOf(box.buttons),
                     owner_);
  dialog.setTextFormat(Qt::PlainText);
  if (box.icon == MessageBox::Icon::Program) PresentProgram(dialog);
  MakeRoomForTitle(dialog);
  if (box.risky) dialog.setDefaultButton(QMessageBox::No);
  switch (dialog.exec()) {
    case QMessageBox::Yes:
      return Answer::Yes;
    case QMessageBox::Ok:
      return Answer::Ok;
    case QMessageBox::No:
      return Answer::No;
    // Closing a box that offers no Cancel declines.
    default:
      return box.buttons == MessageBox::Buttons::YesNo ? Answer::No : Answer::Cancel;
  }
}

std::vector<std::string> QtPrompts::chooseFiles(const FileChooser& chooser) {
  const std::filesystem::path start = paths_ ? paths_->native(chooser.directory) : std::filesystem::path();
  QFileDialog dialog(owner_, ShownText(chooser.title), ShownText(start.string()), NameFilter(chooser.filter));
  if (chooser.kind == FileChooser::Kind::Save) {
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setFileMode(QFileDialog::AnyFile);
    dialog.setDefaultSuffix(SuffixOf(chooser.filter));
  } else {
    const bool many = chooser.kind == FileChooser::Kind::OpenMany;
    dialog.setFileMode(many ? QFileDialog::ExistingFiles : QFileDialog::ExistingFile);
  }
  MakeRoomForColumns(dialog);
  if (!chooser.fileName.empty()) dialog.selectFile(ShownText(chooser.fileName));
  std::vector<std::string> chosen;
  if (dialog.exec() != QDialog::Accepted) return chosen;
  for (const QString& file : dialog.selectedFiles()) chosen.push_back(GivenText(file));
  return chosen;
}

std::optional<std::string> QtPrompts::input(const TextInput& input) {
  QInputDialog dialog(owner_);
  dialog.setWindowTitle(ShownText(input.title));
  dialog.setLabelText(ShownText(input.prompt));
  dialog.setTextValue(ShownText(input.text));
  if (auto* line = dialog.findChild<QLineEdit*>()) line->setMaxLength(input.maxLength);
  dialog.resize(dialog.sizeHint().expandedTo(QSize(TitleWidth(dialog), 0)));
  if (input.changed) {
    QObject::connect(&dialog, &QInputDialog::textValueChanged, &dialog,
                     [&input](const QString& text) { input.changed(GivenText(text)); });
    input.changed(input.text);
  }
  if (dialog.exec() != QDialog::Accepted) return std::nullopt;
  return GivenText(dialog.textValue());
}

std::optional<Colour> QtPrompts::chooseColour(const ColourChooser& chooser) {
  QColorDialog dialog(QtColour(chooser.colour), owner_);
  dialog.setWindowTitle(ShownText(chooser.title));
  for (int i = 0; i < static_cast<int>(chooser.custom.size()) && i < QColorDialog::customCount(); ++i) {
    QColorDialog::setCustomColor(i, QtColour(chooser.custom[static_cast<size_t>(i)]));
  }
  if (dialog.exec() != QDialog::Accepted) return std::nullopt;
  const QColor chosen = dialog.currentColor();
  return Colour{chosen.red(), chosen.green(), chosen.blue()};
}

FormAnswer QtPrompts::fill(Form& form) {
  FormDialog dialog(form, paths_, owner_);
  return dialog.run();
}

void QtPrompts::show(ModelessForm form) {
  std::erase_if(open_, [](const auto& dialog) { return dialog.isNull(); });
  for (const auto& dialog : open_) {
    if (dialog->windowTitle() == ShownText(form.form.title)) return dialog->present();
  }
  open_.emplace_back(new FormDialog(std::move(form), paths_, owner_));
  open_.back()->present();
}

}  // namespace velk
