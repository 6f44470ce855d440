// The button bars of velkbars.ini as plain data, and the texture list that a bar may hold.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

#include "commands/command.h"

namespace velk {

class Editor;

struct BarGadget {
  enum class Kind { Button, Separator, TextureList };
  Kind kind = Kind::Separator;
  const Command* command = nullptr;  // of a button
};
using ButtonBar = std::vector<BarGadget>;

// What a file can ask for at most; what goes beyond is left out.
inline constexpr int kMaxBars = 32;
inline constexpr int kMaxBarGadgets = 256;

// Reads "bars N", then records of "bar", a bar's number from 1 and a command's name, "Separator" or
// "TextureList". Unknown names and numbers are skipped; the first thing that is no record ends the reading.
// Fatal: no "bars" at the start, no number after it.
std::vector<ButtonBar> ParseButtonBars(std::string_view text);
// The bars of the velkbars.ini in a folder. A missing file is fatal.
std::vector<ButtonBar> LoadButtonBars(const std::filesystem::path& folder);

// The tool tip of a command's button: the hint, or the label where there is none, and the key text.
std::string ButtonTip(const Command& command);

// The names to choose from: the textures of the current map or, while none is open, of the wad last loaded.
std::vector<std::string> TextureListNames(Editor& editor);
// Makes the texture current. Names that are not in the list are ignored.
void ChooseTexture(Editor& editor, const std::string& name);

}  // namespace velk
