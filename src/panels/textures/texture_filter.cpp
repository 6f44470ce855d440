#include "panels/textures/texture_filter.h"

#include <algorithm>
#include <numeric>

#include "base/text.h"

namespace velk {
namespace {

constexpr std::string_view kUsed = "#USED";
constexpr std::string_view kWad = "#WAD:";

std::vector<std::string> WordsOf(const std::string& search) {
  std::vector<std::string> words = Split(UpperCase(search), ' ');
  std::erase(words, "");
  return words;
}

std::string FileName(const Wad& wad) {
  const size_t slash = wad.path.find_last_of("\\/");
  return UpperCase(slash == std::string::npos ? wad.path : wad.path.substr(slash + 1));
}

class Search {
 public:
  Search(const TextureFilterSource& source, const std::string& search) : source_(source) {
    for (std::string& word : WordsOf(search)) {
      if (word == kUsed) {
        used_ = true;
      } else if (word.starts_with(kWad)) {
        wads_.push_back(texturesOf(word.substr(kWad.size())));
      } else {
        words_.push_back(std::move(word));
      }
    }
  }

  bool takes(int place) const {
    const SetTexture& texture = source_.set.at(place);
    if (used_ && !isUsed(place)) return false;
    for (const auto& wad : wads_) {
      if (!std::ranges::binary_search(wad, texture.texture)) return false;
    }
    return std::ranges::all_of(words_, [&](const std::string& word) { return named(texture, word); });
  }

 private:
  bool isUsed(int place) const {
    return place < std::ssize(source_.uses) && source_.uses[static_cast<size_t>(place)] > 0;
  }

  static bool named(const SetTexture& texture, const std::string& word) {
    const auto has = [&](const Texture* each) { return each->name.find(word) != std::string::npos; };
    return has(texture.texture) || std::ranges::any_of(texture.frames, has);
  }

  std::vector<const Texture*> texturesOf(const std::string& name) const {
    std::vector<const Texture*> textures;
    for (const Wad* wad : source_.set.wads()) {
      if (FileName(*wad).find(name) == std::string::npos) continue;
      for (const auto& texture : wad->textures) textures.push_back(texture.get());
    }
    std::ranges::sort(textures);
    return textures;
  }

  const TextureFilterSource& source_;
  bool used_ = false;
  std::vector<std::vector<const Texture*>> wads_;
  std::vector<std::string> words_;
};

}  // namespace

std::vector<int> FilterTextures(const TextureFilterSource& source, const std::string& search) {
  std::vector<int> places(static_cast<size_t>(source.set.count()));
  std::iota(places.begin(), places.end(), 0);
  const Search wanted(source, search);
  std::erase_if(places, [&](int place) { return !wanted.takes(place); });
  return places;
}

bool AsksForUses(const std::string& search) {
  return std::ranges::any_of(WordsOf(search), [](const std::string& word) { return word == kUsed; });
}

std::vector<int> CountTextureUses(const map& m, const TextureSet& set) {
  std::vector<int> uses(static_cast<size_t>(set.count()), 0);
  // Faces of one texture mostly follow each other.
  const std::string* last = nullptr;
  int place = -1;
  for (const entity& e : m.entities()) {
    for (const brush& b : e.brushes()) {
      for (const face& f : b.faces()) {
        if (!last || *last != f.texture.name) place = set.find(f.texture.name);
        last = &f.texture.name;
        if (place >= 0) ++uses[static_cast<size_t>(place)];
      }
    }
  }
  return uses;
}

}  // namespace velk
