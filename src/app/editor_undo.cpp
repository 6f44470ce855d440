// Undo and the clipboard.
#include "app/editor.h"
#include "base/error.h"
#include "base/text.h"
#include "ops/clipboard.h"

namespace velk {

void Editor::beginChange() {
  before_.reset();
  changing_ = settings_.undo_levels > 1 ? current() : nullptr;
  if (changing_) before_ = TakeSnapshot(current()->model);
}

// Undo, redo and the closing of the map itself take the beginning back.
void Editor::endChange(const std::string& name) {
  if (!before_ || !changing_ || current() != changing_) return;
  MapSnapshot before = std::move(*before_);
  before_.reset();
  MapDocument& document = *current();
  if (SameContents(before, TakeSnapshot(document.model))) return;
  document.history.changed(std::move(before), name, History::Limits::of(settings_));
}

void Editor::saveUndo(const std::string& name, UndoMode mode) {
  if (current()) current()->history.save(current()->model, name, mode, History::Limits::of(settings_));
}

void Editor::undo() {
  before_.reset();
  if (!current() || !current()->history.undo(current()->model, History::Limits::of(settings_))) return;
  showCurrent();
  postStatus("Undo...");
}

void Editor::redo() {
  before_.reset();
  if (!current() || !current()->history.redo(current()->model)) return;
  showCurrent();
  postStatus("Redo...");
}

void Editor::copySelection() {
  if (!currentMap()) return;
  clipboard_ = std::make_unique<map>(settings_, classes_, &counters_);
  CopySelection(*currentMap(), *clipboard_);
  postStatus("Selection copied...");
}

// Adds copies to the current map. A user is told when it has no room for all of them, and it stays as it was.
bool Editor::addCopies(const std::function<void(map&)>& add) {
  map& m = *currentMap();
  if (!attended_) {
    add(m);
    return true;
  }
  const MapSnapshot before = TakeSnapshot(m);
  try {
    const ErrorTrap trap;
    add(m);
    return true;
  } catch (const TrappedError& error) {
    RestoreSnapshot(m, before, false);
    tell("Velk - Cannot Copy", Format("The map has no room for the copies.\n\n%s", error.what()));
    return false;
  }
}

void Editor::pasteClipboard() {
  if (!currentMap() || !clipboard_) return;
  if (!addCopies([this](map& m) { PasteClipboard(m, *clipboard_, 0, PasteOffset(settings_)); })) return;
  flagAllViews();
  postStatus("Selection pasted...");
}

void Editor::cloneSelection() {
  if (!currentMap()) return;
  if (!addCopies([this](map& m) { CloneSelection(m, PasteOffset(settings_)); })) return;
  flagAllViews();
  postStatus("Selection cloned...");
}

}  // namespace velk
