#include <algorithm>
#include <cmath>
#include <numbers>
#include <string_view>
#include <unordered_map>

#include "base/text.h"
#include "planview/view_painter.h"

namespace velk {

namespace {

constexpr double kFacing = -0.0001;  // normal . viewNormal of a face turned towards the viewer
constexpr int kSelectionWidth = 2;   // pixels
constexpr int kNameBelow = 3;        // pixels under the corner of the brush
constexpr int kLongestName = 2000;   // pixels; names that begin farther outside cannot reach the view
constexpr int kIndexHeight = 12;     // of the numbers of hit brushes

int Channel(float value) { return std::clamp(Truncate(double(value) * 255), 0, 255); }

Colour ClassColour(const brush& b) {
  return {Channel(b.color().x), Channel(b.color().y), Channel(b.color().z)};
}

vec3 Middle(const brush& b) { return scale(add(b.mins, b.maxs), 0.5); }

const brush* FirstShownBrush(const map& m, const entity& e) {
  const brush* first = e.isWorld() ? nullptr : e.at(0);
  return first && IsShown(m, *first) ? first : nullptr;
}

class BrushPainter {
 public:
  BrushPainter(ViewPainter& painter, const brush* firstSelected)
      : p_(painter),
        map_(*painter.scene.shown),
        current_(map_.currentEntity()),
        worldIsCurrent_(map_.worldIsCurrent()),
        firstSelected_(firstSelected),
        towards_(painter.view.viewNormal[painter.view.axisDepth]) {}

  void draw() {
    for (const entity& e : map_.entities()) {
      for (const brush& b : e.brushes()) {
        if (IsShown(map_, b)) drawBrush(e, b);
      }
      drawAngle(e);
    }
  }

  void drawStill(RasterCanvas& canvas, const StillBrushes& still) {
    std::uint32_t rank = 0;
    for (const StillBrushes::Part& part : still.parts()) {
      for (const StillBrushes::Still& b : part.still) {
        canvas.setRank(++rank);
        drawBrush(*part.owner, *b.shown);
      }
    }
  }

  void drawMoving(RasterCanvas& canvas, const StillBrushes& still) {
    for (const StillBrushes::Part& part : still.parts()) {
      for (const StillBrushes::Moving& b : part.moving) {
        canvas.setRank(part.first + b.after);
        drawBrush(*part.owner, *b.shown);
      }
      canvas.setRank(part.end());
      drawAngle(*part.owner);
    }
  }

 private:
  void drawBrush(const entity& owner, const brush& b) {
    const brush* drawn = b.selected() && p_.scene.preview ? p_.scene.preview(b) : &b;
    if (!drawn) return;
    // An invalid brush has no bounds but may still have polygons.
    if (!drawn->invalid && !p_.sees(drawn->mins, drawn->maxs)) return;
    const Pen pen = penOf(owner, b);
    if (&b == firstSelected_) {
      drawWhole(*drawn, pen);
    } else {
      drawTurnedFaces(*drawn, pen);
    }
  }

  Pen penOf(const entity& owner, const brush& b) const {
    const ViewColours& colours = p_.colours;
    if (b.selected()) return {colours.color_selection, kSelectionWidth};
    if (&owner == current_) {
      return {p_.settings.groupmode ? map_.groups.colour(b.group()) : colours.fgcolor, 1};
    }
    if (!worldIsCurrent_) return {colours.color_otherbrush, 1};
    return {ClassColour(b), 1};
  }

  void drawTurnedFaces(const brush& b, const Pen& pen) {
    for (const face& f : b.faces()) {
      if (!f.polygon || f.facePlane.normal[p_.view.axisDepth] * towards_ > kFacing) continue;
      p_.outline(pen, f.polygon->points(), f.polygon->count);
    }
  }

  // Every face, the current one on top.
  void drawWhole(const brush& b, const Pen& pen) {
    for (int i = 0; i < b.numfaces(); ++i) {
      if (i != b.currentFace()) drawFace(b, i, pen);
    }
    if (b.currentFace() < b.numfaces()) {
      drawFace(b, b.currentFace(), {p_.colours.color_curfacecolor, kSelectionWidth});
    }
  }

  void drawFace(const brush& b, int index, const Pen& pen) {
    const face& f = b.faces()[static_cast<size_t>(index)];
    if (f.polygon) p_.outline(pen, f.polygon->points(), f.polygon->count);
  }

