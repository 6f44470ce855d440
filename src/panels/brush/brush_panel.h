// The selected-brush window: what is selected, and the faces of the current brush.
#pragma once

#include <string>
#include <vector>

#include "panels/panel.h"

namespace velk {

// One line a face of the current brush, columns parted by tabs; empty without one.
struct FaceLines {
  std::vector<std::string> lines;
  int current = -1;
};

class BrushPanel : public Panel {
 public:
  using Panel::Panel;

  // "[%i] Selected" and the bounds of the current brush.
  std::string readout() const;
  FaceLines faces() const;
  // Makes a face of the current brush the current one.
  bool pick(int line) override;
  // The readout, then the faces' lines.
  std::vector<std::string> printed() override;
};

}  // namespace velk
