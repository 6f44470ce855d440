// The pieces of the command table, in menu order.
#pragma once

#include <span>

#include "app/command.h"

namespace velk {

std::span<const Command> FileCommands();
std::span<const Command> EditCommands();
std::span<const Command> MapCommands();
std::span<const Command> DisplayCommands();
std::span<const Command> WindowCommands();
std::span<const Command> KeyCommands();

}  // namespace velk
