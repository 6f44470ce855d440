// The open maps: making, reading, writing and closing them.
#include "app/editor.h"
#include "base/error.h"
#include "base/text.h"
#include "mapfile/map_writer.h"

namespace velk {

MapDocument* Editor::document(int index) const {
  return index >= 0 && index < mapCount() ? documents_[static_cast<size_t>(index)].get() : nullptr;
}

std::string Editor::title() const {
  return Format("[Velk - %s]", currentMap() ? currentMap()->name.c_str() : "Velk");
}

void Editor::tell(const char* caption, const std::string& text, MessageBox::Icon icon) {
  prompts_.ask({.caption = caption, .text = text, .buttons = MessageBox::Buttons::Ok, .icon = icon});
}

bool Editor::hasRoom(const char* caption) {
  if (mapCount() < MAX_MAPS) return true;
  tell(caption, "No more maps available...", MessageBox::Icon::Warning);
  return false;
}

std::unique_ptr<MapDocument> Editor::makeDocument() {
  return std::make_unique<MapDocument>(settings_, classes_, &counters_, textureManager_.badtex());
}

void Editor::addDocument(std::unique_ptr<MapDocument> added) {
  documents_.push_back(std::move(added));
  current_ = mapCount() - 1;
  goToActiveCamera();
  showCurrent();
}

// The plan views show where the current map was last worked on.
void Editor::goToActiveCamera() {
  const map* m = currentMap();
  if (m) setPlanCenter(planViews_, m, m->activeCamera().origin, settings_.lock_cameras);
}

// Every window shows the current map.
void Editor::showCurrent() {
  flagAllViews();
  observer_.mapsChanged();
  observer_.texturesChanged();
  observer_.groupsChanged();
  observer_.entityChanged();
}

// Without default wads there is no current texture until a map brings some.
void Editor::offerFirstTexture(const MapDocument& from) {
  if (textureBrowser_.current().name.empty()) textureBrowser_.takeFirstTexture(from.textures);
}

// Makes a document, or none, when a user is there to be told why.
std::unique_ptr<MapDocument> Editor::attempt(const char* caption, const std::string& failure,
                                             const DocumentMaker& make) {
  if (!attended_) return make();
  try {
    const ErrorTrap trap;
    return make();
  } catch (const TrappedError& error) {
    tell(caption, failure + error.what());
    return nullptr;
  }
}

void Editor::attend() {
  attended_ = true;
  recentMaps_.keepIn(place_.stateFile());
}

void Editor::newMap() {
  constexpr const char* kCannotMake = "Velk - Cannot Open New Map";
  if (!hasRoom(kCannotMake)) return;
  auto made = attempt(kCannotMake, "", [this] {
    auto document = makeDocument();
    document->model.initNew(settings_.default_wad);
    document->model.name = settings_.newmap;
    textureManager_.openMapWads(document->model, document->textures, wadProgress());
    return document;
  });
  if (!made) return;
  offerFirstTexture(*made);
  addDocument(std::move(made));
  autosaveTicks_ = 0;
  postStatus(Format("Map [%s] created...", settings_.newmap.c_str()));
}

MapReadOptions Editor::readOptions() {
  MapReadOptions options;
  options.paths = paths_;
  options.progress = [this](const std::string& text) { postStatus(text, false); };
  options.currentTexture = textureBrowser_.current();
  return options;
}

// The stamp is taken first: a change while the file is read is noticed later.
std::unique_ptr<MapDocument> Editor::readDocument(const std::string& path) {
  auto made = makeDocument();
  made->onDisk = made->seenOnDisk = StampOf(paths_.native(path));
  const MapReadResult read = ReadMapFile(made->model, path, readOptions());
  made->model.name = path;
  made->model.favourites = read.favourites;
  textureManager_.openMapWads(made->model, made->textures, wadProgress());
  offerFirstTexture(*made);
  return made;
}

bool Editor::openFile(const std::string& path) {
  if (!hasRoom(kCannotOpen)) return false;
  const std::string failure = Format("Couldn't open %s\n\n", path.c_str());
  auto made = attempt(kCannotOpen, failure, [&] { return readDocument(path); });
  if (!made) return false;
  addDocument(std::move(made));
  recentMaps_.add(paths_.absolute(path));
  postStatus(Format("File [%s] processed...", path.c_str()));
  return true;
}

bool Editor::showFile(const std::string& path) {
  const int index = indexOfFile(path);
  if (index < 0) return openFile(path);
  setCurrentIndex(index);
  return true;
}

int Editor::indexOfFile(const std::string& path) const {
  const FileStamp wanted = StampOf(paths_.native(path));
  for (int i = 0; i < mapCount(); ++i) {
    if (StampOf(paths_.native(document(i)->model.name)).sameFile(wanted)) return i;
  }
  return -1;
}

void Editor::openRecent(int index) {
  const std::string path = recentMaps_.at(index);
  if (path.empty()) return;
  if (paths_.exists(path)) {
    if (showFile(path)) recentMaps_.add(path);
    return;
  }
  recentMaps_.remove(path);
  tell(kCannotOpen, Format("The file %s is not there any more.", path.c_str()), MessageBox::Icon::Warning);
}

bool Editor::refuseSave(const std::string& text, MessageBox::Icon icon) {
  tell("Velk - Save", text, icon);
  return false;
}

bool Editor::saveDocument(MapDocument& document, const std::string& path, bool replacing) {
  map& m = document.model;
  if (!m.world() || m.world()->numbrushes() == 0) {
    return refuseSave("Nothing to save...\nMap must have at least one world brush!",
                      MessageBox::Icon::Warning);
  }
  if (!mayLeaveOut(document) || !(replacing || mayReplace(document, path))) return false;
  // Not through WriteMapFile, for which a file that cannot be made is fatal: other work would be lost.
  const WriteResult written = ReplaceFile(paths_.native(path), MapFileText(m, {}));
  if (!written.ok) {
    return refuseSave(Format("Couldn't write map file %s: %s", path.c_str(), written.reason.c_str()),
                      MessageBox::Icon::Error);
  }
  m.name = path;
  m.modified = false;
  ++m.saves;
  document.onDisk = document.seenOnDisk = written.stamp;
  document.fileDiffers = false;
  dropRescueCopy(document);
  recentMaps_.add(paths_.absolute(path));
  observer_.mapsChanged();
  postStatus(Format("File [%s] saved...", path.c_str()));
  return true;
}

void Editor::closeDocument(int index) {
  if (!document(index)) return;
  dropRescueCopy(*document(index));
  std::swap(documents_[static_cast<size_t>(index)], documents_.back());
  documents_.pop_back();
  current_ = 0;
  goToActiveCamera();
  showCurrent();
  if (mapCount() > 0) {
    postStatus("Map closed...");
    return;
  }
  // No map is open: the status line's redraws would not run.
  carryOutRedraws();
}

void Editor::setCurrentIndex(int index) {
  if (!document(index)) return;
  current_ = index;
  goToActiveCamera();
  showCurrent();
  postStatus("Map switched...");
}

}  // namespace velk
