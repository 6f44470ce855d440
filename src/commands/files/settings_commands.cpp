#include "commands/files/settings_commands.h"

#include "base/error.h"
#include "base/ini_file.h"
#include "commands/files/settings_forms.h"

namespace velk {
namespace {

using StoreSettings = void (*)(const Settings&, IniFile&);

// What depends on the settings follows. Another texture alignment gives every face new texture coordinates.
void Follow(Editor& editor, const Settings& before) {
  const bool realigned = before.texture_alignment != editor.settings().texture_alignment;
  for (int i = 0; i < editor.documents().count(); ++i) {
    MapDocument& document = *editor.documents().at(i);
    document.history.limit(History::Limits::of(editor.settings()));
    if (!realigned) continue;
    for (entity& e : document.model.entities()) {
      for (brush& b : e.brushes()) b.buildWindings();
    }
  }
}

// Has the form filled in, takes its values over and, when asked, writes them to velk.ini. The settings hold
// whether or not they could be written.
void FillIn(Editor& editor, Form form, StoreSettings store, const char* failure) {
  const FormAnswer answer = editor.services().prompts.fill(form);
  if (answer == FormAnswer::Cancel) return;
  const Settings before = editor.settings();
  ApplyForm(form, editor.settings());
  Follow(editor, before);
  if (answer != FormAnswer::Save) return;
  const std::filesystem::path file = editor.place().home / "velk.ini";
  editor.door().attempt("Velk - Save Settings", "", [&] {
    IniFile ini = IniFile::Load(file);
    store(WithRelativePaths(editor.settings(), editor.place().home), ini);
    const WriteResult written = ini.save(file);
    const ErrorPlace place([&] { return file.string() + ": " + written.reason; });
    if (!written.ok) Error("%s", failure);
  });
}

// None of a damaged file.
std::vector<std::string> SetupNames(const MouseBindings* bindings) {
  std::vector<std::string> names;
  if (!bindings) return names;
  for (const MouseSetup& setup : bindings->setups) names.push_back(setup.name);
  return names;
}

// A list without a choice keeps its setup.
void Choose(MouseBindings* bindings, int setup) {
  if (bindings && setup >= 0 && setup < static_cast<int>(bindings->setups.size())) bindings->current = setup;
}

// The texture browser goes by the settings, too.
Outcome Shown(const char* status) {
  Outcome outcome = Outcome::Drawn(Redraw::All, status);
  outcome.textures = true;
  return outcome;
}

}  // namespace

Outcome AskPreferences(Editor& editor) {
  FillIn(editor, PreferencesForm(editor.settings()), StorePreferences, "Couldn't open velk.ini");
  return Shown("Preferences set...");
}

Outcome AskColours(Editor& editor) {
  FillIn(editor, ColoursForm(editor.settings()), StoreColours, "Couldn't open [VelkColors] of velk.ini");
  editor.textures().remapOutlineColours();
  return Shown("Colors set...");
}

Outcome AskDirectories(Editor& editor) {
  FillIn(editor, DirectoriesForm(editor.settings()), StoreDirectories, "Couldn't open velk.ini");
  return Outcome::Drawn(Redraw::All, "Directories set...");
}

Outcome AskMouseSettings(Editor& editor) {
  MouseBindings* plan = editor.input().bindings(0);
  MouseBindings* camera = editor.input().bindings(kCameraView);
  Form form =
      MouseForm(SetupNames(plan), plan ? plan->current : 0, SetupNames(camera), camera ? camera->current : 0);
  if (editor.services().prompts.fill(form) != FormAnswer::Cancel) {
    Choose(plan, form.whole("XY"));
    Choose(camera, form.whole("3D"));
  }
  return Outcome::Said("Mouse settings changed...");
}

Outcome ReloadClasses(Editor& editor, map&) {
  Settings settings = editor.settings();
  // No dialog sets it: who changes it in the file wants to see it without a restart.
  settings.sort_entities = IniFile::Load(editor.place().home / "velk.ini")
                               .integer("Velk", "sort_entities", settings.sort_entities) != 0;
  EntityClassList read;
  read.setSorted(settings.sort_entities);
  read.loadAll(settings, editor.services().paths, editor.services().prompts);
  if (settings.careful_tools && read.count() <= 1 && editor.classes().count() > 1) {
    return Outcome::Said("No entity classes found, list kept...");
  }
  editor.settings().sort_entities = settings.sort_entities;
  editor.classes() = std::move(read);
  editor.panels().entities.classesReloaded();
  Outcome outcome = Outcome::Drawn(Redraw::All, "Entity list reloaded...");
  outcome.maps = true;
  return outcome;
}

}  // namespace velk
