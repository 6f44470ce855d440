// Commands of the Edit menu: undo, the clipboard, and what changes the selected brushes.
#include "app/editor.h"
#include "base/text.h"
#include "commands/building/build_commands.h"
#include "commands/command_tables.h"
#include "commands/editing/leak_search_command.h"
#include "commands/editing/repeat.h"
#include "commands/editing/solid_commands.h"
#include "commands/editing/transform_commands.h"
#include "commands/making/maker_commands.h"
#include "ops/clipboard.h"
#include "ops/move_selection.h"

namespace velk {
namespace {

constexpr const char* kCannotCopy = "Velk - Cannot Copy";
constexpr const char* kNoRoom = "The map has no room for the copies.\n\n";

History& HistoryOf(const Editor& editor) { return editor.documents().current()->history; }

bool UndoKept(const Editor& editor) { return MapOpen(editor) && HistoryOf(editor).canUndo(); }

bool RedoKept(const Editor& editor) { return MapOpen(editor) && HistoryOf(editor).canRedo(); }

std::string Named(const char* verb, const std::string& name) {
  return name.empty() ? Format("&%s...", verb) : Format("&%s %s...", verb, name.c_str());
}

std::string UndoLabel(const Editor& editor) {
  return Named("Undo", MapOpen(editor) ? HistoryOf(editor).undoName() : "");
}

std::string RedoLabel(const Editor& editor) {
  return Named("Redo", MapOpen(editor) ? HistoryOf(editor).redoName() : "");
}

// Every window shows the map as it was then.
Outcome Restored(Editor& editor, const char* status) {
  editor.panels().build.historyMoved();
  Outcome outcome = Outcome::Drawn(Redraw::All, status);
  outcome.maps = true;
  return outcome;
}

Outcome SaveForUndo(Editor& editor, map& m) {
  HistoryOf(editor).keep(History::copyOf(m, UndoMode::All), "Saving for undo...",
                         History::Limits::of(editor.settings()));
  return Outcome::Said("Saved for undo...");
}

Outcome UndoChange(Editor& editor, map& m) {
  if (!HistoryOf(editor).undo(m, History::Limits::of(editor.settings()))) return {};
  return Restored(editor, "Undo...");
}

Outcome RedoChange(Editor& editor, map& m) {
  if (!HistoryOf(editor).redo(m)) return {};
  return Restored(editor, "Redo...");
}

Outcome CopyToClipboard(Editor& editor, map& m) {
  CopySelection(m, editor.documents().newClipboard());
  return Outcome::Said("Selection copied...");
}

Outcome Paste(Editor& editor, map& m) {
  if (!editor.documents().clipboard()) return {};
  PasteClipboard(m, *editor.documents().clipboard(), editor.panels().groups.current(),
                 PasteOffset(editor.settings()));
  return Outcome::Drawn(Redraw::All, "Selection pasted...");
}

Outcome Clone(Editor& editor, map& m) {
  return RunRepeatably(editor, m, [&editor](map& now) {
    CloneSelection(now, PasteOffset(editor.settings()));
    return Outcome::Drawn(Redraw::All, "Selection cloned...");
  });
}

Outcome DeleteSelected(Editor&, map& m) { return DeleteSelection(m); }

// clang-format off
const Command kRows[] = {
    {.id = 11845, .menu = "&Edit", .label = "Save for Undo...", .hint = "Temp. cmd to Save...",
     .run = SaveForUndo},
    {.id = 11844, .name = "CM_UNDO", .menu = "&Edit", .label = "&Undo", .keyText = "Ctrl-Z", .keys = "Ctrl+Z",
     .hint = "Undo last change...", .enabled = UndoKept, .labelNow = UndoLabel,
     .run = UndoChange},
    {.id = 1100, .name = "CM_REDO", .menu = "&Edit", .label = "&Redo", .keyText = "Ctrl-Y", .keys = "Ctrl+Y",
     .hint = "Do again what was undone...", .enabled = RedoKept,
     .labelNow = RedoLabel, .run = RedoChange},
    {.id = 184, .name = "CM_COPY_MOVE", .menu = "&Edit|&Copy", .startsGroup = true,
     .label = "O&ffset Copy/Move...",
     .keyText = "Ctrl-Shift Space", .keys = "Ctrl+Shift+Space",
     .hint = "Copy or move selection by offset...", .enabled = SelectionInEntity,
     .run = AskCopyMove, .caption = kCannotCopy, .failure = kNoRoom},
    {.id = 216, .name = "CM_EDITCLONE", .menu = "&Edit|&Copy", .label = "C&lone Brush(es)",
     .keyText = "Ctrl-Space", .keys = "Ctrl+Space", .hint = "Clone selected brushes",
     .enabled = SelectionInEntity, .run = Clone, .caption = kCannotCopy, .failure = kNoRoom},
    {.id = 24323, .name = "CM_EDITCOPY", .menu = "&Edit|&Copy", .label = "C&opy", .keyText = "Ctrl-C",
     .keys = "Ctrl+C", .hint = "Copy selected entity or brushes", .enabled = SelectionInEntity,
     .run = CopyToClipboard},
    {.id = 24324, .name = "CM_EDITPASTE", .menu = "&Edit", .label = "&Paste", .keyText = "Ctrl-V",
     .keys = "Ctrl+V", .hint = "Paste selection...", .enabled = MapOpen,
     .run = Paste, .caption = kCannotCopy, .failure = kNoRoom},
    {.id = 1330, .name = "CM_REPEAT", .menu = "&Edit", .label = "Repea&t", .keyText = "Ctrl-Shift-R",
     .keys = "Ctrl+Shift+R", .hint = "The last copy, move, turn or generator again", .enabled = RepeatKept,
     .run = RepeatLast, .classicUndo = true, .caption = kCannotCopy, .failure = kNoRoom},
    {.id = 270, .name = "CM_DELETE", .menu = "&Edit", .label = "&Delete", .keyText = "-",
     .keys = "Ctrl+X Num-", .hint = "Delete selected brushes from world", .enabled = MapOpen,
     .run = DeleteSelected},
    {.id = 166, .name = "CM_SUBTRACT", .menu = "&Edit", .startsGroup = true,
     .label = "Subtract", .keyText = "F12",
     .keys = "F12", .hint = "Subtract selected brushes from world", .enabled = MapOpen,
     .run = Subtract, .caption = kCannotMake, .failure = kNoRoomForMade},
    {.id = 1331, .name = "CM_HOLLOW", .menu = "&Edit", .label = "&Hollow...",
     .hint = "Make shells of the selected brushes, walls inwards", .enabled = MapOpen, .run = Hollow},
    {.id = 1332, .name = "CM_MERGE_BRUSHES", .menu = "&Edit", .label = "Mer&ge",
     .hint = "Make one brush of selected brushes that are convex together", .enabled = MapOpen, .run = Merge},
    {.id = 1333, .name = "CM_INTERSECT", .menu = "&Edit", .label = "&Intersect",
     .hint = "Keep what the selected brushes have in common", .enabled = MapOpen, .run = Intersect},
    {.id = 140, .name = "CM_SNAP_TO_GRID", .menu = "&Edit", .label = "Snap To Grid", .keyText = "Alt-S",
     .keys = "Alt+S", .hint = "Snap current brush(es) to grid...", .enabled = MapOpen,
     .run = SnapToGrid},
    {.id = 1334, .name = "CM_FLATTEN", .menu = "&Edit", .label = "Flatten Faces to Grid",
     .hint = "Round all plane points of the selection to whole numbers", .enabled = MapOpen, .run = Flatten},
    {.id = 1340, .name = "CM_ALIGN_LEFT", .menu = "&Edit|&Align", .label = "&Left",
     .hint = "Align the selected brushes at their lowest x", .enabled = MapOpen,
     .run = With<Align, Alignment::Left>, .undoName = "Align"},
    {.id = 1341, .name = "CM_ALIGN_RIGHT", .menu = "&Edit|&Align", .label = "&Right",
     .hint = "Align the selected brushes at their highest x", .enabled = MapOpen,
     .run = With<Align, Alignment::Right>, .undoName = "Align"},
    {.id = 1342, .name = "CM_ALIGN_FRONT", .menu = "&Edit|&Align", .label = "&Front",
     .hint = "Align the selected brushes at their lowest y", .enabled = MapOpen,
     .run = With<Align, Alignment::Front>, .undoName = "Align"},
    {.id = 1343, .name = "CM_ALIGN_BACK", .menu = "&Edit|&Align", .label = "Bac&k",
     .hint = "Align the selected brushes at their highest y", .enabled = MapOpen,
     .run = With<Align, Alignment::Back>, .undoName = "Align"},
    {.id = 1344, .name = "CM_ALIGN_TOP", .menu = "&Edit|&Align", .label = "&Top",
     .hint = "Align the selected brushes at their highest z", .enabled = MapOpen,
     .run = With<Align, Alignment::Top>, .undoName = "Align"},
    {.id = 1345, .name = "CM_ALIGN_BOTTOM", .menu = "&Edit|&Align", .label = "&Bottom",
     .hint = "Align the selected brushes at their lowest z", .enabled = MapOpen,
     .run = With<Align, Alignment::Bottom>, .undoName = "Align"},
    {.id = 1346, .name = "CM_ALIGN_CENTRE", .menu = "&Edit|&Align", .label = "&Centre",
     .hint = "Align the selected brushes in the middle of their bounds", .enabled = MapOpen,
     .run = With<Align, Alignment::Centre>, .undoName = "Align"},
    {.id = 299, .name = "CM_LEAK_SEARCH", .menu = "&Edit", .label = "Leak Search...",
     .hint = "Search for leaks.", .enabled = MapOpen,
     .run = SearchLeaks},
    {.id = 1415, .name = "CM_CHECK_MAP", .menu = "&Edit", .label = "Check Map...", .keyText = "Shift-F7",
     .keys = "Shift+F7", .hint = "Look for what a compiler or the game would trip over", .enabled = MapOpen,
     .run = CheckMapNow},
};
// clang-format on

}  // namespace

std::span<const Command> EditCommands() { return kRows; }

}  // namespace velk
