// Shows a context menu of the editor's.
#pragma once

#include <QWidget>

#include "app/editor.h"
#include "base/menu.h"

namespace velk {

// At a place of the widget; runs what is chosen.
void ShowMenu(const Menu& menu, QWidget& owner, const QPoint& at);

// The menu of a view's picture, which the widget shows, at a pixel of it.
void ShowViewMenu(Editor& editor, int view, QWidget& owner, Pixel at);

}  // namespace velk
