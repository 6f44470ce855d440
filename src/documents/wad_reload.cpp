#include "documents/wad_reload.h"

#include "base/error.h"
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
  std::string failures;
  for (Wad* wad : wads) {
    const auto why = door.trapped([&] { textures.reload(*wad, {}); });
    if (why) failures += Format("Couldn't read %s\n\n%s\n", wad->path.c_str(), why->c_str());
    if (!why) ++read;
  }
  // Before anybody looks: what was read took the place of what the sets point into.
  if (read > 0) RebuildSets(documents);
  if (!failures.empty()) door.attempt(kReload, "", [&] { Error("%s", failures.c_str()); });
  if (read == 0) return;
  Outcome outcome =
      Outcome::Drawn(Redraw::Camera, read == 1 ? "Wad read again..." : Format("%i wads read again...", read));
  outcome.textures = true;
  door.show(outcome);
}

}  // namespace velk
