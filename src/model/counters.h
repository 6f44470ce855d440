#pragma once

namespace velk {

// Model objects made and destroyed since start-up, for the status line's debug form.
struct ObjectCounters {
  long brushesConstructed = 0;
  long brushesDestroyed = 0;
  long entitiesConstructed = 0;
  long entitiesDestroyed = 0;
};

}  // namespace velk
