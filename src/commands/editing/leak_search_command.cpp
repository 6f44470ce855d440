#include "commands/editing/leak_search_command.h"

#include <cstdio>

#include "commands/files/save_map.h"
#include "ops/leak_search.h"

namespace velk {
namespace {

Answer Ask(Editor& editor, const std::string& text, MessageBox::Buttons buttons) {
  return editor.services().prompts.ask(
      {.caption = kLeakTitle, .text = text, .buttons = buttons, .icon = MessageBox::Icon::Question});
}

// False when the user wanted to save and it came to nothing.
bool SavedFirst(Editor& editor) {
  return !editor.documents().current()->isChanged() ||
         !editor.services().prompts.agrees(kLeakTitle, kLeakSaveFirst) || SaveNow(editor);
}

// The views look at a pair, which is selected, for as long as this lives.
class ShownPair {
 public:
  ShownPair(Editor& editor, map& m, const LeakPair& pair)
      : map_(m),
        pair_(pair),
        current_(m.currentEntity()),
        modified_(m.modified),
        selected_{pair.a->selected(), pair.b->selected()} {
    m.setCurrentEntity(pair.a->owner);
    pair.a->select();
    pair.b->select();
    setPlanCenter(editor.views().plans, &m, pair.centre(), false);
    editor.door().show(Outcome::Drawn(Redraw::All));
  }
  ~ShownPair() {
    map_.setCurrentEntity(current_);
    pair_.a->select(selected_[0]);
    pair_.b->select(selected_[1]);
    map_.modified = modified_;
  }
  ShownPair(const ShownPair&) = delete;
  ShownPair& operator=(const ShownPair&) = delete;

 private:
  map& map_;
  const LeakPair pair_;
  entity* current_;
  bool modified_;
  bool selected_[2];
};

void ConformAsking(Editor& editor, map& m, LeakSearch& search) {
  const vec3 centre = editor.views().plans.planCenter;
  while (const auto pair = search.next()) {
    Answer answer;
    {
      const ShownPair shown(editor, m, *pair);
      answer = Ask(editor, pair->question(), MessageBox::Buttons::YesNoCancel);
    }
    if (answer == Answer::Cancel) break;
    if (answer == Answer::Yes) search.conformPair();
  }
  editor.views().plans.planCenter = centre;
}

}  // namespace

Outcome SearchLeaks(Editor& editor, map& m) {
  if (!SavedFirst(editor)) return {};
  const Answer automatic = Ask(editor, kLeakAutomatic, MessageBox::Buttons::YesNoCancel);
  if (automatic == Answer::Cancel) return {};
  LeakSearch search(m, editor.settings().careful_tools);
  if (automatic == Answer::Yes) {
    search.conformAll();
  } else {
    ConformAsking(editor, m, search);
  }
  std::printf("%s\n", search.summary().c_str());
  std::fflush(stdout);
  return Outcome::Drawn(Redraw::All, automatic == Answer::Yes ? kLeaksSealedAutomatically : kLeaksSealed);
}

}  // namespace velk
