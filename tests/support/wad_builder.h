// Wad files made in memory.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace velk::test {

// Colour i of this palette is (i, i, i).
inline std::string GreyPalette() {
  std::string bytes;
  for (int i = 0; i < 256; ++i) bytes.append(3, static_cast<char>(i));
  return bytes;
}

inline std::string LittleEndian(std::uint32_t value) {
  std::string bytes;
  for (int shift = 0; shift < 32; shift += 8) bytes += static_cast<char>((value >> shift) & 255);
  return bytes;
}

inline std::string TextureLump(std::uint32_t width, std::uint32_t height, std::string_view pixels,
                               std::uint32_t firstMip = 40) {
  std::string lump(16, '\0');
  lump += LittleEndian(width) + LittleEndian(height) + LittleEndian(firstMip);
  lump.append(12, '\0');
  return lump.append(pixels);
}

class WadBuilder {
 public:
  WadBuilder& lump(std::string name, char type, const std::string& bytes, int sizeOnDisk = -2) {
    name.resize(16);
    std::string entry = LittleEndian(static_cast<std::uint32_t>(12 + data_.size()));
    entry += LittleEndian(
        static_cast<std::uint32_t>(sizeOnDisk == -2 ? static_cast<int>(bytes.size()) : sizeOnDisk));
    entry += LittleEndian(static_cast<std::uint32_t>(bytes.size())) + type + std::string(3, '\0') + name;
    data_ += bytes;
    directory_ += entry;
    return *this;
  }
  WadBuilder& texture(const std::string& name, std::uint32_t width, std::uint32_t height,
                      std::string_view pixels) {
    return lump(name, 'D', TextureLump(width, height, pixels));
  }
  // One colour.
  WadBuilder& texture(const std::string& name, std::uint32_t width = 2, std::uint32_t height = 2,
                      int pixel = 7) {
    return texture(name, width, height, std::string(size_t{width} * height, static_cast<char>(pixel)));
  }
  WadBuilder& palette(const std::string& bytes = GreyPalette()) { return lump("PALETTE", '@', bytes); }

  std::string bytes(const std::string& mark = "WAD2") const {
    const auto lumps = static_cast<std::uint32_t>(directory_.size() / 32);
    const auto directory = static_cast<std::uint32_t>(12 + data_.size());
    return mark + LittleEndian(lumps) + LittleEndian(directory) + data_ + directory_;
  }

 private:
  std::string data_;
  std::string directory_;
};

}  // namespace velk::test
