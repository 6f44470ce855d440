#include "panels/textures/texture_panel.h"

#include <algorithm>

#include "base/text.h"
#include "ops/face_textures.h"
#include "panels/textures/texture_filter.h"

namespace velk {

TexturePanel::TexturePanel(const PanelContext& context) : Panel(context), loose_(context.textures.badtex()) {}

void TexturePanel::resize(int width, int height) {
  width_ = width;
  height_ = height;
}

std::string TexturePanel::caption() const {
  const Wad* wad = context_.textures.current();
  return wad ? Format("[Texture - %s]", wad->path.c_str()) : "Textures";
}

TextureSet& TexturePanel::set() {
  if (MapDocument* document = context_.documents.current()) return document->textures;
  if (looseGeneration_ != context_.textures.generation()) {
    std::vector<Wad*> wads;
    for (const auto& wad : context_.textures.wads()) wads.insert(wads.begin(), wad.get());
    loose_.build(std::move(wads));
    looseGeneration_ = context_.textures.generation();
  }
  return loose_;
}

// The sizes of the settings count from when they change; until then the menu may have chosen others.
void TexturePanel::followSettings() {
  if (normalWidth_ == settings().texture_width && normalHeight_ == settings().texture_height) return;
  normalWidth_ = settings().texture_width;
  normalHeight_ = settings().texture_height;
  if (small_) return;
  thumbnailWidth_ = normalWidth_;
  thumbnailHeight_ = normalHeight_;
}

// Whatever chose another texture: the grid shows it.
void TexturePanel::followChoice() {
  const std::string& name = context_.texture.current().name;
  if (EqualNoCase(name, followed_)) return;
  followed_ = name;
  const auto found = std::ranges::find(shown_, currentPlace());
  if (found != shown_.end())
    scroll_ = layout_.scrollToShow(static_cast<int>(found - shown_.begin()), scroll_);
}

void TexturePanel::countUses() {
  const MapDocument* document = context_.documents.current();
  const int generation = context_.textures.generation();
  const bool sameSet = usesOf_ == document && usesGeneration_ == generation &&
                       std::ssize(uses_) == (document ? set().count() : 0);
  if (!usesStale_ && sameSet) return;
  usesGeneration_ = generation;
  usesOf_ = document;
  usesStale_ = false;
  uses_ = document ? CountTextureUses(document->model, document->textures) : std::vector<int>{};
}

const TextureLayout& TexturePanel::layout() {
  followSettings();
  countUses();
  shown_ = FilterTextures({set(), uses_}, search_);
  layout_ = TextureLayout(
      {width_, height_, thumbnailWidth_, thumbnailHeight_, static_cast<int>(shown_.size())}, settings());
  followChoice();
  scroll_ = std::clamp(scroll_, 0, layout_.scrollRange());
  return layout_;
}

int TexturePanel::textureAt(const TexturePlace& place) {
  const auto index = static_cast<size_t>(place.index);
  switch (place.kind) {
    case TexturePlace::Kind::Grid:
      return place.index >= 0 && index < shown_.size() ? shown_[index] : -1;
    case TexturePlace::Kind::Favourite:
      return currentMap() ? FavouriteAt(*currentMap(), set(), place.index) : -1;
    case TexturePlace::Kind::Frequent:
      return place.index >= 0 && index < set().frequents.size() ? set().frequents[index] : -1;
    case TexturePlace::Kind::None:
      break;
  }
  return -1;
}

bool TexturePanel::isUsed(int place) const {
  return place >= 0 && place < std::ssize(uses_) && uses_[static_cast<size_t>(place)] > 0;
}

int TexturePanel::currentPlace() { return set().find(context_.texture.current().name); }

void TexturePanel::setScroll(int pixels) { scroll_ = std::clamp(pixels, 0, layout().scrollRange()); }

void TexturePanel::wheel(int notches) { setScroll(scroll_ - notches * layout().cellHeight); }

void TexturePanel::tell() {
  Outcome outcome;
  outcome.textures = true;
  context_.door.show(outcome);
}

void TexturePanel::selectTexture(int place) {
  if (!context_.texture.selectTexture(set(), place)) return;
  followed_.clear();
  layout();
  tell();
}

bool TexturePanel::chooseName(const std::string& name) {
  const int place = set().find(name);
  if (place < 0) return false;
  selectTexture(place);
  return true;
}

void TexturePanel::applyToSelection() {
  map* m = currentMap();
  if (!m) return;
  context_.door.perform({.name = "Set Brush Texture"}, [&]() -> Outcome {
    if (SetBrushTexture(*m, context_.texture.current()) == 0) return {};
    return Outcome::Drawn(Redraw::All, "Current texture applied to brush...");
  });
}

void TexturePanel::step(TextureField field, int direction) {
  StepTextureField(context_.texture, field, direction);
  tell();
}

void TexturePanel::setField(TextureField field, double value) {
  SetTextureField(context_.texture, field, value);
  tell();
}

void TexturePanel::setSearch(const std::string& words) {
  if (AsksForUses(words)) contentsChanged();
  search_ = words;
  scroll_ = 0;
  followed_.clear();
  tell();
}

void TexturePanel::recalculateFrequents() {
  if (!currentMap() || set().count() == 0) return;
  velk::recalculateFrequents(*currentMap(), set());
  contentsChanged();
  tell();
}

// True when a face may show the change.
bool TexturePanel::advance(SetTexture& texture) {
  if (texture.animated()) texture.advance();
  SkyRecord* sky = texture.texture->sky.get();
  if (sky && settings().t_animatesky) {
    composeSky(texture.texture->width, texture.texture->height, *sky, settings().t_skyspeed,
               texture.texture->pixels.data());
  }
  return texture.referenced && (texture.animated() || (sky && settings().t_animatesky));
}

// Only what the grid shows moves; careful tools keep what the map's faces show moving, too.
std::vector<int> TexturePanel::movingPlaces() {
  const TextureLayout& at = layout();
  const int first = std::min(scroll_ / at.cellHeight * at.columns, at.count);
  const int last = std::min(first + (at.visibleRows + 1) * at.columns, at.count);
  std::vector<int> places(shown_.begin() + first, shown_.begin() + last);
  const TextureSet& all = set();
  for (int i = 0; i < all.count() && settings().careful_tools; ++i) {
    if (all.at(i).referenced && std::ranges::find(places, i) == places.end()) places.push_back(i);
  }
  std::erase_if(places, [&](int place) { return !all.at(place).animated() && !all.at(place).isSky(); });
  return places;
}

bool TexturePanel::tick() {
  if (!currentMap() || minimised()) return false;
  const std::vector<int> places = movingPlaces();
  bool inCamera = false;
  for (const int place : places) inCamera |= advance(set().at(place));
  if (inCamera && settings().drawmode == kTexturedMode) {
    Changes changes;
    changes.camera = true;
    context_.services.observer.changed(changes);
  }
  return !places.empty();
}

}  // namespace velk
