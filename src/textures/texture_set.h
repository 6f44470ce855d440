// The textures of one map: those of all its wads in one order, looked up by name.
#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "geometry/texture_ref.h"
#include "model/map.h"
#include "textures/wad.h"

namespace velk {

inline constexpr int MAX_MAP_WADS = 8;

// A texture of the set. The head of an animation stands for all of its frames.
struct SetTexture {
  Texture* texture = nullptr;
  std::vector<Texture*> frames;  // the head and those that follow; empty without animation
  int currentFrame = 0;          // 0..frames.size()-1
  int useCount = 0;              // faces of the map, as last counted
  // The pixels of the current frame, for references to follow; a frame of another size shows the head's.
  const unsigned char* shownPixels = nullptr;
  mutable bool referenced = false;  // a face has a reference to it

  bool animated() const { return !frames.empty(); }
  bool isSky() const { return texture->sky != nullptr; }
  const Texture& shown() const { return animated() ? *frames[static_cast<size_t>(currentFrame)] : *texture; }
  // On to the next frame; after the last comes the first.
  void advance();
};

class TextureSet {
 public:
  // badtex stands in for textures not found; it must outlive the set.
  explicit TextureSet(const TextureRef& badtex) : badtex_(&badtex) {}

  // Merges the wads' textures. Of equal names the first wad's counts. The wads must outlive the set, or
  // it must be built anew; so must face caches then (see DropTextureCaches).
  void build(std::vector<Wad*> wads);
  bool built() const { return built_; }

  const std::vector<Wad*>& wads() const { return wads_; }
  int count() const { return static_cast<int>(textures_.size()); }
  const SetTexture& at(int index) const { return textures_[static_cast<size_t>(index)]; }
  SetTexture& at(int index) { return textures_[static_cast<size_t>(index)]; }

  // The place of the texture of that name, in any case; frames of an animation lead to its head. Wads hold
  // 15 characters: a longer name that is not found leads to the texture of its first 15. -1 when there is
  // none.
  int find(std::string_view name) const;
  // The same for names of the set's own textures only.
  int indexOf(std::string_view name) const;
  Texture* findTexture(std::string_view name) const;

  // A new reference for a face; to badtex when the name is not found, none when the set is not built.
  std::unique_ptr<TextureRef> makeTextureRef(std::string_view name) const;

  std::string currentName;  // the texture last chosen in this map

  // The textures used most, as places in the set, most used first; see recalculateFrequents.
  std::vector<int> frequents;

 private:
  void merge();
  void groupAnimations();
  void indexNames();

  const TextureRef* badtex_;
  std::vector<Wad*> wads_;
  std::vector<SetTexture> textures_;
  std::unordered_map<std::string, int> places_;  // upper case names, frames included
  bool built_ = false;
};

// Builds the map's set and settles its favourites: the ones it names, of which those that are in the set
// count, with careful_tools also the others, until their wad is there again; or, when it has no slots yet,
// the first textures. Afterwards it has numfav slots, the free ones empty. Face caches are dropped. No memory
// is fatal "Couldn't allocate favorites...". keepSlots: of a map that is open already, whose favourites stay
// where they are, whether found or not.
void buildMapTextures(map& m, TextureSet& set, std::vector<Wad*> wads, bool keepSlots = false);

// Favourites are kept in the map, by name. The place in the set of the one in a slot, -1 for a free slot.
int FavouriteAt(const map& m, const TextureSet& set, int slot);
// Slots from 0 to numfav - 1.
void SetFavourite(map& m, int slot, std::string_view name);

// Counts how many faces use each texture and finds the numfrq used most.
void recalculateFrequents(const map& m, TextureSet& set);

// Faces look their textures up anew.
void DropTextureCaches(map& m);

}  // namespace velk
