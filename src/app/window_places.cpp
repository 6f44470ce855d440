#include "app/window_places.h"

#include "base/files.h"
#include "base/text.h"

namespace velk {
namespace {

ToolWindow ToolAt(int index) { return static_cast<ToolWindow>(index); }

std::string ArrangementFile(const Settings& settings) { return settings.entity_qc_directory + "velk.pos"; }

}  // namespace

void WindowPlaces::load() {
  const std::string file = ArrangementFile(services_.settings);
  if (!services_.paths.exists(file)) return;
  const ReadResult read = ReadFile(services_.paths.native(file));
  if (!read.ok) return;
  if (auto parsed = Arrangements::Parse(read.contents)) arrangements_ = *parsed;
}

// Slots that were never saved hold no places, only zeros.
bool WindowPlaces::isSaved(int slot) const {
  return arrangements_.loaded && arrangements_.slots[static_cast<size_t>(slot)] != Arrangement{};
}

Outcome WindowPlaces::apply() {
  if (!arrangements_.loaded) return {};
  const Arrangement& slot = arrangements_.slots[static_cast<size_t>(arrangements_.current)];
  for (int i = 0; i < kToolWindows; ++i) windows_->place(ToolAt(i), slot[static_cast<size_t>(i)]);
  Outcome outcome;
  outcome.textures = true;
  return outcome;
}

Outcome WindowPlaces::use(int slot) {
  arrangements_.current = slot;
  return apply();
}

Outcome WindowPlaces::save(int slot) {
  Arrangement& taken = arrangements_.slots[static_cast<size_t>(slot)];
  for (int i = 0; i < kToolWindows; ++i) taken[static_cast<size_t>(i)] = windows_->placement(ToolAt(i));
  const WriteResult written =
      ReplaceFile(services_.paths.native(ArrangementFile(services_.settings)), arrangements_.bytes());
  if (!written.ok) {
    return Outcome::Drawn(Redraw::All, "Window arrangement:  couldn't open velk.pos...");
  }
  arrangements_.loaded = true;
  return Outcome::Drawn(Redraw::All, Format("Window arrangement %i saved...", slot + 1));
}

}  // namespace velk
