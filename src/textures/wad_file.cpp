#include "textures/wad_file.h"

#include <algorithm>

#include "base/error.h"

namespace velk {
namespace {

constexpr std::int64_t kLumpCountAt = 4;
constexpr std::int64_t kDirectoryAt = 8;
constexpr std::int64_t kEntrySize = 32;
constexpr std::int64_t kNameAt = 16;
constexpr std::int64_t kNameSize = 16;

WadLump ReadEntry(const FileBytes& file, std::int64_t at) {
  // A name that fills its field leaves out its last character, where the terminator belongs.
  const std::string_view field = file.at(at + kNameAt, kNameSize - 1);
  return {file.int32At(at), file.int32At(at + 4), file.at(at + 12, 1)[0],
          std::string(field.substr(0, field.find('\0')))};
}

}  // namespace

std::string_view FileBytes::at(std::int64_t offset, std::int64_t size) const {
  if (!holds(offset, size)) Error("Error:  couldn't read bits...");
  return contents_.substr(static_cast<size_t>(offset), static_cast<size_t>(size));
}

std::uint32_t FileBytes::uint32At(std::int64_t offset) const {
  std::uint32_t value = 0;
  const std::string_view bytes = at(offset, 4);
  for (size_t i = 0; i < 4; ++i) value |= std::uint32_t{static_cast<unsigned char>(bytes[i])} << (8 * i);
  return value;
}

bool HasWadMark(std::string_view contents) { return contents.starts_with("WAD"); }

std::vector<WadLump> ReadWadDirectory(const FileBytes& file) {
  const std::int64_t count = file.int32At(kLumpCountAt);
  const std::int64_t start = file.int32At(kDirectoryAt);
  file.at(start, count * kEntrySize);
  std::vector<WadLump> lumps;
  lumps.reserve(static_cast<size_t>(count));
  for (std::int64_t i = 0; i < count; ++i) lumps.push_back(ReadEntry(file, start + i * kEntrySize));
  return lumps;
}

}  // namespace velk
