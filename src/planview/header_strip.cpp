#include "planview/header_strip.h"

#include <algorithm>

namespace velk {

namespace {

constexpr int kTextHeight = 10;  // pixels
constexpr int kTextLeft = 3;     // of a field's text
constexpr int kTextRight = 2;    // kept free of it, the divider included
constexpr int kMenuTop = 13;     // pop-up menus open that far below the view's top edge
constexpr int kScaleMenuLeft = 30;
constexpr int kCameraLeft = 110;  // where the camera field begins and its menu opens

struct FieldWidth {
  StripField field;
  int width;
};
// The first four take just what their longest texts need ("256", "1600.0%", "Right").
constexpr FieldWidth kFields[] = {{StripField::Grid, 26},
                                  {StripField::Scale, 51},
                                  {StripField::Direction, kCameraLeft - 26 - 51},
                                  {StripField::Camera, 32},
                                  {StripField::Coordinate, 94},
                                  {StripField::Delta, 84},
                                  {StripField::DepthRange, 130},
                                  {StripField::Group, 120}};

bool Contains(const PixelRect& rect, Pixel at) {
  return at.x >= rect.left && at.x - rect.left < rect.width && at.y >= rect.top &&
         at.y - rect.top < rect.height;
}

Colour Mix(Colour a, Colour b, int percentOfB) {
  const auto channel = [&](int from, int to) { return from + (to - from) * percentOfB / 100; };
  return {channel(a.red, b.red), channel(a.green, b.green), channel(a.blue, b.blue)};
}

// Leaves out characters from the end until the text fits; never cuts through a character of several bytes.
std::string Fitted(const Canvas& canvas, const std::string& text, int width) {
  if (canvas.textWidth(text, kTextHeight) <= width) return text;
  const std::string dots = "..";
  for (size_t length = text.size(); length-- > 0;) {
    if ((static_cast<unsigned char>(text[length]) & 0xc0) == 0x80) continue;
    std::string shorter = text.substr(0, length) + dots;
    if (canvas.textWidth(shorter, kTextHeight) <= width) return shorter;
  }
  return "";
}

}  // namespace

std::vector<StripSlot> LayoutStrip(int width) {
  std::vector<StripSlot> slots;
  int left = 0;
  for (const FieldWidth& field : kFields) {
    if (left + field.width > width) break;
    slots.push_back({field.field, {left, 0, field.width, kStripHeight}});
    left += field.width;
  }
  return slots;
}

std::optional<StripField> StripFieldAt(int width, Pixel at) {
  for (const StripSlot& slot : LayoutStrip(width)) {
    if (Contains(slot.rect, at)) return slot.field;
  }
  return std::nullopt;
}

Pixel StripMenuPlace(StripField field) {
  if (field == StripField::Scale) return {kScaleMenuLeft, kMenuTop};
  if (field == StripField::Camera) return {kCameraLeft, kMenuTop};
  return {0, kMenuTop};
}

std::string StripText(StripField field, const PlanView& view, const Settings& settings, const map* m,
                      const std::string& groupName) {
  switch (field) {
    case StripField::Grid:
      return GridText(settings);
    case StripField::Scale:
      return formatScale(settings.scale);
    case StripField::Direction:
      return DirectionText(view);
    case StripField::Camera:
      return m ? CameraText(*m) : "";
    case StripField::Coordinate:
      return view.coordinateText;
    case StripField::Delta:
      return view.deltaText;
    case StripField::DepthRange:
      return m ? DepthRangeText(view, *m) : "";
    case StripField::Group:
      return m ? groupName : "";
  }
  return "";
}

void DrawHeaderStrip(Canvas& canvas, const PlanView& view, const Settings& settings, const map* m,
                     const std::string& groupName, const StripColours& colours) {
  const Colour divider = Mix(colours.face, colours.text, 25);
  canvas.fill({0, 0, view.clientWidth, kStripHeight}, colours.face);
  canvas.fill({0, kStripHeight - 1, view.clientWidth, 1}, divider);
  for (const StripSlot& slot : LayoutStrip(view.clientWidth)) {
    canvas.fill({slot.rect.left + slot.rect.width - 1, 3, 1, kStripHeight - 7}, divider);
    std::string text = StripText(slot.field, view, settings, m, groupName);
    text.erase(0, text.find_first_not_of(' '));  // numbers are padded for the caption
    text = Fitted(canvas, text, slot.rect.width - kTextLeft - kTextRight);
    const int top = (kStripHeight - 1 - kTextHeight) / 2;
    if (!text.empty())
      canvas.text(text, {slot.rect.left + kTextLeft, top}, kTextHeight, colours.text, nullptr);
  }
}

}  // namespace velk
