// The editor without a window: open maps, settings, views, commands. The desktop shows it and passes
// events in; scripts and tests drive it the same way.
#pragma once

#include <filesystem>
#include <memory>
#include <string>
#include <vector>

#include "app/command.h"
#include "app/observer.h"
#include "base/paths.h"
#include "base/prompts.h"
#include "entities/entityclass.h"
#include "model/map.h"
#include "planview/drawplanview.h"
#include "planview/planview.h"
#include "planview/pointer.h"
#include "settings/settings.h"

namespace velk {

inline constexpr int MAX_MAPS = 10;

// An open map: the model and what belongs to its file.
struct MapDocument {
  MapDocument(const Settings& settings, const EntityClassList& classes, ObjectCounters* counters)
      : model(settings, classes, counters) {}
  map model;  // model.name is the path, as given
};

// Where the editor's own files are.
struct EditorPlace {
  std::filesystem::path home;  // the folder of velk.ini
  std::filesystem::path data;  // holds one folder per drive letter
};

class Editor {
 public:
  // Prompts and observer must outlive the editor.
  Editor(EditorPlace place, Prompts& prompts, Observer& observer);
  ~Editor();

  // Start-up in its fixed order: settings, the badtex check, entity classes, "Welcome to Velk...".
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
  void setCurrentIndex(int index);

  // Commands. Running a disabled or unbuilt one does nothing and returns false.
  bool isEnabled(const Command& command) const;
  bool isChecked(const Command& command) const { return command.checked && command.checked(*this); }
  bool run(const Command& command);

  // Opens a file as the Open command does after its chooser.
  void openFile(const std::string& path);
  // "[Velk - <path>]"
  std::string title() const;

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

  // One tick of ten seconds.
  void tick();

 private:
  EditorPlace place_;
  Paths paths_;
  Prompts& prompts_;
  Observer& observer_;
  Settings settings_;
  EntityClassList classes_;
  ObjectCounters counters_;
  PlanViewSet planViews_;
  PlanPointer planPointer_;
  std::vector<std::unique_ptr<MapDocument>> documents_;
  int current_ = 0;
  std::string status_;
  bool redraw2D_ = true;
  bool redraw3D_ = true;
  int autosaveTicks_ = 0;
};

}  // namespace velk
