#include "desktop/system/picture_file.h"

#include <QBuffer>

#include "base/files.h"

namespace velk {

// QImage's own writing to a file does not notice a full disk.
bool SavePng(const QImage& picture, const std::filesystem::path& file) {
  QBuffer png;
  if (!png.open(QBuffer::WriteOnly) || !picture.save(&png, "PNG")) return false;
  const QByteArray& bytes = png.data();
  return ReplaceFile(file, {bytes.constData(), static_cast<size_t>(bytes.size())}).ok;
}

}  // namespace velk
