// The editor's questions as Qt's dialogs.
#pragma once

#include <QPointer>
#include <QWidget>
#include <vector>

#include "base/paths.h"
#include "base/prompts.h"
#include "desktop/dialogs/form_dialog.h"

namespace velk {

class QtPrompts : public Prompts {
 public:
  // Dialogs stand in front of `owner`, once there is one.
  void setOwner(QWidget* owner) { owner_ = owner; }
  // Turns the editor's start directories into native ones; must outlive the prompts.
  void setPaths(const Paths* paths) { paths_ = paths; }

  Answer ask(const MessageBox& box) override;
  std::vector<std::string> chooseFiles(const FileChooser& chooser) override;
  std::optional<std::string> input(const TextInput& input) override;
  std::optional<Colour> chooseColour(const ColourChooser& chooser) override;
  FormAnswer fill(Form& form) override;
  void show(ModelessForm form) override;

 private:
  QWidget* owner_ = nullptr;
  const Paths* paths_ = nullptr;
  std::vector<QPointer<FormDialog>> open_;  // forms beside the windows; those that were closed are null
};

}  // namespace velk
