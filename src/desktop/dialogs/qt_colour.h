#pragma once

#include <QColor>

#include "base/colour.h"

namespace velk {

inline QColor QtColour(const Colour& from) { return {from.red, from.green, from.blue}; }

}  // namespace velk
