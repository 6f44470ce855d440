#include "textures/texture_manager.h"

#include <algorithm>
#include <new>
#include <utility>

#include "base/error.h"
#include "base/text.h"

namespace velk {
namespace {

constexpr int kBadSide = 32;

// Of the world, as many as a map may have.
std::vector<std::string> MapWadNames(const map& m) {
  std::vector<std::string> names;
  if (m.world()) names = WadNames(m.world()->valueOfKey("wad"));
  names.resize(std::min<size_t>(names.size(), MAX_MAP_WADS));
  return names;
}

}  // namespace

std::vector<std::string> WadNames(std::string_view value) {
  std::vector<std::string> names;
  for (const std::string& name : Split(value, ';')) {
    if (const std::string_view trimmed = Trimmed(name); !trimmed.empty()) names.emplace_back(trimmed);
  }
  return names;
}

TextureManager::TextureManager(const WadServices& services, std::uint32_t seed)
    : services_(services), random_(seed) {
  makeBadTexture();
}

void TextureManager::makeBadTexture() {
  const auto pixel = static_cast<unsigned char>(127 + random_.below(128));
  const auto grey = static_cast<unsigned char>(127 + random_.below(256) / 2);
  badPixels_.assign(kBadSide * kBadSide + Texture::kSparePixels, pixel);
  badtex_ = {"badtex", kBadSide, kBadSide, badPixels_.data(), {grey, grey, grey, 0}, 255};
}

void TextureManager::loadDefaultWads(const WadProgressSink& progress) {
  for (const std::string& name : WadNames(services_.settings.default_wad)) openWad(name, progress);
}

Wad& TextureManager::openWad(const std::string& name, const WadProgressSink& progress) {
  const std::string file = FileNamePart(name);
  const auto found = std::ranges::find_if(
      wads_, [&](const auto& wad) { return EqualNoCase(FileNamePart(wad->path), file); });
  if (found != wads_.end()) return **found;
  std::unique_ptr<Wad> wad(new (std::nothrow) Wad);
  if (!wad) Error("Couldn't allocate Wad in NewMap");
  LoadWad(*wad, name, services_, random_, progress);
  wads_.push_front(std::move(wad));
  ++generation_;
  return *wads_.front();
}

std::vector<Wad*> TextureManager::changedWads() const {
  std::vector<Wad*> changed;
  for (const auto& wad : wads_) {
    const FileStamp now = StampOf(services_.paths.native(wad->path));
    if (now.exists && now != wad->onDisk) changed.push_back(wad.get());
  }
  return changed;
}

void TextureManager::reload(Wad& wad, const WadProgressSink& progress) {
  // A file that cannot be read is not tried again until it changes once more.
  wad.onDisk = StampOf(services_.paths.native(wad.path));
  const std::string path = wad.path;
  LoadWad(wad, path, services_, random_, progress);
  ++generation_;
}

bool TextureManager::hasMapWads(const map& m, const TextureSet& set) const {
  return std::ranges::equal(MapWadNames(m), set.wads(), [](const std::string& name, const Wad* wad) {
    return EqualNoCase(FileNamePart(name), FileNamePart(wad->path));
  });
}

int TextureManager::openMapWads(map& m, TextureSet& set, const WadProgressSink& progress, bool keepSlots) {
  const std::vector<std::string> names = MapWadNames(m);
  const size_t before = wads_.size();
  std::vector<Wad*> wads;
  for (const std::string& name : names) wads.push_back(&openWad(name, progress));
  buildMapTextures(m, set, std::move(wads), keepSlots);
  return static_cast<int>(wads_.size() - before);
}

const Wad* TextureManager::paletteWad(const TextureSet* set) const {
  return set && !set->wads().empty() ? set->wads().front() : current();
}

void TextureManager::remapOutlineColours() {
  for (const auto& wad : wads_) wad->outlines = FindOutlines(wad->palette, services_.settings);
}

}  // namespace velk
