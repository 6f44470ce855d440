// The context menus of the views' pictures.
#pragma once

#include "app/editor.h"
#include "base/menu.h"

namespace velk {

// What fits the brush under the cursor, below its class and group, or the place without one. Empty without a
// map.
Menu ViewMenu(Editor& editor, int view);

}  // namespace velk
