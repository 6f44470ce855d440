#include "commands/replace_texture.h"

#include "base/text.h"
#include "ops/face_textures.h"

namespace velk {
namespace {

constexpr const char* kReplaceCaption = "Velk - Replace Texture";

}  // namespace

Outcome AskForReplacing(Editor& editor, map& m) {
  Prompts& prompts = editor.services().prompts;
  const auto from = prompts.input({kReplaceCaption, "Find what:", ""});
  if (!from) return {};
  const auto to = prompts.input({kReplaceCaption, "Replace with:", ""});
  return to ? ReplaceTextureBy(editor, m, *from, *to) : Outcome{};
}

Outcome ReplaceTextureBy(Editor& editor, map& m, const std::string& from, const std::string& to) {
  const std::string upperFrom = UpperCase(from);
  const std::string upperTo = UpperCase(to);
  const Answer answer = editor.services().prompts.ask(
      {.caption = kReplaceCaption,
       .text = Format("Replace %s\nWith %s?", upperFrom.c_str(), upperTo.c_str()),
       .buttons = MessageBox::Buttons::YesNo,
       .icon = MessageBox::Icon::Question});
  if (answer != Answer::Yes) return {};
  ReplaceTexture(m, upperFrom, upperTo);
  return Outcome::Drawn(Redraw::All,
                        Format("Texture %s replaced with %s...", upperFrom.c_str(), upperTo.c_str()));
}

}  // namespace velk
