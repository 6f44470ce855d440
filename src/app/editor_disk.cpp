// The files of open maps in a world where others write them too, and what a save would lose.
#include <algorithm>

#include "app/editor.h"
#include "base/error.h"
#include "base/text.h"

namespace velk {
namespace {

// Brushes that the map's file cannot hold. The boxes of fixed-size entities are not in the file anyway.
int invalidBrushes(const map& m) {
  int count = 0;
  for (const entity& e : m.entities()) {
    if (e.isModel) count += static_cast<int>(std::ranges::count_if(e.brushes(), &brush::invalid));
  }
  return count;
}

// Whether the user takes a risk.
bool insists(Prompts& prompts, const char* caption, std::string text) {
  return prompts.ask({.caption = caption,
                      .text = std::move(text),
                      .buttons = MessageBox::Buttons::YesNo,
                      .icon = MessageBox::Icon::Warning,
                      .risky = true}) == Answer::Yes;
}

std::string invalidText(int count) {
  return (count == 1 ? "One brush of this map is" : Format("%i brushes of this map are", count)) +
         " not valid and will not be saved. Save anyway?";
}

constexpr const char* kFileChanged = "Velk - File Changed";

}  // namespace

bool Editor::mayLeaveOut(MapDocument& document) {
  const int invalid = invalidBrushes(document.model);
  if (invalid > document.invalidAccepted && !insists(prompts_, "Velk - Save", invalidText(invalid))) {
    return false;
  }
  document.invalidAccepted = invalid;
  return true;
}

// A file that is gone, or that another one of the user's choice takes the place of, is no matter.
bool Editor::mayReplace(const MapDocument& document, const std::string& path) {
  const FileStamp now = StampOf(paths_.native(path));
  if (path != document.model.name || !now.exists || now == document.onDisk) return true;
  return insists(prompts_, kFileChanged,
                 Format("The file %s was changed on disk since it was read. Overwrite it?", path.c_str()));
}

void Editor::checkDisk() {
  for (size_t i = 0; i < documents_.size(); ++i) checkDisk(i);
}

void Editor::checkDisk(size_t index) {
  MapDocument& document = *documents_[index];
  const std::string& name = document.model.name;
  const FileStamp now = StampOf(paths_.native(name));
  if (now == document.seenOnDisk || name == settings_.newmap) return;
  document.seenOnDisk = now;
  document.fileDiffers = now != document.onDisk;
  if (!now.exists) {
    postStatus(Format("File [%s] is gone from the disk...", name.c_str()));
  } else if (now == document.onDisk) {
    postStatus(Format("File [%s] is back on the disk...", name.c_str()));
  } else if (document.model.modified) {
    postStatus(Format("File [%s] was changed on disk...", name.c_str()));
  } else if (prompts_.ask({.caption = kFileChanged,
                           .text = Format("The file %s was changed on disk. Read it again?", name.c_str()),
                           .buttons = MessageBox::Buttons::YesNo,
                           .icon = MessageBox::Icon::Question}) == Answer::Yes) {
    reload(index);
  }
}

// The map is read anew and takes the old one's place. The user goes on looking from where they were.
void Editor::reload(size_t index) {
  MapDocument& old = *documents_[index];
  try {
    const ErrorTrap trap;
    auto fresh = readDocument(old.model.name);
    fresh->model.cameras = old.model.cameras;
    fresh->model.currentCamera = old.model.currentCamera;
    fresh->model.saves = old.model.saves + 1;  // so that the map counts as modified when this is undone
    old.history.save(old.model, "Reload", UndoMode::All, History::Limits::of(settings_));
    fresh->history = std::move(old.history);
    documents_[index] = std::move(fresh);
  } catch (const TrappedError& error) {
    tell(kFileChanged, error.what());
    return;
  }
  showCurrent();
  postStatus(Format("File [%s] processed...", documents_[index]->model.name.c_str()));
}

}  // namespace velk
