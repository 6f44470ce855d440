#include "desktop/frame/menus.h"

#include <QAction>
#include <QMenu>
#include <QProxyStyle>
#include <utility>

#include "base/text.h"
#include "commands/dispatch.h"
#include "desktop/dialogs/shown_text.h"

namespace velk {
namespace {

// Disabled items can be pointed at, so that they show their hints, too.
class MenuStyle : public QProxyStyle {
 public:
  int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                QStyleHintReturn* answer) const override {
    return hint == SH_Menu_AllowActiveAndDisabled ? 1 : QProxyStyle::styleHint(hint, option, widget, answer);
  }
};

// The menu of a row: a path of labels parted by '|', made on the way where it does not exist. The line
// before the row's group stands before the first thing that is new. Menus leave out lines that would stand
// first, last or twice.
QMenu* MenuOf(QMenuBar& bar, const Command& command, QStyle* style) {
  QWidget* parent = &bar;
  bool line = command.startsGroup;
  for (const std::string& label : Split(command.menu, '|')) {
    const QString title = QString::fromLatin1(label.c_str());
    QMenu* found = nullptr;
    for (QAction* action : parent->actions()) {
      if (action->menu() && action->text() == title) found = action->menu();
    }
    if (!found) {
      auto* above = qobject_cast<QMenu*>(parent);
      if (above && std::exchange(line, false)) above->addSeparator();
      found = above ? above->addMenu(title) : bar.addMenu(title);
      found->setToolTipsVisible(false);
      found->setStyle(style);
    }
    parent = found;
  }
  auto* menu = qobject_cast<QMenu*>(parent);
  if (line) menu->addSeparator();
  return menu;
}

// The key text stands behind a tab: shown by the menu, but no shortcut of Qt's. Keys are the key table's.
QString ItemText(const Command& command, const Editor& editor) {
  QString text = ShownText(LabelOf(editor, command));
  if (*command.keyText) text += '\t' + QString::fromLatin1(command.keyText);
  return text;
}

void Refresh(QAction& action, const Editor& editor) {
  const Command* command = FindCommand(action.data().toInt());
  if (!command) return;
  action.setText(ItemText(*command, editor));
  action.setVisible(!IsHidden(editor, *command));
  action.setEnabled(IsEnabled(editor, *command));
  if (action.isCheckable()) action.setChecked(IsChecked(editor, *command));
}

}  // namespace

void BuildMenus(QMenuBar& bar, Editor& editor) {
  auto* style = new MenuStyle;
  style->setParent(&bar);
  for (const Command& command : Commands()) {
    if (!*command.menu) continue;
    QMenu* menu = MenuOf(bar, command, style);
    QAction* action = menu->addAction(ItemText(command, editor));
    action->setData(command.id);
    action->setStatusTip(QString::fromLatin1(command.hint));
    action->setCheckable(command.checked != nullptr);
    action->setMenuRole(QAction::NoRole);
    QObject::connect(action, &QAction::triggered, [&editor, &command] { RunCommand(editor, command); });
    QObject::connect(menu, &QMenu::aboutToShow, action, [action, &editor] { Refresh(*action, editor); });
    Refresh(*action, editor);
  }
}

}  // namespace velk
