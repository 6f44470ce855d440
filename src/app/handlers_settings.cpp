#include "app/handlers.h"
#include "app/settings_forms.h"
#include "base/error.h"

namespace velk::commands {
namespace {

using StoreSettings = void (*)(const Settings&, IniFile&);

// Takes a form's values over and, when asked, writes them to velk.ini.
void apply(Editor& editor, const Form& form, FormAnswer answer, StoreSettings store, const char* failure) {
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

}  // namespace

void preferences(Editor& editor) {
  Form form = PreferencesForm(editor.settings());
  const FormAnswer answer = editor.prompts().fill(form);
  apply(editor, form, answer, StorePreferences, "Couldn't open velk.ini");
  editor.flagAllViews();
  editor.postStatus("Preferences set...");
}

void colours(Editor& editor) {
  Form form = ColoursForm(editor.settings());
  const FormAnswer answer = editor.prompts().fill(form);
  apply(editor, form, answer, StoreColours, "Couldn't open [VelkColors] of velk.ini");
  editor.textureManager().remapOutlineColours();
  editor.flagAllViews();
  editor.postStatus("Colors set...");
}

void directories(Editor& editor) {
  Form form = DirectoriesForm(editor.settings());
  const FormAnswer answer = editor.prompts().fill(form);
  apply(editor, form, answer, StoreDirectories, "Couldn't open velk.ini");
  editor.flagAllViews();
  editor.postStatus("Directories set...");
}

// No bindings are read yet: both lists are empty.
void mouseSettings(Editor& editor) {
  Form form = MouseForm({}, 0, {}, 0);
  editor.prompts().fill(form);
  editor.postStatus("Mouse settings changed...", false);
}

}  // namespace velk::commands
