#include "desktop/windows/help_window.h"

#include <QEvent>
#include <QKeyEvent>
#include <string>

#include "base/text.h"
#include "commands/command.h"

namespace velk {
namespace {

constexpr QSize kSize{760, 640};
constexpr int kMargin = 12;  // pixels between the text and the edges

std::string MenuPath(const Command& command) {
  std::string path;
  for (std::string label : Split(command.menu, '|')) {
    std::erase(label, '&');
    path += label + " > ";
  }
  return path + PlainLabel(command);
}

QString Cell(const std::string& text) {
  return "<td>" + QString::fromStdString(text).toHtmlEscaped() + "</td>";
}

// As HTML, since Qt needs seconds to read a table of this length as Markdown.
QString KeysPage() {
  QString page =
      "<h1>Keys</h1><table border='1' cellspacing='0' cellpadding='3'>"
      "<tr><th>key</th><th>command</th><th>what it does</th></tr>";
  for (const Command& command : Commands()) {
    if (!*command.keys) continue;
    page += "<tr>" + Cell(command.keys) + Cell(*command.menu ? MenuPath(command) : command.label) +
            Cell(command.hint) + "</tr>";
  }
  return page + "</table><p><a href='index.md'>Contents</a></p>";
}

}  // namespace

HelpWindow::HelpWindow(QWidget* parent) : QTextBrowser(parent) {
  setWindowFlag(Qt::Window);
  setWindowTitle("Velk - Help");
  setOpenExternalLinks(true);
  document()->setDocumentMargin(kMargin);
  resize(kSize);
}

void HelpWindow::showContents() {
  setSource(QUrl("qrc:/manual/index.md"), QTextDocument::MarkdownResource);
  show();
  raise();
  activateWindow();
  setFocus();
}

// Links take their colour when a page is read.
void HelpWindow::changeEvent(QEvent* event) {
  QTextBrowser::changeEvent(event);
  if (event->type() == QEvent::PaletteChange) reload();
}

void HelpWindow::keyPressEvent(QKeyEvent* event) {
  if (event->key() == Qt::Key_Escape) {
    close();
  } else {
    QTextBrowser::keyPressEvent(event);
  }
}

QVariant HelpWindow::loadResource(int type, const QUrl& name) {
  if (name.fileName() == "keys.html") return KeysPage();
  return QTextBrowser::loadResource(type, name);
}

}  // namespace velk
