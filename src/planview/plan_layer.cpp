#include "planview/plan_layer.h"

#include <algorithm>
#include <cstring>
#include <iterator>
#include <type_traits>

namespace velk {
namespace {

static_assert(std::has_unique_object_representations_v<ViewColours>);
bool Same(const ViewColours& a, const ViewColours& b) { return std::memcmp(&a, &b, sizeof a) == 0; }

bool Same(const clipper& a, const clipper& b) {
  return a.count == b.count && a.current == b.current &&
         std::equal(std::begin(a.points), std::end(a.points), std::begin(b.points), VecEqual);
}

}  // namespace

bool PlanLayerKey::operator==(const PlanLayerKey& other) const {
  return generation == other.generation && projection == other.projection &&
         deviceScale == other.deviceScale && normal == other.normal && grid == other.grid &&
         coordinates == other.coordinates && gridsize == other.gridsize && gridStyle == other.gridStyle &&
         Same(colours, other.colours) && Same(clip, other.clip);
}

PlanLayerKey LayerKey(const PlanViewSet& set, int view, const Settings& settings, const map& shown,
                      const StillBrushes& still, double deviceScale) {
  const PlanView& record = set.views[static_cast<size_t>(view)];
  return {.generation = still.generation(),
          .projection = set.projection(view, settings),
          .deviceScale = deviceScale,
          .normal = record.viewNormal[record.axisDepth],
          .colours = settings.colours,
          .grid = settings.show_grid,
          .coordinates = settings.show_coordinates,
          .gridsize = settings.gridsize,
          .gridStyle = settings.grid_style,
          .clip = shown.clip};
}

}  // namespace velk
