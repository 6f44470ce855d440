// The pieces of the command table, in menu order, and what their rows share.
#pragma once

#include <span>
#include <type_traits>

#include "commands/command.h"

namespace velk {

// What a row runs or asks, with arguments of its own: With<SetGrid, 3>, Holds<GridIs, 3>.
template <auto handler, auto... arguments>
constexpr Handler MakeHandler() {
  if constexpr (std::is_invocable_v<decltype(handler), Editor&, map&, decltype(arguments)...>) {
    return +[](Editor& editor, map& m) -> Outcome { return handler(editor, m, arguments...); };
  } else {
    return +[](Editor& editor) -> Outcome { return handler(editor, arguments...); };
  }
}
template <auto handler, auto... arguments>
inline constexpr Handler With = MakeHandler<handler, arguments...>();

template <auto condition, auto... arguments>
bool Holds(const Editor& editor) {
  return condition(editor, arguments...);
}

// When a command can be given.
bool MapOpen(const Editor& editor);
// The current entity has a selected brush.
bool SelectionInEntity(const Editor& editor);

std::span<const Command> FileCommands();
std::span<const Command> EditCommands();
std::span<const Command> SelectCommands();
std::span<const Command> MakeCommands();
std::span<const Command> TextureCommands();
std::span<const Command> ExportCommands();
std::span<const Command> MapCommands();
std::span<const Command> DisplayCommands();
std::span<const Command> WindowCommands();
std::span<const Command> KeyCommands();

}  // namespace velk
