// The editor's texts as those of the toolkit and back.
#pragma once

#include <QString>
#include <string>

namespace velk {

inline QString ShownText(const std::string& text) { return QString::fromLocal8Bit(text.c_str()); }
inline std::string GivenText(const QString& text) { return text.toLocal8Bit().toStdString(); }

}  // namespace velk
