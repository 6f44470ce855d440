// The tool windows' contents, put together.
#pragma once

#include "panels/brush/brush_panel.h"
#include "panels/entities/entity_panel.h"
#include "panels/groups/group_panel.h"
#include "panels/textures/texture_panel.h"

namespace velk {

struct Panels {
  explicit Panels(const PanelContext& context)
      : textures(context), entities(context), groups(context), brush(context) {}

  TexturePanel textures;
  EntityPanel entities;
  GroupPanel groups;
  BrushPanel brush;

  // By the name that scripts and context menus use, in any case: TEXTURES, ENTITY, GROUPS, BRUSH; none
  // otherwise.
  Panel* named(std::string_view name);
};

}  // namespace velk
