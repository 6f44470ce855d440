// Making an entity of a class out of the selection.
#pragma once

#include <optional>
#include <string_view>

#include "model/map.h"

namespace velk {

enum class EntityMaking {
  Made,
  WorldNotCurrent,  // nothing was done
  NeedsSeed,        // a class built of brushes, and none to build it of: nothing was done
};

struct MadeEntity {
  EntityMaking outcome = EntityMaking::WorldNotCurrent;
  entity* made = nullptr;  // in the map and current
};

// Makes an entity of the class. A fixed-size one stands where the current brush begins, its box takes the
// place of the selection and is selected; one built of brushes takes the selected brushes. With none of
// the world's brushes selected, a fixed-size entity is put at `seedAt`, by default at the active camera.
// With careful_tools and group mode on it joins the group of what it replaces, otherwise of nothing `group`.
MadeEntity MakeEntity(map& m, std::string_view classname, std::optional<vec3> seedAt = std::nullopt,
                      int group = 0);

}  // namespace velk
