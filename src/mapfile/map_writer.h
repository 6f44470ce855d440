// Writing map files: saved maps, merge files of a selection, exports of groups.
#pragma once

#include <string>

#include "base/paths.h"
#include "mapfile/text_out.h"
#include "model/map.h"

namespace velk {

struct MapWriteOptions {
  bool comments = true;  // the header of groups, favourites and cameras, and every brush's group
  bool selectedOnly = false;
  bool needsWorldBrush = true;  // without one nothing is written
};

struct MapWriteResult {
  enum class Outcome { Written, NothingToSave, Failed };
  Outcome outcome = Outcome::Written;
  std::string reason;  // why it failed, in the system's words

  bool ok() const { return outcome == Outcome::Written; }
};

// Replaces the file as a whole and clears the map's modified flag. A map without world brushes is not
// written; when writing fails the file stays as it was. Both leave the flag alone. "origin" of fixed-size
// entities is written as their boxes stand. A file that cannot be made is fatal "Couldn't write map file,
// unable to open %s".
MapWriteResult WriteMapFile(map& m, const Paths& paths, const std::string& name,
                            const MapWriteOptions& options);

// Writes the brushes of one group (-1: of all visible groups), without comments, as a map that the
// compiler accepts: the world, the other entities with brushes in the group, and a player start in any
// case. Leaves the modified flag alone; fatal as above.
MapWriteResult ExportGroup(const map& m, int group, const Paths& paths, const std::string& name);

// The texts of both.
std::string MapFileText(const map& m, const MapWriteOptions& options);
std::string GroupExportText(const map& m, int group);

void Write(const entity& e, TextOut& out, const MapWriteOptions& options);
void Write(const brush& b, TextOut& out, bool withGroup);

}  // namespace velk
