#include "script/script_prompts.h"

#include <algorithm>
#include <array>
#include <utility>

#include "base/text.h"

namespace velk {
namespace {

struct AnswerWord {
  const char* word;
  Answer answer;
};
constexpr std::array<AnswerWord, 4> kAnswerWords{
    {{"yes", Answer::Yes}, {"no", Answer::No}, {"ok", Answer::Ok}, {"cancel", Answer::Cancel}}};

bool HasButton(MessageBox::Buttons buttons, Answer answer) {
  using Buttons = MessageBox::Buttons;
  const bool yesNo = buttons == Buttons::YesNo || buttons == Buttons::YesNoCancel;
  switch (answer) {
    case Answer::Yes:
    case Answer::No:
      return yesNo;
    case Answer::Ok:
      return !yesNo;
    case Answer::Cancel:
      return buttons == Buttons::OkCancel || buttons == Buttons::YesNoCancel;
  }
  return false;
}

[[noreturn]] void FailPrompt(const char* what, const std::string& caption, const std::string& text) {
  throw ScriptFailure(Format("%s: %s %s", what, ScriptQuoted(caption).c_str(), ScriptQuoted(text).c_str()));
}

void TellChanged(Form& form) {
  if (form.changed) form.changed(form);
}

// The value as a user could give it.
std::string ValueFor(const Form& form, const FormField& field, const std::string& given) {
  if (field.kind == FormField::Kind::Text) return CutText(given, field.maxLength);
  if (!field.isChosen()) return given;
  const auto same = [&given](const std::string& choice) { return EqualNoCase(choice, given); };
  const auto count = static_cast<int>(field.choices.size());
  const auto named = std::find_if(field.choices.begin(), field.choices.end(), same) - field.choices.begin();
  const int index = named < count ? static_cast<int>(named) : LeadingInt(given).value_or(-1);
  if (index < 0 || index >= count) FailPrompt("no such choice of a field of", form.title, given);
  return NumberText(index);
}

}  // namespace

std::string ScriptQuoted(const std::string& text) {
  std::string quoted = "\"";
  for (const char c : text) {
    if (c == '\n') {
      quoted += "\\n";
      continue;
    }
    if (c == '"' || c == '\\') quoted += '\\';
    quoted += c;
  }
  return quoted + '"';
}

void ScriptPrompts::queue(std::vector<std::string> words, bool literal) {
  answers_.push_back({std::move(words), literal});
}

bool ScriptPrompts::Queued::cancels() const {
  return !literal && words.size() == 1 && EqualNoCase(words[0], "cancel");
}

// Words that only some prompts know stay without quotes in the log.
bool ScriptPrompts::Queued::isText() const {
  if (literal || words.size() != 1) return true;
  return std::none_of(kAnswerWords.begin(), kAnswerWords.end(),
                      [this](const AnswerWord& known) { return EqualNoCase(words[0], known.word); });
}

ScriptPrompts::Queued ScriptPrompts::take(const char* kind, const std::string& caption,
                                          const std::string& text) {
  if (answers_.empty()) FailPrompt("no answer for the prompt", caption, text);
  Queued answer = std::move(answers_.front());
  answers_.pop_front();
  std::string words;
  for (const std::string& word : answer.words) words += ' ' + (answer.isText() ? ScriptQuoted(word) : word);
  log_.push_back(std::string(kind) + ' ' + ScriptQuoted(caption) + ' ' + ScriptQuoted(text) + words);
  return answer;
}

Answer ScriptPrompts::ask(const MessageBox& box) {
  const Queued given = take("message", box.caption, box.text);
  for (const auto& [word, answer] : kAnswerWords) {
    if (given.words.size() == 1 && EqualNoCase(given.words[0], word) && HasButton(box.buttons, answer))
      return answer;
  }
  FailPrompt("the answer is none of the buttons of", box.caption, box.text);
}

std::vector<std::string> ScriptPrompts::chooseFiles(const FileChooser& chooser) {
  const bool saves = chooser.kind == FileChooser::Kind::Save;
  Queued given = take(saves ? "save" : "open", chooser.title, chooser.filter);
  if (given.cancels()) return {};
  if (given.words.size() != 1 && chooser.kind != FileChooser::Kind::OpenMany) {
    FailPrompt("more than one file for", chooser.title, chooser.filter);
  }
  return given.words;
}

std::optional<std::string> ScriptPrompts::input(const TextInput& input) {
  if (input.changed) input.changed(input.text);
  const Queued given = take("input", input.title, input.prompt);
  if (given.cancels()) return std::nullopt;
  std::string text;
  for (const std::string& word : given.words) text += (text.empty() ? "" : " ") + word;
  text = text.substr(0, static_cast<size_t>(std::max(0, input.maxLength)));
  if (input.changed) input.changed(text);
  return text;
}

std::optional<Colour> ScriptPrompts::chooseColour(const ColourChooser& chooser) {
  const Queued given = take("colour", chooser.title, "");
  if (given.cancels()) return std::nullopt;
  if (given.words.size() != 3) FailPrompt("not three numbers for the colour", chooser.title, "");
  const auto channel = [&](size_t i) { return std::clamp(TextToInt(given.words[i]), 0, 255); };
  return Colour{channel(0), channel(1), channel(2)};
}

void ScriptPrompts::giveSets(Form& form) {
  for (const auto& [name, value] : std::exchange(sets_, {})) {
    FormField* field = form.find(name);
    if (!field) FailPrompt("no such field in", form.title, name);
    if (!field->enabled) FailPrompt("the field is disabled in", form.title, name);
    field->value = ValueFor(form, *field, value);
    TellChanged(form);
  }
}

// A form that its check refuses stays open: it takes the next answer, with the reason as its text.
std::optional<size_t> ScriptPrompts::accept(Form& form, const std::vector<std::string>& buttons) {
  TellChanged(form);
  std::string reason;
  for (;;) {
    const Queued given = take("form", form.title, reason);
    giveSets(form);
    if (given.cancels()) return std::nullopt;
    const auto button = std::find_if(buttons.begin(), buttons.end(), [&given](const std::string& label) {
      return given.words.size() == 1 && EqualNoCase(given.words[0], label);
    });
    if (button == buttons.end()) FailPrompt("the answer is none of the buttons of", form.title, "");
    if (!form.complete) FailPrompt("not all that it needs is filled in", form.title, "");
    const auto refusal = form.check ? form.check(form) : std::nullopt;
    if (!refusal) return static_cast<size_t>(button - buttons.begin());
    reason = refusal->text;
  }
}

FormAnswer ScriptPrompts::fill(Form& form) {
  const std::vector<FormField> fields = form.fields;
  const std::string note = form.note;
  std::vector<std::string> buttons{"ok"};
  if (!form.saveLabel.empty()) buttons.push_back("save");
  const std::optional<size_t> button = accept(form, buttons);
  if (button) return *button == 0 ? FormAnswer::Ok : FormAnswer::Save;
  form.fields = fields;
  form.note = note;
  return FormAnswer::Cancel;
}

// Beside the labels of its buttons, "ok" is the first one.
void ScriptPrompts::show(ModelessForm modeless) {
  std::vector<std::string> buttons{"ok"};
  for (std::string label : modeless.buttons) {
    std::erase(label, '&');
    buttons.push_back(label);
  }
  const std::optional<size_t> button = accept(modeless.form, buttons);
  if (button) modeless.pressed(modeless.form, *button == 0 ? 0 : *button - 1);
}

}  // namespace velk
