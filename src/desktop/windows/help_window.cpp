#include "desktop/windows/help_window.h"

#include <QEvent>
#include <QFile>
#include <QKeyEvent>
#include <string>

#include "base/text.h"
#include "commands/command.h"
#include "mouse/operations.h"

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

// A row for each operation, in the order in which they are tried.
QString MouseRows(const MouseBinding& binding, std::span<const MouseOperation> operations) {
  QString rows;
  for (const std::string& name : binding.names) {
    const MouseOperation* operation = OperationOf(operations, lookupOperation(operations, name));
    rows += "<tr>";
    if (&name == &binding.names.front()) {
      rows += QString("<td rowspan='%1'>").arg(binding.names.size()) +
              QString::fromStdString(ButtonText(binding)) + "</td>";
    }
    rows += Cell(name) + Cell(operation ? operation->help : "") + "</tr>";
  }
  return rows;
}

// The bindings as Velk comes with them; the user's own may be others.
QString MouseTables(const char* heading, const QString& file, std::span<const MouseOperation> operations) {
  QFile kit(":/manual/" + file);
  if (!kit.open(QIODevice::ReadOnly)) return {};
  const QByteArray text = kit.readAll();
  QString page = QString("<h2>%1</h2><p>%2</p>").arg(heading, file);
  for (const MouseSetup& setup : ParseMouseBindings({text.data(), static_cast<size_t>(text.size())}).setups) {
    page += "<h3>" + QString::fromStdString(setup.name).toHtmlEscaped() +
            "</h3><table border='1' cellspacing='0' cellpadding='3'>"
            "<tr><th>button</th><th>operation</th><th>what it does</th></tr>";
    for (const MouseBinding& binding : setup.bindings) page += MouseRows(binding, operations);
    page += "</table>";
  }
  return page;
}

QString BindingsPage() {
  return "<h1>Mouse bindings</h1><p>As they come with Velk. A press tries the operations of a line in order "
         "until one can begin. <a href='mouse.md'>The mouse</a> says how to change them.</p>" +
         MouseTables("Plan views", "velkmouse.ini", PlanOperations()) +
         MouseTables("Camera view", "velkmou3D.ini", CameraOperations()) +
         "<p><a href='index.md'>Contents</a></p>";
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
  if (name.fileName() == "bindings.html") return BindingsPage();
  return QTextBrowser::loadResource(type, name);
}

}  // namespace velk
