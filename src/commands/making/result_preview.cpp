#include "commands/making/result_preview.h"

#include <utility>

namespace velk {

ResultPreview::~ResultPreview() {
  if (editor_.views().ghosts.empty()) return;
  editor_.views().ghosts.clear();
  editor_.door().show(Outcome::Drawn(Redraw::All));
}

void ResultPreview::follow(Form& form, std::function<Brushes(const Form&)> make) {
  form.changed = [this, before = std::move(form.changed), make = std::move(make)](Form& now) {
    if (before) before(now);
    show([&] { return make(now); });
  };
}

void ResultPreview::follow(TextInput& input, std::function<Brushes(const std::string&)> make) {
  input.changed = [this, make = std::move(make)](const std::string& now) { show([&] { return make(now); }); };
}

void ResultPreview::show(const std::function<Brushes()>& make) {
  if (!editor_.settings().preview_results) return;
  Brushes made;
  const auto failed = editor_.door().trapped([&] { made = make(); });
  if (failed) made.clear();
  std::erase_if(made, [](const std::unique_ptr<brush>& b) { return b->invalid; });
  editor_.views().ghosts = std::move(made);
  editor_.door().show(Outcome::Drawn(Redraw::All));
}

bool FillWithPreview(Editor& editor, Form& form, std::function<Brushes(const Form&)> make) {
  ResultPreview preview(editor);
  preview.follow(form, std::move(make));
  return editor.services().prompts.fill(form) != FormAnswer::Cancel;
}

std::optional<std::string> AskWithPreview(Editor& editor, TextInput input,
                                          std::function<Brushes(const std::string&)> make) {
  ResultPreview preview(editor);
  preview.follow(input, std::move(make));
  return editor.services().prompts.input(input);
}

}  // namespace velk
