// The menu bar, made from the command table.
#pragma once

#include <QMenuBar>

#include "app/editor.h"

namespace velk {

// Fills the bar with every command that has a menu path. Enabled and checked states are brought up to date
// whenever a menu opens; hints go to the status line. The editor must outlive the bar.
void BuildMenus(QMenuBar& bar, Editor& editor);

}  // namespace velk
