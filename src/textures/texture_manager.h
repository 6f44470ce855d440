// All wads loaded since start-up; maps share them.
#pragma once

#include <deque>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "geometry/texture_ref.h"
#include "textures/colormap.h"
#include "textures/texture_set.h"
#include "textures/wad.h"

namespace velk {

// The file names of a "wad" value; empty ones (";;", a ';' at the end) name nothing.
std::vector<std::string> WadNames(std::string_view value);

class TextureManager {
 public:
  // What the services name must outlive the manager. Equal seeds give equal pictures.
  explicit TextureManager(const WadServices& services, std::uint32_t seed = 1);
  TextureManager(const TextureManager&) = delete;
  TextureManager& operator=(const TextureManager&) = delete;

  // Start-up: the wads of `default_wad`.
  void loadDefaultWads(const WadProgressSink& progress);

  // Start-up: the light table beside the entity definitions.
  void loadColormap() { colormap_ = velk::loadColormap(services_); }
  const ColormapTable* colormap() const { return colormap_.get(); }

  // The wad of that file name (folders and case do not count), loaded when it is not yet there; it then
  // becomes the current one.
  Wad& openWad(const std::string& name, const WadProgressSink& progress);
  // Finds or loads the wads of the world's "wad" value (file names parted by ';', at most 8) and builds
  // the map's textures. Returns how many wads were loaded.
  // keepSlots: see buildMapTextures.
  int openMapWads(map& m, TextureSet& set, const WadProgressSink& progress, bool keepSlots = false);
  // Whether the set was built of the wads that the world's "wad" value names by now.
  bool hasMapWads(const map& m, const TextureSet& set) const;

  // The wads whose files are others than when they were read. Those that are gone stay as they are.
  std::vector<Wad*> changedWads() const;
  // Reads a wad's file again, in its place; sets built of it must be built anew at once, and references of
  // faces dropped. Fatal as LoadWad is; the wad is unchanged then.
  void reload(Wad& wad, const WadProgressSink& progress);
  // Changes when textures were read: pictures made of them are out of date.
  int generation() const { return generation_; }
  // With a user there, damaged textures are blank instead of fatal.
  void setForgiving(bool forgiving) { services_.forgiving = forgiving; }

  // Newest first.
  const std::deque<std::unique_ptr<Wad>>& wads() const { return wads_; }
  // The one last loaded; none at first.
  Wad* current() const { return wads_.empty() ? nullptr : wads_.front().get(); }
  // Whose palette and outlines a map is drawn with: its first wad's, or the current one's when it has
  // none. None when nothing was loaded. The set may be none.
  const Wad* paletteWad(const TextureSet* set) const;

  // After a change of the three outline colours in the settings.
  void remapOutlineColours();

  // The picture of textures that are not found, 32 by 32.
  const TextureRef& badtex() const { return badtex_; }

 private:
  void makeBadTexture();

  WadServices services_;
  Random random_;
  std::deque<std::unique_ptr<Wad>> wads_;
  std::unique_ptr<ColormapTable> colormap_;
  std::vector<unsigned char> badPixels_;
  TextureRef badtex_;
  int generation_ = 0;
};

}  // namespace velk
