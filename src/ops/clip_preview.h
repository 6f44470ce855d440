// What the clipper would leave of the selected brushes, for the views to draw before anything is cut.
#pragma once

#include "model/map.h"

namespace velk {

// Keeps one brush, whose storage every cut uses again: once it has grown, drawing allocates nothing.
class ClipPreview {
 public:
  // Takes the map's clip plane as it is now; to be called before a picture is drawn. `depthAxis` is as for
  // makeClipFace, `careful` as for CarveSelection.
  void begin(const map& m, int depthAxis, bool careful);
  bool active() const { return map_ != nullptr; }

  // What to draw in place of a brush that is shown: the brush itself unless it is selected, in a visible
  // group and crossed by a plane; none when nothing of it would be left. A cut one is good until the next
  // call.
  const brush* of(const brush& b);

 private:
  bool leaves(const brush& b) const;
  const brush* cut(const brush& b);

  const map* map_ = nullptr;  // none while there is no plane
  bool careful_ = false;
  face clipFace_;
  brush scratch_;
};

}  // namespace velk
