// The bytes of a wad file and its directory; every place is checked before it is read.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace velk {

// A view of a whole file. Numbers are little-endian.
class FileBytes {
 public:
  explicit FileBytes(std::string_view contents) : contents_(contents) {}

  std::int64_t size() const { return static_cast<std::int64_t>(contents_.size()); }

  bool holds(std::int64_t offset, std::int64_t size) const {
    return offset >= 0 && size >= 0 && offset <= this->size() && size <= this->size() - offset;
  }
  // The bytes of that place; fatal "Error:  couldn't read bits..." when the file has them not all.
  std::string_view at(std::int64_t offset, std::int64_t size) const;
  std::uint32_t uint32At(std::int64_t offset) const;
  std::int32_t int32At(std::int64_t offset) const { return static_cast<std::int32_t>(uint32At(offset)); }

 private:
  std::string_view contents_;
};

struct WadLump {
  std::int32_t offset = 0;
  std::int32_t sizeOnDisk = 0;
  char type = 0;
  std::string name;  // at most 15 characters
};

inline constexpr char WAD_TEXTURE_LUMP = 'D';

bool HasWadMark(std::string_view contents);

// In file order. Fatal "Error:  couldn't read bits..." when the directory does not lie in the file.
std::vector<WadLump> ReadWadDirectory(const FileBytes& file);

}  // namespace velk
