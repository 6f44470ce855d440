#include "commands/objects/entity_commands.h"

#include "base/text.h"
#include "ops/entity_ops.h"

namespace velk {

Outcome MakeEntityOfChosenClass(Editor& editor, map&) {
  Outcome made = editor.panels().entities.makeEntity();
  if (made.status.empty()) return made;
  editor.documents().post(made.status);
  made.status = "Entity created...";
  return made;
}

Outcome AskRevert(Editor& editor, map& m) {
  if (!CanRevert(m)) return {};
  const std::string name = m.currentEntity()->valueOfKey("classname");
  const std::string text = Format("Revert brushes of entity %s to world?", name.c_str());
  if (!editor.services().prompts.agrees("Velk - Revert", text)) return {};
  RevertToWorld(m);
  return Outcome::Drawn(Redraw::All, "Entity reverted...");
}

}  // namespace velk