  // The arrow of an entity's "angle" on its first brush.
  void drawAngle(const entity& e) {
    if (p_.view.orientation != kOrientationXY) return;
    const brush* first = FirstShownBrush(map_, e);
    if (!first) return;
    const std::string& angle = e.valueOfKey("angle");
    if (angle.empty()) return;
    const double a = TextToDouble(angle) * (1.0 / 180) * std::numbers::pi;
    const Pixel origin = p_.projection.worldToScreen(Middle(*first));
    const double size = p_.markerSize();
    if (!(a >= 0 && std::isfinite(a)) || !p_.inView(origin, Truncate(size) + 1)) return;
    DrawArrow(p_.canvas, {penOf(e, *first).colour, 1}, origin, -a, size);
  }

  ViewPainter& p_;
  map& map_;
  const entity* current_;
  bool worldIsCurrent_;
  const brush* firstSelected_;
  double towards_;
};

}  // namespace

void DrawBrushes(ViewPainter& painter) { BrushPainter(painter, painter.scene.shown->firstSelected()).draw(); }

void DrawStillBrushes(ViewPainter& painter, RasterCanvas& canvas, const StillBrushes& still) {
  BrushPainter(painter, nullptr).drawStill(canvas, still);
}

void DrawMovingBrushes(ViewPainter& painter, RasterCanvas& canvas, const StillBrushes& still) {
  BrushPainter(painter, still.firstSelected()).drawMoving(canvas, still);
}

void DrawGhosts(ViewPainter& painter) {
  for (const std::unique_ptr<brush>& ghost : painter.scene.ghosts) {
    if (!painter.sees(ghost->mins, ghost->maxs)) continue;
    for (const face& f : ghost->faces()) {
      if (f.polygon) painter.outline({kGhostColour, 1}, f.polygon->points(), f.polygon->count);
    }
  }
}

void DrawNames(ViewPainter& painter) {
  const int height = std::clamp(Truncate(12 * painter.projection.scale), 7, 18);
  for (const entity& e : painter.scene.shown->entities()) {
    const brush* first = FirstShownBrush(*painter.scene.shown, e);
    if (!first || !painter.sees(first->mins, first->maxs)) continue;
    Pixel at = painter.projection.worldToScreen(first->mins);
    if (!painter.inView(at, kLongestName)) continue;
    at.y += kNameBelow;
    painter.canvas.text(e.valueOfKey("classname"), at, height, painter.colours.fgcolor,
                        &painter.colours.bgcolor);
  }
}

void DrawHits(ViewPainter& painter) {
  const map& m = *painter.scene.shown;
  const Pen pen{painter.colours.color_hitcolor, 1};
  for (int i = 0; i < m.hits.count; ++i) {
    const brush* hit = m.hits.brushes[static_cast<size_t>(i)];
    if (!hit || !IsShown(m, *hit) || !painter.sees(hit->mins, hit->maxs)) continue;
    for (const face& f : hit->faces()) {
      if (f.polygon) painter.outline(pen, f.polygon->points(), f.polygon->count);
    }
    const Pixel at = painter.projection.worldToScreen(Middle(*hit));
    if (!painter.inView(at)) continue;
    painter.canvas.text(Format("%i", i), at, kIndexHeight, painter.colours.color_hitcolor,
                        &painter.colours.bgcolor);
  }
}

void DrawConnections(ViewPainter& painter) {
  const map& m = *painter.scene.shown;
  std::unordered_multimap<std::string_view, const brush*> byName;
  for (const entity& e : m.entities()) {
    const brush* first = FirstShownBrush(m, e);
    if (first && !e.valueOfKey("targetname").empty()) byName.emplace(e.valueOfKey("targetname"), first);
  }
  for (const entity& e : m.entities()) {
    const brush* first = FirstShownBrush(m, e);
    if (!first || e.valueOfKey("target").empty()) continue;
    const auto [begin, end] = byName.equal_range(e.valueOfKey("target"));
    for (auto it = begin; it != end; ++it) {
      const vec3 ends[] = {Middle(*first), Middle(*it->second)};
      painter.outline({painter.colours.color_connection, 1}, ends, 2);
    }
  }
}

}  // namespace velk
