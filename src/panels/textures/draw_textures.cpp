#include "panels/textures/draw_textures.h"

#include <algorithm>
#include <array>

#include "base/text.h"

namespace velk {
namespace {

constexpr int kNameFont = 12;  // pixels
constexpr int kTitleFont = 9;
constexpr int kTitleLeft = 2;
constexpr int kBadge = 6;  // side of the mark on textures in use
constexpr Colour kAnimatedName{255, 255, 0};
constexpr Colour kBadgeColour{96, 220, 112};
constexpr Colour kBadgeEdge{0, 0, 0};

class Painter {
 public:
  Painter(TexturePanel& panel, const Settings& settings, const TextureDrawing& drawing)
      : panel_(panel), settings_(settings), drawing_(drawing), layout_(panel.layout()), set_(panel.set()) {}

  void grid() {
    current_ = panel_.currentPlace();
    const PixelRect area{0, layout_.gridTop, panel_.width(), panel_.height() - layout_.gridTop};
    clear(area);
    if (panel_.shown().empty()) return sayEmpty();
    const int first = panel_.scroll() / layout_.cellHeight * layout_.columns;
    const int rows = area.height / layout_.cellHeight + 2;
    const int last = std::min(first + rows * layout_.columns, layout_.count);
    for (int i = first; i < last; ++i) cell({TexturePlace::Kind::Grid, i}, area);
  }

  void rows() {
    clear({0, layout_.headerHeight, panel_.width(), layout_.gridTop - layout_.headerHeight});
    row(layout_.favourites, TexturePlace::Kind::Favourite, "Favorites");
    row(layout_.frequents, TexturePlace::Kind::Frequent, "Frequent");
  }

 private:
  void clear(const PixelRect& area) { drawing_.canvas.fill(area, settings_.colours.bgcolor); }

  void sayEmpty() {
    const char* why = panel_.search().empty() ? "No textures..." : "Nothing is called that...";
    drawing_.canvas.text(why, {6, layout_.gridTop + 4}, kNameFont, settings_.colours.fgcolor, nullptr);
  }

  void row(const TextureRow& row, TexturePlace::Kind kind, const char* title) {
    if (!row.shown) return;
    drawing_.canvas.text(title, {kTitleLeft, row.top}, kTitleFont, settings_.colours.fgcolor, nullptr);
    for (int i = 0; i < row.cells; ++i) {
      const PixelRect thumbnail = layout_.thumbnail({kind, i}, 0);
      if (thumbnail.left >= panel_.width()) return;
      cell({kind, i}, {0, 0, panel_.width(), panel_.height()});
    }
  }

  void cell(const TexturePlace& place, const PixelRect& clip) {
    const PixelRect at = layout_.thumbnail(place, panel_.scroll());
    const int texture = panel_.textureAt(place);
    const bool target = panel_.drag() != TexturePanel::Drag::None && panel_.over() == place &&
                        place.kind == TexturePlace::Kind::Favourite;
    if (texture < 0)
      return outline(at, target ? settings_.colours.color_textureselection : settings_.colours.minorgrid);
    const SetTexture& entry = set_.at(texture);
    const Texture& shown = entry.shown();
    const ThumbnailSize size = ThumbnailSizeOf(shown.width, shown.height, at.width, at.height, settings_);
    DrawThumbnail(drawing_.pixels, shown, drawing_.colours, size, {at.left, at.top}, clip);
    const bool inGrid = place.kind == TexturePlace::Kind::Grid;
    if (inGrid && panel_.isUsed(texture)) badge({at.left + std::min(size.width, at.width), at.top});
    if (target || (inGrid && texture == current_)) outline(at, settings_.colours.color_textureselection);
    if (settings_.show_tex_names) name(entry, at);
  }

  void badge(Pixel corner) {
    const PixelRect edge{corner.x - kBadge - 1, corner.y + 1, kBadge, kBadge};
    drawing_.canvas.fill(edge, kBadgeEdge);
    drawing_.canvas.fill({edge.left + 1, edge.top + 1, kBadge - 2, kBadge - 2}, kBadgeColour);
  }

  void outline(const PixelRect& at, Colour colour) {
    const int right = at.left + at.width - 1;
    const int bottom = at.top + at.height - 1;
    const std::array<Pixel, 4> corners{
        Pixel{at.left, at.top}, {right, at.top}, {right, bottom}, {at.left, bottom}};
    drawing_.canvas.polygon({colour, 1}, corners);
  }

  // Cut where the next one begins.
  void name(const SetTexture& entry, const PixelRect& at) {
    std::string text = entry.texture->name;
    if (entry.animated()) text.erase(0, 2);
    const int room = at.width + 2 * layout_.margin - 2;
    while (text.size() > 1 && drawing_.canvas.textWidth(text, kNameFont) > room) text.pop_back();
    const Colour colour = entry.animated() ? kAnimatedName : settings_.colours.fgcolor;
    drawing_.canvas.text(text, {at.left, at.top + at.height + 1}, kNameFont, colour, nullptr);
  }

  TexturePanel& panel_;
  const Settings& settings_;
  const TextureDrawing& drawing_;
  const TextureLayout& layout_;
  const TextureSet& set_;
  int current_ = -1;
};

}  // namespace

// The rows cover what the grid has scrolled under them.
void DrawTextures(TexturePanel& panel, const Settings& settings, const TextureDrawing& drawing) {
  Painter painter(panel, settings, drawing);
  painter.grid();
  painter.rows();
}

void DrawTextureHeader(TexturePanel& panel, const Settings& settings, Canvas& canvas) {
  const int height = panel.layout().headerHeight;
  const ViewColours& colours = settings.colours;
  canvas.fill({0, 0, panel.width(), height + 1}, colours.bgcolor);
  canvas.text(panel.label(), {kTitleLeft, 1}, kNameFont, colours.fgcolor, nullptr);
  int left = settings.tex_label_width + 2;
  for (int i = 0; i < kTextureFields; ++i) {
    const auto field = static_cast<TextureField>(i);
    const std::string text =
        Format("%s %s", kTextureFieldLabels[i], TextureFieldText(panel.choice(), field).c_str());
    canvas.text(text, {left, 1}, kNameFont, colours.fgcolor, nullptr);
    left += settings.tex_field_width;
  }
}

PixelRect MagnifierArea(TexturePanel& panel, const Settings& settings) {
  const int header = panel.layout().headerHeight;
  if (!settings.careful_tools || panel.dragged() < 0) return {0, 0, panel.width(), header};
  const Texture& texture = *panel.set().at(panel.dragged()).texture;
  const auto within = [&](int side, int room) {
    return std::clamp(Truncate(side * panel.magnification()), 1, std::max(1, room));
  };
  return {0, 0, within(texture.width, panel.width()), within(texture.height, panel.height())};
}

void DrawMagnified(TexturePanel& panel, const Settings& settings, const TextureDrawing& drawing) {
  if (panel.drag() != TexturePanel::Drag::Magnifier || panel.dragged() < 0) return;
  const PixelRect area = MagnifierArea(panel, settings);
  const Texture& texture = *panel.set().at(panel.dragged()).texture;
  const auto magnified = [&](int side) { return Truncate(side * panel.magnification()); };
  drawing.canvas.fill(area, settings.colours.bgcolor);
  DrawThumbnail(drawing.pixels, texture, drawing.colours,
                {magnified(texture.width), magnified(texture.height), texture.width, texture.height}, {0, 0},
                area);
}

}  // namespace velk
