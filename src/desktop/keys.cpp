#include "desktop/keys.h"

#include <array>
#include <utility>

namespace velk {
namespace {

using Key = KeyStroke::Key;

constexpr std::array<std::pair<int, Key>, 16> kNamedKeys{{
    {Qt::Key_Up, Key::Up},
    {Qt::Key_Down, Key::Down},
    {Qt::Key_Left, Key::Left},
    {Qt::Key_Right, Key::Right},
    {Qt::Key_Home, Key::Home},
    {Qt::Key_End, Key::End},
    {Qt::Key_PageUp, Key::PageUp},
    {Qt::Key_PageDown, Key::PageDown},
    {Qt::Key_Insert, Key::Insert},
    {Qt::Key_Delete, Key::Delete},
    {Qt::Key_Escape, Key::Escape},
    {Qt::Key_Return, Key::Enter},
    {Qt::Key_Enter, Key::Enter},
    {Qt::Key_Space, Key::Space},
    {Qt::Key_QuoteLeft, Key::Character},
    {Qt::Key_Backtab, Key::None},
}};

// What the number pad sends without Num Lock, as the digit printed on the key.
constexpr std::array<std::pair<int, char>, 11> kPadDigits{{
    {Qt::Key_Insert, '0'},
    {Qt::Key_End, '1'},
    {Qt::Key_Down, '2'},
    {Qt::Key_PageDown, '3'},
    {Qt::Key_Left, '4'},
    {Qt::Key_Clear, '5'},
    {Qt::Key_Right, '6'},
    {Qt::Key_Home, '7'},
    {Qt::Key_Up, '8'},
    {Qt::Key_PageUp, '9'},
    {Qt::Key_Delete, '.'},
}};

// A key of the number pad by the sign printed on it; '\0' for other keys.
char padDigit(int key) {
  for (const auto& [code, digit] : kPadDigits) {
    if (code == key) return digit;
  }
  return '\0';
}

void setKey(KeyStroke& stroke, int key) {
  if (const char digit = stroke.numPad ? padDigit(key) : '\0') {
    stroke.key = Key::Character;
    stroke.character = digit;
    return;
  }
  for (const auto& [code, named] : kNamedKeys) {
    if (code == key && named != Key::Character) {
      stroke.key = named;
      return;
    }
  }
  if (key >= Qt::Key_F1 && key <= Qt::Key_F12) {
    stroke.key = static_cast<Key>(static_cast<int>(Key::F1) + (key - Qt::Key_F1));
  } else if (key > 0x20 && key < 0x7f) {
    stroke.key = Key::Character;
    stroke.character = static_cast<char>(key);
  }
}

const Command* commandOn(const QKeyEvent& event, bool numPad) {
  KeyStroke stroke;
  stroke.numPad = numPad;
  stroke.ctrl = event.modifiers().testFlag(Qt::ControlModifier);
  stroke.alt = event.modifiers().testFlag(Qt::AltModifier);
  stroke.shift = event.modifiers().testFlag(Qt::ShiftModifier);
  setKey(stroke, event.key());
  if (stroke.key == Key::None) return nullptr;
  if (const Command* command = CommandOnKey(stroke)) return command;
  const bool sign =
      stroke.key == Key::Character && !std::isalnum(static_cast<unsigned char>(stroke.character));
  if (!sign || !stroke.shift) return nullptr;
  stroke.shift = false;
  return CommandOnKey(stroke);
}

}  // namespace

const Command* CommandForKey(const QKeyEvent& event) {
  // The number pad's Enter does what the main one does.
  const bool numPad = event.modifiers().testFlag(Qt::KeypadModifier) && event.key() != Qt::Key_Enter;
  const Command* command = commandOn(event, numPad);
  const bool withoutNumLock = numPad && padDigit(event.key());
  return command || !withoutNumLock ? command : commandOn(event, false);
}

}  // namespace velk
