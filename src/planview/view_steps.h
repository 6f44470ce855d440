// Grid size and zoom of the plan views, and the menus of their header strip. Each operation changes the
// settings and returns the status text to post; the plan views are to be redrawn after it.
#pragma once

#include <array>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "model/map.h"
#include "settings/settings.h"

namespace velk {

inline constexpr double kMinScale = 1.0 / 64;
inline constexpr double kMaxScale = 16;

struct ScalePreset {
  float scale;
  const char* menuLabel;  // in the header strip's menu
  const char* name;       // in the menu bar and in the status text
};
inline constexpr std::array<ScalePreset, 11> kScalePresets{{{0.015625f, "1/64", "1/64"},
                                                            {0.03125f, "1/32", "1/32"},
                                                            {0.0625f, "1/16", "1/16"},
                                                            {0.125f, "1/8", "1/8"},
                                                            {0.25f, "25%", "1/4"},
                                                            {0.5f, "50%", "1/2"},
                                                            {1.0f, "100%", "1"},
                                                            {2.0f, "200%", "2"},
                                                            {4.0f, "400%", "4"},
                                                            {8.0f, "800%", "8"},
                                                            {16.0f, "1600%", "16"}}};
inline constexpr std::array<int, 9> kGridPresets{1, 2, 4, 8, 16, 32, 64, 128, 256};

// preset: index into kScalePresets.
std::string SetScalePreset(Settings& settings, int preset);
std::string ScaleUp(Settings& settings);
std::string ScaleDown(Settings& settings);
// The percentage typed into the "other scale" box, limited to 1..1600. Empty text changes nothing and
// gives no status.
std::optional<std::string> SetScalePercent(Settings& settings, std::string_view text);
// The preset text of that box.
std::string ScalePercentText(const Settings& settings);
inline constexpr const char* kOtherScaleTitle = "Set set->scale...";
inline constexpr const char* kOtherScalePrompt = "Enter new set->scale %...(1 to 1600";

// preset: index into kGridPresets.
std::string SetGridPreset(Settings& settings, int preset);
std::string GridUp(Settings& settings);
std::string GridDown(Settings& settings);
std::string ToggleGrid(Settings& settings);
std::string ToggleGridStyle(Settings& settings);

// A line of a pop-up menu. `command` is the command's number as text, or its name; a separator has
// neither label nor command.
struct ViewMenuItem {
  std::string label;
  std::string command;
  bool checked = false;
  bool separator = false;
};

// Commands 550..558 and CM_GRID_STYLE.
std::vector<ViewMenuItem> GridMenu(const Settings& settings);
// Commands 580..590 and 300.
std::vector<ViewMenuItem> ScaleMenu(const Settings& settings);
// CM_CAMERA_1..CM_CAMERA_5, CM_SHOW_CAMERAS, CM_LOCK_CAMERAS.
std::vector<ViewMenuItem> CameraMenu(const Settings& settings, const map* m);

}  // namespace velk
