#include "base/text.h"
#include "commands/handlers.h"

namespace velk::commands {
namespace {

struct ToolName {
  ToolWindow window;
  const char* name;
};

// As the status line calls them.
constexpr ToolName kToolNames[] = {{ToolWindow::Textures, "Texture Window"},
                                   {ToolWindow::Camera, "3D Window"},
                                   {ToolWindow::Entities, "Entity Window"},
                                   {ToolWindow::SelectedBrush, "Selected Brush Window"},
                                   {ToolWindow::Groups, "Group Window"}};

const char* nameOf(ToolWindow window) {
  for (const ToolName& tool : kToolNames) {
    if (tool.window == window) return tool.name;
  }
  return "";
}

// Whole number in 1..4, or 0.
int slotNumber(const std::string& text) {
  const int number = TextToInt(text);
  return number >= 1 && number <= Arrangements::kSlots ? number : 0;
}

}  // namespace

void restoreTool(Editor& editor, ToolWindow window) {
  WindowHost& windows = editor.windows();
  const char* what = "Brought to Front";
  if (windows.placement(window).state == ShowState::Minimised) {
    windows.bringToFront(window);
    what = "Shown";
  } else if (windows.hasFocus(window)) {
    windows.minimise(window);
    what = "Hidden";
  } else {
    windows.bringToFront(window);
  }
  editor.postStatus(Format("%s %s...", nameOf(window), what));
}

void saveArrangement(Editor& editor) {
  const auto answer =
      editor.prompts().input({.title = "Save Window Arrangement",
                              .prompt = Format("Which slot to save to (1-%i)", Arrangements::kSlots),
                              .text = Format("%i", editor.arrangements().current + 1)});
  const int slot = answer ? slotNumber(*answer) : 0;
  if (slot > 0) editor.saveArrangement(slot - 1);
}

void restorePositions(Editor& editor) { editor.applyArrangement(); }

void useArrangement(Editor& editor, int slot) {
  editor.arrangements().current = slot;
  editor.applyArrangement();
}

void stepArrangement(Editor& editor, int step) {
  const int slots = Arrangements::kSlots;
  useArrangement(editor, (editor.arrangements().current + step + slots) % slots);
}

bool arrangementIs(const Editor& editor, int slot) { return editor.arrangements().current == slot; }

void cascadeWindows(Editor& editor) { editor.windows().cascade(); }
void tileWindows(Editor& editor) { editor.windows().tile(); }
void arrangeIcons(Editor& editor) { editor.windows().arrangeIcons(); }

void toggleBar(Editor& editor, int bar) {
  WindowHost& windows = editor.windows();
  if (bar < windows.barCount()) windows.showBar(bar, !windows.barVisible(bar));
}

bool barIsVisible(const Editor& editor, int bar) { return editor.windows().barVisible(bar); }

}  // namespace velk::commands
