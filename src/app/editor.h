// The editor without a window: open maps, settings, views, commands. The desktop shows it and passes
// events in; scripts and tests drive it the same way.
#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "app/place.h"
#include "app/windows.h"
#include "base/files.h"
#include "base/paths.h"
#include "base/prompts.h"
#include "camera/movement.h"
#include "camera/renderer.h"
#include "documents/observer.h"
#include "documents/recent.h"
#include "documents/rescue.h"
#include "entities/entity_class.h"
#include "mapfile/map_reader.h"
#include "model/history.h"
#include "model/map.h"
#include "mouse/pointer.h"
#include "panels/texture_browser.h"
#include "planview/draw_plan_view.h"
#include "planview/plan_view.h"
#include "settings/settings.h"
#include "textures/texture_manager.h"

namespace velk {

inline constexpr int MAX_MAPS = 10;
// Caption of the box that refuses to open an eleventh.
inline constexpr const char* kCannotOpen = "Velk - Cannot Open";

// An open map: the model and what belongs to its file.
struct MapDocument {
  MapDocument(const Settings& settings, const EntityClassList& classes, ObjectCounters* counters,
              const TextureRef& badtex)
      : textures(badtex), model(settings, classes, counters) {}
  TextureSet textures;
  map model;  // model.name is the path, as given
  History history;
  FileStamp onDisk;                  // of the file when it was read or written; none for a map without a file
  FileStamp seenOnDisk;              // the last state of the file that the user knows of
  bool fileDiffers = false;          // the file is gone or holds something else
  int invalidAccepted = 0;           // so many brushes may be left out of the file without a question
  std::filesystem::path rescueFile;  // the copy that stands in for unsaved changes; empty without one

  // Whether closing it would lose something.
  bool isUnsaved() const { return model.modified || fileDiffers; }
};

// The camera view's window and what it keeps between frames.
struct CameraView {
  int clientWidth = 320;  // the editor's pixels
  int clientHeight = 200;
  double deviceScale = 1;  // device pixels a side of one of them
  WireLens lens;
  Renderer renderer;
};

class Editor {
 public:
  // Prompts and observer must outlive the editor.
  Editor(EditorPlace place, Prompts& prompts, Observer& observer);
  ~Editor();
  Editor(const Editor&) = delete;
  Editor& operator=(const Editor&) = delete;

  // Start-up in its fixed order: settings, the badtex check, entity classes, default wads, light table,
  // "Welcome to Velk...".
  void start();

  Settings& settings() { return settings_; }
  const Settings& settings() const { return settings_; }
  const Paths& paths() const { return paths_; }
  const EditorPlace& place() const { return place_; }
  const EntityClassList& classes() const { return classes_; }
  Prompts& prompts() { return prompts_; }
  Observer& observer() { return observer_; }

  // Open maps, 0..mapCount()-1 without gaps.
  int mapCount() const { return static_cast<int>(documents_.size()); }
  int currentIndex() const { return current_; }
  MapDocument* document(int index) const;  // none outside the range
  MapDocument* current() const { return document(current_); }
  map* currentMap() const { return current() ? &current()->model : nullptr; }
  // Shows another open map; an index outside the range is ignored.
  void setCurrentIndex(int index);

  // From now on a user sits before the editor: recent maps are kept between runs, and what keeps a map from
  // being made, read or filled with copies is told in a message box instead of ending the program.
  void attend();

  // What New, Open, Save and Close do once their questions are answered. An error on the way leaves the
  // list of open maps as it was. New and open refuse an eleventh map with a message box. False when the
  // file was not opened.
  void newMap();
  bool openFile(const std::string& path);
  // The same for files that nobody chose in a dialog just now: a map that is open already is shown.
  bool showFile(const std::string& path);
  // Writes a map to its path, or to the one given, which becomes its own. Asks before it leaves out brushes
  // or, unless `mayReplace` says that it was asked already, replaces a file that is not the one read. False
  // when it was not written, with a message box if it could not be: the map then stays modified and keeps
  // its name.
  bool saveDocument(MapDocument& document, const std::string& path, bool mayReplace = false);
  // Looks whether the files of open maps changed and offers to read them again. To be called when something
  // hints at it, while no dialog is open.
  void checkDisk();
  void closeDocument(int index);
  // Reads the entity classes again.
  void reloadClasses();
  // "[Velk - <path>]"
  std::string title() const;
  // As the window's title bar shows it.
  std::string titleOf(ToolWindow window) const;
  // False with a message box when no further map can be opened; `caption` is the box's.
  bool hasRoom(const char* caption);

  // After the settings were changed by a dialog: what depends on them follows. A texture alignment other
  // than `before` gives every face new texture coordinates.
  void settingsChanged(const Settings& before);

  // Status line. With `redraw` the pending redraws are carried out.
  void postStatus(const std::string& text, bool redraw = true);
  const std::string& status() const { return status_; }
  void flagPlanViews() { redraw2D_ = true; }
  void flagCamera() { redraw3D_ = true; }
  void flagAllViews() { redraw2D_ = redraw3D_ = true; }

  PlanViewSet& planViews() { return planViews_; }
  const PlanViewSet& planViews() const { return planViews_; }
  // What the picture of a plan view is drawn from.
  PlanScene planScene(const StripColours& strip);
  // Mouse input of a plan view (0..2); statuses are posted and redraws asked for on the way.
  PointerOutcome pressPlanView(int view, const PointerEvent& event);
  PointerOutcome movePlanView(int view, const PointerEvent& event);
  PointerOutcome releasePlanView(int view, const PointerEvent& event);
  PointerOutcome wheelPlanView(int view, const PointerEvent& event, int steps);
  void flipPlanView(int view);

