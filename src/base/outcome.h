// What an operation, a tool or a command did: the one value they return. Whoever ran it posts the text and
// has the views and windows drawn anew.
#pragma once

#include <string>
#include <utility>

namespace velk {

// Views whose pictures are out of date; the strips are the header strips of the plan views.
enum class Redraw { None = 0, Plans = 1, Camera = 2, All = 3, Strips = 4 };

constexpr Redraw operator|(Redraw a, Redraw b) {
  return static_cast<Redraw>(static_cast<int>(a) | static_cast<int>(b));
}
constexpr bool Includes(Redraw all, Redraw one) {
  return (static_cast<int>(all) & static_cast<int>(one)) != 0;
}

// Where the plan views go after the active camera moved.
enum class Centre { Stay, Follow, Jump };  // Follow: unless cameras are locked

struct Outcome {
  std::string status;  // for the status line; empty: nothing is posted
  Redraw redraw = Redraw::None;
  Centre centre = Centre::Stay;
  // What changed that the map itself does not show.
  bool groups = false;
  bool textures = false;
  bool names = false;  // of open maps, and whether one differs from its file
  bool maps = false;   // the list of open maps or the current one: every window shows something else

  static Outcome Drawn(Redraw redraw, std::string status = {}) {
    Outcome outcome;
    outcome.status = std::move(status);
    outcome.redraw = redraw;
    return outcome;
  }
  static Outcome Said(std::string status) { return Drawn(Redraw::None, std::move(status)); }
};

}  // namespace velk
