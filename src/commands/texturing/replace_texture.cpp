#include "commands/texturing/replace_texture.h"

#include "base/text.h"
#include "commands/bars.h"
#include "commands/texturing/replace_form.h"
#include "ops/face_textures.h"

namespace velk {

Outcome AskForReplacing(Editor& editor, map&) {
  ModelessForm replace = ReplaceForm("", "", TextureListNames(editor));
  // The form stays open; another map may be shown then, or none.
  replace.pressed = [&editor](Form& form, size_t) {
    map* m = editor.documents().currentMap();
    if (!m) return;
    editor.door().perform({.name = "Replace"}, [&] {
      return ReplaceTextureBy(editor, *m, NameIn(form, "find"), NameIn(form, "replace"));
    });
  };
  editor.services().prompts.show(std::move(replace));
  return {};
}

Outcome ReplaceTextureBy(Editor& editor, map& m, const std::string& from, const std::string& to) {
  const std::string upperFrom = UpperCase(from);
  const std::string upperTo = UpperCase(to);
  const std::string text = Format("Replace %s\nWith %s?", upperFrom.c_str(), upperTo.c_str());
  if (!editor.services().prompts.agrees(kReplaceCaption, text)) return {};
  ReplaceTexture(m, upperFrom, upperTo);
  return Outcome::Drawn(Redraw::All,
                        Format("Texture %s replaced with %s...", upperFrom.c_str(), upperTo.c_str()));
}

}  // namespace velk