  TextureManager& textureManager() { return textureManager_; }
  const TextureManager& textureManager() const { return textureManager_; }
  TextureBrowser& textureBrowser() { return textureBrowser_; }
  const TextureBrowser& textureBrowser() const { return textureBrowser_; }
  // The wad whose palette the views are drawn in; none when nothing was loaded.
  const Wad* paletteWad() const {
    return textureManager_.paletteWad(current() ? &current()->textures : nullptr);
  }

  CameraView& cameraView() { return cameraView_; }
  const CameraView& cameraView() const { return cameraView_; }
  // What the camera view's picture is drawn from, until the next call; a map must be open.
  RenderScene cameraScene();
  // The picture's size in the camera view as it is.
  RenderSize renderSize() const;
  // Draws the picture of the flat and textured modes into the camera view's renderer. Without a map
  // nothing happens.
  void renderCamera();
  // Mouse input of the camera view.
  PointerOutcome pressCamera(const PointerEvent& event);
  PointerOutcome moveInCamera(const PointerEvent& event);
  PointerOutcome releaseCamera(const PointerEvent& event);
  // The brush and face at a pixel of the camera view; none without a map.
  FacePick pickInCamera(Pixel at);
  // Flags, plan view centre and status of a camera command.
  void apply(const CameraOutcome& outcome);

  // The user asked to exit and gave no Cancel.
  void requestExit();
  bool exiting() const { return exiting_; }

  // Undo. With more than one level every command takes its own copies; a drag brackets its changes with
  // these two. An ending without a beginning, or without a change, keeps nothing.
  void beginChange();
  void endChange(const std::string& name);
  // Taken by commands before a change, for the classic single level.
  void saveUndo(const std::string& name, UndoMode mode);
  void undo();
  void redo();

  RecentMaps& recentMaps() { return recentMaps_; }
  const RecentMaps& recentMaps() const { return recentMaps_; }
  // Opens a map of the list; one that is gone leaves it.
  void openRecent(int index);

  // The clipboard of all open maps; none before the first copy.
  map* clipboard() const { return clipboard_.get(); }
  void copySelection();
  void pasteClipboard();
  void cloneSelection();

  // The windows that commands act on; without a host, windows that nobody sees.
  WindowHost& windows() const { return *windows_; }
  void setWindows(WindowHost& host) { windows_ = &host; }
  Arrangements& arrangements() { return arrangements_; }
  const Arrangements& arrangements() const { return arrangements_; }
  // Reads velk.pos, when there is one, and places the windows; run once they exist.
  void loadArrangements();
  // Gives the windows the places of the current slot; nothing without an arrangement.
  void applyArrangement();
  // Takes the windows' places into a slot (0..3) and writes all slots to velk.pos.
  void saveArrangement(int slot);

  // One tick of ten seconds: from the seventh on, the current map goes to "c:\\backup.map", or for a second
  // editor at work to a file beside it. The map does not count as saved.
  void tick();
  // Opens the copies that an editor left which did not end in peace, or puts them aside, as the user says.
  void offerRescueCopies();
  // Writes every modified map to a file beside the backup; how many were written. For fatal errors and
  // crashes, too.
  int writeRescueCopies();

 private:
  void takeRescuePlace();
  std::filesystem::path freeCopyFile() const;
  void openRescueCopy(const RescueCopy& copy);
  void dropRescueCopy(MapDocument& document);
  // A box to be read and closed.
  void tell(const char* caption, const std::string& text, MessageBox::Icon icon = MessageBox::Icon::Error);
  bool refuseSave(const std::string& text, MessageBox::Icon icon);
  bool mayLeaveOut(MapDocument& document);
  bool mayReplace(const MapDocument& document, const std::string& path);
  void checkDisk(size_t index);
  void reload(size_t index);
  int indexOfFile(const std::string& path) const;
  using DocumentMaker = std::function<std::unique_ptr<MapDocument>()>;
  std::unique_ptr<MapDocument> attempt(const char* caption, const std::string& failure,
                                       const DocumentMaker& make);
  bool addCopies(const std::function<void(map&)>& add);
  std::unique_ptr<MapDocument> makeDocument();
  std::unique_ptr<MapDocument> readDocument(const std::string& path);
  MapReadOptions readOptions();
  void offerFirstTexture(const MapDocument& from);
  void addDocument(std::unique_ptr<MapDocument> added);
  void goToActiveCamera();
  void showCurrent();
  void checkBadtex();
  void startTextures();
  WadProgressSink wadProgress();
  void refreshAssets();
  void carryOutRedraws();
  PointerOutcome apply(PointerOutcome outcome);
  PlanPointerContext pointerContext(int view);
  std::string statusLine(const std::string& text) const;

  EditorPlace place_;
  Paths paths_;
  Prompts& prompts_;
  Observer& observer_;
  Settings settings_;
  EntityClassList classes_;
  ObjectCounters counters_;
  PlanViewSet planViews_;
  PlanPointer planPointer_;
  TextureManager textureManager_;
  TextureBrowser textureBrowser_;
  CameraView cameraView_;
  RenderAssets assets_;
  PlainWindows plainWindows_;
  WindowHost* windows_ = &plainWindows_;
  Arrangements arrangements_;
  std::unique_ptr<map> clipboard_;
  std::optional<MapSnapshot> before_;      // of the change under way
  const MapDocument* changing_ = nullptr;  // the map it is made to
  std::unique_ptr<RescueFolder> rescue_;
  std::vector<std::unique_ptr<MapDocument>> documents_;
  int current_ = 0;
  std::string status_;
  bool redraw2D_ = true;
  bool redraw3D_ = true;
  int autosaveTicks_ = 0;
  RecentMaps recentMaps_;
  bool attended_ = false;
  bool exiting_ = false;
};

}  // namespace velk
