// Pictures written to files.
#pragma once

#include <QImage>
#include <filesystem>

namespace velk {

// As PNG, whatever the file's name. False when it could not be written; the file is then as it was.
bool SavePng(const QImage& picture, const std::filesystem::path& file);

}  // namespace velk
