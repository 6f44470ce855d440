#include "commands/editing/transform_commands.h"

#include <algorithm>

#include "base/text.h"
#include "commands/editing/repeat.h"
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

using Three = std::array<double, 3>;

Three ThreeOf(const Form& form) {
  Three values;
  for (size_t i = 0; i < values.size(); ++i) {
    const NumberRange& range = form.fields[i].range;
    values[i] = std::clamp(form.real(form.fields[i].name), range.low, range.high);
  }
  return values;
}

using MatrixOf = Matrix (*)(const Three& values);

Matrix Rotation(const Three& angles) {
  return RotationMatrix(Truncate(angles[0]), Truncate(angles[1]), Truncate(angles[2]));
}

Matrix Scaling(const Three& factors) { return ScaleMatrix(factors[0], factors[1], factors[2]); }

// The numbers of a form with three of them; false on Cancel. They are remembered.
bool AskThree(Editor& editor, map& m, Form form, Three& values, MatrixOf matrix) {
  const vec3 pivot = SelectionPivot(m);
  const auto ghosts = [&](const Form& now) {
    return TransformedCopies(m, RoundedTransform(matrix(ThreeOf(now)), pivot, Careful(editor)));
  };
  if (!FillWithPreview(editor, form, ghosts)) return false;
  values = ThreeOf(form);
  return true;
}

vec3 OffsetOf(const Form& form) {
  const Three at = ThreeOf(form);
  return {float(Truncate(at[0])), float(Truncate(at[1])), float(Truncate(at[2]))};
}

Form TitledForm(const char* title) {
  Form form;
  form.title = title;
  return form;
}

}  // namespace

Outcome MirrorOn(Editor& editor, map& m, int axis) {
  return RunRepeatably(editor, m,
                       [&editor, axis](map& now) { return MirrorSelection(now, axis, Careful(editor)); });
}

Outcome QuarterTurnOn(Editor& editor, map& m, int axis) {
  return RunRepeatably(
      editor, m, [&editor, axis](map& now) { return QuarterTurnSelection(now, axis, Careful(editor)); });
}

Outcome AskRotate(Editor& editor, map& m) {
  if (m.totalSelected() == 0) return Outcome::Said(kMustHaveSelected);
  Three& angles = editor.remembered().rotation;
  Form form = TitledForm(kRotateTitle);
  constexpr const char* kNames[] = {"roll", "pitch", "yaw"};
  for (size_t i = 0; i < 3; ++i) {
    form.fields.push_back(WholeField(kNames[i], kRotateFields[i], Truncate(angles[i])));
  }
  if (!AskThree(editor, m, std::move(form), angles, Rotation)) return {};
  return RunRepeatably(editor, m, [&editor, by = angles](map& now) {
    return RotateSelection(now, Truncate(by[0]), Truncate(by[1]), Truncate(by[2]), Careful(editor));
  });
}

Outcome AskScale(Editor& editor, map& m) {
  if (m.totalSelected() == 0) return Outcome::Said(kMustHaveSelected);
  Three& factors = editor.remembered().scale;
  Form form = TitledForm(kScaleTitle);
  constexpr const char* kNames[] = {"x", "y", "z"};
  constexpr const char* kLabels[] = {"X Scale", "Y Scale", "Z Scale"};
  const NumberRange range{.low = -1000, .high = 1000, .step = 0.1, .decimals = 6};
  for (size_t i = 0; i < 3; ++i) {
    form.fields.push_back(RealField(kNames[i], kLabels[i], factors[i], range));
  }
  if (!AskThree(editor, m, std::move(form), factors, Scaling)) return Outcome::Said(kScaleCancelled);
  return RunRepeatably(editor, m, [&editor, by = factors](map& now) {
    return ScaleSelection(now, by[0], by[1], by[2], Careful(editor));
  });
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
  const auto ghosts = [&m](const Form& now) { return MovedCopies(m, OffsetOf(now), now.flag("move_only")); };
  if (!FillWithPreview(editor, form, ghosts)) return Outcome::Said(kCopyMoveCancelled);
  kept.copyOffset = ThreeOf(form);
  kept.moveOnly = form.flag("move_only");
  return RunRepeatably(editor, m, [by = OffsetOf(form), moves = kept.moveOnly](map& now) {
    return CopyMoveSelection(now, by, moves);
  });
}

Outcome AskHeight(Editor& editor, map& m) {
  if (m.totalSelected() != 1) return Outcome::Said(kMustHaveOneSelected);
  const auto answer = AskWithPreview(
      editor, {.title = kHeightTitle, .prompt = kHeightPrompt, .text = Format("%i", SuggestedHeight(m))},
      [&](const std::string& text) { return BoxOfHeight(m, TextToInt(text), Careful(editor)); });
  return answer ? SetHeight(m, TextToInt(*answer), Careful(editor)) : Outcome{};
}

Outcome ExtrudeBrush(Editor& editor, map& m) {
  if (m.totalSelected() != 1) return Outcome::Said(kMustHaveOneSelected);
  const auto thickness =
      WallThickness(editor, [&](int wanted) { return ExtrudedSlabs(m, wanted, Careful(editor)); });
  if (!thickness) return {};
  return RunRepeatably(editor, m, [&editor, wanted = *thickness](map& now) {
    return ExtrudeSelection(now, wanted, Careful(editor));
  });
}

Outcome TallBrush(Editor& editor, map& m) { return MakeTall(m, Careful(editor)); }

Outcome ShortBrush(Editor& editor, map& m) { return MakeShort(m, Careful(editor)); }

Outcome SnapToGrid(Editor& editor, map& m) { return SnapSelectionToGrid(m, Careful(editor)); }

// Only careful tools can be stopped.
Outcome Subtract(Editor& editor, map& m) {
  const bool careful = Careful(editor);
  return subtractSelection(m, careful, [&](const std::string& text, int top) {
    return editor.services().observer.progress(text, kProgressLeft, top) || !careful;
  });
}

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
