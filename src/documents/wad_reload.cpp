#include "documents/wad_reload.h"

#include "base/text.h"

namespace velk {
namespace {

constexpr const char* kReload = "Velk - Reload Wads";

// Everything that points into the textures of a wad points somewhere else afterwards.
void RebuildSets(Documents& documents) {
  for (int i = 0; i < documents.count(); ++i) {
    MapDocument& document = *documents.at(i);
    const bool counted = !document.textures.frequents.empty();
    std::vector<Wad*> wads = document.textures.wads();
    buildMapTextures(document.model, document.textures, std::move(wads), true);
    if (counted) recalculateFrequents(document.model, document.textures);
  }
}

}  // namespace

void ReloadWads(Documents& documents, Door& door, TextureManager& textures, const std::vector<Wad*>& wads) {
  if (door.dragRuns() || wads.empty()) return;
  int read = 0;
  for (Wad* wad : wads) {
    const std::string failure = Format("Couldn't read %s\n\n", wad->path.c_str());
    if (!door.attempt(kReload, failure, [&] { textures.reload(*wad, {}); })) continue;
    RebuildSets(documents);
    ++read;
  }
  if (read == 0) return;
  Outcome outcome =
      Outcome::Drawn(Redraw::Camera, read == 1 ? "Wad read again..." : Format("%i wads read again...", read));
  outcome.textures = true;
  door.show(outcome);
}

}  // namespace velk
