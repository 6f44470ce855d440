#include "camera/live/still_picture.h"

#include <algorithm>

namespace velk {
namespace {

// Ranks are numbers of 32 bits, 64 of them a brush.
constexpr std::uint32_t kRankedBrushes = (std::uint32_t(1) << 26) - 1;

// Takes rows over from one array of a picture's size to another.
template <typename Value>
void CopyRows(const std::vector<Value>& from, std::vector<Value>& to, int width, PictureDrawer::Rows rows) {
  if (rows.top >= rows.bottom) return;
  const auto first = static_cast<std::ptrdiff_t>(rows.top) * width;
  const auto count = static_cast<std::ptrdiff_t>(rows.bottom - rows.top) * width;
  std::copy_n(from.begin() + first, count, to.begin() + first);
}

}  // namespace

StillPicture::Key StillPicture::KeyOf(const RenderScene& scene, RenderSize size) {
  const Settings& s = scene.settings;
  const camera& eye = scene.model.activeCamera();
  Key key;
  key.shown = &scene.model;
  key.generation = scene.still->generation();
  key.size = size;
  const float place[] = {eye.origin.x, eye.origin.y, eye.origin.z, eye.roll, eye.pitch, eye.yaw};
  std::copy_n(place, 6, key.place);
  key.focalLength = scene.lens.focalLength();
  key.drawmode = s.drawmode;
  int bit = 1;
  for (const bool flag : {s.outline, s.shadeflats, s.shadetextures, s.solid_entities, s.window_quality}) {
    key.flags |= flag ? bit : 0;
    bit *= 2;
  }
  key.light = s.lightintensity;
  key.ambient = s.ambientintensity;
  key.flatlevel = s.flatlevel;
  key.palette = scene.assets.palette;
  key.colormap = scene.assets.colormap;
  const int outlines[] = {scene.assets.brushOutline, scene.assets.selectionOutline, scene.assets.faceOutline};
  std::copy_n(outlines, 3, key.outlines);
  return key;
}

bool StillPicture::takes(const RenderScene& scene, RenderSize size) {
  if (!scene.still) {
    *this = {};
    return false;
  }
  const Key key = KeyOf(scene, size);
  const bool same = key_ == key;
  if (!same) drawn_ = false;
  key_ = key;
  gap_ = kRankedBrushes / (scene.still->stillCount() + 2);
  return same && scene.still->mostStay() && scene.still->movingCount() < gap_;
}

std::uint32_t StillPicture::rankOf(std::uint32_t stillBefore, std::uint32_t index) const {
  return (stillBefore * gap_ + index) * MAX_FACES + 1;
}

void StillPicture::drawStill(const RenderScene& scene, const FrameView& view, PictureDrawer& drawer,
                             Picture& picture, FaceList& faces, RenderStatistics& statistics) {
  const BrushCuller culler(view);
  brushes_.clear();
  BrushDraw draw;
  std::uint32_t left = scene.still->stillCount();  // in drawing order the map's last brush comes first
  for (const StillBrushes::Part& part : scene.still->parts()) {
    for (const StillBrushes::Still& b : part.still) {
      draw.shape = draw.original = b.shown;
      draw.rank = rankOf(left--, 0);
      if (!IsInTheWay(scene, *b.shown) && culler.place(*b.shown, draw)) brushes_.push_back(draw);
    }
  }
  faces.begin(scene, view);
  numbers_.assign(picture.depth.size(), 0);
  drawer.draw(picture, brushes_, faces, DrawOver::Nothing, statistics, &numbers_);
  size_ = faces.size();
  depth_ = picture.depth;
  frame_ = picture.frame;
  stillNumbers_ = numbers_;
  drawn_ = true;
}

void StillPicture::restore(Picture& picture) {
  CopyRows(depth_, picture.depth, picture.width, changed_);
  CopyRows(frame_, picture.frame, picture.width, changed_);
  CopyRows(stillNumbers_, numbers_, picture.width, changed_);
}

void StillPicture::collectMoving(const RenderScene& scene, const FrameView& view, FaceList& faces) {
  const BrushCuller culler(view);
  const std::uint32_t all = scene.still->stillCount();
  brushes_.clear();
  BrushDraw draw;
  std::uint32_t index = 0;
  const auto& parts = scene.still->parts();
  for (auto part = parts.rbegin(); part != parts.rend(); ++part) {
    for (auto b = part->moving.rbegin(); b != part->moving.rend(); ++b) {
      draw.original = b->shown;
      draw.shape = IsInTheWay(scene, *b->shown) ? nullptr : ShownShape(scene, *b->shown);
      draw.rank = rankOf(all - part->first - b->after, ++index);
      if (!draw.shape || !culler.place(*draw.shape, draw)) continue;
      brushes_.push_back(draw);
      if (draw.shape != draw.original) faces.addBrush(brushes_.back());
    }
  }
}

void StillPicture::draw(const RenderScene& scene, const FrameView& view, PictureDrawer& drawer,
                        Picture& picture, FaceList& faces, RenderStatistics& statistics) {
  if (drawn_) {
    restore(picture);
  } else {
    drawStill(scene, view, drawer, picture, faces, statistics);
  }
  faces.resume(scene, view, size_);
  collectMoving(scene, view, faces);
  const auto firstNew = static_cast<std::uint32_t>(size_.faces);
  changed_ = drawer.drawInto(picture, numbers_, brushes_, faces, firstNew, statistics);
}

}  // namespace velk
