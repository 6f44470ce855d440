// While a dialog is open, the views show as ghosts what its values would make (preview_results).
#pragma once

#include "app/editor.h"

namespace velk {

using Brushes = std::vector<std::unique_ptr<brush>>;

// Lives as long as the dialog is open; then the ghosts are gone.
class ResultPreview {
 public:
  explicit ResultPreview(Editor& editor) : editor_(editor) {}
  ~ResultPreview();
  ResultPreview(const ResultPreview&) = delete;
  ResultPreview& operator=(const ResultPreview&) = delete;

  // From now on every change of the form, or of the box's text, shows what `make` builds; it must not change
  // the map. What it cannot build shows nothing.
  void follow(Form& form, std::function<Brushes(const Form&)> make);
  void follow(TextInput& input, std::function<Brushes(const std::string&)> make);

 private:
  void show(const std::function<Brushes()>& make);

  Editor& editor_;
};

// Has a form filled in under that preview; false on Cancel.
bool FillWithPreview(Editor& editor, Form& form, std::function<Brushes(const Form&)> make);
// The same for a line of text.
std::optional<std::string> AskWithPreview(Editor& editor, TextInput input,
                                          std::function<Brushes(const std::string&)> make);

}  // namespace velk
