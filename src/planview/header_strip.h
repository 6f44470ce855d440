// The strip along the top of a plan view: readouts, three of which open a menu when clicked.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "base/canvas.h"
#include "planview/plan_view.h"
#include "planview/view_steps.h"

namespace velk {

inline constexpr int kStripHeight = 18;  // pixels

enum class StripField { Grid, Scale, Direction, Camera, Coordinate, Delta, DepthRange, Group };

// The window's face colours, of a light or a dark theme.
struct StripColours {
  Colour face{212, 208, 200};
  Colour text{0, 0, 0};
};

struct StripSlot {
  StripField field = StripField::Grid;
  PixelRect rect;
};

// The fields that fit whole into a view of that width, left to right, most important first.
std::vector<StripSlot> LayoutStrip(int width);

// The field at a pixel of the view, if any.
std::optional<StripField> StripFieldAt(int width, Pixel at);

// Where the menu that a click on the field opens has its top left corner, in pixels of the view.
Pixel StripMenuPlace(StripField field);

// The text of a field; empty without a map where it needs one.
std::string StripText(StripField field, const PlanView& view, const Settings& settings, const map* m,
                      const std::string& groupName);

void DrawHeaderStrip(Canvas& canvas, const PlanView& view, const Settings& settings, const map* m,
                     const std::string& groupName, const StripColours& colours);

}  // namespace velk
