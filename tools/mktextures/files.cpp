#include "files.h"

namespace velk::kit {
namespace {

constexpr int kMipLevels = 4;
constexpr size_t kNameSize = 16;
constexpr char kTexture = 'D';
constexpr char kPalette = '@';

void Put(std::string& out, size_t value, int bytes) {
  for (; bytes > 0; --bytes, value >>= 8) out.push_back(static_cast<char>(value & 0xFF));
}

void PutName(std::string& out, const std::string& name) {
  out += name;
  out.append(kNameSize - name.size(), '\0');
}

// Half the size, each pixel the mean of four. A pixel glows when most of the four do.
Image Halve(const Image& image, const Palette& palette) {
  Image half{image.width / 2, image.height / 2, {}};
  for (int y = 0; y < half.height; ++y) {
    for (int x = 0; x < half.width; ++x) {
      Rgb sum;
      int glowing = 0, holes = 0;
      for (int i = 0; i < 4; ++i) {
        const size_t at = static_cast<size_t>((2 * y + i / 2) * image.width + 2 * x + i % 2);
        const uint8_t pixel = image.pixels[at];
        const Rgb& c = palette[pixel];
        sum = {sum.r + c.r, sum.g + c.g, sum.b + c.b};
        glowing += pixel >= kFirstFullBright;
        holes += pixel == 0;
      }
      const Rgb mean{sum.r / 4, sum.g / 4, sum.b / 4};
      half.pixels.push_back(holes > 2 ? 0 : NearestColour(palette, mean, glowing > 2));
    }
  }
  return half;
}

std::string TextureLump(const NamedImage& texture, const Palette& palette) {
  std::string lump;
  PutName(lump, texture.name);
  Put(lump, static_cast<size_t>(texture.image.width), 4);
  Put(lump, static_cast<size_t>(texture.image.height), 4);
  size_t offset = kNameSize + 8 + 4 * kMipLevels;
  size_t size = texture.image.pixels.size();
  for (int level = 0; level < kMipLevels; ++level) {
    Put(lump, offset, 4);
    offset += size;
    size /= 4;
  }
  Image image = texture.image;
  for (int level = 0; level < kMipLevels; ++level) {
    lump.append(image.pixels.begin(), image.pixels.end());
    image = Halve(image, palette);
  }
  return lump;
}

std::string PaletteLump(const Palette& palette) {
  std::string lump;
  for (const Rgb& c : palette) {
    for (const int channel : {c.r, c.g, c.b}) lump.push_back(static_cast<char>(channel));
  }
  return lump;
}

struct Lump {
  std::string name;
  char type;
  std::string data;
};

void PutDirectoryEntry(std::string& out, const Lump& lump, size_t offset) {
  Put(out, offset, 4);
  Put(out, lump.data.size(), 4);
  Put(out, lump.data.size(), 4);
  Put(out, static_cast<size_t>(lump.type), 1);
  Put(out, 0, 3);
  PutName(out, lump.name);
}

}  // namespace

std::string WadFile(const Catalogue& catalogue, const Palette& palette) {
  std::vector<Lump> lumps;
  for (const NamedImage& texture : catalogue)
    lumps.push_back({texture.name, kTexture, TextureLump(texture, palette)});
  lumps.push_back({"PALETTE", kPalette, PaletteLump(palette)});
  constexpr size_t kHeaderSize = 12;
  std::string body, directory;
  for (const Lump& lump : lumps) {
    PutDirectoryEntry(directory, lump, kHeaderSize + body.size());
    body += lump.data;
  }
  std::string file = "WAD2";
  Put(file, lumps.size(), 4);
  Put(file, kHeaderSize + body.size(), 4);
  return file + body + directory;
}

std::string PaletteText(const Palette& palette) {
  std::string text;
  for (const Rgb& c : palette) {
    text += std::to_string(c.r) + ' ' + std::to_string(c.g) + ' ' + std::to_string(c.b) + '\n';
  }
  return text;
}

std::string BitmapFile(const Image& image, const Palette& palette) {
  constexpr size_t kHeaderSize = 54;
  const size_t row = (static_cast<size_t>(image.width) * 3 + 3) / 4 * 4;
  std::string file = "BM";
  Put(file, kHeaderSize + row * static_cast<size_t>(image.height), 4);
  Put(file, 0, 4);
  Put(file, kHeaderSize, 4);
  Put(file, 40, 4);
  Put(file, static_cast<size_t>(image.width), 4);
  Put(file, static_cast<size_t>(image.height), 4);
  Put(file, 1, 2);
  Put(file, 24, 2);
  Put(file, 0, 24);
  for (int y = image.height - 1; y >= 0; --y) {
    std::string line;
    for (int x = 0; x < image.width; ++x) {
      const Rgb& c = palette[image.pixels[static_cast<size_t>(y * image.width + x)]];
      for (const int channel : {c.b, c.g, c.r}) line.push_back(static_cast<char>(channel));
    }
    line.resize(row);
    file += line;
  }
  return file;
}

}  // namespace velk::kit
