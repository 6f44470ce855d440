#include "commands/building/build_commands.h"

#include "base/text.h"
#include "build/profiles.h"
#include "commands/building/profile_form.h"
#include "commands/files/save_map.h"

namespace velk {
namespace {

constexpr const char* kLaunchCaption = "Velk - Launch BSPBuild";
constexpr const char* kRunning = "A build is running already...";

BuildMap BuildMapOf(Editor& editor) {
  BuildMap map;
  map.path = editor.documents().currentMap()->name;
  for (const Wad* wad : editor.documents().current()->textures.wads()) {
    map.wads.push_back(editor.services().paths.native(wad->path).string());
  }
  return map;
}

// Classic is to say nothing of a program that cannot be started.
Outcome Started(Editor& editor, bool started, const Launch& launch, std::string status) {
  if (!started && editor.settings().careful_tools) {
    return Outcome::Drawn(Redraw::All, Format("Couldn't start %s...", launch.program.c_str()));
  }
  return Outcome::Drawn(Redraw::All, std::move(status));
}

std::string BatchName(std::string_view stem) {
  for (const BatchFile& batch : kBatchFiles) {
    if (stem == batch.stem) return batch.name;
  }
  return std::string(stem);
}

}  // namespace

// The argument is that of the map as it was called before the save, unless the tools are careful.
Outcome RunBatch(Editor& editor, map& m, const char* stem) {
  const bool careful = editor.settings().careful_tools;
  const bool inWindow = editor.settings().build_window;
  if (inWindow && BuildRuns(editor)) return Outcome::Said(kRunning);
  const Paths& paths = editor.services().paths;
  Launch launch = BatchLaunch(paths, editor.settings(), stem, m.name);
  if (!editor.services().prompts.agrees("Velk - Export", "Okay to save map?")) return {};
  const bool saved = SaveNow(editor);
  if (careful && !saved) return {};
  if (careful) launch = BatchLaunch(paths, editor.settings(), stem, m.name);
  bool started = true;
  if (inWindow) {
    editor.services().observer.buildRequested();
    editor.panels().build.build(BatchName(stem), {launch}, BuildMapOf(editor));
  } else {
    started = editor.build().startAlone(launch, BuildMapOf(editor));
  }
  return Started(editor, started, launch, "Spawning QBSP on current .map file...");
}

Outcome LaunchBuilder(Editor& editor, map& m) {
  const Settings& settings = editor.settings();
  const Paths& paths = editor.services().paths;
  Launch launch{FindProgram(paths, settings.bspbuild_directory, {"bspbuild.exe", "bspbuild"}),
                {MapArgument(m.name)},
                settings.map_directory};
  if (!paths.exists(launch.program)) {
    editor.services().prompts.agrees(kLaunchCaption,
                                     "Must have Orlund's BSPBuild.exe in the .bat directory\n"
                                     "See Files | Directories for current .bat file directory...");
    return {};
  }
  if (!editor.services().prompts.agrees(kLaunchCaption, "Okay to save map before launching BSPBuild?")) {
    return {};
  }
  const bool saved = SaveNow(editor);
  if (m.modified || (settings.careful_tools && !saved)) return {};
  if (settings.careful_tools) launch.arguments = {MapArgument(m.name)};
  const bool started = editor.build().startAlone(launch, BuildMapOf(editor));
  return Started(editor, started, launch,
                 Format("BSPBuild launched on map:  \"%s\"...", launch.arguments.front().c_str()));
}

Outcome ShowBuildWindow(Editor& editor) {
  editor.services().observer.buildRequested();
  return {};
}

bool BuildRuns(const Editor& editor) { return editor.build().job().running(); }

// What is built is the map's file: a map that differs from it is asked about once.
Outcome StartBuild(Editor& editor, map& m) {
  if (BuildRuns(editor)) return Outcome::Said(kRunning);
  const bool hasFile = editor.services().paths.exists(m.name);
  if (editor.documents().current()->isUnsaved() || !hasFile) {
    const Answer answer = editor.services().prompts.ask(
        {.caption = "Velk - Build",
         .text = Format("The map %s is not saved. Save it before it is built?", m.name.c_str()),
         .buttons = MessageBox::Buttons::YesNoCancel,
         .icon = MessageBox::Icon::Question});
    if (answer == Answer::Cancel || (answer == Answer::No && !hasFile)) return {};
    if (answer == Answer::Yes && !SaveNow(editor)) return {};
  }
  const BuildProfiles profiles = LoadProfiles(editor);
  const BuildMap map = BuildMapOf(editor);
  const auto launches =
      LaunchesOf(profiles, profiles.chosen, editor.services().paths, editor.settings(), map);
  if (launches.empty()) return Outcome::Said(Format("Profile %s has no steps...", profiles.chosen.c_str()));
  editor.services().observer.buildRequested();
  editor.panels().build.build(profiles.chosen, launches, map);
  return Outcome::Said(Format("Building %s...", profiles.chosen.c_str()));
}

Outcome StopBuild(Editor& editor) {
  editor.build().job().stop();
  return {};
}

Outcome Play(Editor& editor, map&) {
  BuildProfiles profiles = LoadProfiles(editor);
  if (Trimmed(profiles.play).empty() && !AskForPlay(editor, profiles)) return {};
  const BuildMap map = BuildMapOf(editor);
  const Launch launch = LineLaunch(profiles.play, editor.services().paths, map);
  if (launch.program.empty()) return {};
  if (editor.build().startAlone(launch, map)) {
    return Outcome::Said(Format("Started %s...", launch.program.c_str()));
  }
  return Outcome::Said(Format("Couldn't start %s...", launch.program.c_str()));
}

Outcome CheckMapNow(Editor& editor, map&) {
  const int found = editor.panels().build.check();
  editor.services().observer.buildRequested();
  return Outcome::Said(found == 0 ? "Nothing found..." : Format("%i findings...", found));
}

}  // namespace velk
