#include "commands/editing/repeat.h"

#include <utility>

namespace velk {

Outcome RunRepeatably(Editor& editor, map& m, std::function<Outcome(map&)> change) {
  editor.remembered().lastChange = std::move(change);
  return RepeatLast(editor, m);
}

bool RepeatKept(const Editor& editor) {
  return editor.documents().currentMap() && editor.remembered().lastChange;
}

// By a copy: what runs may ask, and another change may take its place meanwhile.
Outcome RepeatLast(Editor& editor, map& m) {
  const std::function<Outcome(map&)> change = editor.remembered().lastChange;
  return change ? change(m) : Outcome::Said(kNothingToRepeat);
}

}  // namespace velk
