// The group window.
#pragma once

#include "panels/panel.h"

namespace velk {

class GroupPanel : public Panel {
 public:
  using Panel::Panel;
};

}  // namespace velk
