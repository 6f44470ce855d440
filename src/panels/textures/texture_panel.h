// The texture window.
#pragma once

#include "panels/panel.h"

namespace velk {

class TexturePanel : public Panel {
 public:
  using Panel::Panel;
};

}  // namespace velk
