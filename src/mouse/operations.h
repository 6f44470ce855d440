// The operations that the bindings files name, and what a press does by them.
#pragma once

#include <span>

#include "mouse/bindings.h"
#include "mouse/drag.h"

namespace velk {

struct MouseOperation {
  const char* name;
  int code;  // above 0
  ToolStart (*start)(const MouseContext&, const PointerEvent&);
};

// Of the plan views and of the camera view.
std::span<const MouseOperation> PlanOperations();
std::span<const MouseOperation> CameraOperations();

// The code of the operation of that name, in any case; 0 for none.
int lookupOperation(std::span<const MouseOperation> operations, std::string_view name);

// Tries what is bound to the press in its order, up to the first that can begin or is no operation. Statuses
// of those that cannot begin are kept.
ToolStart StartBound(const MouseBindings& bindings, std::span<const MouseOperation> operations,
                     const MouseContext& context, const PointerEvent& event);

}  // namespace velk
