#include <algorithm>
#include <vector>

#include "base/text.h"
#include "planview/grid_lines.h"
#include "planview/view_painter.h"

namespace velk {

namespace {

constexpr int kLabelHeight = 10;       // pixels
constexpr int kLabelLeft = 2;          // of a horizontal line's label
constexpr int kLabelAboveBottom = 14;  // of a vertical line's label
constexpr int kLabelGap = 4;           // between labels

class GridPainter {
 public:
  explicit GridPainter(ViewPainter& painter)
      : p_(painter), levels_(LevelsOfGrid(p_.settings.gridsize, p_.projection.scale)) {}

  void draw() {
    const bool dots = p_.settings.grid_style != 0;
    if (levels_.showMinor) dots ? minorDots() : minorLines();
    if (!levels_.showMajor) return;
    const GridRange u = rangeU(levels_.major), v = rangeV(levels_.major);
    if (dots) {
      intersections(u, v, p_.colours.majorgrid);
    } else {
      for (long long c = u.first; c <= u.last; c += u.step) vertical(c, p_.colours.majorgrid);
      for (long long c = v.first; c <= v.last; c += v.step) horizontal(c, p_.colours.majorgrid);
    }
    if (p_.settings.show_coordinates) labels(u);
  }

 private:
  GridRange rangeU(long long step) const { return GridRangeU(p_.projection, p_.settings.gridsize, step); }
  GridRange rangeV(long long step) const { return GridRangeV(p_.projection, p_.settings.gridsize, step); }

  void minorLines() {
    const GridRange u = rangeU(p_.settings.gridsize), v = rangeV(p_.settings.gridsize);
    for (long long c = u.first; c <= u.last; c += u.step) {
      if (levels_.isMinorLine(c)) vertical(c, p_.colours.minorgrid);
    }
    for (long long c = v.first; c <= v.last; c += v.step) {
      if (levels_.isMinorLine(c)) horizontal(c, p_.colours.minorgrid);
    }
  }

  void minorDots() {
    intersections(rangeU(p_.settings.gridsize), rangeV(p_.settings.gridsize), p_.colours.minorgrid);
  }

  void intersections(const GridRange& u, const GridRange& v, Colour colour) {
    for (long long cv = v.first; cv <= v.last; cv += v.step) {
      dots_.clear();
      for (long long cu = u.first; cu <= u.last; cu += u.step) {
        dots_.push_back(p_.toDevice(double(cu), double(cv)));
      }
      p_.canvas.devicePoints(colour, dots_);
    }
  }

  void vertical(long long position, Colour colour) {
    const int x = p_.toDevice(double(position), 0).x;
    segment({x, 0}, {x, p_.deviceHeight()}, colour);
  }

  void horizontal(long long position, Colour colour) {
    const int y = p_.toDevice(0, double(position)).y;
    segment({0, y}, {p_.deviceWidth(), y}, colour);
  }

  void segment(Pixel from, Pixel to, Colour colour) {
    const Pixel ends[] = {from, to};
    p_.canvas.devicePolygon({colour, 1}, ends);
  }

  // So many world units lie between labels that none covers the next: major lines times a power of two.
  long long labelStep(const GridRange& u) const {
    const int wide = std::max(labelWidth(u.first), labelWidth(u.last));
    const double least = std::max(wide + kLabelGap, kLabelHeight) / p_.projection.scale;
    long long step = levels_.major;
    while (double(step) < least && step <= u.last - u.first) step *= 2;
    return step;
  }

  int labelWidth(long long position) const {
    return p_.canvas.textWidth(Format("%lli", position), kLabelHeight);
  }

  void labels(const GridRange& majorU) {
    const PlanProjection& projection = p_.projection;
    const long long step = labelStep(majorU);
    const GridRange u = rangeU(step), v = rangeV(step);
    for (long long c = u.first; c <= u.last; c += u.step) {
      const int x = Truncate((double(c) - projection.centreU) * projection.scale + projection.width / 2);
      if (x >= kLabelLeft && x < projection.width) label(c, {x, projection.height - kLabelAboveBottom});
    }
    const int lowest = projection.height - kLabelAboveBottom - kLabelHeight;
    for (long long c = v.first; c <= v.last; c += v.step) {
      const int y = Truncate(-(double(c) - projection.centreV) * projection.scale + projection.height / 2);
      if (y <= lowest && y >= kStripHeight - kLabelHeight) label(c, {kLabelLeft, y});
    }
  }

  void label(long long position, Pixel at) {
    p_.canvas.text(Format("%lli", position), at, kLabelHeight, p_.colours.color_gridlabel,
                   &p_.colours.bgcolor);
  }

  ViewPainter& p_;
  GridLevels levels_;
  std::vector<Pixel> dots_;
};

}  // namespace

void DrawGrid(ViewPainter& painter) { GridPainter(painter).draw(); }

}  // namespace velk
