#include "base/text.h"
#include "panels/textures/texture_panel.h"

namespace velk {

bool TexturePanel::pick(int line) {
  layout();
  const int texture = textureAt({TexturePlace::Kind::Grid, line});
  if (texture < 0) return false;
  selectTexture(texture);
  return true;
}

bool TexturePanel::control(const std::string& name, const std::string& value) {
  if (EqualNoCase(name, "name")) return chooseName(value);
  if (EqualNoCase(name, "search")) {
    setSearch(value);
    return true;
  }
  if (const auto field = TextureFieldNamed(name)) {
    if (value.empty()) return false;
    setField(*field, TextToDouble(value));
    return true;
  }
  if (name.empty() || !value.empty() || (name.back() != '+' && name.back() != '-')) return false;
  const auto field = TextureFieldNamed(std::string_view(name).substr(0, name.size() - 1));
  if (field) step(*field, name.back() == '+' ? 1 : -1);
  return field.has_value();
}

std::string TexturePanel::rowLine(const char* title, TexturePlace::Kind kind, int cells) {
  std::string line = title;
  for (int i = 0; i < cells; ++i) {
    const int texture = textureAt({kind, i});
    line += ' ' + (texture < 0 ? "-" : set().at(texture).texture->name);
  }
  return line;
}

std::vector<std::string> TexturePanel::printed() {
  contentsChanged();
  const TextureLayout& at = layout();
  const texturedef& t = context_.texture.current();
  return {"current " + t.name,
          Format("def %g %g %g %g %g", double(t.shift[0]), double(t.shift[1]), double(t.rotate),
                 double(t.scale[0]), double(t.scale[1])),
          label_.empty() ? "label" : "label " + label_,
          rowLine("favorites", TexturePlace::Kind::Favourite, settings().numfav),
          rowLine("frequents", TexturePlace::Kind::Frequent, settings().numfrq),
          Format("grid %d %d %d", at.columns, at.visibleRows, scroll_ / at.cellHeight)};
}

}  // namespace velk
