// Commands of the File menu.
#include "commands/command_tables.h"
#include "commands/handlers.h"

namespace velk {

using namespace commands;

namespace {

// clang-format off
const Command kRows[] = {
    {.id = 24331, .name = "CM_FILENEW", .menu = "&File", .label = "&New", .keyText = "Ctrl-N",
     .keys = "Ctrl+N", .hint = "Create new Quake .map file", .when = When::RoomForMap, .run = newMap},
    {.id = 24332, .name = "CM_FILEOPEN", .menu = "&File", .label = "&Open...", .keyText = "Ctrl-O",
     .keys = "Ctrl+O", .hint = "Open Quake .map File", .when = When::RoomForMap, .run = openMaps},
    {.id = 1010, .menu = "&File|Recent &Files", .label = "&1", .hint = "Open this map again",
     .when = When::RecentMap, .run = with<openRecentMap, 0>},
    {.id = 1011, .menu = "&File|Recent &Files", .label = "&2", .hint = "Open this map again",
     .when = When::RecentMap, .run = with<openRecentMap, 1>},
    {.id = 1012, .menu = "&File|Recent &Files", .label = "&3", .hint = "Open this map again",
     .when = When::RecentMap, .run = with<openRecentMap, 2>},
    {.id = 1013, .menu = "&File|Recent &Files", .label = "&4", .hint = "Open this map again",
     .when = When::RecentMap, .run = with<openRecentMap, 3>},
    {.id = 1014, .menu = "&File|Recent &Files", .label = "&5", .hint = "Open this map again",
     .when = When::RecentMap, .run = with<openRecentMap, 4>},
    {.id = 1015, .menu = "&File|Recent &Files", .label = "&6", .hint = "Open this map again",
     .when = When::RecentMap, .run = with<openRecentMap, 5>},
    {.id = 1016, .menu = "&File|Recent &Files", .label = "&7", .hint = "Open this map again",
     .when = When::RecentMap, .run = with<openRecentMap, 6>},
    {.id = 1017, .menu = "&File|Recent &Files", .label = "&8", .hint = "Open this map again",
     .when = When::RecentMap, .run = with<openRecentMap, 7>},
    {.id = 1018, .menu = "&File|Recent &Files", .label = "&9", .hint = "Open this map again",
     .when = When::RecentMap, .run = with<openRecentMap, 8>},
    {.id = 1019, .menu = "&File|Recent &Files", .startsGroup = true, .label = "&Clear",
     .hint = "Forget the recent files",
     .when = When::RecentKept, .run = clearRecentMaps},
    {.id = 24339, .name = "CM_FILECLOSE", .menu = "&File", .label = "Close", .keyText = "Ctrl-W",
     .keys = "Ctrl+W", .hint = "Close current map...", .when = When::MapOpen, .run = closeMap},
    {.id = 24333, .name = "CM_FILESAVE", .menu = "&File", .label = "&Save", .keyText = "Ctrl-S",
     .keys = "Ctrl+S", .hint = "Save Quake .map file", .when = When::MapOpen, .run = saveMap},
    {.id = 24334, .name = "CM_FILESAVEAS", .menu = "&File", .label = "Save &as...", .keyText = "Ctrl-A",
     .keys = "Ctrl+A", .hint = "Save Quake .map file as ...", .when = When::MapOpen, .run = saveMapAs},
    {.id = 24337, .menu = "&File", .startsGroup = true,
     .label = "&Print...", .hint = "Print", .when = When::Never,
     .reason = "printing is not offered"},
    {.id = 98, .menu = "&File", .label = "Page se&tup...", .hint = "Page Setup", .when = When::Never,
     .reason = "printing is not offered"},
    {.id = 24338, .menu = "&File", .label = "P&rinter setup...", .hint = "Printer Setup",
     .when = When::Never, .reason = "printing is not offered"},
    {.id = 186, .name = "CM_FILESAVE_SEL", .menu = "&File|Brushes", .startsGroup = true,
     .label = "Save brushes...",
     .hint = "Save selected brushes to new file...", .when = When::MapOpen,
     .reason = "not built yet: brush and merge files"},
    {.id = 190, .name = "CM_LOAD_BRUSHES", .menu = "&File|Brushes", .label = "Load Brushes...",
     .hint = "Load brushes from file.", .when = When::MapOpen,
     .reason = "not built yet: brush and merge files"},
    {.id = 292, .name = "CM_MERGE_OUT", .menu = "&File|Objects", .label = "Merge Out...",
     .hint = "Save Entities/Brushes to .mrg file...", .when = When::MapOpen,
     .reason = "not built yet: brush and merge files"},
    {.id = 291, .name = "CM_MERGE_IN", .menu = "&File|Objects", .label = "Merge In...",
     .hint = "Load Entities/Brushes from .mrg file...", .when = When::MapOpen,
     .reason = "not built yet: brush and merge files"},
    {.id = 293, .name = "CM_MERGE_CLIPBOARD", .menu = "&File|Objects", .label = "Save Clipboard...",
     .hint = "Save clipboard to .mrg file...", .when = When::MapOpen,
     .reason = "not built yet: brush and merge files"},
    {.id = 160, .name = "CM_FILEPREFERENCES", .menu = "&File", .startsGroup = true,
     .label = "Preferences...",
     .hint = "Set preferences...", .run = preferences},
    {.id = 11842, .menu = "&File", .label = "Colors...", .hint = "Set colors...",
     .run = colours},
    {.id = 11846, .menu = "&File", .label = "Mouse...",
     .hint = "Choose mouse settings for 2D and 3D views...",
     .run = mouseSettings},
    {.id = 11843, .menu = "&File", .label = "Directories...", .hint = "Set Directories...",
     .run = directories},
    {.id = 191, .name = "CM_FILE_ARRANGE", .menu = "&File", .startsGroup = true,
     .label = "Save Window Arrangement",
     .hint = "Save Window Arrangement...", .when = When::MapOpen,
     .run = saveArrangement},
    {.id = 167, .menu = "&File", .label = "Reload Ents.qc", .hint = "Reload entity classes",
     .run = reloadClasses},
    {.id = 294, .name = "CM_SHOW_LEAKS", .menu = "&File|Leaks", .label = "Load .pts...",
     .hint = "Load in .pts file and show path to leak...", .reason = "not built yet: the leak search"},
    {.id = 298, .menu = "&File|Leaks", .label = "Stop", .hint = "Stop displaying leak information",
     .when = When::LeaksShown, .reason = "not built yet: the leak search"},
    {.id = 99, .name = "CM_FILEEXIT", .menu = "&File", .startsGroup = true,
     .label = "E&xit", .keyText = "Ctrl-Q",
     .keys = "Ctrl+Q", .hint = "Quit Velk", .run = exitEditor},
};
// clang-format on

}  // namespace

std::span<const Command> FileCommands() { return kRows; }

}  // namespace velk
