// An open map: the model and what belongs to its file.
#pragma once

#include <filesystem>
#include <optional>

#include "base/files.h"
#include "build/leak_watch.h"
#include "model/history.h"
#include "model/map.h"
#include "textures/texture_set.h"

namespace velk {

struct MapDocument {
  MapDocument(const Settings& settings, const EntityClassList& classes, ObjectCounters* counters,
              const TextureRef& badtex)
      : textures(badtex), model(settings, classes, counters) {}
  TextureSet textures;
  map model;  // model.name is the path, as given
  History history;
  std::optional<MapSnapshot>
      saved;                 // what the file holds; none: nothing was done to the map since it was read
  FileStamp onDisk;          // of the file when it was read or written; none for a map without a file
  FileStamp seenOnDisk;      // the last state of the file that the user knows of
  bool fileDiffers = false;  // the file is gone or holds something else
  int invalidAccepted = 0;   // so many brushes may be left out of the file without a question
  LeakWatch leakFiles;       // those beside the map's file
  std::filesystem::path rescueFile;  // the copy that stands in for unsaved changes; empty without one

  // Whether the map was changed: by its modified flag, or with ask_when_changed by what it holds.
  bool isChanged();
  // Whether closing it would lose something.
  bool isUnsaved() { return fileDiffers || isChanged(); }
};

// A name of the map as titles and tabs show it: marked with "*" while the map differs from its file, where
// questions go by that (ask_when_changed).
std::string MarkedName(MapDocument& document, const std::string& name);

// What was read anew takes the place of what the map holds. Cameras stay.
void TakeOver(MapDocument& open, MapDocument& fresh);

}  // namespace velk
