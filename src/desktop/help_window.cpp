#include "desktop/help_window.h"

#include <QEvent>
#include <string>

#include "app/command.h"
#include "base/text.h"

namespace velk {
namespace {

constexpr QSize kSize{760, 640};

// Signs that would end a cell of the table, or its text.
std::string escaped(std::string_view text) {
  std::string result;
  for (const char c : text) {
    if (c == '|' || c == '`' || c == '\\' || c == '*' || c == '[' || c == ']') result += '\\';
    result += c;
  }
  return result;
}

std::string menuPath(const Command& command) {
  std::string path;
  for (std::string label : Split(command.menu, '|')) {
    std::erase(label, '&');
    path += label + " > ";
  }
  return path + PlainLabel(command);
}

std::string keysPage() {
  std::string page = "# Keys\n\n| key | command | what it does |\n|---|---|---|\n";
  for (const Command& command : Commands()) {
    if (!*command.keys) continue;
    page += "| " + escaped(command.keys) + " | " +
            escaped(*command.menu ? menuPath(command) : command.label) + " | " + escaped(command.hint) +
            " |\n";
  }
  return page + "\n[Contents](index.md)\n";
}

}  // namespace

HelpWindow::HelpWindow(QWidget* parent) : QTextBrowser(parent) {
  setWindowFlag(Qt::Window);
  setWindowTitle("Velk - Help");
  setOpenExternalLinks(true);
  resize(kSize);
}

void HelpWindow::showContents() {
  setSource(QUrl("qrc:/manual/index.md"), QTextDocument::MarkdownResource);
  show();
  raise();
  activateWindow();
}

// Links take their colour when a page is read.
void HelpWindow::changeEvent(QEvent* event) {
  QTextBrowser::changeEvent(event);
  if (event->type() == QEvent::PaletteChange) reload();
}

QVariant HelpWindow::loadResource(int type, const QUrl& name) {
  if (name.fileName() == "keys.md") return QString::fromStdString(keysPage());
  return QTextBrowser::loadResource(type, name);
}

}  // namespace velk
