// Commands of the Edit menu that make brushes and entities, turn and mirror.
#include "commands/command_tables.h"
#include "commands/editing/transform_commands.h"
#include "commands/making/maker_commands.h"
#include "commands/objects/entity_commands.h"
#include "ops/reshape.h"
#include "ops/transform.h"

namespace velk {
namespace {

// clang-format off
const Command kRows[] = {
    {.id = 161, .name = "CM_EDITMAKESTAIRS", .menu = "&Edit|&Make", .startsGroup = true,
     .label = "Stairs...",
     .hint = "Create stairs from current brush", .enabled = MapOpen,
     .run = MakeStairsInPlace, .caption = kCannotMake, .failure = kNoRoomForMade},
    {.id = 171, .name = "CM_MAKE_ROOM", .menu = "&Edit|&Make|&Room", .label = "Room (6-sided)...",
     .hint = "Make a six-sided room...", .enabled = MapOpen,
     .run = MakeRoomInPlace, .caption = kCannotMake, .failure = kNoRoomForMade},
    {.id = 206, .name = "CM_EXTRUDE", .menu = "&Edit|&Make|&Room", .label = "Room (Extruded)...",
     .hint = "Extrude room from selected brush", .enabled = MapOpen,
     .run = ExtrudeBrush, .caption = kCannotMake, .failure = kNoRoomForMade},
    {.id = 172, .name = "CM_MAKE_ARCH", .menu = "&Edit|&Make", .label = "Arch...",
     .hint = "Make an arch from selected brush", .enabled = MapOpen,
     .run = MakeArchInPlace, .caption = kCannotMake, .failure = kNoRoomForMade},
    {.id = 179, .name = "CM_MAKE_SPHERE", .menu = "&Edit|&Make", .label = "Sphere...",
     .hint = "Make sphere from current brush", .enabled = MapOpen,
     .run = MakeSphereInPlace, .caption = kCannotMake, .failure = kNoRoomForMade},
    {.id = 201, .name = "CM_MAKE_CYLINDER", .menu = "&Edit|&Make", .label = "Cylinder...",
     .hint = "Make selected brush into cylinder...", .enabled = MapOpen,
     .run = MakeCylinderInPlace, .caption = kCannotMake, .failure = kNoRoomForMade},
    {.id = 202, .name = "CM_MAKE_N_SIDED", .menu = "&Edit|&Make", .label = "N-Sided...",
     .hint = "Make selected brush into N-Sided brush...", .enabled = MapOpen,
     .run = MakePrismInPlace, .caption = kCannotMake, .failure = kNoRoomForMade},
    {.id = 204, .name = "CM_MAKE_PYRAMID", .menu = "&Edit|&Make", .label = "Pyramid...",
     .hint = "Make pyramidal brush from selected brush", .enabled = MapOpen,
     .run = MakePyramidInPlace, .caption = kCannotMake, .failure = kNoRoomForMade},
    {.id = 208, .name = "CM_MAKE_BRUSH", .menu = "&Edit|&Make", .label = "Brush...",
     .hint = "Make a brush at x, y, z of dx, dy, dz size...", .enabled = MapOpen,
     .run = CreateBrush, .caption = kCannotMake, .failure = kNoRoomForMade},
    {.id = 151, .name = "CM_TALL_BRUSH", .menu = "&Edit|&Make", .startsGroup = true, .label = "Tall Brush",
     .hint = "Make current brush very tall", .enabled = MapOpen, .run = TallBrush},
    {.id = 152, .name = "CM_SHORT_BRUSH", .menu = "&Edit|&Make", .label = "Short Brush",
     .hint = "Make current brush very small", .enabled = MapOpen, .run = ShortBrush},
    {.id = 203, .name = "CM_HEIGHT_BRUSH", .menu = "&Edit|&Make", .label = "Height...",
     .hint = "Make brush of specified height", .enabled = MapOpen,
     .run = AskHeight, .undoName = kHeightTitle, .classicUndo = true},
    {.id = 168, .name = "CM_MAKE_ENTITY", .menu = "&Edit|&Make", .startsGroup = true, .label = "Entity...",
     .hint = "Make current brush into entity", .enabled = MapOpen,
     .run = MakeEntityOfChosenClass},
    {.id = 175, .name = "CM_MAKE_LIGHTS", .menu = "&Edit|&Make", .label = "Lights...",
     .hint = "Make lights from selected brush", .enabled = MapOpen,
     .run = MakeLightsInPlace, .caption = kCannotMake, .failure = kNoRoomForMade},
    {.id = 287, .name = "CM_REVERT", .menu = "&Edit|&Make", .label = "Revert to World",
     .hint = "Delete current entity and return brushes to world.", .enabled = MapOpen,
     .run = AskRevert},
    {.id = 176, .name = "CM_ROTATE_BRUSH", .menu = "&Edit", .label = "R&otate Brush", .keyText = "Ctrl-R",
     .keys = "Ctrl+R", .hint = "Rotate current brush", .enabled = MapOpen,
     .run = AskRotate, .undoName = kRotateTitle, .classicUndo = true},
    {.id = 205, .name = "CM_EDIT_SCALE", .menu = "&Edit", .label = "Scale", .keyText = "Ctrl-Shift-S",
     .keys = "Ctrl+Shift+S", .hint = "Scale selected brushes on centroid...", .enabled = MapOpen,
     .run = AskScale},
    {.id = 177, .name = "CM_FLIP_X", .menu = "&Edit|&Mirror", .label = "Mirror On X",
     .hint = "Mirror selected along X axis", .enabled = MapOpen, .run = With<MirrorOn, 0>},
    {.id = 178, .name = "CM_FLIP_Y", .menu = "&Edit|&Mirror", .label = "Mirror On Y",
     .hint = "Mirror selected along Y axis", .enabled = MapOpen, .run = With<MirrorOn, 1>},
    {.id = 180, .name = "CM_FLIP_Z", .menu = "&Edit|&Mirror", .label = "Mirror On Z",
     .hint = "Mirror selected along Z axis", .enabled = MapOpen, .run = With<MirrorOn, 2>},
    {.id = 181, .name = "CM_ROTATE_X", .menu = "&Edit|&Rotate 1/4 Turn", .label = "Rotate On X",
     .hint = "Rotate selected 90 degrees on X Axis", .enabled = MapOpen,
     .run = With<QuarterTurnOn, 0>},
    {.id = 182, .name = "CM_ROTATE_Y", .menu = "&Edit|&Rotate 1/4 Turn", .label = "Rotate On Y",
     .hint = "Rotate selected 90 degrees on Y axis", .enabled = MapOpen,
     .run = With<QuarterTurnOn, 1>},
    {.id = 183, .name = "CM_ROTATE_Z", .menu = "&Edit|&Rotate 1/4 Turn", .label = "Rotate On Z",
     .hint = "Rotate selected 90 degrees on Z axis", .enabled = MapOpen,
     .run = With<QuarterTurnOn, 2>},
};
// clang-format on

}  // namespace

std::span<const Command> MakeCommands() { return kRows; }

}  // namespace velk
