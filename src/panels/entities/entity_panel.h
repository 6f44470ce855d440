// The entity window.
#pragma once

#include "panels/panel.h"

namespace velk {

class EntityPanel : public Panel {
 public:
  using Panel::Panel;
};

}  // namespace velk
