#include "app/window_places.h"

#include "base/files.h"
#include "base/text.h"

namespace velk {
namespace {

ToolWindow ToolAt(int index) { return static_cast<ToolWindow>(index); }

std::string ArrangementFile(const Settings& settings) { return settings.entity_qc_directory + "velk.pos"; }

}  // namespace

void WindowPlaces::load() {
  if (const auto kept = readKept()) arrangements_ = *kept;
}

std::optional<Arrangements> WindowPlaces::readKept() {
  const std::filesystem::path file = services_.paths.native(ArrangementFile(services_.settings));
  const ReadResult read = ReadFile(file);
  unreadable_ = !read.ok && StampOf(file).exists;
  return read.ok ? Arrangements::Parse(read.contents) : std::nullopt;
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
  constexpr const char* kFailure = "Window arrangement:  couldn't open velk.pos...";
  // Another editor may have saved other slots meanwhile.
  if (const auto kept = readKept()) arrangements_.slots = kept->slots;
  if (unreadable_) return Outcome::Drawn(Redraw::All, kFailure);
  Arrangement& taken = arrangements_.slots[static_cast<size_t>(slot)];
  for (int i = 0; i < kToolWindows; ++i) taken[static_cast<size_t>(i)] = windows_->placement(ToolAt(i));
  const WriteResult written =
      ReplaceFile(services_.paths.native(ArrangementFile(services_.settings)), arrangements_.bytes());
  if (!written.ok) {
    return Outcome::Drawn(Redraw::All, kFailure);
  }
  arrangements_.loaded = true;
  return Outcome::Drawn(Redraw::All, Format("Window arrangement %i saved...", slot + 1));
}

}  // namespace velk
