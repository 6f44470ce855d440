// The plain form of the renderer: every face of every brush is drawn in turn, pixel by pixel. What the
// fast one shows must be this to the bit.
#pragma once

#include <vector>

#include "camera/renderer.h"
#include "camera/view.h"

namespace velk::test {

class ReferenceRenderer {
 public:
  void renderFrame(const RenderScene& scene, RenderSize size);
  // Into the picture as it stands.
  void renderBrush(const RenderScene& scene, brush& b);
  void renderFace(const RenderScene& scene, const brush& b, int index, FaceState state);

  bool noDepthTest = false;
  int width = 0;
  int height = 0;
  std::vector<float> depth;
  std::vector<unsigned char> frame;
  long pixelsTested = 0;

 private:
  // How the face being drawn is filled.
  struct Fill {
    bool flat = false;
    const TextureRef* texture = nullptr;
    const unsigned char* colormap = nullptr;
    int shadeRow = 0;
    int flatColour = 0;
    bool outlined = false;
    int outlineColour = 0;
  };

  void aim(const RenderScene& scene);
  Fill fillFor(const RenderScene& scene, const brush& b, const face& f, FaceState state) const;
  void rasterize(const std::vector<ScreenVertex>& polygon, const Fill& fill);
  void drawSpan(int row, const ScreenVertex& a, const ScreenVertex& b, const Fill& fill);
  void putPixel(int row, int x, float w, int colour);

  Eye eye_;
  Projection projection_;
};

}  // namespace velk::test
