// The context menus by name: those of the tool windows (as Panels names them), of the views' pictures ("XY",
// "3D") and of the plan views' header strips ("XY.grid", "XZ.scale", "YZ.camera").
#pragma once

#include <optional>
#include <string>

#include "app/editor.h"
#include "base/menu.h"

namespace velk {

// The names of the views, as they are created: "XY", "XZ", "YZ", "3D".
inline constexpr const char* kViewNames[] = {"XY", "XZ", "YZ", "3D"};

// The menu as things stand; names in any case. None when there is no such menu.
std::optional<Menu> ContextMenu(Editor& editor, const std::string& name);
// The name of the menu that a field of a plan view's header strip opens; "" when it opens none.
std::string StripMenuName(int view, StripField field);

}  // namespace velk
