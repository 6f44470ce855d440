#include <algorithm>
#include <cstdlib>

#include "base/text.h"
#include "panels/textures/texture_panel.h"

namespace velk {
namespace {

constexpr double kMagnifyStep = 0.05;  // a pixel
constexpr double kMostMagnified = 12;

}  // namespace

std::string TexturePanel::labelOf(const TexturePlace& place) {
  const int texture = textureAt(place);
  if (texture < 0) return "";
  const SetTexture& shown = set().at(texture);
  std::string text =
      Format("%s %ix%i", shown.texture->name.c_str(), shown.texture->width, shown.texture->height);
  if (place.kind == TexturePlace::Kind::Frequent && shown.useCount > 0) text += Format(" %i", shown.useCount);
  return text;
}

void TexturePanel::press(Pixel at, bool shift, bool ctrl) {
  using enum TexturePlace::Kind;
  const TexturePlace place = layout().at(at, scroll_);
  const int texture = textureAt(place);
  drag_ = {};
  if (texture < 0 || (shift && place.kind != Grid)) return;
  drag_ = {.kind = Drag::Grid,
           .texture = texture,
           .apply = ctrl,
           .from = at,
           .of = context_.documents.current(),
           .generation = context_.textures.generation()};
  if (place.kind == Favourite) drag_.kind = Drag::Favourites;
  if (place.kind == Frequent) drag_.kind = Drag::Frequents;
  if (!shift) return;
  drag_.kind = Drag::Magnifier;
  magnify(at);
}

bool TexturePanel::isStale(const DragState& drag) const {
  return drag.of != context_.documents.current() || drag.generation != context_.textures.generation();
}

void TexturePanel::magnify(Pixel at) {
  const int way = std::abs(at.x - drag_.from.x) + std::abs(at.y - drag_.from.y);
  drag_.magnification = std::clamp(kMagnifyStep * way + 1, 1.0, kMostMagnified);
  const Texture& shown = *set().at(drag_.texture).texture;
  label_ = Format("%s %ix%i %3.1fx", shown.name.c_str(), shown.width, shown.height, drag_.magnification);
}

void TexturePanel::move(Pixel at) {
  const TextureLayout& current = layout();
  if (isStale(drag_) || drag_.texture >= set().count()) cancel();
  if (drag_.kind == Drag::Magnifier) {
    magnify(at);
  } else {
    over_ = current.at(at, scroll_);
    label_ = labelOf(over_);
  }
}

void TexturePanel::leave() {
  over_ = {};
  if (drag_.kind == Drag::None) label_.clear();
}

void TexturePanel::release(Pixel at) {
  const DragState drag = isStale(drag_) ? DragState{} : drag_;
  drag_ = {};
  const TexturePlace place = layout().at(at, scroll_);
  if (drag.kind == Drag::Magnifier) {
    label_ = labelOf(place);
    tell();
  } else if (drag.kind != Drag::None && drag.texture < set().count()) {
    dropOn(place, drag);
  }
}

// A texture of the grid or of the frequents becomes the favourite it is dropped on; otherwise what lies where
// the button goes up is chosen.
void TexturePanel::dropOn(const TexturePlace& place, const DragState& drag) {
  int chosen = textureAt(place);
  const bool pinned = drag.kind == Drag::Grid || drag.kind == Drag::Frequents;
  map* m = currentMap();
  if (m && pinned && place.kind == TexturePlace::Kind::Favourite) {
    chosen = drag.texture;
    context_.door.perform({.name = "Favorite"}, [&]() -> Outcome {
      SetFavourite(*m, place.index, set().at(chosen).texture->name);
      m->modified = true;
      return {};
    });
  }
  if (chosen < 0) return;
  selectTexture(chosen);
  if (drag.apply) applyToSelection();
}

}  // namespace velk
