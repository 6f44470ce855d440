#include "app/editor.h"

#include "base/error.h"
#include "base/ini_file.h"
#include "base/text.h"

namespace velk {
namespace {

constexpr size_t kMaxStatus = 127;

}  // namespace

Editor::Editor(EditorPlace place, Prompts& prompts, Observer& observer)
    : place_(std::move(place)),
      paths_(place_.data),
      prompts_(prompts),
      observer_(observer),
      textureManager_(WadServices{settings_, paths_, prompts_}) {}

Editor::~Editor() = default;

void Editor::start() {
  settings_ = LoadSettings(IniFile::Load(place_.home / "velk.ini"));
  ResolvePaths(settings_, place_.home);
  checkBadtex();
  classes_.setSorted(settings_.sort_entities);
  classes_.loadAll(settings_, paths_, prompts_);
  startTextures();
  postStatus("Welcome to Velk...");
}

void Editor::startTextures() {
  textureManager_.loadDefaultWads([this](const WadProgress& progress) {
    const bool over = progress.step == WadProgress::Step::Done;
    if (over) textureBrowser_.wadLoaded();
    observer_.loadProgress(over ? "" : progress.text, progress.lump, progress.lumps);
  });
  TextureSet loaded(textureManager_.badtex());
  std::vector<Wad*> wads;
  for (const auto& wad : textureManager_.wads()) wads.insert(wads.begin(), wad.get());
  loaded.build(std::move(wads));
  textureBrowser_.takeFirstTexture(loaded);
  textureManager_.loadColormap();
}

WadProgressSink Editor::wadProgress() {
  return [this](const WadProgress& progress) {
    if (progress.step == WadProgress::Step::Done) textureBrowser_.wadLoaded();
    postStatus(progress.text, false);
  };
}

void Editor::checkBadtex() {
  if (paths_.exists(settings_.badtex)) return;
  const auto chosen = prompts_.chooseFile({.title = "Select badtex.bmp File",
                                           .filter = "Bitmap Files (*.bmp)|*.bmp|",
                                           .directory = {},
                                           .fileName = {}});
  if (!chosen) Error("You must select a valid badtex.bmp file...");
  settings_.badtex = *chosen;
}

void Editor::reloadClasses() {
  if (!currentMap()) return;
  // No dialog sets it: who changes it in the file wants to see it without a restart.
  settings_.sort_entities =
      IniFile::Load(place_.home / "velk.ini").integer("Velk", "sort_entities", settings_.sort_entities) != 0;
  classes_.loadAll(settings_, paths_, prompts_);
  observer_.entityChanged();
  flagAllViews();
  postStatus("Entity list reloaded...");
}

std::string Editor::statusLine(const std::string& text) const {
  if (!settings_.debugmode) return text.empty() ? "..." : text;
  if (documents_.empty()) return "...";
  int brushes = 0;
  int entities = 0;
  for (const auto& open : documents_) {
    brushes += open->model.brushCount();
    entities += open->model.numentities() + 1;
  }
  if (clipboard_) {
    brushes += clipboard_->brushCount();
    entities += clipboard_->numentities() + 1;
  }
  const ObjectCounters& c = counters_;
  const std::string numbers =
      Format("%ld-%ld=%ld Num: %i, e: %ld-%ld=%ld Num: %i   ", c.brushesConstructed, c.brushesDestroyed,
             c.brushesConstructed - c.brushesDestroyed, brushes, c.entitiesConstructed, c.entitiesDestroyed,
             c.entitiesConstructed - c.entitiesDestroyed, entities);
  return text.empty() ? numbers + " " : text + ", " + numbers;
}

void Editor::postStatus(const std::string& text, bool redraw) {
  status_ = CutText(statusLine(text), kMaxStatus);
  observer_.statusChanged(status_);
  if (redraw && currentMap()) carryOutRedraws();
}

void Editor::carryOutRedraws() {
  if (redraw3D_) observer_.redrawCamera();
  if (redraw2D_) observer_.redrawPlanViews();
  if (redraw2D_ || redraw3D_) observer_.redrawSelectedBrush();
  redraw2D_ = redraw3D_ = false;
}

void Editor::requestExit() {
  exiting_ = true;
  // What the user did not want to save is not to be offered again.
  for (const auto& document : documents_) dropRescueCopy(*document);
  observer_.exitRequested();
}

void Editor::settingsChanged(const Settings& before) {
  for (const auto& document : documents_) document->history.limit(History::Limits::of(settings_));
  if (before.texture_alignment == settings_.texture_alignment) return;
  for (const auto& document : documents_) {
    for (entity& e : document->model.entities()) {
      for (brush& b : e.brushes()) b.buildWindings();
    }
  }
}

}  // namespace velk
