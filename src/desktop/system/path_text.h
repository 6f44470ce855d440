// File names as texts of the toolkit and back. Names are bytes; those that are no UTF-8 survive as lone
// surrogates, which no text holds otherwise.
#pragma once

#include <QString>
#include <string>

namespace velk {

QString PathText(const std::string& path);
std::string PathBytes(const QString& text);

}  // namespace velk
