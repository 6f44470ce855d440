#include "desktop/dialogs/picture_prompts.h"

#include <cstdio>

#include "base/error.h"
#include "base/text.h"

namespace velk {
namespace {

constexpr const char* kWadTitle = "Where is texture .wad file";

[[noreturn]] void refuse(const std::string& caption, const std::string& text) {
  Error("Nobody can answer: %s %s", caption.c_str(), text.c_str());
}

}  // namespace

Answer PicturePrompts::ask(const MessageBox& box) { refuse(box.caption, box.text); }

std::vector<std::string> PicturePrompts::chooseFiles(const FileChooser& chooser) {
  if (!settings_ || !StartsWithNoCase(chooser.title, kWadTitle)) refuse(chooser.title, "");
  const std::string first = settings_->default_wad.substr(0, settings_->default_wad.find(';'));
  std::fprintf(stderr, "velk: %s The default textures stand in.\n", chooser.title.c_str());
  return {settings_->wad_directory + first};
}

std::optional<std::string> PicturePrompts::input(const TextInput& input) {
  refuse(input.title, input.prompt);
}

std::optional<Colour> PicturePrompts::chooseColour(const ColourChooser& chooser) {
  refuse(chooser.title, "");
}

FormAnswer PicturePrompts::fill(Form& form) { refuse(form.title, ""); }

void PicturePrompts::show(ModelessForm form) { refuse(form.form.title, ""); }

}  // namespace velk
