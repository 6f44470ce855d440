#pragma once

namespace velk {

// Channels 0..255.
struct Colour {
  int red = 0;
  int green = 0;
  int blue = 0;
  friend bool operator==(const Colour&, const Colour&) = default;
};

}  // namespace velk
