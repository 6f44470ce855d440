// The table of the faces being drawn: their edges on the picture and how their pixels are coloured.
#pragma once

#include <vector>

#include "camera/culling.h"
#include "camera/kernels.h"
#include "camera/polygon.h"

namespace velk {

// How the faces of one brush are drawn.
struct BrushLook {
  bool flat = false;
  bool fixedColour = false;         // the box of a fixed-size entity
  int colour = 0;                   // its palette index
  const brush* solid = nullptr;     // the box itself when its faces are shaded
  const brush* original = nullptr;  // that it stands in for, whose faces keep the textures
};

class FaceList {
 public:
  // Begins an empty table; scene and view must stay until it is done with.
  void begin(const RenderScene& scene, const FrameView& view);
  // Goes on with the first faces of the table and the edges they need.
  struct Size {
    size_t faces = 0;
    size_t edges = 0;
  };
  void resume(const RenderScene& scene, const FrameView& view, const Size& size);
  Size size() const { return {faces_.size(), edges_.size()}; }

  // Appends the faces of the brush that the eye sees and that cover a row, and notes them in `draw`.
  void addBrush(BrushDraw& draw);
  // Appends one face in that state, when the eye sees it.
  void addFace(const brush& b, int index, FaceState state, const BrushLook& look, std::uint32_t rank,
               bool onBorder);

  BrushLook lookOf(const brush& b) const;

  FaceTable table() const { return {faces_.data(), edges_.data()}; }
  std::uint32_t count() const { return std::uint32_t(faces_.size()); }
  FaceDraw& operator[](std::uint32_t number) { return faces_[number]; }

 private:
  Paint paintOf(const face& f, FaceState state, const BrushLook& look) const;
  const std::uint8_t* shadesOf(const face& f, const BrushLook& look) const;

  const RenderScene* scene_ = nullptr;
  const FrameView* view_ = nullptr;
  const brush* currentBrush_ = nullptr;
  std::vector<FaceDraw> faces_;
  std::vector<Edge> edges_;
  ViewPolygon polygon_;
  ViewPolygon scratch_;
};

// The polygon of a face as the picture shows it, before projection; false when the eye does not see it.
// onBorder: it may reach beyond the picture.
bool VisiblePolygon(const FrameView& view, const face& f, bool onBorder, ViewPolygon& polygon,
                    ViewPolygon& scratch);

}  // namespace velk
