// What the frame remembers between runs, in the section [Frame] of the state file.
#pragma once

#include <QMainWindow>
#include <filesystem>

namespace velk {

// Gives the frame, not yet shown, the size, place and bars of the last run, as far as they fit the screens
// and bars of this one. What is not remembered stays as it is.
void RestoreFrame(QMainWindow& frame, const std::filesystem::path& stateFile);

// Keeps what others remember in the file. Failures are passed over.
void RememberFrame(const QMainWindow& frame, const std::filesystem::path& stateFile);

}  // namespace velk
