#include "desktop/system/path_text.h"

#include <algorithm>
#include <utility>

namespace velk {
namespace {

constexpr char16_t kByte = 0xDC00;  // stands before the value of a byte
constexpr qsizetype kLongestCharacter = 4;

bool IsByte(QChar c) { return c.unicode() >= kByte + 0x80 && c.unicode() <= kByte + 0xFF; }

// The first character of the bytes; empty when they do not begin with one.
QString FirstCharacter(QByteArrayView bytes) {
  for (qsizetype length = 1; length <= std::min(kLongestCharacter, bytes.size()); ++length) {
    const QByteArrayView piece = bytes.first(length);
    QString text = QString::fromUtf8(piece);
    if (text.toUtf8() == piece) return text;
  }
  return {};
}

}  // namespace

QString PathText(const std::string& path) {
  QString text;
  for (QByteArrayView rest(path); !rest.isEmpty();) {
    const QString character = FirstCharacter(rest);
    text +=
        character.isEmpty() ? QString(QChar(kByte + static_cast<unsigned char>(rest.front()))) : character;
    rest = rest.sliced(character.isEmpty() ? 1 : character.toUtf8().size());
  }
  return text;
}

std::string PathBytes(const QString& text) {
  std::string bytes;
  QString whole;  // characters up to the next lone byte
  const auto flush = [&] { bytes += std::exchange(whole, {}).toUtf8().toStdString(); };
  for (const QChar c : text) {
    if (!IsByte(c) || (!whole.isEmpty() && whole.back().isHighSurrogate())) {
      whole += c;
      continue;
    }
    flush();
    bytes += static_cast<char>(c.unicode() - kByte);
  }
  flush();
  return bytes;
}

}  // namespace velk
