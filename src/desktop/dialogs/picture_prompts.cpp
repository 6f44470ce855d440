#include "desktop/dialogs/picture_prompts.h"

#include <cstdio>

#include "base/error.h"
#include "base/text.h"

namespace velk {
namespace {

constexpr const char* kWadTitle = "Where is texture .wad file";

[[noreturn]] void Refuse(const std::string& caption, const std::string& text) {
  Error("Nobody can answer: %s %s", caption.c_str(), text.c_str());
}

}  // namespace

Answer PicturePrompts::ask(const MessageBox& box) { Refuse(box.caption, box.text); }

std::vector<std::string> PicturePrompts::chooseFiles(const FileChooser& chooser) {
  if (!settings_ || !StartsWithNoCase(chooser.title, kWadTitle)) Refuse(chooser.title, "");
  const std::string first = settings_->default_wad.substr(0, settings_->default_wad.find(';'));
  std::fprintf(stderr, "velk: %s The default textures stand in.\n", chooser.title.c_str());
  return {settings_->wad_directory + first};
}

std::optional<std::string> PicturePrompts::input(const TextInput& input) {
  Refuse(input.title, input.prompt);
}

std::optional<Colour> PicturePrompts::chooseColour(const ColourChooser& chooser) {
  Refuse(chooser.title, "");
}

FormAnswer PicturePrompts::fill(Form& form) { Refuse(form.title, ""); }

void PicturePrompts::show(ModelessForm form) { Refuse(form.form.title, ""); }

}  // namespace velk
