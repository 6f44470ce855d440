#include "mouse/bindings.h"

#include <algorithm>

#include "base/error.h"
#include "base/files.h"
#include "base/text.h"
#include "base/tokenizer.h"

namespace velk {
namespace {

void RequireToken(Tokenizer& tokens, const char* failure) {
  if (!tokens.GetScriptToken(true)) Error("%s", failure);
}

// A name ends at a blank.
std::string OperationName(std::string_view piece) {
  return std::string(piece.substr(0, std::min(piece.find_first_of(" \t"), MouseBindings::kMaxName)));
}

std::vector<std::string> ReadNames(std::string_view list) {
  const auto count = std::ranges::count(list, ';') + 1;
  if (count > MouseBindings::kMaxNames) {
    Error("Parse Mouse:  Too many mouse options [%i]...", static_cast<int>(count));
  }
  std::vector<std::string> names;
  for (size_t start = 0; start <= list.size();) {
    const size_t stop = std::min(list.find(';', start), list.size());
    names.push_back(OperationName(list.substr(start, stop - start)));
    start = stop + 1;
  }
  return names;
}

MouseButton ReadButton(std::string_view word) {
  if (EqualNoCase(word, "LEFT")) return MouseButton::Left;
  if (EqualNoCase(word, "MIDDLE")) return MouseButton::Middle;
  if (!EqualNoCase(word, "RIGHT")) Error("Mouse Parse:  Bad mouse type...");
  return MouseButton::Right;
}

// Words other than the modifier keys are passed over.
int ReadModifiers(Tokenizer& tokens) {
  int modifiers = 0;
  while (tokens.GetScriptToken(false) && tokens.token() != "}") {
    if (EqualNoCase(tokens.token(), "SHIFT")) modifiers |= 1;
    if (EqualNoCase(tokens.token(), "CTRL")) modifiers |= 2;
    if (EqualNoCase(tokens.token(), "ALT")) modifiers = 3;
  }
  return modifiers;
}

MouseBinding ReadBinding(Tokenizer& tokens) {
  MouseBinding binding;
  tokens.GetScriptToken(false);
  binding.names = ReadNames(tokens.token());
  tokens.GetScriptToken(false);
  binding.button = ReadButton(tokens.token());
  binding.modifiers = ReadModifiers(tokens);
  return binding;
}

// The token that ends the setup is read as well.
MouseSetup ReadSetup(Tokenizer& tokens) {
  RequireToken(tokens, "Parsing Button Bars: '{' not found");
  RequireToken(tokens, "Parsing Button Bars: Current Setup Name not found");
  MouseSetup setup;
  setup.name = CutText(tokens.token(), MouseBindings::kMaxName);
  while (tokens.GetScriptToken(true) && tokens.token() == "{") setup.bindings.push_back(ReadBinding(tokens));
  return setup;
}

// From 1 to `most`.
int ReadNumber(Tokenizer& tokens, int most, const char* missing, const char* invalid) {
  RequireToken(tokens, missing);
  const int number = TextToInt(tokens.token());
  if (number < 1 || number > most) Error("%s", invalid);
  return number;
}

MouseBindings Parse(Tokenizer& tokens) {
  MouseBindings bindings;
  const int setups =
      ReadNumber(tokens, MouseBindings::kMaxSetups, "Parsing Button Bars: Number of Setups not found",
                 "Parsing Button Bars: Number of Setups invalid");
  bindings.current = ReadNumber(tokens, setups, "Parsing Button Bars: Current Setup not found",
                                "Parsing Button Bars: Current Setup invalid") -
                     1;
  for (int i = 0; i < setups; ++i) bindings.setups.push_back(ReadSetup(tokens));
  return bindings;
}

}  // namespace

const MouseBinding* MouseBindings::find(MouseButton button, int modifiers) const {
  if (setups.empty()) return nullptr;
  for (const MouseBinding& binding : setups[static_cast<size_t>(current)].bindings) {
    if (binding.button == button && binding.modifiers == modifiers) return &binding;
  }
  return nullptr;
}

std::string ButtonText(const MouseBinding& binding) {
  constexpr const char* kButtons[] = {"LEFT", "MIDDLE", "RIGHT"};
  constexpr const char* kModifiers[] = {"", "SHIFT+", "CTRL+", "CTRL+SHIFT+"};
  return std::string(kModifiers[binding.modifiers & 3]) + kButtons[static_cast<int>(binding.button)];
}

MouseBindings ParseMouseBindings(std::string_view text) {
  Tokenizer tokens(text);
  return Parse(tokens);
}

MouseBindings loadMouseBindings(const std::string& name, const std::vector<std::filesystem::path>& folders) {
  std::filesystem::path file = name;
  for (const std::filesystem::path& folder : folders) {
    file = folder / name;
    if (StampOf(file).exists) break;
  }
  const ReadResult read = ReadFile(file);
  if (!read.ok) Error("Error opening %s: %s", name.c_str(), read.reason.c_str());
  Tokenizer tokens(read.contents);
  const ErrorPlace place([&] { return Format("reading [%s], line %i", file.c_str(), tokens.line()); });
  return Parse(tokens);
}

}  // namespace velk
