#include "desktop/frame/context_menu.h"

#include <QMenu>

#include "commands/context_menus.h"
#include "desktop/dialogs/shown_text.h"

namespace velk {

void ShowMenu(const Menu& menu, QWidget& owner, const QPoint& at) {
  QMenu popup(&owner);
  for (const MenuItem& item : menu) {
    if (item.separator) {
      popup.addSeparator();
      continue;
    }
    // Names within a label have no mnemonics.
    QAction* action = popup.addAction(ShownText(item.label).replace('&', "&&"));
    action->setEnabled(item.enabled);
    action->setCheckable(item.check != MenuItem::Check::None);
    action->setChecked(item.check == MenuItem::Check::On);
    if (item.run) QObject::connect(action, &QAction::triggered, &owner, item.run);
  }
  popup.exec(owner.mapToGlobal(at));
}

void ShowViewMenu(Editor& editor, int view, QWidget& owner, Pixel at) {
  const auto menu = ContextMenu(editor, kViewNames[view]);
  if (menu && !menu->empty()) ShowMenu(*menu, owner, QPoint(at.x, at.y));
}

}  // namespace velk
