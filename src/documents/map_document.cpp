#include "documents/map_document.h"

namespace velk {

bool MapDocument::isChanged() {
  if (!model.settings().ask_when_changed) return model.modified;
  return saved && !SameContents(*saved, TakeSnapshot(model));
}

std::string MarkedName(MapDocument& document, const std::string& name) {
  return document.model.settings().ask_when_changed && document.isUnsaved() ? name + " *" : name;
}

// The map counts as modified when this is undone.
void TakeOver(MapDocument& open, MapDocument& fresh) {
  RestoreSnapshot(open.model, TakeSnapshot(fresh.model), false);
  open.model.favourites = fresh.model.favourites;
  open.model.modified = false;
  ++open.model.saves;
  open.textures = std::move(fresh.textures);
  DropTextureCaches(open.model);
  open.saved = TakeSnapshot(open.model);
  open.onDisk = fresh.onDisk;
  open.seenOnDisk = fresh.seenOnDisk;
  open.fileDiffers = false;
}

}  // namespace velk
