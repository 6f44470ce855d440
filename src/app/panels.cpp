#include "app/panels.h"

#include "base/text.h"

namespace velk {

Panel* Panels::named(std::string_view name) {
  if (EqualNoCase(name, "TEXTURES")) return &textures;
  if (EqualNoCase(name, "ENTITY")) return &entities;
  if (EqualNoCase(name, "GROUPS")) return &groups;
  if (EqualNoCase(name, "BRUSH")) return &brush;
  if (EqualNoCase(name, "BUILD")) return &build;
  return nullptr;
}

}  // namespace velk
