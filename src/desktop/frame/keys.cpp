#include "desktop/frame/keys.h"

#include <array>
#include <utility>

namespace velk {
namespace {

using Key = KeyStroke::Key;

constexpr std::array<std::pair<int, Key>, 14> kNamedKeys{{
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
}};

void SetKey(KeyStroke& stroke, int key) {
  for (const auto& [code, named] : kNamedKeys) {
    if (code == key) {
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

}  // namespace

KeyStroke StrokeOf(const QKeyEvent& event) {
  KeyStroke stroke;
  stroke.numPad = event.modifiers().testFlag(Qt::KeypadModifier);
  stroke.ctrl = event.modifiers().testFlag(Qt::ControlModifier);
  stroke.alt = event.modifiers().testFlag(Qt::AltModifier);
  stroke.shift = event.modifiers().testFlag(Qt::ShiftModifier);
  SetKey(stroke, event.key());
  return stroke;
}

}  // namespace velk
