#include "planview/view_steps.h"

#include <algorithm>

#include "base/text.h"
#include "planview/plan_view.h"

namespace velk {

namespace {

constexpr int kFirstGridCommand = 550;
constexpr int kFirstScaleCommand = 580;
constexpr const char* kOtherScaleCommand = "300";
constexpr int kLargestGrid = 256;

const ViewMenuItem kSeparator{"", "", false, true};

}  // namespace

std::string SetScalePreset(Settings& settings, int preset) {
  const ScalePreset& chosen = kScalePresets[static_cast<size_t>(preset)];
  settings.scale = chosen.scale;
  return Format("Scale set to %s", chosen.name);
}

std::string ScaleUp(Settings& settings) {
  settings.scale = float(std::min(settings.scale * 2.0, kMaxScale));
  return "Scale increased...";
}

std::string ScaleDown(Settings& settings) {
  settings.scale = float(std::max(settings.scale * 0.5, kMinScale));
  return "Scale decreased...";
}

std::optional<std::string> SetScalePercent(Settings& settings, std::string_view text) {
  if (text.empty()) return std::nullopt;
  settings.scale = float(0.01 * std::clamp(TextToDouble(text), 1.0, 1600.0));
  return Format("Scale set to %5.1f...", settings.scale);
}

std::string ScalePercentText(const Settings& settings) { return Format("%5.1f", settings.scale * 100.0); }

std::string SetGridPreset(Settings& settings, int preset) {
  settings.gridsize = kGridPresets[static_cast<size_t>(preset)];
  return Format("Grid set to %i", settings.gridsize);
}

std::string GridUp(Settings& settings) {
  if (settings.gridsize <= kLargestGrid / 2) settings.gridsize *= 2;
  return "Grid increased...";
}

std::string GridDown(Settings& settings) {
  if (settings.gridsize >= 2) settings.gridsize /= 2;
  return "Grid decreased...";
}

std::string ToggleGrid(Settings& settings) {
  settings.show_grid = !settings.show_grid;
  return "Grid toggled...";
}

std::string ToggleGridStyle(Settings& settings) {
  settings.grid_style = settings.grid_style ? 0 : 1;
  return "Grid style toggled";
}

std::vector<ViewMenuItem> GridMenu(const Settings& settings) {
  std::vector<ViewMenuItem> items;
  int command = kFirstGridCommand;
  for (int size : kGridPresets) {
    items.push_back({Format("%i", size), Format("%i", command++), size == settings.gridsize});
  }
  items.push_back(kSeparator);
  items.push_back({settings.grid_style ? "Use Grid Lines..." : "Use Grid Dots...", "CM_GRID_STYLE"});
  return items;
}

std::vector<ViewMenuItem> ScaleMenu(const Settings& settings) {
  std::vector<ViewMenuItem> items;
  int command = kFirstScaleCommand;
  for (const ScalePreset& preset : kScalePresets) {
    items.push_back({preset.menuLabel, Format("%i", command++), preset.scale == settings.scale});
  }
  items.push_back(kSeparator);
  items.push_back({"Other Scale...", kOtherScaleCommand});
  return items;
}

std::vector<ViewMenuItem> CameraMenu(const Settings& settings, const map* m) {
  std::vector<ViewMenuItem> items;
  for (int i = 0; i < kCameras; ++i) {
    items.push_back({Format("Camera %i", i + 1), Format("CM_CAMERA_%i", i + 1), m && m->currentCamera == i});
  }
  items.push_back(kSeparator);
  items.push_back({settings.show_cameras ? "Hide Cameras..." : "Show Cameras...", "CM_SHOW_CAMERAS"});
  items.push_back(kSeparator);
  items.push_back({settings.lock_cameras ? "Lock Cameras..." : "Unlock Cameras...", "CM_LOCK_CAMERAS"});
  return items;
}

}  // namespace velk
