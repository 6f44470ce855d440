#include "commands/command.h"

#include "base/text.h"
#include "commands/command_tables.h"

namespace velk {

std::span<const Command> Commands() {
  static const std::vector<Command> kAll = [] {
    std::vector<Command> rows;
    for (const auto piece :
         {FileCommands(), EditCommands(), SelectCommands(), MakeCommands(), TextureCommands(),
          ExportCommands(), MapCommands(), DisplayCommands(), WindowCommands(), KeyCommands()}) {
      rows.insert(rows.end(), piece.begin(), piece.end());
    }
    return rows;
  }();
  return kAll;
}

const Command* FindCommand(int id) {
  for (const Command& command : Commands()) {
    if (command.id == id) return &command;
  }
  return nullptr;
}

const Command* FindCommand(std::string_view nameOrNumber) {
  if (nameOrNumber.empty()) return nullptr;
  if (nameOrNumber.find_first_not_of("0123456789") == std::string_view::npos) {
    return FindCommand(TextToInt(nameOrNumber));
  }
  for (const Command& command : Commands()) {
    if (*command.name && EqualNoCase(command.name, nameOrNumber)) return &command;
  }
  return nullptr;
}

std::string PlainLabel(const Command& command) {
  std::string label;
  for (const char* c = command.label; *c; ++c) {
    if (*c != '&') label += *c;
  }
  while (label.ends_with('.')) label.pop_back();
  return label;
}

}  // namespace velk
