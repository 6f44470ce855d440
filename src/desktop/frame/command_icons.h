// The pictures of commands on buttons, drawn from the line drawings in icons/commands.txt.
#pragma once

#include <QColor>
#include <QIcon>
#include <QString>
#include <string_view>

namespace velk {

struct IconColours {
  QColor ink;
  QColor accent;
};

// The drawing of a command, by its name, as an SVG document of 24 by 24 units; empty when there is none.
QByteArray CommandSvg(std::string_view name, const IconColours& colours);

// An icon that is drawn at the size it is shown in, with the ink of the theme's button text, whichever the
// theme is by then. Null when the command has no drawing.
QIcon CommandIcon(std::string_view name);

}  // namespace velk
