#include "desktop/frame/context_menu.h"

#include <QMenu>

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
    action->setCheckable(item.check == MenuItem::Check::On);
    action->setChecked(item.check == MenuItem::Check::On);
    if (item.run) QObject::connect(action, &QAction::triggered, &owner, item.run);
  }
  popup.exec(owner.mapToGlobal(at));
}

}  // namespace velk
