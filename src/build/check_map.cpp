#include "build/check_map.h"

#include <algorithm>
#include <cmath>

#include "base/text.h"
#include "build/check_brushes.h"
#include "build/check_entities.h"

namespace velk {
namespace {

using Mend = CheckFinding::Mend;

void RemoveFaces(brush& b) {
  std::erase_if(b.editFaces(), [](const face& f) { return f.polygon == nullptr; });
  b.buildWindings();
}

void RemoveEntity(map& m, entity& e) {
  if (!e.isWorld()) m.removeEntity(&e);
}

}  // namespace

std::vector<CheckFinding> CheckMap(map& m, const TextureSet& textures) {
  std::vector<CheckFinding> findings;
  CheckBrushes(m, textures, findings);
  CheckEntities(m, findings);
  return findings;
}

bool MendFinding(map& m, const CheckFinding& finding) {
  if (finding.mend == Mend::None || !finding.stillThere()) return false;
  switch (finding.mend) {
    case Mend::RemoveBrush:
      DestroyBrush(*finding.found);
      break;
    case Mend::RemoveFaces:
      RemoveFaces(*finding.found);
      break;
    case Mend::RemoveEntity:
      RemoveEntity(m, *finding.owner);
      break;
    case Mend::None:
      break;
  }
  m.modified = true;
  return true;
}

}  // namespace velk
