// Commands without a menu item: they are on keys, on button bars, or in the menus of the views.
#include "app/editor.h"
#include "base/text.h"
#include "commands/command_tables.h"
#include "commands/editing/hit_commands.h"
#include "commands/editing/repeat.h"
#include "commands/editing/transform_commands.h"
#include "commands/making/maker_commands.h"
#include "commands/views/camera_handlers.h"
#include "ops/move_selection.h"
#include "planview/view_steps.h"

namespace velk {
namespace {

Outcome RedrawAll(Editor&, map&) { return Outcome::Drawn(Redraw::All, "Redrawing..."); }

Outcome Move(Editor& editor, map& m, const vec3& offset, std::string text) {
  return RunRepeatably(editor, m, [offset, text = std::move(text)](map& now) {
    MoveSelection(now, offset);
    return Outcome::Drawn(Redraw::All, text);
  });
}

Outcome NudgeSelection(Editor& editor, map& m, Nudge direction) {
  const PlanView& view = editor.views().plans.currentView();
  return Move(editor, m, NudgeOffset(view, direction, editor.settings()), NudgeText(direction));
}

Outcome MoveSelectionByStep(Editor& editor, map& m, int axis, int sign) {
  vec3 offset;
  offset[axis] = static_cast<float>(sign * Truncate(editor.settings().stepsize));
  return Move(editor, m, offset, Format("%c%s", "XYZ"[axis], sign > 0 ? "Up" : "Down"));
}

Outcome SelectCamera(Editor&, map& m, int number) { return velk::SelectCamera(m, number); }

Outcome SwitchGridStyle(Editor& editor) {
  return Outcome::Drawn(Redraw::Plans, ToggleGridStyle(editor.settings()));
}

Outcome FlipView(Editor& editor) {
  editor.views().plans.currentView().flip();
  return MapOpen(editor) ? Outcome::Drawn(Redraw::Plans) : Outcome{};
}

// clang-format off
const Command kRows[] = {
    {.id = 217, .name = "CM_REDRAW", .label = "Redraw", .keys = "F9", .hint = "Redraw all views",
     .run = RedrawAll},
    {.id = 1091, .name = "CM_MODE_CYCLE", .label = "Next Render Mode",
     .hint = "Wire, flat, texture in turn", .enabled = MapOpen, .run = With<ChangeCameraSettings, CycleDrawMode>},
    {.id = 112, .name = "CM_XUP", .label = "X Up", .hint = "Move selection up the x axis by the step size",
     .enabled = MapOpen, .run = With<MoveSelectionByStep, 0, 1>},
    {.id = 111, .name = "CM_XDOWN", .label = "X Down",
     .hint = "Move selection down the x axis by the step size", .enabled = MapOpen,
     .run = With<MoveSelectionByStep, 0, -1>},
    {.id = 114, .name = "CM_YUP", .label = "Y Up", .hint = "Move selection up the y axis by the step size",
     .enabled = MapOpen, .run = With<MoveSelectionByStep, 1, 1>},
    {.id = 113, .name = "CM_YDOWN", .label = "Y Down",
     .hint = "Move selection down the y axis by the step size", .enabled = MapOpen,
     .run = With<MoveSelectionByStep, 1, -1>},
    {.id = 116, .name = "CM_ZUP", .label = "Z Up", .hint = "Move selection up the z axis by the step size",
     .enabled = MapOpen, .run = With<MoveSelectionByStep, 2, 1>},
    {.id = 115, .name = "CM_ZDOWN", .label = "Z Down",
     .hint = "Move selection down the z axis by the step size", .enabled = MapOpen,
     .run = With<MoveSelectionByStep, 2, -1>},
    {.id = 295, .name = "CM_REVOLVE", .label = "Revolve...", .hint = "Make a revolved item...",
     .enabled = MapOpen, .run = RevolveInPlace, .caption = kCannotMake, .failure = kNoRoomForMade},
    {.id = 1020, .name = "CM_NUDGE_DOWN", .label = "Move Selection Down", .keys = "Num2",
     .hint = "Move selection down by the grid size", .run = With<NudgeSelection, Nudge::Down>},
    {.id = 1021, .name = "CM_NUDGE_LEFT", .label = "Move Selection Left", .keys = "Num4",
     .hint = "Move selection left by the grid size", .run = With<NudgeSelection, Nudge::Left>},
    {.id = 1022, .name = "CM_NUDGE_UP", .label = "Move Selection Up", .keys = "Num8",
     .hint = "Move selection up by the grid size", .run = With<NudgeSelection, Nudge::Up>},
    {.id = 1023, .name = "CM_NUDGE_RIGHT", .label = "Move Selection Right", .keys = "Num6",
     .hint = "Move selection right by the grid size", .run = With<NudgeSelection, Nudge::Right>},
    {.id = 1024, .name = "CM_NUDGE_IN", .label = "Move Selection In", .keys = "Ctrl+comma",
     .hint = "Move selection in by the grid size", .run = With<NudgeSelection, Nudge::In>},
    {.id = 1025, .name = "CM_NUDGE_OUT", .label = "Move Selection Out", .keys = "Ctrl+period",
     .hint = "Move selection out by the grid size", .run = With<NudgeSelection, Nudge::Out>},
    {.id = 1000, .name = "CM_HIT_0", .label = "Hit 0", .keys = "Ctrl+0",
     .hint = "Select or deselect hit brush 0", .run = With<ToggleHitBrush, 0>},
    {.id = 1001, .name = "CM_HIT_1", .label = "Hit 1", .keys = "Ctrl+1",
     .hint = "Select or deselect hit brush 1", .run = With<ToggleHitBrush, 1>},
    {.id = 1002, .name = "CM_HIT_2", .label = "Hit 2", .keys = "Ctrl+2",
     .hint = "Select or deselect hit brush 2", .run = With<ToggleHitBrush, 2>},
    {.id = 1003, .name = "CM_HIT_3", .label = "Hit 3", .keys = "Ctrl+3",
     .hint = "Select or deselect hit brush 3", .run = With<ToggleHitBrush, 3>},
    {.id = 1004, .name = "CM_HIT_4", .label = "Hit 4", .keys = "Ctrl+4",
     .hint = "Select or deselect hit brush 4", .run = With<ToggleHitBrush, 4>},
    {.id = 1005, .name = "CM_HIT_5", .label = "Hit 5", .keys = "Ctrl+5",
     .hint = "Select or deselect hit brush 5", .run = With<ToggleHitBrush, 5>},
    {.id = 1006, .name = "CM_HIT_6", .label = "Hit 6", .keys = "Ctrl+6",
     .hint = "Select or deselect hit brush 6", .run = With<ToggleHitBrush, 6>},
    {.id = 1007, .name = "CM_HIT_7", .label = "Hit 7", .keys = "Ctrl+7",
     .hint = "Select or deselect hit brush 7", .run = With<ToggleHitBrush, 7>},
    {.id = 1008, .name = "CM_HIT_8", .label = "Hit 8", .keys = "Ctrl+8",
     .hint = "Select or deselect hit brush 8", .run = With<ToggleHitBrush, 8>},
    {.id = 1009, .name = "CM_HIT_9", .label = "Hit 9", .keys = "Ctrl+9",
     .hint = "Select or deselect hit brush 9", .run = With<ToggleHitBrush, 9>},
    {.id = 263, .name = "CM_CLIP_POINT_1", .label = "Clip Point 1", .keys = "F1",
     .hint = "Make clip point 1 current", .enabled = MapOpen, .run = With<ChooseClipPointAt, 0>},
    {.id = 264, .name = "CM_CLIP_POINT_2", .label = "Clip Point 2", .keys = "F2",
     .hint = "Make clip point 2 current", .enabled = MapOpen, .run = With<ChooseClipPointAt, 1>},
    {.id = 268, .name = "CM_CLIP_POINT_3", .label = "Clip Point 3", .keys = "F3",
     .hint = "Make clip point 3 current", .enabled = MapOpen, .run = With<ChooseClipPointAt, 2>},
    {.id = 1030, .name = "CM_CAMERA_FORWARD", .label = "Forward", .keys = "Up",
     .hint = "Move the camera forward", .run = With<MoveOnSettings, MoveForward>},
    {.id = 1031, .name = "CM_CAMERA_BACKWARD", .label = "Backward", .keys = "Down",
     .hint = "Move the camera backward", .run = With<MoveOnSettings, MoveBackward>},
    {.id = 1032, .name = "CM_CAMERA_STRAFE_LEFT", .label = "Strafe Left", .keys = "Alt+A",
     .hint = "Move the camera to its left", .run = With<MoveOnSettings, StrafeLeft>},
    {.id = 1033, .name = "CM_CAMERA_STRAFE_RIGHT", .label = "Strafe Right", .keys = "Alt+D",
     .hint = "Move the camera to its right", .run = With<MoveOnSettings, StrafeRight>},
    {.id = 1034, .name = "CM_CAMERA_RAISE", .label = "Raise Camera", .keys = "Shift+Up Alt+Y",
     .hint = "Move the camera up", .run = With<MoveOnSettings, MoveUp>},
    {.id = 1035, .name = "CM_CAMERA_LOWER", .label = "Lower Camera", .keys = "Shift+Down Alt+H",
     .hint = "Move the camera down", .run = With<MoveOnSettings, MoveDown>},
    {.id = 1036, .name = "CM_CAMERA_LEFT", .label = "Camera Left", .keys = "Alt+Left",
     .hint = "Move the camera down the x axis", .run = With<MoveOnSettings, MoveWest>},
    {.id = 1037, .name = "CM_CAMERA_RIGHT", .label = "Camera Right", .keys = "Alt+Right",
     .hint = "Move the camera up the x axis", .run = With<MoveOnSettings, MoveEast>},
    {.id = 1038, .name = "CM_CAMERA_UP", .label = "Camera Up", .keys = "Alt+W",
     .hint = "Move the camera up the y axis", .run = With<MoveOnSettings, MoveNorth>},
    {.id = 1039, .name = "CM_CAMERA_DOWN", .label = "Camera Down", .keys = "Alt+X",
     .hint = "Move the camera down the y axis", .run = With<MoveOnSettings, MoveSouth>},
    {.id = 1040, .name = "CM_CAMERA_TURN_LEFT", .label = "Turn Left", .keys = "Left",
     .hint = "Turn the camera left", .run = With<MoveOnSettings, TurnLeft>},
    {.id = 1041, .name = "CM_CAMERA_TURN_RIGHT", .label = "Turn Right", .keys = "Right",
     .hint = "Turn the camera right", .run = With<MoveOnSettings, TurnRight>},
    {.id = 1042, .name = "CM_CAMERA_PITCH_UP", .label = "Pitch Up", .keys = "Home",
     .hint = "Turn the camera up", .run = With<MoveOnSettings, PitchUp>},
    {.id = 1043, .name = "CM_CAMERA_PITCH_DOWN", .label = "Pitch Down", .keys = "End",
     .hint = "Turn the camera down", .run = With<MoveOnSettings, PitchDown>},
    {.id = 1044, .name = "CM_CAMERA_ROLL_UP", .label = "Roll Up", .keys = "Del",
     .hint = "Roll the camera one way", .run = With<MoveOnSettings, RollUp>},
    {.id = 1045, .name = "CM_CAMERA_ROLL_DOWN", .label = "Roll Down", .keys = "PgDn",
     .hint = "Roll the camera the other way", .run = With<MoveOnSettings, RollDown>},
    {.id = 254, .name = "CM_CAMERA_TURN_AROUND", .label = "Turn Around", .keys = "Alt+Enter",
     .hint = "Turn the camera to look behind", .enabled = MapOpen,
     .run = With<MoveOnMap, TurnAround>},
    {.id = 229, .label = "Turn Around", .hint = "Turn the camera to look behind", .enabled = MapOpen,
     .run = With<MoveOnMap, TurnAround>},
    {.id = 1060, .name = "CM_CAMERA_1", .label = "Camera 1", .hint = "Look through camera 1",
     .run = With<SelectCamera, 1>},
    {.id = 1061, .name = "CM_CAMERA_2", .label = "Camera 2", .hint = "Look through camera 2",
     .run = With<SelectCamera, 2>},
    {.id = 1062, .name = "CM_CAMERA_3", .label = "Camera 3", .hint = "Look through camera 3",
     .run = With<SelectCamera, 3>},
    {.id = 1063, .name = "CM_CAMERA_4", .label = "Camera 4", .hint = "Look through camera 4",
     .run = With<SelectCamera, 4>},
    {.id = 1064, .name = "CM_CAMERA_5", .label = "Camera 5", .hint = "Look through camera 5",
     .run = With<SelectCamera, 5>},
    {.id = 1065, .name = "CM_SHOW_CAMERAS", .label = "Show Cameras",
     .hint = "Show cameras in the map views", .run = With<ChangeCameraSettings, ToggleShowCameras>},
    {.id = 1066, .name = "CM_LOCK_CAMERAS", .label = "Lock Cameras",
     .hint = "Keep the map views where they are when the camera moves",
     .run = With<ChangeCameraSettings, ToggleLockCameras>},
    {.id = 1070, .name = "CM_MAG_LARGER", .label = "Magnification Up", .keys = "Alt+M",
     .hint = "Magnify the wire frame", .run = With<ChangeLens, LargerMag>},
    {.id = 1071, .name = "CM_MAG_SMALLER", .label = "Magnification Down", .keys = "Ctrl+M",
     .hint = "Shrink the wire frame", .run = With<ChangeLens, SmallerMag>},
    {.id = 1072, .name = "CM_PPD_LARGER", .label = "Projection Up", .keys = "Alt+P",
     .hint = "Double the wire frame projection factor", .run = With<ChangeLens, LargerPpd>},
    {.id = 1073, .name = "CM_PPD_SMALLER", .label = "Projection Down", .keys = "Ctrl+P",
     .hint = "Halve the wire frame projection factor", .run = With<ChangeLens, SmallerPpd>},
    {.id = 1074, .name = "CM_STEP_LARGER", .label = "Step Up", .keys = "]",
     .hint = "Double the movement step", .run = With<ChangeCameraSettings, LargerStep>},
    {.id = 1075, .name = "CM_STEP_SMALLER", .label = "Step Down", .keys = "[",
     .hint = "Halve the movement step", .run = With<ChangeCameraSettings, SmallerStep>},
    {.id = 1076, .name = "CM_ZMAX_NEARER", .label = "Far Limit Nearer", .keys = "Ctrl+Alt+R",
     .hint = "Bring the far limit nearer", .run = With<ChangeCameraSettings, NearerFarLimit>},
    {.id = 1077, .name = "CM_ZMAX_FARTHER", .label = "Far Limit Farther", .keys = "Ctrl+Alt+F",
     .hint = "Move the far limit away", .run = With<ChangeCameraSettings, FartherFarLimit>},
    {.id = 1080, .name = "CM_GRID_STYLE", .label = "Grid Style",
     .hint = "Draw the grid as lines or as dots", .run = SwitchGridStyle},
    {.id = 1081, .name = "CM_FLIP_VIEW", .label = "Flip View",
     .hint = "Look at the map view from its other side", .run = FlipView},
};
// clang-format on

}  // namespace

std::span<const Command> KeyCommands() { return kRows; }

}  // namespace velk
