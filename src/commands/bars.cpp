#include "commands/bars.h"

#include <algorithm>
#include <new>
#include <optional>

#include "app/editor.h"
#include "base/error.h"
#include "base/files.h"
#include "base/text.h"
#include "base/tokenizer.h"

namespace velk {
namespace {

// The next token, when it stands on the same line as the one before.
bool NextOnLine(Tokenizer& tokens) {
  const int line = tokens.line();
  return tokens.GetScriptToken(true) && tokens.line() == line;
}

int ReadBarCount(Tokenizer& tokens) {
  if (!tokens.GetScriptToken(true)) Error("Parsing Button Bars: 'bars' not found");
  const std::string first(tokens.token());
  if (!EqualNoCase(first, "bars")) {
    Error("Parsing Button Bars: 'bars' not found, %s instead", first.c_str());
  }
  const auto count = NextOnLine(tokens) ? LeadingInt(tokens.token()) : std::nullopt;
  if (!count) Error("Parsing Button Bars: number of bars not found");
  return std::clamp(*count, 0, kMaxBars);
}

// Numbers, which the command table would find too, are no names.
std::optional<BarGadget> GadgetNamed(std::string_view name) {
  if (EqualNoCase(name, "Separator")) return BarGadget{};
  if (EqualNoCase(name, "TextureList")) return BarGadget{.kind = BarGadget::Kind::TextureList};
  const Command* command = FindCommand(name);
  if (!command || !EqualNoCase(command->name, name)) return std::nullopt;
  return BarGadget{.kind = BarGadget::Kind::Button, .command = command};
}

void Append(std::vector<ButtonBar>& bars, int number, std::string_view name) {
  if (number < 1 || number > static_cast<int>(bars.size())) return;
  ButtonBar& bar = bars[static_cast<size_t>(number - 1)];
  const auto gadget = GadgetNamed(name);
  if (gadget && bar.size() < kMaxBarGadgets) bar.push_back(*gadget);
}

}  // namespace

std::vector<ButtonBar> ParseButtonBars(std::string_view text) {
  Tokenizer tokens(text);
  std::vector<ButtonBar> bars(static_cast<size_t>(ReadBarCount(tokens)));
  while (tokens.GetScriptToken(true) && EqualNoCase(tokens.token(), "bar")) {
    if (!NextOnLine(tokens)) break;
    const int number = TextToInt(tokens.token());
    if (!NextOnLine(tokens)) break;
    Append(bars, number, tokens.token());
  }
  return bars;
}

std::vector<ButtonBar> LoadButtonBars(const std::filesystem::path& folder) {
  ReadResult read;
  try {
    read = ReadFile(folder / "velkbars.ini");
  } catch (const std::bad_alloc&) {
    Error("Couldn't allocate data file for button bars!");
  }
  if (!read.ok) Error("Error opening velkbars.ini: %s", read.reason.c_str());
  const ErrorPlace place([&] { return "reading [" + (folder / "velkbars.ini").string() + "]"; });
  return ParseButtonBars(read.contents);
}

std::string ButtonTip(const Command& command) {
  std::string tip = *command.hint ? command.hint : PlainLabel(command);
  if (*command.keyText) tip += Format(" (%s)", command.keyText);
  return tip;
}

std::vector<std::string> TextureListNames(Editor& editor) {
  std::vector<std::string> names;
  TextureSet& set = editor.panels().textures.set();
  for (int i = 0; i < set.count(); ++i) names.push_back(set.at(i).texture->name);
  return names;
}

void ChooseTexture(Editor& editor, const std::string& name) { editor.panels().textures.chooseName(name); }

}  // namespace velk
