#include "documents/disk_check.h"

#include "base/files.h"
#include "base/text.h"

namespace velk {
namespace {

constexpr const char* kFileChanged = "Velk - File Changed";

bool WantsItRead(Prompts& prompts, const std::string& name) {
  return prompts.agrees(kFileChanged,
                        Format("The file %s was changed on disk. Read it again?", name.c_str()));
}

// The map is read anew and takes the old one's place. The user goes on looking from where they were.
void Reload(Documents& documents, Door& door, int index) {
  MapDocument& open = *documents.at(index);
  const int shown = documents.currentIndex();
  documents.show(index);
  const Change change{.name = "Reload", .caption = kFileChanged, .classic = UndoMode::All};
  door.perform(change, [&] {
    const std::unique_ptr<MapDocument> fresh = documents.read(open.model.name);
    TakeOver(open, *fresh);
    Outcome outcome = Outcome::Drawn(Redraw::All, Format("File [%s] processed...", open.model.name.c_str()));
    outcome.maps = true;
    return outcome;
  });
  documents.show(shown);
}

void Check(const Services& services, Documents& documents, Door& door, int index) {
  MapDocument& document = *documents.at(index);
  const std::string& name = document.model.name;
  const FileStamp now = StampOf(services.paths.native(name));
  if (now == document.seenOnDisk || name == services.settings.newmap) return;
  document.seenOnDisk = now;
  document.fileDiffers = now != document.onDisk;
  const auto say = [&](const char* what) {
    Outcome said = Outcome::Said(Format("File [%s] %s...", name.c_str(), what));
    said.names = true;
    door.show(said);
  };
  if (!now.exists) {
    say("is gone from the disk");
  } else if (now == document.onDisk) {
    say("is back on the disk");
  } else if (document.isChanged()) {
    say("was changed on disk");
  } else if (WantsItRead(services.prompts, name)) {
    Reload(documents, door, index);
  } else {
    say("stays as it was opened");
  }
}

}  // namespace

void CheckDisk(const Services& services, Documents& documents, Door& door) {
  for (int i = 0; i < documents.count(); ++i) Check(services, documents, door, i);
}

}  // namespace velk
