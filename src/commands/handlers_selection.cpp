#include "base/text.h"
#include "commands/handlers.h"
#include "ops/selection.h"

namespace velk::commands {
namespace {

void translateSelection(Editor& editor, map& m, const vec3& offset, const char* text) {
  m.MSPerform(BrushMethod::translate(offset));
  editor.flagAllViews();
  editor.postStatus(text);
}

void selectByBox(Editor& editor, bool inside, const char* text) {
  map* m = editor.currentMap();
  if (!m) return;
  SelectByBox(*m, inside);
  editor.flagAllViews();
  editor.postStatus(text);
}

// The current hit brush gets back the selection it had; the one `step` further is selected.
void cycleHit(Editor& editor, int step, const char* text) {
  map* m = editor.currentMap();
  if (!m) return;
  HitList& hits = m->hits;
  if (hits.current >= 0 && hits.current < hits.count) {
    const auto old = static_cast<size_t>(hits.current);
    hits.brushes[old]->select(hits.saved[old]);
    hits.current = (hits.current + step + hits.count) % hits.count;
    hits.brushes[static_cast<size_t>(hits.current)]->select(true);
  }
  editor.flagAllViews();
  editor.postStatus(text);
}

}  // namespace

void selectAll(Editor& editor) {
  map* m = editor.currentMap();
  if (!m) return;
  m->MAPerform(Method::Select);
  editor.flagAllViews();
  editor.postStatus("Selected all brushes/entities");
}

void deselectAll(Editor& editor) {
  map* m = editor.currentMap();
  if (!m) return;
  editor.flagAllViews();
  if (m->clip.count > 0) {
    m->clip.count = 0;
    editor.postStatus("Hiding clip points");
    return;
  }
  m->MGPerform(Method::Deselect);
  m->setCurrentEntity(m->world());
  editor.postStatus("Deselected all brushes/entities");
}

void selectTotal(Editor& editor) { selectByBox(editor, true, "Selected brushes totally inside..."); }

void selectPartial(Editor& editor) { selectByBox(editor, false, "Selected brushes partially inside..."); }

void deleteSelection(Editor& editor) {
  map* m = editor.currentMap();
  if (!m) return;
  m->MSPerform(Method::Delete);
  editor.flagAllViews();
  editor.postStatus("Deleting...");
}

void nudgeSelection(Editor& editor, Nudge direction) {
  map* m = editor.currentMap();
  if (!m) return;
  const vec3 offset = nudgeOffset(editor.planViews().currentView(), direction, editor.settings());
  translateSelection(editor, *m, offset, nudgeText(direction));
}

void moveSelectionByStep(Editor& editor, int axis, int sign) {
  map* m = editor.currentMap();
  if (!m) return;
  vec3 offset;
  offset[axis] = static_cast<float>(sign * Truncate(editor.settings().stepsize));
  translateSelection(editor, *m, offset, Format("%c%s", "XYZ"[axis], sign > 0 ? "Up" : "Down").c_str());
}

void toggleHitBrush(Editor& editor, int number) {
  map* m = editor.currentMap();
  if (!m) return;
  if (number < m->hits.count) {
    brush& hit = *m->hits.brushes[static_cast<size_t>(number)];
    hit.select(!hit.selected());
  }
  m->hits.current = number;
  editor.flagAllViews();
  editor.postStatus(Format("Selecting hit brush # %i...", number));
}

void selectAllHits(Editor& editor) {
  map* m = editor.currentMap();
  if (!m) return;
  for (int i = 0; i < m->hits.count; ++i) m->hits.brushes[static_cast<size_t>(i)]->select(true);
  editor.flagAllViews();
  editor.postStatus("Selecting all hit brushes...");
}

void nextHit(Editor& editor) { cycleHit(editor, 1, "Hit brush cycled up..."); }

void previousHit(Editor& editor) { cycleHit(editor, -1, "Hit brush cycled down..."); }

void saveForUndo(Editor& editor) {
  if (!editor.currentMap()) return;
  editor.saveUndo("Saving for undo...", UndoMode::All);
  editor.postStatus("Saved for undo...");
}

void undoChange(Editor& editor) { editor.undo(); }
void redoChange(Editor& editor) { editor.redo(); }
void copySelection(Editor& editor) { editor.copySelection(); }
void pasteClipboard(Editor& editor) { editor.pasteClipboard(); }
void cloneSelection(Editor& editor) { editor.cloneSelection(); }

}  // namespace velk::commands
