// Shows a context menu of the editor's.
#pragma once

#include <QWidget>

#include "base/menu.h"

namespace velk {

// At a place of the widget; runs what is chosen.
void ShowMenu(const Menu& menu, QWidget& owner, const QPoint& at);

}  // namespace velk
