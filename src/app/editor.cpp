#include "app/editor.h"

#include "base/error.h"
#include "base/ini_file.h"
#include "base/text.h"
#include "documents/disk_check.h"
#include "documents/saving.h"
#include "documents/wad_reload.h"

namespace velk {

Editor::Editor(EditorPlace place, Prompts& prompts, Observer& observer)
    : place_(std::move(place)),
      paths_(place_.data),
      services_{settings_, paths_, prompts, observer},
      textures_(WadServices{settings_, paths_, prompts}),
      texture_(&settings_),
      documents_(services_, classes_, textures_, texture_),
      door_(services_, documents_),
      rescue_(services_, documents_, door_),
      build_(paths_, settings_),
      panels_({services_, documents_, door_, classes_, textures_, texture_}, build_),
      views_(settings_, documents_, textures_),
      input_(services_, documents_, door_, views_, texture_, place_.home),
      windows_(services_) {
  views_.groupName = [this] { return panels_.groups.currentName(); };
  input_.currentGroup = [this] { return panels_.groups.current(); };
  panels_.entities.currentGroup = [this] { return panels_.groups.current(); };
  panels_.groups.hide = [this] { windows_.windows().minimise(ToolWindow::Groups); };
  panels_.textures.minimised = [this] {
    return windows_.windows().placement(ToolWindow::Textures).state == ShowState::Minimised;
  };
  views_.mouse = &input_.pointer();
  door_.centreViews = [this](Centre how) { return views_.centre(how); };
  panels_.build.centreOn = [this](const vec3& at) { views_.plans.planCenter = at; };
  panels_.build.showLeaks = [this](std::vector<vec3> points, const std::string& file) {
    views_.leaks.show(std::move(points), file);
  };
}

void Editor::start() {
  loadSettings();
  ResolvePaths(settings_, place_.home);
  checkBadtex();
  classes_.setSorted(settings_.sort_entities);
  classes_.loadAll(settings_, paths_, services_.prompts);
  startTextures();
  windows_.load();
  documents_.post("Welcome to Velk...");
}

void Editor::loadSettings() {
  const std::filesystem::path file = place_.home / "velk.ini";
  const IniFile ini = IniFile::Load(file);
  settings_ = LoadSettings(ini);
  if (ini.unreadable().empty()) return;
  services_.tell("Velk - Settings",
                 file.string() + " could not be read: " + ini.unreadable() +
                     ".\nVelk goes on with its built-in settings and leaves the file as it is.");
}

void Editor::checkBadtex() {
  if (paths_.exists(settings_.badtex)) return;
  const auto chosen = services_.prompts.chooseFile({.title = "Select badtex.bmp File",
                                                    .filter = "Bitmap Files (*.bmp)|*.bmp|",
                                                    .directory = {},
                                                    .fileName = {}});
  if (!chosen) Error("You must select a valid badtex.bmp file...");
  settings_.badtex = *chosen;
}

void Editor::startTextures() {
  textures_.loadDefaultWads([this](const WadProgress& progress) {
    const bool over = progress.step == WadProgress::Step::Done;
    if (over) texture_.wadLoaded();
    services_.observer.loadProgress(over ? "" : progress.text, progress.lump, progress.lumps);
  });
  TextureSet loaded(textures_.badtex());
  std::vector<Wad*> wads;
  for (const auto& wad : textures_.wads()) wads.insert(wads.begin(), wad.get());
  loaded.build(std::move(wads));
  texture_.takeFirstTexture(loaded);
  textures_.loadColormap();
}

void Editor::attend() {
  services_.attended = true;
  textures_.setForgiving(true);
  documents_.recent().keepIn(place_.stateFile());
}

void Editor::checkDisk() {
  CheckDisk(services_, documents_, door_);
  ReloadWads(documents_, door_, textures_, textures_.changedWads());
  if (settings_.watch_leaks) watchLeaks();
}

void Editor::watchLeaks() {
  MapDocument* document = build_.job().running() ? nullptr : documents_.current();
  const auto file = document ? document->leakFiles.changed(paths_, document->model.name) : std::nullopt;
  if (!file) return;
  std::vector<vec3> points = ReadLeakFile(paths_, *file);
  if (points.empty()) return;
  views_.leaks.show(std::move(points), *file);
  door_.show(Outcome::Drawn(Redraw::All, Format("Leak file [%s] processed...", file->c_str())));
}

void Editor::requestExit() {
  exiting_ = true;
  // What the user did not want to save is not to be offered again.
  for (int i = 0; i < documents_.count(); ++i) DropRescueCopy(*documents_.at(i));
  services_.observer.exitRequested();
}

std::string FrameTitle(const Editor& editor) {
  MapDocument* shown = editor.documents().current();
  return Format("[Velk - %s]", shown ? MarkedName(*shown, shown->model.name).c_str() : "Velk");
}

std::string WindowTitle(const Editor& editor, ToolWindow window) {
  switch (window) {
    case ToolWindow::Textures:
      return "Textures";
    case ToolWindow::SelectedBrush:
      return "Selected Brush";
    case ToolWindow::Entities:
      return "Entities";
    case ToolWindow::Groups:
      return "Groups";
    case ToolWindow::Camera:
      return editor.documents().current()
                 ? Format("[3D - %s]", editor.documents().current()->model.name.c_str())
                 : "[?.map]";
    case ToolWindow::Plan1:
    case ToolWindow::Plan2:
    case ToolWindow::Plan3:
      break;
  }
  const int view = static_cast<int>(window) - static_cast<int>(ToolWindow::Plan1);
  return CaptionText(editor.views().plans.views[static_cast<size_t>(view)], editor.settings());
}

}  // namespace velk
