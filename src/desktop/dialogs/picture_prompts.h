#pragma once

#include "app/editor.h"
#include "base/prompts.h"

namespace velk {

// Answers while a picture is taken and nobody is there to ask: textures that cannot be found are stood in
// for by the default ones. Every other question ends the program with status 3.
class PicturePrompts : public Prompts {
 public:
  // For the default wad; must outlive the prompts.
  void setSettings(const Settings* settings) { settings_ = settings; }

  Answer ask(const MessageBox& box) override;
  std::vector<std::string> chooseFiles(const FileChooser& chooser) override;
  std::optional<std::string> input(const TextInput& input) override;
  std::optional<Colour> chooseColour(const ColourChooser& chooser) override;
  FormAnswer fill(Form& form) override;
  void show(ModelessForm form) override;

 private:
  const Settings* settings_ = nullptr;
};

}  // namespace velk
