// The child windows of the frame as the editor's commands know them, and their saved arrangements.
#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace velk {

// In the order in which an arrangement keeps them.
enum class ToolWindow { Camera, SelectedBrush, Entities, Textures, Groups, Plan1, Plan2, Plan3 };
inline constexpr int kToolWindows = 8;

enum class ShowState { Normal = 1, Minimised = 2, Maximised = 3 };

// Where a window stands, in pixels of the frame's area.
struct WindowPlacement {
  std::int32_t flags = 0;
  ShowState state = ShowState::Normal;
  std::array<std::int32_t, 2> minimised{};  // x, y
  std::array<std::int32_t, 2> maximised{};  // x, y
  std::array<std::int32_t, 4> normal{};     // left, top, right, bottom
  friend bool operator==(const WindowPlacement&, const WindowPlacement&) = default;
};
using Arrangement = std::array<WindowPlacement, kToolWindows>;

// The four slots of velk.pos: per window 11 little-endian 32-bit integers, no header.
struct Arrangements {
  static constexpr int kSlots = 4;
  static constexpr size_t kFileSize = 1408;

  std::array<Arrangement, kSlots> slots;
  int current = 0;      // 0..3
  bool loaded = false;  // from a file, or saved since

  std::string bytes() const;
  // None when the bytes are not an arrangement file. Rectangles without extent are left as they are read.
  static std::optional<Arrangements> Parse(std::string_view bytes);
};

// What shows the windows.
class WindowHost {
 public:
  virtual ~WindowHost() = default;
  virtual WindowPlacement placement(ToolWindow window) const = 0;
  virtual void place(ToolWindow window, const WindowPlacement& placement) = 0;
  virtual bool hasFocus(ToolWindow window) const = 0;
  // Restores a minimised window; brings it to the top and gives it the focus.
  virtual void bringToFront(ToolWindow window) = 0;
  virtual void minimise(ToolWindow window) = 0;
  virtual void cascade() = 0;
  virtual void tile() = 0;
  virtual void arrangeIcons() = 0;
  // Puts all windows where they are at a first start.
  virtual void layOut() = 0;
  // Button bars, 0 and 1.
  virtual int barCount() const { return 0; }
  virtual bool barVisible(int /*bar*/) const { return false; }
  virtual void showBar(int /*bar*/, bool /*visible*/) {}
};

// Windows that nobody sees: keeps their states for scripts and tests.
class PlainWindows : public WindowHost {
 public:
  PlainWindows();
  WindowPlacement placement(ToolWindow window) const override;
  void place(ToolWindow window, const WindowPlacement& placement) override;
  bool hasFocus(ToolWindow window) const override { return focus_ == window; }
  void bringToFront(ToolWindow window) override;
  void minimise(ToolWindow window) override;
  void cascade() override {}
  void tile() override {}
  void arrangeIcons() override {}
  void layOut() override;

 private:
  Arrangement placements_;
  std::optional<ToolWindow> focus_;
};

// The first layout of the windows in an area of that size: all visible, none over another.
Arrangement FirstLayout(int width, int height);

}  // namespace velk
