#include <algorithm>

#include "base/text.h"
#include "panels/textures/texture_panel.h"

namespace velk {
namespace {

constexpr int kSmallest = 4;  // sides of thumbnails, pixels
constexpr int kLargest = 256;
constexpr int kStep = 4;

MenuItem Item(const char* label, std::function<void()> run) {
  MenuItem item;
  item.label = label;
  item.run = std::move(run);
  return item;
}

MenuItem::Check Checked(bool on) { return on ? MenuItem::Check::On : MenuItem::Check::Off; }

}  // namespace

void TexturePanel::reset() {
  context_.texture.reset();
  tell();
}

void TexturePanel::askSize() {
  followSettings();
  const auto answer =
      context_.services.prompts.input({.title = "Change Texture Size...",
                                       .prompt = "New Texture Width/Height [4 - 256]?",
                                       .text = Format("%i", std::max(thumbnailWidth_, thumbnailHeight_))});
  const int side = answer ? TextToInt(*answer) : 0;
  if (side < kSmallest || side > kLargest) return;
  thumbnailWidth_ = thumbnailHeight_ = side;
  tell();
}

void TexturePanel::resizeThumbnails(int step) {
  followSettings();
  const int least = std::min(thumbnailWidth_, thumbnailHeight_);
  const int most = std::max(thumbnailWidth_, thumbnailHeight_);
  if (step < 0 ? least < kSmallest + 2 * kStep : most > kLargest - kStep) return;
  thumbnailWidth_ += step;
  thumbnailHeight_ += step;
  settings().texture_width = normalWidth_ = thumbnailWidth_;
  settings().texture_height = normalHeight_ = thumbnailHeight_;
  tell();
}

void TexturePanel::toggleSmall() {
  followSettings();
  small_ = !small_;
  thumbnailWidth_ = small_ ? settings().t_small_w : normalWidth_;
  thumbnailHeight_ = small_ ? settings().t_small_h : normalHeight_;
  if (small_) namesBefore_ = settings().show_tex_names;
  settings().show_tex_names = !small_ && namesBefore_;
  tell();
}

void TexturePanel::toggle(bool Settings::*setting) {
  settings().*setting = !(settings().*setting);
  tell();
}

MenuItem TexturePanel::check(const char* label, bool Settings::*setting) {
  MenuItem item = Item(label, [this, setting] { toggle(setting); });
  item.check = Checked(settings().*setting);
  return item;
}

Menu TexturePanel::contextMenu() {
  MenuItem small = Item("Small Thumbnails", [this] { toggleSmall(); });
  small.check = Checked(small_);
  return {Item("Reset", [this] { reset(); }),
          Item("Recalculate Frequents", [this] { recalculateFrequents(); }),
          MenuItem::Separator(),
          Item("Set Thumbnail Size", [this] { askSize(); }),
          Item("Smaller Thumbnails", [this] { resizeThumbnails(-kStep); }),
          Item("Bigger Thumbnails", [this] { resizeThumbnails(kStep); }),
          small,
          check("Animate", &Settings::animate),
          MenuItem::Separator(),
          check("Animate Sky", &Settings::t_animatesky),
          check("Favorites", &Settings::show_favorites),
          check("Frequents", &Settings::show_frequent),
          check("Stretch", &Settings::stretch_textures),
          check("Names", &Settings::show_tex_names)};
}

}  // namespace velk
