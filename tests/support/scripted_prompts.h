// Prompts for tests: answers come from a queue, what was asked is kept. A prompt without an answer, or
// with one of another kind, fails the test and is cancelled.
#pragma once

#include <deque>
#include <optional>
#include <string>
#include <utility>
#include <variant>
#include <vector>

#include <gtest/gtest.h>

#include "base/prompts.h"

namespace velk::test {

class ScriptedPrompts : public Prompts {
 public:
  // Answers, in the order of the prompts to come. Answer::Cancel cancels a prompt of any kind; a text
  // answers an input box and, as a path, a file chooser.
  ScriptedPrompts& answer(Answer answer) { return queue(answer); }
  ScriptedPrompts& answer(std::string text) { return queue(std::vector{std::move(text)}); }
  ScriptedPrompts& answer(std::vector<std::string> files) { return queue(std::move(files)); }
  ScriptedPrompts& answer(Colour colour) { return queue(colour); }
  ScriptedPrompts& cancel() { return queue(Answer::Cancel); }

  Answer ask(const MessageBox& box) override {
    boxes.push_back(box);
    return next<Answer>(box.caption, box.text).value_or(Answer::Cancel);
  }
  std::vector<std::string> chooseFiles(const FileChooser& chooser) override {
    choosers.push_back(chooser);
    return next<std::vector<std::string>>(chooser.title, chooser.fileName)
        .value_or(std::vector<std::string>());
  }
  std::optional<std::string> input(const TextInput& input) override {
    inputs.push_back(input);
    const auto texts = next<std::vector<std::string>>(input.title, input.prompt);
    return texts ? std::optional(texts->front()) : std::nullopt;
  }
  std::optional<Colour> chooseColour(const ColourChooser& chooser) override {
    colours.push_back(chooser);
    return next<Colour>(chooser.title, "");
  }

  FormAnswer fill(Form& form) override {
    return next<Answer>(form.title, "").value_or(Answer::Cancel) == Answer::Ok ? FormAnswer::Ok
                                                                               : FormAnswer::Cancel;
  }

  void show(ModelessForm form) override {
    if (next<Answer>(form.form.title, "") == Answer::Ok) form.pressed(form.form, 0);
  }

  size_t unused() const { return queue_.size(); }

  // Every prompt so far as "caption|text", and as it was given, by kind.
  std::vector<std::string> asked;
  std::vector<MessageBox> boxes;
  std::vector<FileChooser> choosers;
  std::vector<TextInput> inputs;
  std::vector<ColourChooser> colours;

 private:
  using Queued = std::variant<Answer, std::vector<std::string>, Colour>;

  ScriptedPrompts& queue(Queued answer) {
    queue_.push_back(std::move(answer));
    return *this;
  }

  template <typename T>
  std::optional<T> next(const std::string& caption, const std::string& text) {
    asked.push_back(caption + '|' + text);
    if (queue_.empty()) {
      ADD_FAILURE() << "no answer queued for the prompt " << asked.back();
      return std::nullopt;
    }
    const Queued answer = std::move(queue_.front());
    queue_.pop_front();
    if (const T* value = std::get_if<T>(&answer)) return *value;
    if (!std::holds_alternative<Answer>(answer) || std::get<Answer>(answer) != Answer::Cancel) {
      ADD_FAILURE() << "an answer of another kind is queued for the prompt " << asked.back();
    }
    return std::nullopt;
  }

  std::deque<Queued> queue_;
};

}  // namespace velk::test
