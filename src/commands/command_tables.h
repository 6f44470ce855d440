// The pieces of the command table, in menu order.
#pragma once

#include <span>

#include "commands/command.h"

namespace velk {

// What a row runs or asks, with the arguments after the editor: with<setGrid, 3>, holds<gridIs, 3>.
template <auto handler, auto... arguments>
void with(Editor& editor) {
  handler(editor, arguments...);
}
template <auto condition, auto... arguments>
bool holds(const Editor& editor) {
  return condition(editor, arguments...);
}

std::span<const Command> FileCommands();
std::span<const Command> EditCommands();
std::span<const Command> MapCommands();
std::span<const Command> DisplayCommands();
std::span<const Command> WindowCommands();
std::span<const Command> KeyCommands();

}  // namespace velk
