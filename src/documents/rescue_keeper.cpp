#include "documents/rescue_keeper.h"

#include "base/files.h"
#include "base/text.h"
#include "documents/opening.h"
#include "mapfile/map_writer.h"

namespace velk {
namespace {

// Ticks without a backup after New.
constexpr int kFirstBackupTick = 6;

bool HasContents(const map& m) { return m.world() && (m.world()->numbrushes() > 0 || m.numentities() > 1); }

// Where the map lies, whatever folder the next editor starts in. A new map has no place yet.
std::string PlaceOf(const std::string& name, const Services& services) {
  return name == services.settings.newmap ? name : services.paths.absolute(name);
}

std::string ListOf(const std::vector<RescueCopy>& copies) {
  std::string list;
  for (const RescueCopy& copy : copies) list += "\n" + copy.original;
  return list;
}

}  // namespace

void RescueKeeper::takePlace() {
  if (!folder_) folder_ = std::make_unique<RescueFolder>(services_.paths.native("c:\\"));
}

// Not through WriteMapFile, which would count the map as saved.
void RescueKeeper::tick() {
  if (documents_.count() == 0 || ++ticks_ <= kFirstBackupTick) return;
  map& m = *documents_.currentMap();
  takePlace();
  if (m.world()->numbrushes() == 0) return;
  if (!folder_->held()) {
    if (m.modified) documents_.post("Autosaving failed: Velk's own folder cannot be written...");
    return;
  }
  const WriteResult written = ReplaceFile(folder_->backupFile(), MapFileText(m, {}));
  documents_.post(written.ok ? "Autosaving" : Format("Autosaving failed: %s", written.reason.c_str()));
}

int RescueKeeper::writeCopies() {
  if (!folder_ || !folder_->held()) return 0;
  int kept = 0;
  for (int i = 0; i < documents_.count(); ++i) {
    MapDocument& from = *documents_.at(i);
    if (!from.isUnsaved() || !HasContents(from.model)) continue;
    if (from.rescueFile.empty()) from.rescueFile = freeFile();
    const std::string text =
        RescueFolder::header(PlaceOf(from.model.name, services_)) + MapFileText(from.model, {});
    if (ReplaceFile(from.rescueFile, text).ok) ++kept;
  }
  return kept;
}

std::filesystem::path RescueKeeper::freeFile() const {
  int index = 0;
  std::error_code ignored;
  while (std::filesystem::exists(folder_->copyFile(index), ignored)) ++index;
  return folder_->copyFile(index);
}

void RescueKeeper::offer() {
  takePlace();
  const std::vector<RescueCopy> copies = folder_->claim();
  if (copies.empty()) return;
  const bool wanted = services_.prompts.agrees("Velk - Rescued Maps",
                                               "Velk ended before these maps were saved:\n" + ListOf(copies) +
                                                   "\n\nOpen the copies that were rescued?");
  for (const RescueCopy& copy : copies) {
    if (wanted && documents_.count() < MAX_MAPS) {
      open(copy);
    } else {
      door_.show(Outcome::Said(Format("Rescue copy kept as %s", folder_->putAside(copy).c_str())));
    }
  }
}

// A copy that cannot be read is put aside, or every start would stumble over it.
void RescueKeeper::open(const RescueCopy& copy) {
  std::unique_ptr<MapDocument> rescued;
  const auto error = door_.trapped([&] { rescued = documents_.read(copy.file.string()); });
  if (error) {
    const std::string kept = folder_->putAside(copy).string();
    services_.tell(kCannotOpen, Format("%s\nThe copy is kept as %s", error->c_str(), kept.c_str()));
    return;
  }
  // A file written after the copy is to be asked about before it is replaced.
  const FileStamp original = StampOf(services_.paths.native(copy.original));
  rescued->seenOnDisk = original;
  rescued->onDisk = original.seconds > rescued->onDisk.seconds ? FileStamp{} : original;
  rescued->rescueFile = copy.file;
  rescued->saved = MapSnapshot{};  // no file holds it
  rescued->model.name = copy.original;
  rescued->model.modified = true;
  documents_.add(std::move(rescued));
  door_.show(MapShown(Format("Map [%s] rescued...", copy.original.c_str())));
}

}  // namespace velk
