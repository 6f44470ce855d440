#include <algorithm>

#include "base/error.h"
#include "base/text.h"
#include "textures/wad.h"
#include "textures/wad_file.h"

namespace velk {
namespace {

constexpr std::int32_t kMaxLump = 256000;  // bytes on disk
constexpr int kBlankSide = 32;
constexpr unsigned char kBlankPixel = 255;
constexpr std::int64_t kHeaderSize = 40;
constexpr std::int64_t kWidthAt = 16;
constexpr std::int64_t kHeightAt = 20;
constexpr std::int64_t kFirstMipAt = 24;
constexpr int kReportEvery = 5;  // lumps

// Entries of a directory may share their bytes, so a small file could ask for any amount of memory: all
// textures together have at most this many pixels for every byte of the file.
constexpr std::int64_t kMaxPixelsPerByte = 16;

class TextureReader {
 public:
  TextureReader(const FileBytes& file, const Palette& palette, int skySpeed, Random& random, bool forgiving)
      : file_(file),
        palette_(palette),
        skySpeed_(skySpeed),
        random_(random),
        forgiving_(forgiving),
        pixelsLeft_(file.size() * kMaxPixelsPerByte) {}

  std::unique_ptr<Texture> read(const WadLump& lump, int index) {
    auto texture = std::make_unique<Texture>();
    texture->index = index;
    texture->name = UpperCase(lump.name);
    if (lump.sizeOnDisk < 0 || lump.sizeOnDisk > kMaxLump || !readPicture(lump, *texture))
      makeBlank(*texture);
    return texture;
  }

 private:
  // False when the lump's size leaves no picture.
  bool readPicture(const WadLump& lump, Texture& texture) {
    if (forgiving_ && !isWhole(lump)) return false;
    file_.at(lump.offset, kHeaderSize);
    const std::uint32_t width = file_.uint32At(lump.offset + kWidthAt);
    const std::uint32_t height = file_.uint32At(lump.offset + kHeightAt);
    const bool sky = StartsWithNoCase(texture.name, "SKY");
    if (height == 0 || width < (sky ? 2 : 1)) return false;
    const std::string_view pixels = pixelsOf(lump, std::uint64_t{width} * height);
    texture.width = static_cast<int>(width);
    texture.height = static_cast<int>(height);
    fill(texture, pixels);
    if (sky) makeSky(texture);
    return true;
  }

  // Whether header and pixels lie in the file.
  bool isWhole(const WadLump& lump) const {
    if (!file_.holds(lump.offset, kHeaderSize)) return false;
    const std::uint64_t count =
        std::uint64_t{file_.uint32At(lump.offset + kWidthAt)} * file_.uint32At(lump.offset + kHeightAt);
    return count <= static_cast<std::uint64_t>(pixelsLeft_) &&
           file_.holds(std::int64_t{lump.offset} + file_.uint32At(lump.offset + kFirstMipAt),
                       static_cast<std::int64_t>(count));
  }

  std::string_view pixelsOf(const WadLump& lump, std::uint64_t count) {
    if (count > static_cast<std::uint64_t>(pixelsLeft_)) Error("Error:  couldn't read bits...");
    const auto size = static_cast<std::int64_t>(count);
    pixelsLeft_ -= size;
    return file_.at(std::int64_t{lump.offset} + file_.uint32At(lump.offset + kFirstMipAt), size);
  }

  void fill(Texture& texture, std::string_view pixels) const {
    texture.pixels.reserve(pixels.size() + Texture::kSparePixels);
    texture.pixels.assign(pixels.begin(), pixels.end());
    texture.averageColour = averageColour(palette_, texture.pixels);
    texture.averageIndex = nearestPaletteIndex(palette_, texture.averageColour);
    texture.pixels.resize(pixels.size() + Texture::kSparePixels);
  }

  void makeSky(Texture& texture) const {
    texture.sky = std::make_unique<SkyRecord>();
    texture.sky->pixels = std::move(texture.pixels);
    texture.sky->width = texture.width;
    texture.width /= 2;
    texture.pixels.assign(
        static_cast<size_t>(texture.width) * static_cast<size_t>(texture.height) + Texture::kSparePixels, 0);
    composeSky(texture.width, texture.height, *texture.sky, skySpeed_, texture.pixels.data());
  }

  void makeBlank(Texture& texture) {
    texture.width = texture.height = kBlankSide;
    texture.pixels.assign(kBlankSide * kBlankSide + Texture::kSparePixels, kBlankPixel);
    texture.averageColour = {255, 255, 255};
    const int red = 127 + random_.below(128);
    const int green = 127 + random_.below(128);
    const int blue = 127 + random_.below(128);
    texture.averageIndex = nearestPaletteIndex(palette_, {red, green, blue});
  }

  const FileBytes& file_;
  const Palette& palette_;
  int skySpeed_;
  Random& random_;
  bool forgiving_;
  std::int64_t pixelsLeft_;
};

void Report(const WadProgressSink& progress, WadProgress::Step step, const std::string& text, int lump,
            int lumps) {
  if (progress) progress({step, text, lump, lumps});
}

void ReportLump(const WadProgressSink& progress, const std::string& path, int lump, int lumps) {
  Report(progress, WadProgress::Step::Lump, Format("Loading %s [%i/%i] ", path.c_str(), lump, lumps), lump,
         lumps);
}

}  // namespace

void LoadTextures(std::string_view contents, Wad& wad, int skySpeed, Random& random,
                  const WadProgressSink& progress, bool forgiving) {
  if (!HasWadMark(contents)) Error("Error: %s isn't a WAD type wadfile", wad.path.c_str());
  const FileBytes file(contents);
  const std::vector<WadLump> directory = ReadWadDirectory(file);
  const int lumps = static_cast<int>(directory.size());
  Report(progress, WadProgress::Step::Start, "", 0, lumps);
  std::vector<std::unique_ptr<Texture>> textures;
  TextureReader reader(file, wad.palette, skySpeed, random, forgiving);
  for (int i = 0; i < lumps; ++i) {
    if (i % kReportEvery == 0) ReportLump(progress, wad.path, i, lumps);
    const WadLump& lump = directory[static_cast<size_t>(i)];
    if (lump.type == WAD_TEXTURE_LUMP) textures.push_back(reader.read(lump, i));
  }
  std::ranges::stable_sort(
      textures, [](const auto& a, const auto& b) { return compareTextureNames(a->name, b->name) < 0; });
  wad.textures = std::move(textures);
  Report(progress, WadProgress::Step::Done, "Done...", lumps, lumps);
}

}  // namespace velk
