#include "textures/texture_set.h"

#include <algorithm>
#include <new>
#include <utility>

#include "base/error.h"
#include "base/text.h"

namespace velk {
namespace {

constexpr size_t kLongestName = 15;  // that a wad holds

bool IsAnimationName(std::string_view name) { return name.starts_with('+') || name.starts_with('@'); }

std::string_view WithoutFrameMark(std::string_view name) {
  return name.substr(std::min<size_t>(2, name.size()));
}

bool InSameAnimation(const Texture& head, const Texture& follower) {
  return IsAnimationName(head.name) && IsAnimationName(follower.name) &&
         EqualNoCase(WithoutFrameMark(head.name), WithoutFrameMark(follower.name));
}

// The wad whose next texture comes first; none when all are used up.
size_t NextWad(const std::vector<Wad*>& wads, const std::vector<size_t>& cursors) {
  size_t first = wads.size();
  auto name = [&](size_t w) -> const std::string& { return wads[w]->textures[cursors[w]]->name; };
  for (size_t w = 0; w < wads.size(); ++w) {
    if (cursors[w] == wads[w]->textures.size()) continue;
    if (first == wads.size() || compareTextureNames(name(w), name(first)) < 0) first = w;
  }
  return first;
}

}  // namespace

void SetTexture::advance() {
  currentFrame = (currentFrame + 1) % static_cast<int>(frames.size());
  const Texture& frame = shown();
  const bool fits = frame.width == texture->width && frame.height == texture->height;
  shownPixels = (fits ? frame : *texture).pixels.data();
}

void TextureSet::build(std::vector<Wad*> wads) {
  wads_ = std::move(wads);
  textures_.clear();
  places_.clear();
  frequents.clear();
  merge();
  groupAnimations();
  indexNames();
  built_ = true;
}

void TextureSet::merge() {
  std::vector<size_t> cursors(wads_.size(), 0);
  for (size_t w = NextWad(wads_, cursors); w < wads_.size(); w = NextWad(wads_, cursors)) {
    Texture* texture = wads_[w]->textures[cursors[w]++].get();
    if (textures_.empty() || compareTextureNames(textures_.back().texture->name, texture->name) != 0) {
      SetTexture& added = textures_.emplace_back();
      added.texture = texture;
      added.shownPixels = texture->pixels.data();
    }
  }
}

void TextureSet::groupAnimations() {
  std::vector<SetTexture> grouped;
  for (SetTexture& each : textures_) {
    if (grouped.empty() || !InSameAnimation(*grouped.back().texture, *each.texture)) {
      grouped.push_back(std::move(each));
      continue;
    }
    SetTexture& head = grouped.back();
    if (head.frames.empty()) head.frames.push_back(head.texture);
    head.frames.push_back(each.texture);
  }
  textures_ = std::move(grouped);
}

void TextureSet::indexNames() {
  for (int i = 0; i < count(); ++i) {
    places_.emplace(at(i).texture->name, i);
    for (const Texture* frame : at(i).frames) places_.emplace(frame->name, i);
  }
}

int TextureSet::find(std::string_view name) const {
  std::string wanted = UpperCase(name);
  auto found = places_.find(wanted);
  if (found == places_.end() && wanted.size() > kLongestName) {
    wanted.resize(kLongestName);
    found = places_.find(wanted);
  }
  return found == places_.end() ? -1 : found->second;
}

int TextureSet::indexOf(std::string_view name) const {
  const int place = find(name);
  if (place < 0) return -1;
  const std::string& own = at(place).texture->name;
  return EqualNoCase(own, name) || EqualNoCase(own, name.substr(0, kLongestName)) ? place : -1;
}

Texture* TextureSet::findTexture(std::string_view name) const {
  const int place = find(name);
  return place < 0 ? nullptr : at(place).texture;
}

std::unique_ptr<TextureRef> TextureSet::makeTextureRef(std::string_view name) const {
  if (!built_) return nullptr;
  const int place = find(name);
  if (place < 0) return std::make_unique<TextureRef>(*badtex_);
  const SetTexture& found = at(place);
  const Texture* texture = found.texture;
  found.referenced = true;
  auto ref = std::make_unique<TextureRef>();
  ref->name = texture->name;
  ref->width = texture->width;
  ref->height = texture->height;
  ref->pixels = texture->pixels.data();
  if (found.animated()) ref->frame = &found.shownPixels;
  const Colour& colour = texture->averageColour;
  ref->colour = {static_cast<unsigned char>(colour.red), static_cast<unsigned char>(colour.green),
                 static_cast<unsigned char>(colour.blue), 0};
  ref->paletteIndex = texture->averageIndex;
  return ref;
}

void buildMapTextures(map& m, TextureSet& set, std::vector<Wad*> wads, bool keepSlots) {
  DropTextureCaches(m);
  try {
    set.build(std::move(wads));
  } catch (const std::bad_alloc&) {
    Error("Couldn't allocate favorites...");
  }
  const int slots = std::max(0, m.settings().numfav);
  std::vector<std::string> favourites;
  for (const std::string& name : m.favourites) {
    if ((name.empty() && !keepSlots) || std::ssize(favourites) >= slots) continue;
    const Texture* texture = set.findTexture(name);
    if (texture || keepSlots || m.settings().careful_tools)
      favourites.push_back(texture ? texture->name : name);
  }
  if (m.favourites.empty()) {
    for (int i = 0; i < std::min(slots, set.count()); ++i) favourites.push_back(set.at(i).texture->name);
  }
  favourites.resize(static_cast<size_t>(slots));
  m.favourites = std::move(favourites);
}

int FavouriteAt(const map& m, const TextureSet& set, int slot) {
  if (slot < 0 || slot >= std::ssize(m.favourites)) return -1;
  const std::string& name = m.favourites[static_cast<size_t>(slot)];
  return name.empty() ? -1 : set.find(name);
}

void SetFavourite(map& m, int slot, std::string_view name) {
  if (slot < 0 || slot >= m.settings().numfav) return;
  const size_t place = static_cast<size_t>(slot);
  if (place >= m.favourites.size()) m.favourites.resize(place + 1);
  m.favourites[place] = name;
}

namespace {

void CountUses(const map& m, TextureSet& set) {
  for (int i = 0; i < set.count(); ++i) set.at(i).useCount = 0;
  for (const entity& e : m.entities()) {
    for (const brush& b : e.brushes()) {
      for (const face& f : b.faces()) {
        const int place = set.indexOf(f.texture.name);
        if (place >= 0) ++set.at(place).useCount;
      }
    }
  }
}

}  // namespace

void recalculateFrequents(const map& m, TextureSet& set) {
  CountUses(m, set);
  std::vector<int> order(static_cast<size_t>(set.count()));
  for (size_t i = 0; i < order.size(); ++i) order[i] = static_cast<int>(i);
  auto uses = [&](size_t i) { return set.at(order[i]).useCount; };

  set.frequents.clear();
  const size_t shown = std::min(order.size(), static_cast<size_t>(std::max(0, m.settings().numfrq)));
  for (size_t i = 0; i < shown; ++i) {
    // Exchanging with every larger one, not only with the largest, decides the order among equals.
    for (size_t j = i + 1; j < order.size(); ++j) {
      if (uses(j) > uses(i)) std::swap(order[i], order[j]);
    }
    if (uses(i) == 0) return;
    set.frequents.push_back(order[i]);
  }
}

void DropTextureCaches(map& m) {
  for (entity& e : m.entities()) {
    for (brush& b : e.brushes()) {
      for (const face& f : b.faces()) f.cache.reset();
    }
  }
}

}  // namespace velk
