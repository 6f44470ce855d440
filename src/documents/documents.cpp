#include "documents/documents.h"

#include <algorithm>

#include "base/text.h"

namespace velk {
namespace {

constexpr size_t kMaxStatus = 127;

}  // namespace

Documents::Documents(const Services& services, const EntityClassList& classes, TextureManager& textures,
                     TextureChoice& choice)
    : services_(services), classes_(classes), textures_(textures), choice_(choice) {}

Documents::~Documents() = default;

MapDocument* Documents::at(int index) const {
  return index >= 0 && index < count() ? documents_[static_cast<size_t>(index)].get() : nullptr;
}

bool Documents::holds(const MapDocument* document) const {
  return std::ranges::any_of(documents_, [&](const auto& open) { return open.get() == document; });
}

int Documents::indexOfFile(const std::string& path) const {
  const FileStamp wanted = StampOf(services_.paths.native(path));
  for (int i = 0; i < count(); ++i) {
    if (StampOf(services_.paths.native(at(i)->model.name)).sameFile(wanted)) return i;
  }
  return -1;
}

std::unique_ptr<MapDocument> Documents::make() {
  return std::make_unique<MapDocument>(services_.settings, classes_, &counters_, textures_.badtex());
}

WadProgressSink Documents::wadProgress() {
  return [this](const WadProgress& progress) {
    if (progress.step == WadProgress::Step::Done) choice_.wadLoaded();
    post(progress.text);
  };
}

// Without default wads there is no current texture until a map brings some.
void Documents::offerFirstTexture(const MapDocument& from) {
  if (choice_.current().name.empty()) choice_.takeFirstTexture(from.textures);
}

std::unique_ptr<MapDocument> Documents::makeNew() {
  auto made = make();
  made->model.initNew(services_.settings.default_wad);
  made->model.name = services_.settings.newmap;
  textures_.openMapWads(made->model, made->textures, wadProgress());
  offerFirstTexture(*made);
  return made;
}

MapReadOptions Documents::readOptions() {
  MapReadOptions options;
  options.paths = services_.paths;
  options.progress = [this](const std::string& text) { post(text); };
  options.currentTexture = choice_.current();
  if (services_.settings.long_group_names) options.groupNameLength = GroupList::kMaxName;
  return options;
}

// The stamp is taken first: a change while the file is read is noticed later.
std::unique_ptr<MapDocument> Documents::read(const std::string& path) {
  auto made = make();
  made->onDisk = made->seenOnDisk = StampOf(services_.paths.native(path));
  const MapReadResult read = ReadMapFile(made->model, path, readOptions());
  made->model.name = path;
  made->leakFiles.changed(services_.paths, path);
  made->model.favourites = read.favourites;
  textures_.openMapWads(made->model, made->textures, wadProgress());
  offerFirstTexture(*made);
  return made;
}

void Documents::merge(map& m, const std::string& path) {
  MapReadOptions options = readOptions();
  options.whole = services_.settings.careful_tools;
  MergeMapFile(m, path, options);
}

void Documents::add(std::unique_ptr<MapDocument> added) {
  documents_.push_back(std::move(added));
  ++turn_;
  current_ = count() - 1;
}

void Documents::close(int index) {
  if (!at(index)) return;
  std::swap(documents_[static_cast<size_t>(index)], documents_.back());
  documents_.pop_back();
  ++turn_;
  current_ = 0;
}

map& Documents::newClipboard() {
  clipboard_ = std::make_unique<map>(services_.settings, classes_, &counters_);
  return *clipboard_;
}

std::string Documents::statusLine(const std::string& text) const {
  if (!services_.settings.debugmode) return text.empty() ? "..." : text;
  if (documents_.empty()) return "...";
  int brushes = 0;
  int entities = 0;
  const auto count = [&](const map& m) {
    brushes += m.brushCount();
    entities += m.numentities() + 1;
  };
  for (const auto& open : documents_) count(open->model);
  if (clipboard_) count(*clipboard_);
  const ObjectCounters& c = counters_;
  const std::string numbers =
      Format("%ld-%ld=%ld Num: %i, e: %ld-%ld=%ld Num: %i   ", c.brushesConstructed, c.brushesDestroyed,
             c.brushesConstructed - c.brushesDestroyed, brushes, c.entitiesConstructed, c.entitiesDestroyed,
             c.entitiesConstructed - c.entitiesDestroyed, entities);
  return text.empty() ? numbers + " " : text + ", " + numbers;
}

void Documents::post(const std::string& text) {
  status_ = CutText(statusLine(text), kMaxStatus);
  statusText_ = text;
  services_.observer.statusChanged(status_);
}

}  // namespace velk
