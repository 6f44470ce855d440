#include "commands/handlers.h"
#include "planview/view_steps.h"

namespace velk::commands {
namespace {

enum class Redraws { PlanViews, Camera, All };

// A setting that is turned over with or without a map; views and status follow only with one.
void toggle(Editor& editor, bool& setting, Redraws redraws, const char* text) {
  setting = !setting;
  if (!editor.currentMap()) return;
  if (redraws != Redraws::Camera) editor.flagPlanViews();
  if (redraws != Redraws::PlanViews) editor.flagCamera();
  editor.postStatus(text);
}

void omit(Editor& editor, bool& kind, const char* text) {
  kind = !kind;
  if (!editor.currentMap()) return;
  editor.flagAllViews();
  editor.postStatus(text);
}

void postForPlanViews(Editor& editor, const std::string& text) {
  editor.flagPlanViews();
  editor.postStatus(text);
}

}  // namespace

void redrawAll(Editor& editor) {
  if (!editor.currentMap()) return;
  editor.flagAllViews();
  editor.postStatus("Redrawing...");
}

void toggleNames(Editor& editor) {
  toggle(editor, editor.settings().show_names, Redraws::PlanViews, "Names toggled...");
}
void toggleCoordinates(Editor& editor) {
  toggle(editor, editor.settings().show_coordinates, Redraws::PlanViews, "Coordinates toggled...");
}
void toggleHits(Editor& editor) {
  toggle(editor, editor.settings().show_hits, Redraws::All, "Show all hit brushes...");
}
void toggleConnections(Editor& editor) {
  toggle(editor, editor.settings().connections, Redraws::PlanViews, "Connections toggled...");
}
void toggleOutline(Editor& editor) {
  toggle(editor, editor.settings().outline, Redraws::Camera, "Outline toggled...");
}
void toggleGroupMode(Editor& editor) {
  toggle(editor, editor.settings().groupmode, Redraws::All,
         editor.settings().groupmode ? "Group mode off..." : "Group mode on...");
}

void omitLights(Editor& editor) { omit(editor, editor.settings().filter.omitLights, "Show lights toggled"); }
void omitEntities(Editor& editor) {
  omit(editor, editor.settings().filter.omitEntities, "Show entities toggled");
}
void omitWorld(Editor& editor) { omit(editor, editor.settings().filter.omitWorld, "Show world toggled"); }
void omitWater(Editor& editor) { omit(editor, editor.settings().filter.omitWater, "Show water toggled"); }
void omitClip(Editor& editor) {
  omit(editor, editor.settings().filter.omitClip, "Show clip brushes toggled");
}

bool namesOn(const Editor& editor) { return editor.settings().show_names; }
bool coordinatesOn(const Editor& editor) { return editor.settings().show_coordinates; }
bool hitsOn(const Editor& editor) { return editor.settings().show_hits; }
bool connectionsOn(const Editor& editor) { return editor.settings().connections; }
bool outlineOn(const Editor& editor) { return editor.settings().outline; }
bool groupModeOn(const Editor& editor) { return editor.settings().groupmode; }
bool lightsOmitted(const Editor& editor) { return editor.settings().filter.omitLights; }
bool entitiesOmitted(const Editor& editor) { return editor.settings().filter.omitEntities; }
bool worldOmitted(const Editor& editor) { return editor.settings().filter.omitWorld; }
bool waterOmitted(const Editor& editor) { return editor.settings().filter.omitWater; }
bool clipOmitted(const Editor& editor) { return editor.settings().filter.omitClip; }

void setGrid(Editor& editor, int preset) {
  postForPlanViews(editor, setGridPreset(editor.settings(), preset));
}
void gridUp(Editor& editor) { postForPlanViews(editor, velk::gridUp(editor.settings())); }
void gridDown(Editor& editor) { postForPlanViews(editor, velk::gridDown(editor.settings())); }
void toggleGrid(Editor& editor) { postForPlanViews(editor, velk::toggleGrid(editor.settings())); }
void toggleGridStyle(Editor& editor) { postForPlanViews(editor, velk::toggleGridStyle(editor.settings())); }
void setScale(Editor& editor, int preset) {
  postForPlanViews(editor, setScalePreset(editor.settings(), preset));
}
void scaleUp(Editor& editor) { postForPlanViews(editor, velk::scaleUp(editor.settings())); }
void scaleDown(Editor& editor) { postForPlanViews(editor, velk::scaleDown(editor.settings())); }

void otherScale(Editor& editor) {
  const auto answer =
      editor.prompts().input({kOtherScaleTitle, kOtherScalePrompt, scalePercentText(editor.settings())});
  if (!answer) return;
  if (const auto text = setScalePercent(editor.settings(), *answer)) postForPlanViews(editor, *text);
}

void switchMapView(Editor& editor) {
  if (!editor.currentMap()) return;
  postForPlanViews(editor, velk::switchMapView(editor.planViews()));
}

void flipView(Editor& editor) { editor.flipPlanView(editor.planViews().current); }

bool gridOn(const Editor& editor) { return editor.settings().show_grid; }
bool gridIs(const Editor& editor, int preset) {
  return editor.settings().gridsize == kGridPresets[static_cast<size_t>(preset)];
}
bool scaleIs(const Editor& editor, int preset) {
  return editor.settings().scale == kScalePresets[static_cast<size_t>(preset)].scale;
}

}  // namespace velk::commands
