#include "documents/saving.h"

#include <algorithm>

#include "base/files.h"
#include "base/text.h"
#include "mapfile/map_writer.h"

namespace velk {
namespace {

// Brushes that the map's file cannot hold. The boxes of fixed-size entities are not in the file anyway.
int InvalidBrushes(const map& m) {
  int count = 0;
  for (const entity& e : m.entities()) {
    if (e.isModel) count += static_cast<int>(std::ranges::count_if(e.brushes(), &brush::invalid));
  }
  return count;
}

// Whether the user takes a risk.
bool Insists(Prompts& prompts, const char* caption, std::string text) {
  return prompts.ask({.caption = caption,
                      .text = std::move(text),
                      .buttons = MessageBox::Buttons::YesNo,
                      .icon = MessageBox::Icon::Warning,
                      .risky = true}) == Answer::Yes;
}

std::string InvalidText(int count) {
  return (count == 1 ? "One brush of this map is" : Format("%i brushes of this map are", count)) +
         " not valid and will not be saved. Save anyway?";
}

bool MayLeaveOut(const Services& services, MapDocument& document) {
  const int invalid = InvalidBrushes(document.model);
  if (invalid > document.invalidAccepted && !Insists(services.prompts, "Velk - Save", InvalidText(invalid))) {
    return false;
  }
  document.invalidAccepted = invalid;
  return true;
}

// A file that is gone, or that another one of the user's choice takes the place of, is no matter.
bool MayReplace(const Services& services, const MapDocument& document, const std::string& path) {
  const FileStamp now = StampOf(services.paths.native(path));
  if (path != document.model.name || !now.exists || now == document.onDisk) return true;
  return Insists(services.prompts, "Velk - File Changed",
                 Format("The file %s was changed on disk since it was read. Overwrite it?", path.c_str()));
}

// A map that stays where it is has its file, whose name may have been given in other letters.
std::optional<std::filesystem::path> PlaceOf(const Services& services, const MapDocument& document,
                                             const std::string& path) {
  if (path == document.model.name && document.onDisk.exists) return services.paths.native(path);
  return WritePlace(services, path);
}

// Two tabs of one file would overwrite each other. A file that was opened twice is another matter.
bool IsOpenElsewhere(Documents& documents, const MapDocument& document, const std::string& path) {
  if (path == document.model.name) return false;
  const int other = documents.indexOfFile(path);
  return other >= 0 && documents.at(other) != &document;
}

std::optional<Outcome> Refuse(const Services& services, const std::string& text, MessageBox::Icon icon) {
  services.tell("Velk - Save", text, icon);
  return std::nullopt;
}

// The file holds the map as it is.
void Settle(MapDocument& document, const std::string& path, const FileStamp& stamp) {
  map& m = document.model;
  m.name = path;
  m.modified = false;
  ++m.saves;
  document.history.close();
  document.saved = TakeSnapshot(m);
  document.onDisk = document.seenOnDisk = stamp;
  document.fileDiffers = false;
  DropRescueCopy(document);
}

}  // namespace

std::optional<Outcome> SaveDocument(const Services& services, Documents& documents, MapDocument& document,
                                    const std::string& path, bool mayReplace) {
  map& m = document.model;
  if (!m.world() || m.world()->numbrushes() == 0) {
    return Refuse(services, "Nothing to save...\nMap must have at least one world brush!",
                  MessageBox::Icon::Warning);
  }
  if (!MayLeaveOut(services, document)) return std::nullopt;
  if (!mayReplace && !MayReplace(services, document, path)) return std::nullopt;
  if (IsOpenElsewhere(documents, document, path)) {
    return Refuse(services, Format("The file %s is open in another tab.", path.c_str()),
                  MessageBox::Icon::Warning);
  }
  const auto place = PlaceOf(services, document, path);
  if (!place) return std::nullopt;
  // Not through WriteMapFile, for which a file that cannot be made is fatal: other work would be lost.
  const WriteResult written = ReplaceFile(*place, MapFileText(m, {}));
  if (!written.ok) {
    return Refuse(services, Format("Couldn't write map file %s: %s", path.c_str(), written.reason.c_str()),
                  MessageBox::Icon::Error);
  }
  Settle(document, path, written.stamp);
  documents.recent().add(services.paths.absolute(path));
  Outcome outcome = Outcome::Said(Format("File [%s] saved...", path.c_str()));
  outcome.names = true;
  return outcome;
}

std::optional<std::filesystem::path> WritePlace(const Services& services, const std::string& path) {
  const std::filesystem::path given = services.paths.forWriting(path);
  const std::filesystem::path like = services.paths.native(path);
  const std::string name = FileNamePart(path);
  if (!StampOf(like).exists || like.filename() == name) return given;
  const std::string text = Format(
      "There is a file %s already, whose name differs only in the case of letters. "
      "Write %s beside it?",
      like.filename().c_str(), name.c_str());
  if (!Insists(services.prompts, "Velk - Save", text)) return std::nullopt;
  return given;
}

void DropRescueCopy(MapDocument& document) {
  std::error_code ignored;
  if (!document.rescueFile.empty()) std::filesystem::remove(document.rescueFile, ignored);
  document.rescueFile.clear();
}

}  // namespace velk
