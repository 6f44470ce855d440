#include "planview/view_painter.h"

#include <algorithm>
#include <utility>

#include "base/text.h"

namespace velk {

namespace {

// Edges that clipping makes along the border lie this far outside the view, where no pen shows them.
constexpr int kMargin = 8;  // device pixels

int Interpolate(int from, int to, double part) { return Truncate(from + (double(to) - from) * part); }

// Keeps what lies on the inner side of one border; `along` is the coordinate that the border limits.
template <int Pixel::*Along, int Pixel::*Across, bool Upper>
int ClipAgainst(Pixel (&corners)[kMaxClipped], int count, int border) {
  const auto inside = [border](const Pixel& p) { return Upper ? p.*Along <= border : p.*Along >= border; };
  Pixel result[kMaxClipped];
  int kept = 0;
  const auto keep = [&](const Pixel& p) {
    if (kept < kMaxClipped) result[kept++] = p;
  };
  for (int i = 0; i < count; ++i) {
    const Pixel& from = corners[i];
    const Pixel& to = corners[i + 1 < count ? i + 1 : 0];
    if (inside(from)) keep(from);
    if (inside(from) == inside(to)) continue;
    const double part = (double(border) - from.*Along) / (double(to.*Along) - from.*Along);
    Pixel cut;
    cut.*Along = border;
    cut.*Across = Interpolate(from.*Across, to.*Across, part);
    keep(cut);
  }
  std::copy_n(result, kept, corners);
  return kept;
}

}  // namespace

int ClipPolygon(Pixel (&corners)[kMaxClipped], int count, const ClipRect& rect) {
  bool beyondLeft = false, beyondRight = false, beyondTop = false, beyondBottom = false;
  for (int i = 0; i < count; ++i) {
    beyondLeft |= corners[i].x < rect.left;
    beyondRight |= corners[i].x > rect.right;
    beyondTop |= corners[i].y < rect.top;
    beyondBottom |= corners[i].y > rect.bottom;
  }
  if (beyondLeft) count = ClipAgainst<&Pixel::x, &Pixel::y, false>(corners, count, rect.left);
  if (beyondRight) count = ClipAgainst<&Pixel::x, &Pixel::y, true>(corners, count, rect.right);
  if (beyondTop) count = ClipAgainst<&Pixel::y, &Pixel::x, false>(corners, count, rect.top);
  if (beyondBottom) count = ClipAgainst<&Pixel::y, &Pixel::x, true>(corners, count, rect.bottom);
  return count;
}

ViewPainter::ViewPainter(Canvas& target, const PlanScene& shown, int viewIndex)
    : canvas(target),
      scene(shown),
      settings(shown.settings),
      colours(shown.settings.colours),
      view(shown.set.views[static_cast<size_t>(viewIndex)]),
      projection(shown.set.projection(viewIndex, shown.settings)) {
  const double dense = canvas.deviceScale();
  deviceScale_ = projection.scale * dense;
  halfWidth_ = projection.width / 2 * dense;
  halfHeight_ = projection.height / 2 * dense;
  deviceWidth_ = Truncate(projection.width * dense + 0.5);
  deviceHeight_ = Truncate(projection.height * dense + 0.5);
  clip_ = {-kMargin, -kMargin, deviceWidth_ + kMargin, deviceHeight_ + kMargin};
}

bool ViewPainter::sees(const vec3& mins, const vec3& maxs) const {
  const double reachU = (projection.width * 0.5 + kMargin) / projection.scale;
  const double reachV = (projection.height * 0.5 + kMargin) / projection.scale;
  return maxs[view.axisU] >= projection.centreU - reachU && mins[view.axisU] <= projection.centreU + reachU &&
         maxs[view.axisV] >= projection.centreV - reachV && mins[view.axisV] <= projection.centreV + reachV;
}

bool ViewPainter::inView(Pixel at, int margin) const {
  const auto within = [margin](long long position, int size) {
    return position >= -margin && position < size + static_cast<long long>(margin);
  };
  return within(at.x, projection.width) && within(at.y, projection.height);
}

double ViewPainter::markerSize() const {
  constexpr int kLargest = 1000;
  return std::min(settings.box_size, kLargest) * std::min(projection.scale, 1.0);
}

void ViewPainter::drawCorners(const Pen& pen, int count) {
  count = ClipPolygon(corners_, count, clip_);
  if (count >= 2) canvas.devicePolygon(pen, {corners_, static_cast<size_t>(count)});
}

}  // namespace velk
