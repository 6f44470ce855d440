#include <array>
#include <cctype>
#include <utility>

#include "base/text.h"
#include "commands/command.h"

namespace velk {
namespace {

using Key = KeyStroke::Key;

constexpr std::array<std::pair<std::string_view, Key>, 16> kNamedKeys{{{"Up", Key::Up},
                                                                       {"Down", Key::Down},
                                                                       {"Left", Key::Left},
                                                                       {"Right", Key::Right},
                                                                       {"Home", Key::Home},
                                                                       {"End", Key::End},
                                                                       {"PgUp", Key::PageUp},
                                                                       {"PgDn", Key::PageDown},
                                                                       {"PageUp", Key::PageUp},
                                                                       {"PageDown", Key::PageDown},
                                                                       {"Ins", Key::Insert},
                                                                       {"Del", Key::Delete},
                                                                       {"Esc", Key::Escape},
                                                                       {"Enter", Key::Enter},
                                                                       {"Return", Key::Enter},
                                                                       {"Space", Key::Space}}};

// The number pad's keys without Num Lock, and the sign printed on them.
constexpr std::array<std::pair<Key, char>, 10> kPadSigns{{{Key::Insert, '0'},
                                                          {Key::End, '1'},
                                                          {Key::Down, '2'},
                                                          {Key::PageDown, '3'},
                                                          {Key::Left, '4'},
                                                          {Key::Right, '6'},
                                                          {Key::Home, '7'},
                                                          {Key::Up, '8'},
                                                          {Key::PageUp, '9'},
                                                          {Key::Delete, '.'}}};

// Takes the prefix off the front, if more follows it.
bool TakePrefix(std::string_view& text, std::string_view prefix) {
  if (text.size() <= prefix.size() || !StartsWithNoCase(text, prefix)) return false;
  text.remove_prefix(prefix.size());
  return true;
}

Key FunctionKey(std::string_view text) {
  if (text.size() < 2 || std::toupper(static_cast<unsigned char>(text[0])) != 'F') return Key::None;
  if (text.find_first_not_of("0123456789", 1) != std::string_view::npos) return Key::None;
  const int number = TextToInt(text.substr(1));
  return number >= 1 && number <= 12 ? static_cast<Key>(static_cast<int>(Key::F1) + number - 1) : Key::None;
}

void SetKey(KeyStroke& stroke, std::string_view text) {
  if (EqualNoCase(text, "comma")) text = ",";
  if (EqualNoCase(text, "period")) text = ".";
  if (text.size() == 1 && text[0] > ' ' && text[0] < 0x7f) {
    stroke.key = Key::Character;
    stroke.character = static_cast<char>(std::toupper(static_cast<unsigned char>(text[0])));
    return;
  }
  stroke.key = FunctionKey(text);
  for (const auto& [name, key] : kNamedKeys) {
    if (EqualNoCase(name, text)) stroke.key = key;
  }
}

}  // namespace

KeyStroke ParseKeyStroke(std::string_view text) {
  KeyStroke stroke;
  for (bool more = true; more;) {
    more = false;
    if (TakePrefix(text, "Ctrl+")) more = stroke.ctrl = true;
    if (TakePrefix(text, "Alt+")) more = stroke.alt = true;
    if (TakePrefix(text, "Shift+")) more = stroke.shift = true;
  }
  stroke.numPad = TakePrefix(text, "Num");
  SetKey(stroke, text);
  return stroke.key == Key::None ? KeyStroke{} : stroke;
}

std::vector<KeyStroke> StrokesOf(const Command& command) {
  std::vector<KeyStroke> strokes;
  for (const std::string& text : Split(command.keys, ' ')) strokes.push_back(ParseKeyStroke(text));
  return strokes;
}

const Command* CommandOnKey(const KeyStroke& stroke) {
  if (stroke.key == Key::None) return nullptr;
  for (const Command& command : Commands()) {
    for (const KeyStroke& own : StrokesOf(command)) {
      if (own == stroke) return &command;
    }
  }
  return nullptr;
}

const Command* CommandForStroke(const KeyStroke& pressed) {
  KeyStroke stroke = pressed;
  if (stroke.numPad && stroke.key != Key::Character) {
    for (const auto& [key, sign] : kPadSigns) {
      if (key != pressed.key) continue;
      stroke.key = Key::Character;
      stroke.character = sign;
    }
    if (const Command* command = CommandOnKey(stroke)) return command;
    stroke = pressed;
    stroke.numPad = false;
  }
  if (const Command* command = CommandOnKey(stroke)) return command;
  const bool sign =
      stroke.key == Key::Character && !std::isalnum(static_cast<unsigned char>(stroke.character));
  if (!sign || !stroke.shift) return nullptr;
  stroke.shift = false;
  return CommandOnKey(stroke);
}

}  // namespace velk
