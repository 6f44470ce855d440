// The tool windows' contents, put together.
#pragma once

#include "panels/brush/brush_panel.h"
#include "panels/build/build_panel.h"
#include "panels/entities/entity_panel.h"
#include "panels/groups/group_panel.h"
#include "panels/textures/texture_panel.h"

namespace velk {

struct Panels {
  Panels(const PanelContext& context, BuildTools& tools)
      : textures(context), entities(context), groups(context), brush(context), build(context, tools) {}

  TexturePanel textures;
  EntityPanel entities;
  GroupPanel groups;
  BrushPanel brush;
  BuildPanel build;

  // By the name that scripts and context menus use, in any case: TEXTURES, ENTITY, GROUPS, BRUSH, BUILD; none
  // otherwise.
  Panel* named(std::string_view name);
};

}  // namespace velk
