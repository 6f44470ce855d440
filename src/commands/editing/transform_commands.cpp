#include "commands/editing/transform_commands.h"

#include "base/text.h"
#include "commands/making/maker_commands.h"
#include "ops/clip.h"
#include "ops/move_selection.h"
#include "ops/reshape.h"
#include "ops/snap_to_grid.h"
#include "ops/subtract.h"
#include "ops/transform.h"

namespace velk {
namespace {

bool Careful(const Editor& editor) { return editor.settings().careful_tools; }

int DepthAxis(const Editor& editor) { return editor.views().plans.currentView().axisDepth; }

// The classic single undo level is taken just before the change.
void SaveClassic(Editor& editor, map& m, const char* name) {
  editor.documents().current()->history.save(m, name, UndoMode::Selection,
                                             History::Limits::of(editor.settings()));
}

// The numbers of a form with three of them; false on Cancel. They are remembered.
bool AskThree(Editor& editor, Form form, std::array<double, 3>& values) {
  if (editor.services().prompts.fill(form) == FormAnswer::Cancel) return false;
  for (size_t i = 0; i < values.size(); ++i) values[i] = form.real(form.fields[i].name);
  return true;
}

Form TitledForm(const char* title) {
  Form form;
  form.title = title;
  return form;
}

}  // namespace

Outcome MirrorOn(Editor& editor, map& m, int axis) { return MirrorSelection(m, axis, Careful(editor)); }

Outcome QuarterTurnOn(Editor& editor, map& m, int axis) {
  return QuarterTurnSelection(m, axis, Careful(editor));
}

Outcome AskRotate(Editor& editor, map& m) {
  if (m.totalSelected() == 0) return Outcome::Said(kMustHaveSelected);
  std::array<double, 3>& angles = editor.remembered().rotation;
  Form form = TitledForm(kRotateTitle);
  constexpr const char* kNames[] = {"roll", "pitch", "yaw"};
  for (size_t i = 0; i < 3; ++i) {
    form.fields.push_back(WholeField(kNames[i], kRotateFields[i], Truncate(angles[i])));
  }
  if (!AskThree(editor, std::move(form), angles)) return {};
  SaveClassic(editor, m, kRotateTitle);
  return RotateSelection(m, Truncate(angles[0]), Truncate(angles[1]), Truncate(angles[2]), Careful(editor));
}

Outcome AskScale(Editor& editor, map& m) {
  if (m.totalSelected() == 0) return Outcome::Said(kMustHaveSelected);
  std::array<double, 3>& factors = editor.remembered().scale;
  Form form = TitledForm(kScaleTitle);
  constexpr const char* kNames[] = {"x", "y", "z"};
  constexpr const char* kLabels[] = {"X Scale", "Y Scale", "Z Scale"};
  const NumberRange range{.low = -1000, .high = 1000, .step = 0.1, .decimals = 3};
  for (size_t i = 0; i < 3; ++i) {
    form.fields.push_back(RealField(kNames[i], kLabels[i], factors[i], range));
  }
  if (!AskThree(editor, std::move(form), factors)) return Outcome::Said(kScaleCancelled);
  return ScaleSelection(m, factors[0], factors[1], factors[2], Careful(editor));
}

Outcome AskCopyMove(Editor& editor, map& m) {
  if (m.totalSelected() == 0) return Outcome::Said(kMustHaveSelected);
  Remembered& kept = editor.remembered();
  Form form = TitledForm(kCopyMoveTitle);
  constexpr const char* kNames[] = {"x", "y", "z"};
  constexpr const char* kLabels[] = {"X Offset", "Y Offset", "Z Offset"};
  for (size_t i = 0; i < 3; ++i) {
    form.fields.push_back(WholeField(kNames[i], kLabels[i], Truncate(kept.copyOffset[i])));
  }
  form.fields.push_back(FlagField("move_only", "Move Only", kept.moveOnly));
  if (editor.services().prompts.fill(form) == FormAnswer::Cancel) return Outcome::Said(kCopyMoveCancelled);
  for (size_t i = 0; i < 3; ++i) kept.copyOffset[i] = form.whole(kNames[i]);
  kept.moveOnly = form.flag("move_only");
  const vec3 offset{float(kept.copyOffset[0]), float(kept.copyOffset[1]), float(kept.copyOffset[2])};
  return CopyMoveSelection(m, offset, kept.moveOnly);
}

Outcome AskHeight(Editor& editor, map& m) {
  if (m.totalSelected() != 1) return Outcome::Said(kMustHaveOneSelected);
  const auto answer = editor.services().prompts.input(
      {.title = kHeightTitle, .prompt = kHeightPrompt, .text = Format("%i", SuggestedHeight(m))});
  if (!answer) return {};
  const int height = TextToInt(*answer);
  if (height >= 1) SaveClassic(editor, m, kHeightTitle);
  return SetHeight(m, height, Careful(editor));
}

Outcome ExtrudeBrush(Editor& editor, map& m) {
  if (m.totalSelected() != 1) return Outcome::Said(kMustHaveOneSelected);
  const auto thickness = WallThickness(editor);
  return thickness ? ExtrudeSelection(m, *thickness, Careful(editor)) : Outcome{};
}

Outcome TallBrush(Editor& editor, map& m) { return MakeTall(m, Careful(editor)); }

Outcome ShortBrush(Editor& editor, map& m) { return MakeShort(m, Careful(editor)); }

Outcome SnapToGrid(Editor& editor, map& m) { return SnapSelectionToGrid(m, Careful(editor)); }

Outcome Subtract(Editor& editor, map& m) { return subtractSelection(m, Careful(editor)); }

Outcome FlipClipPlane(Editor&, map& m) { return FlipClipper(m.clip); }

Outcome CarveByClipPlane(Editor& editor, map& m) {
  return CarveSelection(m, DepthAxis(editor), Careful(editor));
}

Outcome SplitByClipPlane(Editor& editor, map& m) {
  return SplitSelection(m, DepthAxis(editor), Careful(editor));
}

Outcome RaiseClipPoint(Editor&, map& m) { return MoveClipPointUp(m); }

Outcome LowerClipPoint(Editor&, map& m) { return MoveClipPointDown(m); }

Outcome ChooseClipPointAt(Editor&, map& m, int index) { return ChooseClipPoint(m.clip, index); }

}  // namespace velk
