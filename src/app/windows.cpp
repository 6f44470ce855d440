#include "app/windows.h"

#include <algorithm>
#include <span>

namespace velk {
namespace {

constexpr std::int32_t kRecordLength = 44;
// Beyond any screen; keeps what a damaged file says within what a window can be.
constexpr std::int32_t kFarthest = 8192;

size_t indexOf(ToolWindow window) { return static_cast<size_t>(window); }

void Put(std::string& bytes, std::int32_t value) {
  for (int shift = 0; shift < 32; shift += 8) {
    bytes += static_cast<char>(static_cast<std::uint32_t>(value) >> shift & 255);
  }
}

// Takes integers off the front of a text long enough.
class Integers {
 public:
  explicit Integers(std::string_view bytes) : bytes_(bytes) {}
  std::int32_t next() {
    std::uint32_t value = 0;
    for (size_t i = 0; i < 4; ++i) value |= std::uint32_t(static_cast<unsigned char>(bytes_[i])) << (8 * i);
    bytes_.remove_prefix(4);
    return static_cast<std::int32_t>(value);
  }

 private:
  std::string_view bytes_;
};

void Put(std::string& bytes, const WindowPlacement& placement) {
  Put(bytes, kRecordLength);
  Put(bytes, placement.flags);
  Put(bytes, static_cast<std::int32_t>(placement.state));
  for (const std::int32_t value : placement.minimised) Put(bytes, value);
  for (const std::int32_t value : placement.maximised) Put(bytes, value);
  for (const std::int32_t value : placement.normal) Put(bytes, value);
}

// Other show states of the record count as normal.
ShowState StateOf(std::int32_t value) {
  return value == 2 || value == 3 ? static_cast<ShowState>(value) : ShowState::Normal;
}

void TakeCoordinates(Integers& from, std::span<std::int32_t> coordinates) {
  for (std::int32_t& value : coordinates) value = std::clamp(from.next(), -kFarthest, kFarthest);
}

WindowPlacement TakePlacement(Integers& from) {
  WindowPlacement placement;
  placement.flags = from.next();
  placement.state = StateOf(from.next());
  TakeCoordinates(from, placement.minimised);
  TakeCoordinates(from, placement.maximised);
  TakeCoordinates(from, placement.normal);
  return placement;
}

WindowPlacement PlacedAt(int left, int top, int right, int bottom) {
  WindowPlacement placement;
  placement.normal = {left, top, right, bottom};
  return placement;
}

}  // namespace

std::string Arrangements::bytes() const {
  std::string bytes;
  for (const Arrangement& slot : slots) {
    for (const WindowPlacement& placement : slot) Put(bytes, placement);
  }
  return bytes;
}

std::optional<Arrangements> Arrangements::Parse(std::string_view bytes) {
  if (bytes.size() < kFileSize) return std::nullopt;
  Integers integers(bytes);
  Arrangements read;
  read.loaded = true;
  for (Arrangement& slot : read.slots) {
    for (WindowPlacement& placement : slot) {
      if (integers.next() != kRecordLength) return std::nullopt;
      placement = TakePlacement(integers);
    }
  }
  return read;
}

PlainWindows::PlainWindows() { layOut(); }

void PlainWindows::layOut() { placements_ = FirstLayout(1280, 740); }

WindowPlacement PlainWindows::placement(ToolWindow window) const { return placements_[indexOf(window)]; }

void PlainWindows::place(ToolWindow window, const WindowPlacement& placement) {
  placements_[indexOf(window)] = placement;
}

void PlainWindows::bringToFront(ToolWindow window) {
  WindowPlacement& placement = placements_[indexOf(window)];
  if (placement.state == ShowState::Minimised) placement.state = ShowState::Normal;
  focus_ = window;
}

void PlainWindows::minimise(ToolWindow window) {
  placements_[indexOf(window)].state = ShowState::Minimised;
  if (focus_ == window) focus_.reset();
}

// Plan views and camera in quarters, of which the lower right one shares its row with the selected brush; the
// other tools in a column at the right, wide enough for four flags of an entity beside each other.
Arrangement FirstLayout(int width, int height) {
  const int column = std::max(width * 2 / 3, width - std::max(344, width / 5));
  const int middle = column / 2;
  const int half = height / 2;
  const int third = column / 3;
  const int entities = height - std::clamp(height * 9 / 20, std::min(346, height * 3 / 5), 560);
  const int groups = entities - std::max(height / 8, 106);
  Arrangement layout;
  layout[indexOf(ToolWindow::Plan1)] = PlacedAt(0, 0, middle, half);
  layout[indexOf(ToolWindow::Camera)] = PlacedAt(middle, 0, column, half);
  layout[indexOf(ToolWindow::Plan2)] = PlacedAt(0, half, third, height);
  layout[indexOf(ToolWindow::Plan3)] = PlacedAt(third, half, 2 * third, height);
  layout[indexOf(ToolWindow::SelectedBrush)] = PlacedAt(2 * third, half, column, height);
  layout[indexOf(ToolWindow::Textures)] = PlacedAt(column, 0, width, groups);
  layout[indexOf(ToolWindow::Groups)] = PlacedAt(column, groups, width, entities);
  layout[indexOf(ToolWindow::Entities)] = PlacedAt(column, entities, width, height);
  return layout;
}

}  // namespace velk
