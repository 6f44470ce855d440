#include "documents/opening.h"

#include "base/text.h"
#include "documents/saving.h"

namespace velk {

Outcome MapShown(std::string status) {
  Outcome outcome = Outcome::Drawn(Redraw::All, std::move(status));
  outcome.centre = Centre::Follow;
  outcome.maps = true;
  return outcome;
}

bool HasRoom(const Services& services, const Documents& documents, const char* caption) {
  if (documents.count() < MAX_MAPS) return true;
  services.tell(caption, "No more maps available...", MessageBox::Icon::Warning);
  return false;
}

Outcome OpenNewMap(const Services& services, Documents& documents, Door& door) {
  if (!HasRoom(services, documents, kCannotMake)) return {};
  std::unique_ptr<MapDocument> made;
  if (!door.attempt(kCannotMake, "", [&] { made = documents.makeNew(); })) return {};
  documents.add(std::move(made));
  return MapShown(Format("Map [%s] created...", services.settings.newmap.c_str()));
}

Outcome OpenFile(const Services& services, Documents& documents, Door& door, const std::string& path) {
  if (!HasRoom(services, documents, kCannotOpen)) return {};
  const std::string failure = Format("Couldn't open %s\n\n", path.c_str());
  std::unique_ptr<MapDocument> read;
  if (!door.attempt(kCannotOpen, failure, [&] { read = documents.read(path); })) return {};
  documents.add(std::move(read));
  documents.recent().add(services.paths.absolute(path));
  return MapShown(Format("File [%s] processed...", path.c_str()));
}

Outcome ShowFile(const Services& services, Documents& documents, Door& door, const std::string& path) {
  const int index = documents.indexOfFile(path);
  return index < 0 ? OpenFile(services, documents, door, path) : SwitchTo(documents, index);
}

Outcome OpenRecent(const Services& services, Documents& documents, Door& door, int index) {
  const std::string path = documents.recent().at(index);
  if (path.empty()) return {};
  if (services.paths.exists(path)) {
    Outcome outcome = ShowFile(services, documents, door, path);
    if (outcome.maps) documents.recent().add(path);
    return outcome;
  }
  documents.recent().remove(path);
  services.tell(kCannotOpen, Format("The file %s is not there any more.", path.c_str()),
                MessageBox::Icon::Warning);
  return {};
}

Outcome SwitchTo(Documents& documents, int index) {
  if (!documents.at(index)) return {};
  documents.show(index);
  return MapShown("Map switched...");
}

Outcome CloseDocument(Documents& documents, int index) {
  if (!documents.at(index)) return {};
  DropRescueCopy(*documents.at(index));
  documents.close(index);
  return MapShown(documents.count() > 0 ? "Map closed..." : "");
}

}  // namespace velk
