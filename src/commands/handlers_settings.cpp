#include "base/error.h"
#include "commands/handlers.h"
#include "commands/settings_forms.h"

namespace velk::commands {
namespace {

using StoreSettings = void (*)(const Settings&, IniFile&);

// Has the form filled in, takes its values over and, when asked, writes them to velk.ini.
void fillIn(Editor& editor, Form form, StoreSettings store, const char* failure) {
  const FormAnswer answer = editor.prompts().fill(form);
  if (answer == FormAnswer::Cancel) return;
  const Settings before = editor.settings();
  ApplyForm(form, editor.settings());
  editor.settingsChanged(before);
  if (answer != FormAnswer::Save) return;
  const std::filesystem::path file = editor.place().home / "velk.ini";
  IniFile ini = IniFile::Load(file);
  store(WithRelativePaths(editor.settings(), editor.place().home), ini);
  if (!ini.save(file).ok) Error("%s", failure);
}

void redrawAll(Editor& editor, const char* status) {
  editor.flagAllViews();
  editor.postStatus(status);
}

}  // namespace

void preferences(Editor& editor) {
  fillIn(editor, PreferencesForm(editor.settings()), StorePreferences, "Couldn't open velk.ini");
  redrawAll(editor, "Preferences set...");
}

void colours(Editor& editor) {
  fillIn(editor, ColoursForm(editor.settings()), StoreColours, "Couldn't open [VelkColors] of velk.ini");
  editor.textureManager().remapOutlineColours();
  redrawAll(editor, "Colors set...");
}

void directories(Editor& editor) {
  fillIn(editor, DirectoriesForm(editor.settings()), StoreDirectories, "Couldn't open velk.ini");
  redrawAll(editor, "Directories set...");
}

// No bindings are read yet: both lists are empty.
void mouseSettings(Editor& editor) {
  Form form = MouseForm({}, 0, {}, 0);
  editor.prompts().fill(form);
  editor.postStatus("Mouse settings changed...", false);
}

}  // namespace velk::commands
