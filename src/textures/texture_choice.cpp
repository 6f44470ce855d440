#include "textures/texture_choice.h"

#include "base/text.h"

namespace velk {

std::string TextureChoice::chosenName(const std::string& name) const {
  return settings_ && settings_->careful_tools ? LowerCase(name) : name;
}

void TextureChoice::reset() {
  current_.shift[0] = current_.shift[1] = 0;
  current_.rotate = 0;
  current_.scale[0] = current_.scale[1] = 1;
}

void TextureChoice::wadLoaded() {
  currentIndex_ = 0;
  reset();
}

void TextureChoice::takeFirstTexture(const TextureSet& set) {
  if (set.count() > 0) current_.name = chosenName(set.at(0).texture->name);
}

bool TextureChoice::selectTexture(TextureSet& set, int index) {
  if (index < 0 || index >= set.count()) return false;
  currentIndex_ = index;
  set.currentName = set.at(index).texture->name;
  current_.name = chosenName(set.currentName);
  return true;
}

bool TextureChoice::liftTexture(const texturedef& definition, TextureSet* set) {
  if (EqualNoCase(definition.name, "ENTITY")) return false;
  if (set) selectTexture(*set, set->indexOf(definition.name));
  current_ = definition;
  return true;
}

}  // namespace velk
