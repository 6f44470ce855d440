// Brush files (.bru): loose brushes for reuse, each with the comment of its group.
#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "base/paths.h"
#include "model/map.h"

namespace velk {

inline constexpr const char* kBrushFilter = "Bru Files (*.bru)|*.bru|";

// The selected brushes of every entity, in their order.
std::string BrushFileText(const map& m);

struct BrushReadOptions {
  int group = 0;       // of the brushes; the file's group comments do not count
  bool whole = false;  // a text that ends inside a brush is refused
};

// The valid brushes of a file, selected and owned by the world of `m`, which they are not in yet. Fatal:
// "ReadBrushFile:  Couldn't read [%s]...", "parsing brush file, ( expected", "parsing brush file, )
// expected", what the tokenizer finds wrong, a brush of more than MAX_FACES faces.
std::vector<std::unique_ptr<brush>> ReadBrushFile(map& m, const Paths& paths, const std::string& name,
                                                  const BrushReadOptions& options);
std::vector<std::unique_ptr<brush>> ReadBrushText(map& m, std::string_view text, const std::string& name,
                                                  const BrushReadOptions& options);

}  // namespace velk
