// Clicks that select: a press and release in one place, where nothing else happened.
#pragma once

#include "mouse/drag.h"

namespace velk {

inline constexpr char kClickTook[] = "Selected brush %i of %i under the cursor...";
inline constexpr char kClickAdded[] = "Added to the selection, %i selected...";
inline constexpr char kClickRemoved[] = "Taken out of the selection, %i selected...";

// Within so many pixels a press and its release are in one place.
inline constexpr int kClickSlack = 3;
inline bool InOnePlace(Pixel a, Pixel b) {
  return a.x - b.x <= kClickSlack && b.x - a.x <= kClickSlack && a.y - b.y <= kClickSlack &&
         b.y - a.y <= kClickSlack;
}

// The brushes under the cursor in the order in which clicks take them: in plan views those of entities other
// than the world before the world's, the nearest first; in the camera view what is seen, then what is behind
// it, in the wire picture only what has an edge there.
std::vector<brush*> BrushesUnder(const MouseContext& context, Pixel at);

class Clicks {
 public:
  // Selects what is under the cursor instead of what was selected, again in the same place what is behind
  // it; on nothing deselects. With SHIFT adds and removes.
  Outcome select(const MouseContext& context, const PointerEvent& event);
  // Before a context menu: selects what is under the cursor unless a selected brush is there.
  static Outcome selectForMenu(const MouseContext& context, const PointerEvent& event);

  // Whether a click there is one more in the place of the last, with one brush selected.
  bool isAgain(const MouseContext& context, Pixel at) const;
  // Which of the brushes under the cursor a click takes: the one behind the selected one when it is one
  // more there, else the first.
  size_t next(const MouseContext& context, Pixel at, const std::vector<brush*>& under) const;

 private:
  int view_ = -1;  // of the last click
  Pixel at_{0, 0};
};

}  // namespace velk
