#include "reference_renderer.h"

#include <algorithm>
#include <climits>
#include <cmath>

#include "textures/palette.h"

namespace velk::test {

namespace {

// The five values of one side of a polygon, row by row.
class SideWalk {
 public:
  SideWalk(const std::vector<ScreenVertex>& polygon, size_t top, int direction)
      : polygon_(polygon), corner_(top), direction_(direction) {}

  ScreenVertex at(int row) {
    if (firstRow_ < 0) firstRow_ = row;
    while (rowOf(next()) <= row) {
      corner_ = next();
      firstRow_ = row;
    }
    const ScreenVertex& from = polygon_[corner_];
    const ScreenVertex& to = polygon_[next()];
    const float rows = float(rowOf(next()) - firstRow_);
    const auto along = [&](float a, float b) { return a + float(row - firstRow_) * ((b - a) / rows); };
    return {along(from.x, to.x), along(from.y, to.y), along(from.w, to.w), along(from.sw, to.sw),
            along(from.tw, to.tw)};
  }

 private:
  int rowOf(size_t corner) const { return Truncate(polygon_[corner].y); }
  size_t next() const { return (corner_ + polygon_.size() + size_t(direction_)) % polygon_.size(); }

  const std::vector<ScreenVertex>& polygon_;
  size_t corner_;
  int direction_;
  int firstRow_ = -1;  // where the present edge was taken up
};

// Out of an int's range, or no number: the lowest int.
int TexelOf(float coordinate) {
  return coordinate >= -2147483648.0f && coordinate < 2147483648.0f ? int(coordinate) : INT_MIN;
}

int FloorModulo(int n, int size) { return int(((long(n) % size) + size) % size); }

bool IsPowerOfTwo(int n) { return (n & (n - 1)) == 0; }

int TexelIndex(const TextureRef& texture, float u, float v) {
  const int width = texture.width, height = texture.height;
  if (IsPowerOfTwo(width) && IsPowerOfTwo(height)) {
    return (TexelOf(v) & (height - 1)) * width + (TexelOf(u) & (width - 1));
  }
  return FloorModulo(TexelOf(u + float(width) * 1024), width) +
         width * FloorModulo(TexelOf(v + float(height) * 1024), height);
}

int Shaded(const unsigned char* colormap, int row, int colour) {
  return colormap ? colormap[row * 256 + (colour & 255)] : colour;
}

}  // namespace

void ReferenceRenderer::aim(const RenderScene& scene) {
  eye_ = MakeEye(scene.model.activeCamera());
  projection_ = MakeProjection(width, height);
}

void ReferenceRenderer::renderFrame(const RenderScene& scene, RenderSize size) {
  width = size.width;
  height = size.height;
  depth.assign(size_t(width * height), 0);
  frame.assign(size_t(width * height), 0);
  for (int e = scene.model.numentities() - 1; e >= 0; --e) {
    entity& owner = *scene.model.at(e);
    for (int i = owner.numbrushes() - 1; i >= 0; --i) renderBrush(scene, *owner.at(i));
  }
}

void ReferenceRenderer::renderBrush(const RenderScene& scene, brush& b) {
  if (scene.model.isFiltered(b) || !scene.model.passesGroupFilter(b)) return;
  const brush* shape = b.selected() && scene.preview ? scene.preview(b) : &b;
  if (!shape) return;
  for (int i = 0; i < shape->numfaces(); ++i) {
    FaceState state = b.selected() ? FaceState::Selected : FaceState::Plain;
    const bool isCurrent = &b == scene.model.firstSelected() && i == shape->currentFace();
    if (isCurrent && b.owner->isModel) state = FaceState::CurrentFace;
    renderFace(scene, *shape, i, state);
  }
}

void ReferenceRenderer::renderFace(const RenderScene& scene, const brush& b, int index, FaceState state) {
  aim(scene);
  const face& f = b.faces()[size_t(index)];
  if (!f.polygon || !(dot(eye_.origin, f.facePlane.normal) > f.facePlane.dist)) return;
  WindingPtr w = CopyWinding(*f.polygon);
  for (int i = 0; i < w->count; ++i) {
    const vec3 p = ToView(eye_, (*w)[i].position());
    (*w)[i].x = p.x;
    (*w)[i].y = p.y;
    (*w)[i].z = p.z;
  }
  for (const SplitPlane& edge : projection_.frustum) {
    w = ClipWinding(std::move(w), {{float(edge.normal[0]), float(edge.normal[1]), float(edge.normal[2])}, 0});
    if (!w) return;
  }
  std::vector<ScreenVertex> polygon;
  for (const WindingPoint& corner : *w) polygon.push_back(Project(projection_, corner));
  rasterize(polygon, fillFor(scene, b, f, state));
}

ReferenceRenderer::Fill ReferenceRenderer::fillFor(const RenderScene& scene, const brush& b, const face& f,
                                                   FaceState state) const {
  const Settings& settings = scene.settings;
  const RenderAssets& assets = scene.assets;
  const bool isBox = !b.owner->isModel;
  Fill fill;
  fill.colormap = assets.colormap;
  fill.flat = settings.drawmode == 1 || isBox;
  fill.shadeRow = ShadeRow(eye_, f.facePlane.normal, settings.lightintensity, settings.ambientintensity);
  if (isBox || !(fill.flat ? settings.shadeflats : settings.shadetextures))
    fill.shadeRow = settings.flatlevel;
  if (!isBox && !f.cache && assets.makeTextureRef) f.cache = assets.makeTextureRef(f.texture.name);
  fill.texture = f.cache.get();
  if (!fill.texture) fill.flat = true;
  fill.flatColour = fill.texture ? fill.texture->paletteIndex : 255;
  if (isBox) {
    const Colour colour{int(b.color().x * 255.0), int(b.color().y * 255.0), int(b.color().z * 255.0)};
    fill.flatColour = assets.palette
                          ? nearestPaletteIndex(assets.palette, 256, colour.red, colour.green, colour.blue)
                          : 255;
  }
  fill.outlined = state != FaceState::Plain || settings.outline;
  const int outlines[] = {assets.brushOutline, assets.selectionOutline, assets.faceOutline};
  fill.outlineColour = outlines[int(state)];
  return fill;
}

void ReferenceRenderer::rasterize(const std::vector<ScreenVertex>& polygon, const Fill& fill) {
  size_t top = 0;
  int bottomRow = Truncate(polygon[0].y);
  for (size_t i = 1; i < polygon.size(); ++i) {
    if (Truncate(polygon[i].y) < Truncate(polygon[top].y)) top = i;
    bottomRow = std::max(bottomRow, Truncate(polygon[i].y));
  }
  const int topRow = Truncate(polygon[top].y);
  if (topRow < 0 || bottomRow > height || topRow >= bottomRow) return;
  SideWalk start(polygon, top, -1);
  SideWalk end(polygon, top, 1);
  for (int row = topRow; row < bottomRow; ++row) drawSpan(row, start.at(row), end.at(row), fill);
}

void ReferenceRenderer::drawSpan(int row, const ScreenVertex& a, const ScreenVertex& b, const Fill& fill) {
  const int xa = ColumnOf(a.x);
  const int xb = ColumnOf(b.x);
  if (xb <= xa) return;
  const float length = float(xb - xa);
  const int first = std::max(xa, 0);
  const int stop = std::min(xb, width);
  for (int x = first; x < stop; ++x) {
    const auto along = [&](float from, float to) { return from + float(x - xa) * ((to - from) / length); };
    const float w = along(a.w, b.w);
    int colour = fill.flatColour;
    if (!fill.flat) {
      const float depthOf = 1 / w;
      colour =
          fill.texture
              ->pixels[TexelIndex(*fill.texture, along(a.sw, b.sw) * depthOf, along(a.tw, b.tw) * depthOf)];
    }
    colour = Shaded(fill.colormap, fill.shadeRow, colour);
    if (fill.outlined && (x == first || x == stop - 1)) colour = fill.outlineColour;
    putPixel(row, x, w, colour);
  }
}

void ReferenceRenderer::putPixel(int row, int x, float w, int colour) {
  const size_t at = size_t(row) * size_t(width) + size_t(x);
  ++pixelsTested;
  if (!noDepthTest && !(depth[at] <= w)) return;
  depth[at] = w;
  frame[at] = static_cast<unsigned char>(colour);
}

}  // namespace velk::test
