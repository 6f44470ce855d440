// The picture of what stays while a drag goes on, to draw the moving brushes into.
#pragma once

#include <optional>

#include "camera/picture.h"

namespace velk {

class StillPicture {
 public:
  // True when the next picture differs from the one before in its moving brushes only, and leaves room for
  // their ranks between those of the others.
  bool takes(const RenderScene& scene, RenderSize size);
  // The table of faces or the picture is about to be used for something else.
  void forget() { drawn_ = false; }

  // Draws the next picture. `faces` and `picture` hold the last one's, unless they were forgotten.
  void draw(const RenderScene& scene, const FrameView& view, PictureDrawer& drawer, Picture& picture,
            FaceList& faces, RenderStatistics& statistics);

 private:
  struct Key {
    const map* shown = nullptr;
    int generation = 0;
    RenderSize size;
    float place[6] = {};  // of the eye, and its angles
    double focalLength = 0;
    int drawmode = 0;
    int flags = 0;
    float light = 0;
    float ambient = 0;
    int flatlevel = 0;
    const unsigned char* palette = nullptr;
    const unsigned char* colormap = nullptr;
    int outlines[3] = {};
    bool operator==(const Key&) const = default;
  };
  static Key KeyOf(const RenderScene& scene, RenderSize size);

  void drawStill(const RenderScene& scene, const FrameView& view, PictureDrawer& drawer, Picture& picture,
                 FaceList& faces, RenderStatistics& statistics);
  void restore(Picture& picture);
  void collectMoving(const RenderScene& scene, const FrameView& view, FaceList& faces);
  // Of the first face of what is drawn `index`th after so many still brushes.
  std::uint32_t rankOf(std::uint32_t stillBefore, std::uint32_t index) const;

  std::optional<Key> key_;
  bool drawn_ = false;
  std::uint32_t gap_ = 0;  // brushes that have ranks from one still brush to the next
  std::vector<BrushDraw> brushes_;
  std::vector<float> depth_;
  std::vector<std::uint8_t> frame_;
  std::vector<std::uint32_t> stillNumbers_;
  FaceList::Size size_;
  std::vector<std::uint32_t> numbers_;  // of the picture as it was drawn last
  PictureDrawer::Rows changed_;         // of picture and numbers since they were those of the still brushes
};

}  // namespace velk
