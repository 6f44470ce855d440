#include "base/text.h"
#include "commands/bars.h"
#include "commands/handlers.h"
#include "commands/replace_form.h"
#include "ops/face_textures.h"

namespace velk::commands {
namespace {

void stepFace(Editor& editor, int direction, const char* text) {
  map* m = editor.currentMap();
  if (!m) return;
  StepCurrentFace(*m, direction);
  editor.flagAllViews();
  editor.postStatus(text);
}

}  // namespace

void setFaceTexture(Editor& editor) {
  map* m = editor.currentMap();
  if (!m || !SetFaceTexture(*m, editor.textureBrowser().current())) return;
  editor.flagAllViews();
  editor.postStatus("Current texture applied to face...");
}

void setBrushTexture(Editor& editor) {
  map* m = editor.currentMap();
  if (!m || SetBrushTexture(*m, editor.textureBrowser().current()) == 0) return;
  editor.flagAllViews();
  editor.postStatus("Current texture applied to brush...");
}

void nextFace(Editor& editor) { stepFace(editor, 1, "Next face..."); }

void previousFace(Editor& editor) { stepFace(editor, -1, "Previous face..."); }

// The window stays open for further names, whatever map is current then.
void replaceTexture(Editor& editor) {
  if (!editor.currentMap()) return;
  ModelessForm replace = ReplaceForm("", "", TextureListNames(editor));
  replace.pressed = [&editor](Form& form, size_t) {
    editor.beginChange();
    replaceTextureBy(editor, NameIn(form, "find"), NameIn(form, "replace"));
    editor.endChange("Replace");
    editor.observer().commandsChanged();
  };
  editor.prompts().show(std::move(replace));
}

void replaceTextureBy(Editor& editor, const std::string& from, const std::string& to) {
  map* m = editor.currentMap();
  if (!m) return;
  const std::string upperFrom = UpperCase(from);
  const std::string upperTo = UpperCase(to);
  const Answer answer =
      editor.prompts().ask({.caption = kReplaceCaption,
                            .text = Format("Replace %s\nWith %s?", upperFrom.c_str(), upperTo.c_str()),
                            .buttons = MessageBox::Buttons::YesNo,
                            .icon = MessageBox::Icon::Question});
  if (answer != Answer::Yes) return;
  ReplaceTexture(*m, upperFrom, upperTo);
  editor.flagAllViews();
  editor.postStatus(Format("Texture %s replaced with %s...", upperFrom.c_str(), upperTo.c_str()));
}

void selectByTexture(Editor& editor) {
  map* m = editor.currentMap();
  if (!m) return;
  const auto answer = editor.prompts().input(
      {"Select", "Select Brushes by Texture:", editor.current()->textures.currentName, 80});
  if (!answer || answer->empty()) return;
  const std::string name = UpperCase(*answer);
  SelectByTexture(*m, name);
  editor.flagAllViews();
  editor.postStatus(Format("Selected brushes having texture %s...", name.c_str()));
}

void chooseFace(Editor& editor, int index) {
  if (!editor.currentMap() || !ChooseCurrentFace(*editor.currentMap(), index)) return;
  editor.flagAllViews();
  editor.postStatus("Face changed...");
}

}  // namespace velk::commands
