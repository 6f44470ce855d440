// The editor's questions in a script: answered from a queue, and kept for looking at.
#pragma once

#include <deque>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

#include "base/prompts.h"

namespace velk {

// Ends a script; the runner adds the line.
struct ScriptFailure : std::runtime_error {
  using std::runtime_error::runtime_error;
};

// A text as a script names it: in quotes, with quotes, backslashes and line ends written as \", \\ and \n.
std::string ScriptQuoted(const std::string& text);

// Every prompt takes one answer off the queue. Without one, or with one that does not fit, the prompt
// throws ScriptFailure with its caption and text.
class ScriptPrompts : public Prompts {
 public:
  // The words of one answer: paths, a text, "yes", "no", "ok", "cancel", or three numbers of a colour.
  // `literal` keeps a single word "cancel" from meaning Cancel.
  void queue(std::vector<std::string> words, bool literal);
  int queued() const { return static_cast<int>(answers_.size()); }

  // One line a prompt so far: kind, caption, text, answer.
  const std::vector<std::string>& log() const { return log_; }

  Answer ask(const MessageBox& box) override;
  std::vector<std::string> chooseFiles(const FileChooser& chooser) override;
  std::optional<std::string> input(const TextInput& input) override;
  std::optional<Colour> chooseColour(const ColourChooser& chooser) override;
  FormAnswer fill(Form& form) override;
  // Fills the form in, presses one of its buttons and closes it.
  void show(ModelessForm form) override;

  // The value of a field of the next form: its text, or one of its choices by text or number.
  void set(const std::string& field, const std::string& value) { sets_.emplace_back(field, value); }

 private:
  struct Queued {
    std::vector<std::string> words;
    bool literal = false;
    bool isText() const;
    bool cancels() const;
  };
  Queued take(const char* kind, const std::string& caption, const std::string& text);
  // Gives the form what was set for it. The index of the button that accepts it, none for Cancel.
  std::optional<size_t> accept(Form& form, const std::vector<std::string>& buttons);
  void giveSets(Form& form);

  std::deque<Queued> answers_;
  std::vector<std::pair<std::string, std::string>> sets_;
  std::vector<std::string> log_;
};

}  // namespace velk
