// Which brushes of a map stay as they are while a drag goes on, so that views can draw them once and the
// others with every step.
#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <vector>

#include "model/map.h"

namespace velk {

// A brush of a map is still while it is not selected and nothing of it changed since the last snapshot.
inline bool IsStill(const brush& b) { return b.kept && !b.selected(); }

class StillBrushes {
 public:
  struct Still {
    const brush* shown = nullptr;
    std::shared_ptr<const BrushShape> shape;  // that it was seen with
  };
  struct Moving {
    brush* shown = nullptr;
    std::uint32_t after = 0;  // so many still brushes of the entity stand before it
  };
  // Of an entity in the map's order; brushes that views leave out are in neither list.
  struct Part {
    const entity* owner = nullptr;
    std::uint32_t first = 0;  // still brushes of the entities before
    std::vector<Still> still;
    std::vector<Moving> moving;
    brush* firstSelected = nullptr;  // shown or not

    std::uint32_t end() const { return first + static_cast<std::uint32_t>(still.size()); }

   private:
    friend class StillBrushes;
    std::shared_ptr<const KeptEntity> kept;  // while nothing of the entity changed
  };

  // Looks at the map as it is now. Entities that did not change since the last look are passed over.
  void look(const map& m);
  // Another number after a look that found other still brushes, or what shows them otherwise: groups, filter
  // or current entity.
  int generation() const { return generation_; }

  const std::vector<Part>& parts() const { return parts_; }
  std::uint32_t stillCount() const { return parts_.empty() ? 0 : parts_.back().end(); }
  std::uint32_t movingCount() const;
  // Whether it pays to keep what stays.
  bool mostStay() const { return movingCount() * 2 < stillCount(); }
  // As map::firstSelected.
  brush* firstSelected() const;

 private:
  // What decides which brushes are shown, and how.
  struct Showing {
    const map* shown = nullptr;
    const entity* current = nullptr;
    bool groupmode = false;
    ViewFilter filter;
    GroupList groups;
  };
  bool takeShowing(const map& m);

  std::optional<Showing> showing_;
  std::vector<Part> parts_;
  int generation_ = 0;
};

}  // namespace velk
