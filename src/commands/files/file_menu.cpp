// Commands of the File menu.
#include "app/editor.h"
#include "base/text.h"
#include "commands/command_tables.h"
#include "commands/files/leak_commands.h"
#include "commands/files/save_map.h"
#include "commands/files/settings_commands.h"
#include "commands/files/side_files.h"
#include "documents/opening.h"
#include "documents/saving.h"

namespace velk {
namespace {

bool RoomForMap(const Editor& editor) { return editor.documents().count() < MAX_MAPS; }

bool RecentKept(const Editor& editor) { return editor.documents().recent().count() > 0; }

bool RecentTaken(const Editor& editor, int index) { return index < editor.documents().recent().count(); }

template <int index>
std::string RecentLabel(const Editor& editor) {
  return RecentMapLabel(index, editor.documents().recent().at(index));
}

// Asks what becomes of unsaved changes; false when the map has to stay open.
bool MayClose(Editor& editor, MapDocument& document) {
  if (!document.isUnsaved()) return true;
  const Answer answer =
      editor.services().prompts.ask({.caption = "Velk - Save Changes?",
                                     .text = Format("Save changes to map %s?", document.model.name.c_str()),
                                     .buttons = MessageBox::Buttons::YesNoCancel,
                                     .icon = MessageBox::Icon::Question});
  if (answer == Answer::Yes) {
    const auto saved = Save(editor, document);
    if (saved) editor.door().show(*saved);
    return saved.has_value();
  }
  return answer == Answer::No;
}

Outcome NewMap(Editor& editor) {
  const int before = editor.documents().count();
  Outcome outcome = OpenNewMap(editor.services(), editor.documents(), editor.door());
  if (editor.documents().count() > before) editor.rescue().restart();
  return outcome;
}

Outcome OpenMaps(Editor& editor) {
  if (!HasRoom(editor.services(), editor.documents(), kCannotOpen)) return {};
  const auto paths = editor.services().prompts.chooseFiles({.title = "Select MAP File",
                                                            .filter = kMapFilter,
                                                            .directory = editor.settings().map_directory,
                                                            .fileName = {},
                                                            .kind = FileChooser::Kind::OpenMany});
  for (const std::string& path : paths) {
    const bool full = editor.documents().count() >= MAX_MAPS;
    const Outcome outcome = OpenFile(editor.services(), editor.documents(), editor.door(), path);
    if (outcome.maps) editor.door().show(outcome);
    if (full) break;
  }
  return {};
}

Outcome OpenRecentMap(Editor& editor, int index) {
  return OpenRecent(editor.services(), editor.documents(), editor.door(), index);
}

Outcome ClearRecentMaps(Editor& editor) {
  editor.documents().recent().clear();
  return {};
}

Outcome CloseMap(Editor& editor, map&) {
  if (!MayClose(editor, *editor.documents().current())) return {};
  return CloseDocument(editor.documents(), editor.documents().currentIndex());
}

Outcome SaveMap(Editor& editor, map&) {
  return Save(editor, *editor.documents().current()).value_or(Outcome{});
}

Outcome SaveMapAs(Editor& editor, map&) {
  return SaveUnder(editor, *editor.documents().current()).value_or(Outcome{});
}

// A build goes on while its questions are asked, and ends with the editor.
bool MayEndBuild(Editor& editor) {
  return !editor.build().job().running() ||
         editor.services().prompts.agrees("Velk - Build Running", "A build is running. Stop it and exit?");
}

Outcome ExitEditor(Editor& editor) {
  if (!MayEndBuild(editor)) return {};
  for (int i = 0; i < editor.documents().count(); ++i) {
    if (!MayClose(editor, *editor.documents().at(i))) return {};
  }
  editor.build().job().stop();
  editor.requestExit();
  return {};
}

Outcome SaveArrangement(Editor& editor, map&) {
  const auto answer =
      editor.services().prompts.input({.title = "Save Window Arrangement",
                                       .prompt = Format("Which slot to save to (1-%i)", Arrangements::kSlots),
                                       .text = Format("%i", editor.windows().arrangements().current + 1)});
  const int slot = answer ? TextToInt(*answer) : 0;
  if (slot < 1 || slot > Arrangements::kSlots) return {};
  return editor.windows().save(slot - 1);
}

// clang-format off
const Command kRows[] = {
    {.id = 24331, .name = "CM_FILENEW", .menu = "&File", .label = "&New", .keyText = "Ctrl-N",
     .keys = "Ctrl+N", .hint = "Create new Quake .map file", .enabled = RoomForMap, .saysWhy = true, .run = NewMap},
    {.id = 24332, .name = "CM_FILEOPEN", .menu = "&File", .label = "&Open...", .keyText = "Ctrl-O",
     .keys = "Ctrl+O", .hint = "Open Quake .map File", .enabled = RoomForMap, .saysWhy = true, .run = OpenMaps},
    {.id = 1010, .menu = "&File|Recent &Files", .label = "&1", .hint = "Open this map again",
     .enabled = Holds<RecentTaken, 0>, .shown = Holds<RecentTaken, 0>,
     .labelNow = RecentLabel<0>, .run = With<OpenRecentMap, 0>},
    {.id = 1011, .menu = "&File|Recent &Files", .label = "&2", .hint = "Open this map again",
     .enabled = Holds<RecentTaken, 1>, .shown = Holds<RecentTaken, 1>,
     .labelNow = RecentLabel<1>, .run = With<OpenRecentMap, 1>},
    {.id = 1012, .menu = "&File|Recent &Files", .label = "&3", .hint = "Open this map again",
     .enabled = Holds<RecentTaken, 2>, .shown = Holds<RecentTaken, 2>,
     .labelNow = RecentLabel<2>, .run = With<OpenRecentMap, 2>},
    {.id = 1013, .menu = "&File|Recent &Files", .label = "&4", .hint = "Open this map again",
     .enabled = Holds<RecentTaken, 3>, .shown = Holds<RecentTaken, 3>,
     .labelNow = RecentLabel<3>, .run = With<OpenRecentMap, 3>},
    {.id = 1014, .menu = "&File|Recent &Files", .label = "&5", .hint = "Open this map again",
     .enabled = Holds<RecentTaken, 4>, .shown = Holds<RecentTaken, 4>,
     .labelNow = RecentLabel<4>, .run = With<OpenRecentMap, 4>},
    {.id = 1015, .menu = "&File|Recent &Files", .label = "&6", .hint = "Open this map again",
     .enabled = Holds<RecentTaken, 5>, .shown = Holds<RecentTaken, 5>,
     .labelNow = RecentLabel<5>, .run = With<OpenRecentMap, 5>},
    {.id = 1016, .menu = "&File|Recent &Files", .label = "&7", .hint = "Open this map again",
     .enabled = Holds<RecentTaken, 6>, .shown = Holds<RecentTaken, 6>,
     .labelNow = RecentLabel<6>, .run = With<OpenRecentMap, 6>},
    {.id = 1017, .menu = "&File|Recent &Files", .label = "&8", .hint = "Open this map again",
     .enabled = Holds<RecentTaken, 7>, .shown = Holds<RecentTaken, 7>,
     .labelNow = RecentLabel<7>, .run = With<OpenRecentMap, 7>},
    {.id = 1018, .menu = "&File|Recent &Files", .label = "&9", .hint = "Open this map again",
     .enabled = Holds<RecentTaken, 8>, .shown = Holds<RecentTaken, 8>,
     .labelNow = RecentLabel<8>, .run = With<OpenRecentMap, 8>},
    {.id = 1019, .menu = "&File|Recent &Files", .startsGroup = true, .label = "&Clear",
     .hint = "Forget the recent files",
     .enabled = RecentKept, .run = ClearRecentMaps},
    {.id = 24339, .name = "CM_FILECLOSE", .menu = "&File", .label = "Close", .keyText = "Ctrl-W",
     .keys = "Ctrl+W", .hint = "Close current map...", .enabled = MapOpen, .run = CloseMap},
    {.id = 24333, .name = "CM_FILESAVE", .menu = "&File", .label = "&Save", .keyText = "Ctrl-S",
     .keys = "Ctrl+S", .hint = "Save Quake .map file", .enabled = MapOpen, .run = SaveMap},
    {.id = 24334, .name = "CM_FILESAVEAS", .menu = "&File", .label = "Save &as...", .keyText = "Ctrl-A",
     .keys = "Ctrl+A", .hint = "Save Quake .map file as ...", .enabled = MapOpen, .run = SaveMapAs},
    {.id = 24337, .menu = "&File", .startsGroup = true,
     .label = "&Print...", .hint = "Print",
     .reason = "printing is not offered"},
    {.id = 98, .menu = "&File", .label = "Page se&tup...", .hint = "Page Setup",
     .reason = "printing is not offered"},
    {.id = 24338, .menu = "&File", .label = "P&rinter setup...", .hint = "Printer Setup", .reason = "printing is not offered"},
    {.id = 186, .name = "CM_FILESAVE_SEL", .menu = "&File|Brushes", .startsGroup = true,
     .label = "Save brushes...",
     .hint = "Save selected brushes to new file...", .enabled = MapOpen,
     .run = SaveBrushes},
    {.id = 190, .name = "CM_LOAD_BRUSHES", .menu = "&File|Brushes", .label = "Load Brushes...",
     .hint = "Load brushes from file.", .enabled = MapOpen,
     .run = LoadBrushes, .caption = kCannotLoadBrushes},
    {.id = 292, .name = "CM_MERGE_OUT", .menu = "&File|Objects", .label = "Merge Out...",
     .hint = "Save Entities/Brushes to .mrg file...", .enabled = MapOpen,
     .run = MergeOut, .caption = kCannotMerge},
    {.id = 291, .name = "CM_MERGE_IN", .menu = "&File|Objects", .label = "Merge In...",
     .hint = "Load Entities/Brushes from .mrg file...", .enabled = MapOpen,
     .run = MergeIn, .caption = kCannotMerge},
    {.id = 293, .name = "CM_MERGE_CLIPBOARD", .menu = "&File|Objects", .label = "Save Clipboard...",
     .hint = "Save clipboard to .mrg file...", .enabled = MapOpen,
     .run = SaveClipboard, .caption = kCannotMerge},
    {.id = 160, .name = "CM_FILEPREFERENCES", .menu = "&File", .startsGroup = true,
     .label = "Preferences...",
     .hint = "Set preferences...", .run = AskPreferences},
    {.id = 11842, .menu = "&File", .label = "Colors...", .hint = "Set colors...",
     .run = AskColours},
    {.id = 11846, .menu = "&File", .label = "Mouse...",
     .hint = "Choose mouse settings for 2D and 3D views...",
     .run = AskMouseSettings},
    {.id = 11843, .menu = "&File", .label = "Directories...", .hint = "Set Directories...",
     .run = AskDirectories},
    {.id = 191, .name = "CM_FILE_ARRANGE", .menu = "&File", .startsGroup = true,
     .label = "Save Window Arrangement",
     .hint = "Save Window Arrangement...", .enabled = MapOpen,
     .run = SaveArrangement},
    {.id = 167, .menu = "&File", .label = "Reload Ents.qc", .hint = "Reload entity classes",
     .run = ReloadClasses},
    {.id = 294, .name = "CM_SHOW_LEAKS", .menu = "&File|Leaks", .label = "Load .pts...",
     .hint = "Load in .pts file and show path to leak...", .run = LoadLeaks},
    {.id = 298, .menu = "&File|Leaks", .label = "Stop", .hint = "Stop displaying leak information",
     .enabled = LeaksShown, .run = StopLeaks},
    {.id = 1400, .name = "CM_NEXT_LEAK", .menu = "&File|Leaks", .startsGroup = true, .label = "Next Leak Point",
     .keyText = "F8", .keys = "F8", .hint = "Fly the camera to the next leak point", .enabled = LeaksShown,
     .run = With<StepLeak, 1>},
    {.id = 1401, .name = "CM_PREVIOUS_LEAK", .menu = "&File|Leaks", .label = "Previous Leak Point",
     .keyText = "Shift-F8", .keys = "Shift+F8", .hint = "Fly the camera to the leak point before",
     .enabled = LeaksShown, .run = With<StepLeak, -1>},
    {.id = 99, .name = "CM_FILEEXIT", .menu = "&File", .startsGroup = true,
     .label = "E&xit", .keyText = "Ctrl-Q",
     .keys = "Ctrl+Q", .hint = "Quit Velk", .run = ExitEditor},
};
// clang-format on

}  // namespace

std::span<const Command> FileCommands() { return kRows; }

}  // namespace velk
