#include "desktop/menus.h"

#include <QAction>
#include <QMenu>

#include "base/text.h"

namespace velk {
namespace {

// The menu at a path of labels parted by '|', made on the way where it does not exist.
QMenu* menuAt(QMenuBar& bar, const std::string& path) {
  QWidget* parent = &bar;
  for (const std::string& label : Split(path, '|')) {
    const QString title = QString::fromLatin1(label.c_str());
    QMenu* found = nullptr;
    for (QAction* action : parent->actions()) {
      if (action->menu() && action->text() == title) found = action->menu();
    }
    if (!found) {
      auto* above = qobject_cast<QMenu*>(parent);
      found = above ? above->addMenu(title) : bar.addMenu(title);
      found->setToolTipsVisible(false);
    }
    parent = found;
  }
  return qobject_cast<QMenu*>(parent);
}

// The key text stands behind a tab: shown by the menu, but no shortcut of Qt's. Keys are the key table's.
QString itemText(const Command& command, const Editor& editor) {
  QString text = QString::fromLocal8Bit(editor.labelOf(command).c_str());
  if (*command.keyText) text += '\t' + QString::fromLatin1(command.keyText);
  return text;
}

void refresh(QAction& action, const Editor& editor) {
  const Command* command = FindCommand(action.data().toInt());
  if (!command) return;
  action.setText(itemText(*command, editor));
  action.setEnabled(editor.isEnabled(*command));
  if (action.isCheckable()) action.setChecked(editor.isChecked(*command));
}

}  // namespace

void BuildMenus(QMenuBar& bar, Editor& editor) {
  for (const Command& command : Commands()) {
    if (!*command.menu) continue;
    QMenu* menu = menuAt(bar, command.menu);
    QAction* action = menu->addAction(itemText(command, editor));
    action->setData(command.id);
    action->setStatusTip(QString::fromLatin1(command.hint));
    action->setCheckable(command.checked != nullptr);
    action->setMenuRole(QAction::NoRole);
    QObject::connect(action, &QAction::triggered, [&editor, &command] { editor.run(command); });
    QObject::connect(menu, &QMenu::aboutToShow, action, [action, &editor] { refresh(*action, editor); });
    refresh(*action, editor);
  }
}

}  // namespace velk
