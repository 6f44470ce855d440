// A face's polygon on its way from the map to the picture: moved into view space, cut to what the picture
// can show, projected, and split into the edges that bound its spans.
#pragma once

#include <vector>

#include "camera/scan.h"
#include "camera/view.h"

namespace velk {

// A polygon with room for what a cut may write.
struct ViewPolygon {
  static constexpr int kCapacity = WINDING_MAX_POINTS + CLIP_EXTRA_POINTS + 1;
  int count = 0;
  WindingPoint points[kCapacity];
};

void MoveToView(const Eye& eye, const winding& w, ViewPolygon& polygon);

// Cuts the polygon with the planes of the picture's edges as ClipWinding does, without allocating;
// `scratch` is overwritten. False when nothing is left.
bool CutToPicture(const Projection& projection, ViewPolygon& polygon, ViewPolygon& scratch);

// The same to the hair.
bool CutExactly(const Projection& projection, ViewPolygon& polygon, ViewPolygon& scratch);

// Projects the polygon and appends its edges. False, with nothing appended, when it covers no row or
// reaches beyond the top or bottom row.
bool MakeOutline(const Projection& projection, const ViewPolygon& polygon, std::vector<Edge>& edges,
                 Outline& outline);

}  // namespace velk
