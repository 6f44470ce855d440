#include "commands/building/profile_form.h"

#include "base/text.h"

namespace velk {
namespace {

constexpr const char* kNote =
    "Each line is a program and its arguments.\n"
    "%map% is the map's file, %bsp% the level's, %name% the name without folder and ending,\n"
    "%wads% the wads. Without any step the profile is removed; without a name only the\n"
    "program to play with is kept.";

std::filesystem::path FileOf(const Editor& editor) { return editor.place().home / "velkbuild.ini"; }

std::string StepName(size_t i) { return Format("step%zu", i + 1); }

// `taken` are the names of the other profiles.
std::optional<FormRefusal> RefusalOf(std::string_view name, const std::vector<std::string>& taken) {
  for (const BatchFile& batch : kBatchFiles) {
    if (EqualNoCase(name, batch.name)) return FormRefusal{"The batch files' names are taken.", "name"};
  }
  for (const std::string& other : taken) {
    if (EqualNoCase(name, other)) return FormRefusal{"There is a profile of that name.", "name"};
  }
  return std::nullopt;
}

Form FormOf(const BuildProfile& profile, const BuildProfiles& profiles) {
  Form form;
  form.title = "Build Profile";
  form.note = kNote;
  form.fields = {TextField("name", "Name", profile.name), TextField("before", "Before", profile.before)};
  for (size_t i = 0; i < BuildProfile::kMostSteps; ++i) {
    form.fields.push_back(
        TextField(StepName(i), Format("Step %zu", i + 1), i < profile.steps.size() ? profile.steps[i] : ""));
  }
  form.fields.push_back(TextField("after", "After", profile.after));
  form.fields.push_back(TextField("play", "Play with", profiles.play));
  for (FormField& field : form.fields) field.maxLength = 1000;
  std::vector<std::string> taken;
  for (const BuildProfile& own : profiles.own) {
    if (own.name != profile.name) taken.push_back(own.name);
  }
  form.check = [taken](Form& filled) { return RefusalOf(Trimmed(filled.text("name")), taken); };
  return form;
}

BuildProfile ProfileOf(const Form& form) {
  BuildProfile profile;
  profile.name = Trimmed(form.text("name"));
  profile.before = form.text("before");
  for (size_t i = 0; i < BuildProfile::kMostSteps; ++i) {
    const std::string step(Trimmed(form.text(StepName(i))));
    if (!step.empty()) profile.steps.push_back(step);
  }
  profile.after = form.text("after");
  return profile;
}

Outcome Store(Editor& editor, const BuildProfiles& profiles) {
  if (profiles.save(FileOf(editor))) {
    editor.panels().build.changed();
    return Outcome::Said(Format("Build profile %s...", profiles.chosen.c_str()));
  }
  return Outcome::Said("Couldn't write velkbuild.ini...");
}

}  // namespace

BuildProfiles LoadProfiles(const Editor& editor) { return BuildProfiles::Load(FileOf(editor)); }

Outcome EditProfiles(Editor& editor) {
  BuildProfiles profiles = LoadProfiles(editor);
  const BuildProfile* chosen = profiles.find(profiles.chosen);
  Form form = FormOf(chosen ? *chosen : BuildProfile{"", "", {"qbsp %map%", "light %bsp%", "vis %bsp%"}, ""},
                     profiles);
  if (editor.services().prompts.fill(form) == FormAnswer::Cancel) return {};
  const BuildProfile filled = ProfileOf(form);
  profiles.play = form.text("play");
  // Without a name there is only the program to play with.
  if (filled.name.empty()) return Store(editor, profiles);
  if (filled.steps.empty()) {
    profiles.remove(filled.name);
    profiles.chosen = BuildProfiles{}.chosen;
  } else {
    profiles.put(filled);
    profiles.chosen = filled.name;
  }
  return Store(editor, profiles);
}

Outcome ChooseProfile(Editor& editor, int number) {
  BuildProfiles profiles = LoadProfiles(editor);
  const std::vector<std::string> names = profiles.names();
  if (number < 0 || number >= static_cast<int>(names.size())) return {};
  profiles.chosen = names[static_cast<size_t>(number)];
  return Store(editor, profiles);
}

bool AskForPlay(Editor& editor, BuildProfiles& profiles) {
  const auto line = editor.services().prompts.input(
      {.title = "Play", .prompt = "Program that plays the level (%name%, %bsp%)", .text = profiles.play});
  if (!line || Trimmed(*line).empty()) return false;
  profiles.play = *line;
  Store(editor, profiles);
  return true;
}

}  // namespace velk
