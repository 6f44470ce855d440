// Splitting a brush by the plane of a face.
#pragma once

#include <memory>

#include "model/brush.h"

namespace velk {

// The same face seen from its other side.
face TurnedRound(face f);

struct SplitParts {
  std::unique_ptr<brush> front;  // none when there is nothing of it
  std::unique_ptr<brush> back;
};

// Both parts of the brush, which stays as it is. They are in no list, have the brush's owner, group and
// selection, and on the new faces its first face's texture. A full brush is fatal "addFace: numfaces ==
// MAX_FACES".
SplitParts splitByFace(const face& f, const brush& b);

// A copy that is nobody's undo copy, not rebuilt yet.
std::unique_ptr<brush> FreshCopy(const brush& b);

}  // namespace velk
