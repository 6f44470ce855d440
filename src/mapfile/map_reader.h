// Reading map files, and adding their entities to an open map.
#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "base/paths.h"
#include "base/tokenizer.h"
#include "model/map.h"

namespace velk {

struct MapReadOptions {
  Paths paths{};
  // Takes the status texts of the reading; may be empty.
  std::function<void(const std::string&)> progress;
  // For the box that an entity without brushes gets when its class is built of brushes.
  texturedef currentTexture;
  // Of groups whose colour does not read.
  Colour groupColour{255, 255, 255};
  // Group names of the file are cut to this many characters.
  int groupNameLength = 15;
  // False reads the text alone: brushes stay without planes and polygons, valid or not, and entities get no
  // boxes.
  bool build = true;
  // A merged text that ends inside an entity is refused. (A map that is opened says so in its result.)
  bool whole = false;
};

// What a reading found beyond the map's entities.
struct MapReadResult {
  // Textures to look up for the map's favourites: settings.numfav slots, the free ones empty. No slots when
  // the file has no favourites record.
  std::vector<std::string> favourites;
  bool camerasRead = false;  // from the file; false: they stand at the player start, if there is one
  long entities = 0;
  long brushes = 0;            // in the file, those left out included
  int cutPoints = 0;           // plane points with fractions, which were cut off
  int invalidBrushes = 0;      // without a valid solid, left out
  int brushesOfFixedSize = 0;  // dropped, since their entity's class has a fixed size
  bool complete = true;        // false: the text ends inside an entity
};

// Read a map file, or a map's text, into `m`, which loses what it held. Afterwards the world is current
// and the map not modified; the wads of its "wad" key are for the caller to open. A text without any entity
// gives a bare world. `name` is shown in status texts and messages.
// What was cut or left out is told in "WARNING:" lines on standard output. Fatal: "ReadMapFile:  Couldn't
// read [%s]...", a failed read, malformed text, and everything beyond the limits of the model.
MapReadResult ReadMapFile(map& m, const std::string& name, const MapReadOptions& options);
MapReadResult ReadMapText(map& m, std::string_view text, const std::string& name,
                          const MapReadOptions& options);

// Add the entities of a file to `m`, their brushes selected. Brushes of the file's world join the map's
// world; the file's comment records are ignored. The world is current, the map modified. Nothing is added
// before everything was read. Fatal as above, with "MergeMapFile:  Couldn't read [%s]...".
MapReadResult MergeMapFile(map& m, const std::string& name, const MapReadOptions& options);
MapReadResult MergeMapText(map& m, std::string_view text, const std::string& name,
                           const MapReadOptions& options);

// A map's text while it is read.
struct MapText {
  MapText(std::string_view text, const MapReadOptions& readOptions) : tokens(text), options(readOptions) {}

  Tokenizer tokens;
  const MapReadOptions& options;
  std::string progressName;  // shown on every fifth brush; empty: nothing is
  bool fixedUp = false;      // the last entity had no brushes and got a box
  MapReadResult result;
};

// Reads a brush whose opening "{" is the last token, and builds it. The group is that of the last group
// comment, within the map's groups. Fatal: "parsing map file", more than MAX_FACES faces.
void initFromTokens(brush& b, entity& owner, MapText& text);

// Reads an entity with its brushes; false at the end of the text. Fatal: "initFromTokens: { not found, %s
// instead".
bool initFromTokens(entity& e, MapText& text);

}  // namespace velk
