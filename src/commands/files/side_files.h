// Brush files and merge files: what is read into the current map and written from it beside its own file.
#pragma once

#include <string>

#include "app/editor.h"

namespace velk {

inline constexpr const char* kCannotLoadBrushes = "Velk - Cannot Load Brushes";
inline constexpr const char* kCannotMerge = "Velk - Cannot Merge";

// Those that ask for the file.
Outcome SaveBrushes(Editor& editor, map& m);
Outcome LoadBrushes(Editor& editor, map& m);
Outcome MergeIn(Editor& editor, map& m);
Outcome MergeOut(Editor& editor, map& m);
Outcome SaveClipboard(Editor& editor, map& m);

// Those that know it.
Outcome LoadBrushFile(Editor& editor, map& m, const std::string& path);
Outcome MergeFile(Editor& editor, map& m, const std::string& path);

}  // namespace velk
