// What the rows of the command table run. A handler checks the selection, asks through the prompts, calls
// an operation of a lower layer, flags the views and posts the status.
#pragma once

#include "app/editor.h"

namespace velk::commands {

// Documents.
void newMap(Editor& editor);
void openMaps(Editor& editor);
void openRecentMap(Editor& editor, int index);
void clearRecentMaps(Editor& editor);
void closeMap(Editor& editor);
void saveMap(Editor& editor);
void saveMapAs(Editor& editor);
void exitEditor(Editor& editor);
void nextMap(Editor& editor);
void previousMap(Editor& editor);
void reloadClasses(Editor& editor);
void about(Editor& editor);
void help(Editor& editor);

// Selection.
void selectAll(Editor& editor);
void deselectAll(Editor& editor);
void selectTotal(Editor& editor);
void selectPartial(Editor& editor);
void deleteSelection(Editor& editor);
void nudgeSelection(Editor& editor, Nudge direction);
void moveSelectionByStep(Editor& editor, int axis, int sign);

// Hit list of the last pick.
void toggleHitBrush(Editor& editor, int number);
void selectAllHits(Editor& editor);
void nextHit(Editor& editor);
void previousHit(Editor& editor);

// What the views show.
void redrawAll(Editor& editor);
void toggleNames(Editor& editor);
void toggleCoordinates(Editor& editor);
void toggleHits(Editor& editor);
void toggleConnections(Editor& editor);
void toggleOutline(Editor& editor);
void toggleGroupMode(Editor& editor);
void omitLights(Editor& editor);
void omitEntities(Editor& editor);
void omitWorld(Editor& editor);
void omitWater(Editor& editor);
void omitClip(Editor& editor);
bool namesOn(const Editor& editor);
bool coordinatesOn(const Editor& editor);
bool hitsOn(const Editor& editor);
bool connectionsOn(const Editor& editor);
bool outlineOn(const Editor& editor);
bool groupModeOn(const Editor& editor);
bool lightsOmitted(const Editor& editor);
bool entitiesOmitted(const Editor& editor);
bool worldOmitted(const Editor& editor);
bool waterOmitted(const Editor& editor);
bool clipOmitted(const Editor& editor);

// Grid, scale and orientation of the plan views. Presets are numbered as in planview/viewsteps.h.
void setGrid(Editor& editor, int preset);
void gridUp(Editor& editor);
void gridDown(Editor& editor);
void toggleGrid(Editor& editor);
void toggleGridStyle(Editor& editor);
void setScale(Editor& editor, int preset);
void scaleUp(Editor& editor);
void scaleDown(Editor& editor);
void otherScale(Editor& editor);
void switchMapView(Editor& editor);
void flipView(Editor& editor);
bool gridOn(const Editor& editor);
bool gridIs(const Editor& editor, int preset);
bool scaleIs(const Editor& editor, int preset);

// Textures on faces.
void setFaceTexture(Editor& editor);
void setBrushTexture(Editor& editor);
void nextFace(Editor& editor);
void previousFace(Editor& editor);
void replaceTexture(Editor& editor);
// One press of Replace in its dialog: asks once more, then renames.
void replaceTextureBy(Editor& editor, const std::string& from, const std::string& to);
void selectByTexture(Editor& editor);

// The camera view: moving and choosing cameras, and how it draws. Render qualities are numbered as in
// camera/movement.h, draw modes 0 wire, 1 flat, 2 texture.
using MapCameraCommand = CameraOutcome (*)(map&, const Settings&);
using CameraCommand = CameraOutcome (*)(map&);
using CameraSettingCommand = CameraOutcome (*)(Settings&);
using LensCommand = CameraOutcome (*)(WireLens&);
void moveCamera(Editor& editor, MapCameraCommand command);
void changeCamera(Editor& editor, CameraCommand command);
void changeCameraSettings(Editor& editor, CameraSettingCommand command);
void changeLens(Editor& editor, LensCommand command);
void selectCamera(Editor& editor, int number);
void centreView(Editor& editor);
void setDrawMode(Editor& editor, int mode);
bool drawModeIs(const Editor& editor, int mode);
void nextDrawMode(Editor& editor);
void setRenderQuality(Editor& editor, int index);
void qualityWindow(Editor& editor);
bool windowQualityOn(const Editor& editor);

// Makes a face of the current brush the current one, as its list in the selected-brush window asks.
void chooseFace(Editor& editor, int index);

// The settings dialogs.
void preferences(Editor& editor);
void colours(Editor& editor);
void directories(Editor& editor);
void mouseSettings(Editor& editor);

// Undo and the clipboard.
void saveForUndo(Editor& editor);
void undoChange(Editor& editor);
void redoChange(Editor& editor);
void copySelection(Editor& editor);
void pasteClipboard(Editor& editor);
void cloneSelection(Editor& editor);

// Windows and bars. Tool windows are shown, hidden or brought to the front, as they stand.
void restoreTool(Editor& editor, ToolWindow window);
void saveArrangement(Editor& editor);
void restorePositions(Editor& editor);
void useArrangement(Editor& editor, int slot);
void stepArrangement(Editor& editor, int step);
bool arrangementIs(const Editor& editor, int slot);
void cascadeWindows(Editor& editor);
void tileWindows(Editor& editor);
void arrangeIcons(Editor& editor);
void toggleBar(Editor& editor, int bar);
bool barIsVisible(const Editor& editor, int bar);

}  // namespace velk::commands
