// Selecting what the user sees: by a click, which can go deeper, and by a rectangle.
#pragma once

#include <vector>

#include "model/map.h"
#include "ops/view_axes.h"

namespace velk {

// The shown brushes that a ray meets, those of other entities than the world first when asked, the nearest
// first. A click takes the first.
std::vector<brush*> LookAlongRay(const map& m, const vec3& start, const vec3& end, bool entitiesFirst);

// Selects one brush instead of all others; its entity becomes current. None: deselects everything, and the
// world becomes current.
void SelectOnly(map& m, brush* b);
// Selects the brush besides the others or deselects it. A selected one's entity becomes current.
void AddOrRemove(map& m, brush& b);

// The corners of a rectangle on two axes of the world.
struct ViewRectangle {
  ViewAxes axes;
  double lowU = 0;
  double lowV = 0;
  double highU = 0;
  double highV = 0;
};
// Selects the shown brushes that lie in the rectangle as the view shows it, or that touch it; without `add`
// instead of all others. When nothing of the current entity is selected then, the last one's entity becomes
// current. Returns how many brushes lie there.
int SelectInRectangle(map& m, const ViewRectangle& rectangle, bool touching, bool add);

}  // namespace velk
