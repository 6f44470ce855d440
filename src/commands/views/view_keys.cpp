#include "commands/views/view_keys.h"

#include <optional>
#include <utility>

#include "base/text.h"

namespace velk {
namespace {

using Key = KeyStroke::Key;

constexpr std::pair<Key, DragKey> kDragKeys[] = {{Key::Escape, DragKey::Escape},
                                                 {Key::Left, DragKey::Left},
                                                 {Key::Right, DragKey::Right},
                                                 {Key::Up, DragKey::Up},
                                                 {Key::Down, DragKey::Down}};

// While a drag looks around, with any modifiers.
constexpr std::pair<char, Motion> kFlightKeys[] = {{'W', Motion::Ahead},      {'S', Motion::Astern},
                                                   {'A', Motion::StrafeLeft}, {'D', Motion::StrafeRight},
                                                   {'Q', Motion::Sink},       {'E', Motion::Rise}};

// Commands that move the camera one step, and how they go on by time.
constexpr std::pair<const char*, Motion> kMotionCommands[] = {{"CM_CAMERA_FORWARD", Motion::Forward},
                                                              {"CM_CAMERA_BACKWARD", Motion::Backward},
                                                              {"CM_CAMERA_STRAFE_LEFT", Motion::StrafeLeft},
                                                              {"CM_CAMERA_STRAFE_RIGHT", Motion::StrafeRight},
                                                              {"CM_CAMERA_RAISE", Motion::Rise},
                                                              {"CM_CAMERA_LOWER", Motion::Sink},
                                                              {"CM_CAMERA_LEFT", Motion::West},
                                                              {"CM_CAMERA_RIGHT", Motion::East},
                                                              {"CM_CAMERA_UP", Motion::North},
                                                              {"CM_CAMERA_DOWN", Motion::South},
                                                              {"CM_CAMERA_TURN_LEFT", Motion::TurnLeft},
                                                              {"CM_CAMERA_TURN_RIGHT", Motion::TurnRight},
                                                              {"CM_CAMERA_PITCH_UP", Motion::PitchUp},
                                                              {"CM_CAMERA_PITCH_DOWN", Motion::PitchDown},
                                                              {"CM_CAMERA_ROLL_UP", Motion::RollUp},
                                                              {"CM_CAMERA_ROLL_DOWN", Motion::RollDown}};

template <typename From, typename To, size_t count>
std::optional<To> Looked(const std::pair<From, To> (&table)[count], From from) {
  for (const auto& [key, value] : table) {
    if (key == from) return value;
  }
  return std::nullopt;
}

std::optional<Motion> MotionOf(const Editor& editor, const KeyStroke& stroke) {
  if (editor.input().flies()) {
    return stroke.key == Key::Character ? Looked(kFlightKeys, stroke.character) : std::nullopt;
  }
  const bool smooth = editor.settings().smooth_camera && editor.documents().currentMap();
  const Command* command = smooth ? CommandForStroke(stroke) : nullptr;
  for (const auto& [name, motion] : kMotionCommands) {
    if (command && EqualNoCase(command->name, name)) return motion;
  }
  return std::nullopt;
}

// Tells keys apart, whatever modifiers came or went since.
int NumberOf(const KeyStroke& stroke) {
  return (static_cast<int>(stroke.key) * 256 + static_cast<unsigned char>(stroke.character)) * 2 +
         (stroke.numPad ? 1 : 0);
}

// Esc ends what is dragged out of or magnified in the texture browser.
bool EndsTextureDrag(Editor& editor, const KeyStroke& stroke) {
  return stroke.key == Key::Escape && editor.panels().textures.drag() != TexturePanel::Drag::None;
}

}  // namespace

bool ViewsWantKey(Editor& editor, const KeyStroke& stroke) {
  if (EndsTextureDrag(editor, stroke)) return true;
  if (!editor.input().pointer().drag()) return MotionOf(editor, stroke).has_value();
  return Looked(kDragKeys, stroke.key) || (editor.input().flies() && MotionOf(editor, stroke));
}

bool GiveKeyToDrag(Editor& editor, const KeyStroke& stroke) {
  if (EndsTextureDrag(editor, stroke)) {
    editor.panels().textures.cancel();
    Outcome outcome;
    outcome.textures = true;
    editor.door().show(outcome);
    return true;
  }
  const auto key = Looked(kDragKeys, stroke.key);
  return key && editor.input().dragKey(*key);
}

bool GiveKeyToViews(Editor& editor, const KeyStroke& stroke) {
  if (GiveKeyToDrag(editor, stroke)) return true;
  if (editor.input().pointer().drag() && !editor.input().flies()) return false;
  const auto motion = MotionOf(editor, stroke);
  if (motion) editor.input().hold(NumberOf(stroke), *motion);
  return motion.has_value();
}

void LetGoInViews(Editor& editor, const KeyStroke& stroke) { editor.input().letGo(NumberOf(stroke)); }

}  // namespace velk
