// The operations that the bindings files name, and what a press does by them.
#pragma once

#include <span>

#include "mouse/bindings.h"
#include "mouse/drag.h"

namespace velk {

// Codes of operations beyond the classic ones begin here.
inline constexpr int kOwnOperations = 100;

struct MouseOperation {
  const char* name;
  int code;  // above 0
  ToolStart (*start)(const MouseContext&, const PointerEvent&);
  const char* help = "";   // what it does, for the manual
  const char* doing = "";  // what the status line says while it runs
  const char* keys = "";   // and what keys do meanwhile
};

// Of the plan views and of the camera view, and of one of them.
std::span<const MouseOperation> PlanOperations();
std::span<const MouseOperation> CameraOperations();
std::span<const MouseOperation> OperationsOf(int view);

// The code of the operation of that name, in any case; 0 for none.
int lookupOperation(std::span<const MouseOperation> operations, std::string_view name);

// The operation of that code; none when no operation has it.
const MouseOperation* OperationOf(std::span<const MouseOperation> operations, int code);

// What the running operation is and which keys work in it: "Moving the selection: Esc cancels". "" when the
// settings leave it without keys.
std::string HintOf(const MouseOperation& operation, const Settings& settings);

// Tries what is bound to the press in its order, up to the first that can begin or is no operation. Statuses
// of those that cannot begin are kept.
ToolStart StartBound(const MouseBindings& bindings, std::span<const MouseOperation> operations,
                     const MouseContext& context, const PointerEvent& event);

}  // namespace velk
