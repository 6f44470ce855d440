// The comment lines at the top of a map file: groups, favourite textures and cameras, which the game's
// format has no place for.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "base/colour.h"
#include "mapfile/text_out.h"
#include "model/camera.h"
#include "model/map.h"

namespace velk {

struct MapHeader {
  struct Group {
    std::string name;
    std::optional<Colour> colour;  // none when it does not read
    bool visible = true;
  };
  std::vector<Group> groups;            // group 0 first
  std::vector<std::string> favourites;  // texture names
  bool hasFavourites = false;           // the record is there, be it without names
  std::vector<camera> cameras;          // at most kCameras
  bool camerasComplete = false;         // there are some, and none failed to read
};

// Reads the records among the leading comment lines of a map's text, whatever the line ends; other comment
// lines are passed over, and records that do not read are left out.
MapHeader ReadMapHeader(std::string_view text);

void WriteMapHeader(const map& m, TextOut& out);

}  // namespace velk
