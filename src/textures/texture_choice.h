// The texture definition that commands and new brushes take, chosen in the texture browser.
#pragma once

#include <string>

#include "geometry/texturedef.h"
#include "settings/settings.h"
#include "textures/texture_set.h"

namespace velk {

class TextureChoice {
 public:
  // With settings that outlive it, names are chosen in lower case, as maps have them, when careful_tools is
  // on.
  explicit TextureChoice(const Settings* settings = nullptr) : settings_(settings) { reset(); }

  // What Set Face Texture and new brushes take.
  const texturedef& current() const { return current_; }
  void setCurrent(const texturedef& definition) { current_ = definition; }
  // Place of the current texture in the map's set.
  int currentIndex() const { return currentIndex_; }

  // Shifts and rotation 0, scales 1.
  void reset();
  // After a wad was loaded: the first texture's place, numbers reset; the name stays.
  void wadLoaded();
  // Start-up: takes the name of the set's first texture, when it has one.
  void takeFirstTexture(const TextureSet& set);

  // Makes the texture of that place current, its name that of the definition; numbers stay. Places
  // outside the set are ignored. True when there was one to select.
  bool selectTexture(TextureSet& set, int index);

  // Takes a face's definition. When the map's set (may be none) has a texture of that name, in any case,
  // it becomes current there. "ENTITY", in any case, changes nothing. True when the definition was taken.
  bool liftTexture(const texturedef& definition, TextureSet* set);

 private:
  std::string chosenName(const std::string& name) const;

  const Settings* settings_;
  texturedef current_;
  int currentIndex_ = 0;
};

}  // namespace velk
