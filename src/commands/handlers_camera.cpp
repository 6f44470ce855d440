#include "commands/handlers.h"

namespace velk::commands {

void moveCamera(Editor& editor, MapCameraCommand command) {
  if (map* m = editor.currentMap()) editor.apply(command(*m, editor.settings()));
}

void changeCamera(Editor& editor, CameraCommand command) {
  if (map* m = editor.currentMap()) editor.apply(command(*m));
}

void changeCameraSettings(Editor& editor, CameraSettingCommand command) {
  if (editor.currentMap()) editor.apply(command(editor.settings()));
}

void changeLens(Editor& editor, LensCommand command) {
  if (editor.currentMap()) editor.apply(command(editor.cameraView().lens));
}

void selectCamera(Editor& editor, int number) {
  if (map* m = editor.currentMap()) editor.apply(SelectCamera(*m, number));
}

void centreView(Editor& editor) {
  map* m = editor.currentMap();
  if (!m) return;
  m->activeCamera().origin = m->selectionCentre();
  editor.planViews().planCenter = m->activeCamera().origin;
  editor.flagAllViews();
  editor.postStatus("Centering view...");
}

void setRenderQuality(Editor& editor, int index) { editor.apply(SetRenderQuality(editor.settings(), index)); }

void qualityWindow(Editor& editor) { editor.apply(SetWindowQuality(editor.settings())); }

bool windowQualityOn(const Editor& editor) { return editor.settings().window_quality; }

void setDrawMode(Editor& editor, int mode) {
  constexpr const char* kStatus[] = {"Mode set to Wire", "Mode set to Flat", "Mode set to Texture"};
  editor.settings().drawmode = mode;
  editor.flagCamera();
  editor.postStatus(kStatus[mode]);
}

bool drawModeIs(const Editor& editor, int mode) { return editor.settings().drawmode == mode; }

void nextDrawMode(Editor& editor) { changeCameraSettings(editor, CycleDrawMode); }

}  // namespace velk::commands
