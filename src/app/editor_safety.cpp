// Nothing is lost: the backup of the current map, and rescue copies of all that is not saved.
#include "app/editor.h"
#include "base/error.h"
#include "base/files.h"
#include "base/text.h"
#include "mapfile/map_writer.h"

namespace velk {
namespace {

// Ticks without a backup after New.
constexpr int kFirstBackupTick = 6;

bool hasContents(const map& m) { return m.world() && (m.world()->numbrushes() > 0 || m.numentities() > 1); }

// Where the map lies, whatever folder the next editor starts in. A new map has no place yet.
std::string placeOf(const std::string& name, const Settings& settings, const Paths& paths) {
  return name == settings.newmap ? name : paths.absolute(name);
}

std::string listOf(const std::vector<RescueCopy>& copies) {
  std::string list;
  for (const RescueCopy& copy : copies) list += "\n" + copy.original;
  return list;
}

}  // namespace

void Editor::takeRescuePlace() {
  if (!rescue_) rescue_ = std::make_unique<RescueFolder>(paths_.native("c:\\"));
}

// Not through WriteMapFile, which would count the map as saved.
void Editor::tick() {
  if (mapCount() == 0 || ++autosaveTicks_ <= kFirstBackupTick) return;
  map& m = *currentMap();
  takeRescuePlace();
  if (m.world()->numbrushes() == 0) return;
  if (!rescue_->held()) {
    if (m.modified) postStatus("Autosaving failed: Velk's own folder cannot be written...");
    return;
  }
  const WriteResult written = ReplaceFile(rescue_->backupFile(), MapFileText(m, {}));
  postStatus(written.ok ? "Autosaving" : Format("Autosaving failed: %s", written.reason.c_str()));
}

int Editor::writeRescueCopies() {
  if (!rescue_ || !rescue_->held()) return 0;
  int kept = 0;
  for (int i = 0; i < mapCount(); ++i) {
    MapDocument& from = *document(i);
    if (!from.isUnsaved() || !hasContents(from.model)) continue;
    if (from.rescueFile.empty()) from.rescueFile = freeCopyFile();
    const std::string text =
        RescueFolder::header(placeOf(from.model.name, settings_, paths_)) + MapFileText(from.model, {});
    if (ReplaceFile(from.rescueFile, text).ok) ++kept;
  }
  return kept;
}

std::filesystem::path Editor::freeCopyFile() const {
  int index = 0;
  std::error_code ignored;
  while (std::filesystem::exists(rescue_->copyFile(index), ignored)) ++index;
  return rescue_->copyFile(index);
}

void Editor::dropRescueCopy(MapDocument& document) {
  std::error_code ignored;
  if (!document.rescueFile.empty()) std::filesystem::remove(document.rescueFile, ignored);
  document.rescueFile.clear();
}

void Editor::offerRescueCopies() {
  takeRescuePlace();
  const std::vector<RescueCopy> copies = rescue_->claim();
  if (copies.empty()) return;
  const Answer answer = prompts_.ask({.caption = "Velk - Rescued Maps",
                                      .text = "Velk ended before these maps were saved:\n" + listOf(copies) +
                                              "\n\nOpen the copies that were rescued?",
                                      .buttons = MessageBox::Buttons::YesNo,
                                      .icon = MessageBox::Icon::Question});
  for (const RescueCopy& copy : copies) {
    if (answer == Answer::Yes && mapCount() < MAX_MAPS) {
      openRescueCopy(copy);
    } else {
      postStatus(Format("Rescue copy kept as %s", rescue_->putAside(copy).c_str()));
    }
  }
}

// A copy that cannot be read is put aside, or every start would stumble over it.
void Editor::openRescueCopy(const RescueCopy& copy) {
  std::unique_ptr<MapDocument> rescued;
  try {
    const ErrorTrap trap;
    rescued = readDocument(copy.file.string());
  } catch (const TrappedError& error) {
    const std::string kept = rescue_->putAside(copy).string();
    tell(kCannotOpen, Format("%s\nThe copy is kept as %s", error.what(), kept.c_str()));
    return;
  }
  // A file written after the copy is to be asked about before it is replaced.
  const FileStamp original = StampOf(paths_.native(copy.original));
  rescued->seenOnDisk = original;
  rescued->onDisk = original.seconds > rescued->onDisk.seconds ? FileStamp{} : original;
  rescued->rescueFile = copy.file;
  rescued->model.name = copy.original;
  rescued->model.modified = true;
  addDocument(std::move(rescued));
  postStatus(Format("Map [%s] rescued...", copy.original.c_str()));
}

}  // namespace velk
