#include "desktop/windows/group_window.h"

#include <QVBoxLayout>

#include "base/text.h"
#include "desktop/dialogs/qt_colour.h"
#include "desktop/dialogs/shown_text.h"

namespace velk {
namespace {

constexpr int kMargin = 4;
constexpr int kButtonRoom = 8;  // of a button above and below its basis

}  // namespace

TGroupWindow::TGroupWindow(Editor& editor, QWidget* parent)
    : QWidget(parent),
      editor_(editor),
      list_(new TVelkGroupListBox(editor.panels().groups)),
      selection_(new SelectionHandle) {
  const Settings& settings = editor.settings();
  setWindowTitle(ShownText(WindowTitle(editor, ToolWindow::Groups)));
  QFont small("Arial");
  small.setPixelSize(settings.group_font_size);
  setFont(small);
  setFocusPolicy(Qt::ClickFocus);
  if (!settings.group_resize) list_->setFixedHeight(settings.group_list_size);
  list_->setMinimumHeight(20);
  auto* column = new QVBoxLayout(this);
  column->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
  column->setSpacing(3);
  column->addWidget(list_, 1);
  column->addLayout(buttonRow());
  if (!settings.group_resize) column->addStretch();
  refresh();
}

QBoxLayout* TGroupWindow::buttonRow() {
  swatch_ = button("", "");
  swatch_->setFixedWidth(swatch_->height());
  selection_->setMaximumWidth(editor_.settings().group_field_size);
  QToolButton* add = button("New...", "Makes a group of the selection");
  QToolButton* isolate = button("Isolate", "Shows the current group alone");
  QToolButton* all = button("Show All", "Makes all groups visible");
  auto* row = new QHBoxLayout;
  row->setSpacing(3);
  row->addWidget(swatch_);
  row->addWidget(selection_, 1);
  for (QToolButton* tool : {add, isolate, all}) row->addWidget(tool);
  connect(swatch_, &QToolButton::clicked, this, [this] { panel().setColour(panel().current()); });
  connect(add, &QToolButton::clicked, this, [this] { panel().addGroup(); });
  connect(isolate, &QToolButton::clicked, this, [this] { panel().isolate(panel().current()); });
  connect(all, &QToolButton::clicked, this, [this] { panel().showAll(); });
  return row;
}

QToolButton* TGroupWindow::button(const QString& text, const QString& hint) {
  auto* made = new QToolButton;
  made->setText(text);
  made->setToolTip(hint);
  made->setFocusPolicy(Qt::NoFocus);
  made->setFixedHeight(editor_.settings().group_button_height + kButtonRoom);
  made->setMaximumWidth(editor_.settings().group_button_width);
  return made;
}

void TGroupWindow::refresh() {
  setEnabled(editor_.documents().currentMap() != nullptr);
  list_->refresh();
  const Colour colour = panel().currentColour();
  QPixmap swatch(24, 24);
  swatch.setDevicePixelRatio(2);
  swatch.fill(QtColour(colour));
  swatch_->setIcon(swatch);
  swatch_->setToolTip(
      ShownText("New brushes join " + panel().currentName() + "; a click changes its colour"));
  showSelection();
}

void TGroupWindow::showSelection() {
  const map* m = editor_.documents().currentMap();
  const int selected = m ? m->totalSelected() : 0;
  selection_->setLoaded(selected > 0);
  selection_->setText(ShownText(Format("[%i] Selected", selected)));
}

}  // namespace velk
