// Draws a list of brushes into a picture, strip by strip: first which face each pixel shows, nearest
// brushes first so that most of what is hidden is never looked at; then the colour of every pixel once.
// The result is that of drawing the faces one after the other in the order of their ranks.
#pragma once

#include <vector>

#include "camera/face_setup.h"

namespace velk {

struct Picture {
  int width = 0;
  int height = 0;
  std::vector<float> depth;  // width * height and spare ones
  std::vector<std::uint8_t> frame;

  // Fatal: "Couldn't allocate zbuffer (2)", "Couldn't allocate frame buffer (2)".
  void resize(int newWidth, int newHeight);
  void clear();
};

enum class DrawOver { Nothing, Picture, PictureWithoutDepthTest };

class PictureDrawer {
 public:
  explicit PictureDrawer(const Kernels& kernels) : kernels_(kernels) {}

  // Brushes not set up yet are set up when they are first seen. The list is put in another order.
  // `numbers`, when given, gets the number of the face that each pixel shows.
  void draw(Picture& picture, std::vector<BrushDraw>& brushes, FaceList& faces, DrawOver over,
            RenderStatistics& statistics, std::vector<std::uint32_t>* numbers = nullptr);

  // Draws brushes into a picture by the ranks of all faces: those of the pixels by `numbers`, which are below
  // `firstNew`, and those that are added. Rows top..bottom-1 of picture and numbers are changed.
  struct Rows {
    int top = 0;
    int bottom = 0;
  };
  Rows drawInto(Picture& picture, std::vector<std::uint32_t>& numbers, std::vector<BrushDraw>& brushes,
                FaceList& faces, std::uint32_t firstNew, RenderStatistics& statistics);

 private:
  void makeStrip(Picture& picture, int top, int rows, DrawOver over);
  void makeTiles(int rows, bool stale);
  void drawBrush(BrushDraw& draw, FaceList& faces, bool always, RenderStatistics& statistics);
  void drawFace(FaceList& faces, std::uint32_t number, bool always, RenderStatistics& statistics);
  bool hides(int left, int top, int right, int bottom, float w) const;
  void spoilTiles(const Outline& outline, int top, int bottom);

  const Kernels& kernels_;
  Strip strip_;
  std::vector<std::uint32_t> numbers_;
  std::vector<float> tiles_;
  std::vector<std::uint8_t> stale_;
  std::vector<Span> spans_;
};

}  // namespace velk
