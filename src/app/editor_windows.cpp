// The frame's windows: saved arrangements.
#include "app/editor.h"
#include "base/files.h"
#include "base/text.h"

namespace velk {
namespace {

ToolWindow toolAt(int index) { return static_cast<ToolWindow>(index); }

std::string arrangementFile(const Settings& settings) { return settings.entity_qc_directory + "velk.pos"; }

}  // namespace

std::string Editor::titleOf(ToolWindow window) const {
  switch (window) {
    case ToolWindow::Textures:
      return "Textures";
    case ToolWindow::SelectedBrush:
      return "Selected Brush";
    case ToolWindow::Entities:
      return "Entities";
    case ToolWindow::Groups:
      return "Groups";
    case ToolWindow::Camera:
      return currentMap() ? Format("[3D - %s]", currentMap()->name.c_str()) : "[?.map]";
    case ToolWindow::Plan1:
    case ToolWindow::Plan2:
    case ToolWindow::Plan3:
      break;
  }
  const int view = static_cast<int>(window) - static_cast<int>(ToolWindow::Plan1);
  return captionText(planViews_.views[static_cast<size_t>(view)], settings_);
}

void Editor::loadArrangements() {
  const std::string file = arrangementFile(settings_);
  if (!paths_.exists(file)) return;
  const ReadResult read = ReadFile(paths_.native(file));
  if (!read.ok) return;
  if (auto parsed = Arrangements::Parse(read.contents)) arrangements_ = *parsed;
  applyArrangement();
}

void Editor::applyArrangement() {
  if (!arrangements_.loaded) return;
  const Arrangement& slot = arrangements_.slots[static_cast<size_t>(arrangements_.current)];
  for (int i = 0; i < kToolWindows; ++i) windows_->place(toolAt(i), slot[static_cast<size_t>(i)]);
  observer_.texturesChanged();
}

void Editor::saveArrangement(int slot) {
  Arrangement& taken = arrangements_.slots[static_cast<size_t>(slot)];
  for (int i = 0; i < kToolWindows; ++i) taken[static_cast<size_t>(i)] = windows_->placement(toolAt(i));
  flagAllViews();
  const WriteResult written = ReplaceFile(paths_.native(arrangementFile(settings_)), arrangements_.bytes());
  if (!written.ok) {
    postStatus("Window arrangement:  couldn't open velk.pos...");
    return;
  }
  arrangements_.loaded = true;
  postStatus(Format("Window arrangement %i saved...", slot + 1));
}

}  // namespace velk
