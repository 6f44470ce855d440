// Commands of the Export menu.
#include "commands/building/build_commands.h"
#include "commands/building/profile_form.h"
#include "commands/command_tables.h"

namespace velk {
namespace {

constexpr char kSuper[] = "super";
constexpr char kFast[] = "fast";
constexpr char kFull[] = "full";
constexpr char kNoVis[] = "novis";
constexpr char kRelight[] = "relight";
constexpr char kLeakTest[] = "leaktest";

// clang-format off
const Command kRows[] = {
    {.id = 77, .menu = "E&xport", .label = "&Launch BSPBuild...", .keyText = "Ctrl-Alt-B",
     .keys = "Ctrl+Alt+B", .hint = "Launch BSPBuild.exe on current map...", .run = LaunchBuilder},
    {.id = 185, .menu = "E&xport", .startsGroup = true, .label = "&Super fast", .hint = "Qbsp -nofill; light",
     .run = With<RunBatch, kSuper>},
    {.id = 281, .menu = "E&xport", .label = "&Fast", .hint = "Qbsp; light; vis -fast",
     .run = With<RunBatch, kFast>},
    {.id = 282, .menu = "E&xport", .label = "F&ull", .hint = "Qbsp; Light; Vis", .run = With<RunBatch, kFull>},
    {.id = 283, .menu = "E&xport", .label = "&No Vis", .hint = "Qbsp; Light", .run = With<RunBatch, kNoVis>},
    {.id = 284, .menu = "E&xport", .label = "&Relight", .hint = "Light", .run = With<RunBatch, kRelight>},
    {.id = 285, .menu = "E&xport", .startsGroup = true, .label = "&Leak Test", .hint = "Qbsp -mark -notjunc",
     .run = With<RunBatch, kLeakTest>},
    {.id = 1410, .name = "CM_BUILD", .menu = "E&xport", .startsGroup = true, .label = "&Build...",
     .keyText = "F7", .keys = "F7", .hint = "Show the build window", .run = ShowBuildWindow},
    {.id = 1411, .name = "CM_BUILD_START", .menu = "E&xport", .label = "Start Buil&d", .keyText = "Ctrl-F7",
     .keys = "Ctrl+F7", .hint = "Build the map by the profile chosen", .enabled = MapOpen, .run = StartBuild},
    {.id = 1412, .name = "CM_BUILD_STOP", .menu = "E&xport", .label = "S&top Build",
     .hint = "Stop the build that runs", .enabled = BuildRuns, .run = StopBuild},
    {.id = 1413, .name = "CM_PLAY", .menu = "E&xport", .label = "&Play", .hint = "Play the level",
     .enabled = MapOpen, .run = Play},
    {.id = 1414, .name = "CM_BUILD_PROFILE", .menu = "E&xport", .label = "Build Pr&ofile...",
     .hint = "Change the steps of a build", .run = EditProfiles},
};
// clang-format on

}  // namespace

std::span<const Command> ExportCommands() { return kRows; }

}  // namespace velk
