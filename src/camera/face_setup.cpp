#include "camera/face_setup.h"

#include <algorithm>
#include <bit>

#include "base/text.h"
#include "textures/palette.h"

namespace velk {

namespace {

constexpr int kColours = 256;
// What a face is drawn in when its map has no textures.
constexpr int kNoTextureColour = 255;

// Shading without a light table: every colour stays.
struct Unshaded {
  std::uint8_t colours[kColours];
  constexpr Unshaded() : colours() {
    for (int i = 0; i < kColours; ++i) colours[i] = std::uint8_t(i);
  }
};
constexpr Unshaded kUnshaded;

bool IsPowerOfTwo(int n) { return std::has_single_bit(unsigned(n)); }

// Division by `size` as a product: exact for every n of 31 bits.
void FindMagic(int size, std::uint32_t& magic, int& shift) {
  const int log = std::bit_width(unsigned(size - 1));
  shift = 31 + log;
  magic = std::uint32_t((std::uint64_t(1) << shift) / unsigned(size) + 1);
}

void SetTexture(const TextureRef& texture, Paint& paint) {
  paint.pixels = texture.shownPixels();
  paint.width = texture.width;
  paint.height = texture.height;
  if (IsPowerOfTwo(texture.width) && IsPowerOfTwo(texture.height)) {
    paint.kind = Paint::Kind::Masked;
    paint.shift = std::countr_zero(unsigned(texture.width));
    return;
  }
  paint.kind = Paint::Kind::Modulo;
  FindMagic(texture.width, paint.magicU, paint.magicShiftU);
  FindMagic(texture.height, paint.magicV, paint.magicShiftV);
}

int ChannelOf(float nominal) { return std::clamp(Truncate(nominal * 255.0), 0, 255); }

int BoxColour(const RenderAssets& assets, const brush& b, double brightness = 1) {
  if (!assets.palette) return 255;
  const vec3 colour = scale(b.color(), brightness);
  return nearestPaletteIndex(assets.palette, kColours, ChannelOf(colour.x), ChannelOf(colour.y),
                             ChannelOf(colour.z));
}

int OutlineColour(const RenderAssets& assets, FaceState state) {
  if (state == FaceState::CurrentFace) return assets.faceOutline;
  return state == FaceState::Selected ? assets.selectionOutline : assets.brushOutline;
}

// The face that keeps the texture: one of the brush that another stands in for, which lasts longer.
const face& KeeperOf(const face& f, const brush* original) {
  if (!original) return f;
  const auto named = [&](const face& other) { return other.texture.name == f.texture.name; };
  const auto found = std::ranges::find_if(original->faces(), named);
  return found == original->faces().end() ? f : *found;
}

const TextureRef* TextureOf(const RenderAssets& assets, const face& f) {
  if (!f.cache && assets.makeTextureRef) f.cache = assets.makeTextureRef(f.texture.name);
  const TextureRef* texture = f.cache.get();
  return texture && texture->pixels && texture->width > 0 && texture->height > 0 ? texture : nullptr;
}

}  // namespace

bool VisiblePolygon(const FrameView& view, const face& f, bool onBorder, ViewPolygon& polygon,
                    ViewPolygon& scratch) {
  if (!f.polygon || !(dot(view.eye.origin, f.facePlane.normal) > f.facePlane.dist)) return false;
  MoveToView(view.eye, *f.polygon, polygon);
  if (!onBorder) return true;
  return view.projection.cutsExactly ? CutExactly(view.projection, polygon, scratch)
                                     : CutToPicture(view.projection, polygon, scratch);
}

void FaceList::begin(const RenderScene& scene, const FrameView& view) {
  scene_ = &scene;
  view_ = &view;
  currentBrush_ = scene.still ? scene.still->firstSelected() : scene.model.firstSelected();
  faces_.assign(1, FaceDraw());
  edges_.clear();
}

void FaceList::resume(const RenderScene& scene, const FrameView& view, const Size& size) {
  scene_ = &scene;
  view_ = &view;
  currentBrush_ = scene.still->firstSelected();
  faces_.resize(size.faces);
  edges_.resize(size.edges);
}

BrushLook FaceList::lookOf(const brush& b) const {
  BrushLook look;
  look.flat = scene_->settings.drawmode == 1;
  if (b.owner && b.owner->isModel) return look;
  look.flat = look.fixedColour = true;
  if (scene_->settings.solid_entities) look.solid = &b;
  look.colour = BoxColour(scene_->assets, b);
  return look;
}

void FaceList::addBrush(BrushDraw& draw) {
  const brush& b = *draw.shape;
  draw.isSetUp = true;
  draw.firstFace = count();
  BrushLook look = lookOf(b);
  if (draw.shape != draw.original) look.original = draw.original;
  const FaceState state = b.selected() ? FaceState::Selected : FaceState::Plain;
  // A previewed copy shows the current face of the brush that it stands for.
  const bool isCurrent = !look.fixedColour && draw.original == currentBrush_;
  for (int i = 0; i < b.numfaces(); ++i) {
    const FaceState faceState = isCurrent && i == b.currentFace() ? FaceState::CurrentFace : state;
    addFace(b, i, faceState, look, draw.rank + std::uint32_t(i), draw.onBorder);
  }
  draw.faceCount = count() - draw.firstFace;
}

void FaceList::addFace(const brush& b, int index, FaceState state, const BrushLook& look, std::uint32_t rank,
                       bool onBorder) {
  const face& f = b.faces()[size_t(index)];
  if (!VisiblePolygon(*view_, f, onBorder, polygon_, scratch_)) return;
  FaceDraw draw;
  if (!MakeOutline(view_->projection, polygon_, edges_, draw.outline)) return;
  draw.rank = rank;
  draw.paint = paintOf(f, state, look);
  faces_.push_back(draw);
}

const std::uint8_t* FaceList::shadesOf(const face& f, const BrushLook& look) const {
  const Settings& settings = scene_->settings;
  if (!scene_->assets.colormap) return kUnshaded.colours;
  const bool shaded = !look.fixedColour && (look.flat ? settings.shadeflats : settings.shadetextures);
  const int row =
      shaded ? ShadeRow(view_->eye, f.facePlane.normal, settings.lightintensity, settings.ambientintensity)
             : settings.flatlevel;
  return scene_->assets.colormap + std::clamp(row, 0, 63) * kColours;
}

Paint FaceList::paintOf(const face& f, FaceState state, const BrushLook& look) const {
  Paint paint;
  paint.shades = shadesOf(f, look);
  paint.outlined = state != FaceState::Plain || scene_->settings.outline;
  paint.outline = std::uint8_t(OutlineColour(scene_->assets, state));
  if (look.solid) {
    // The light table would leave bright colours as they are.
    const int row = ShadeRow(view_->eye, f.facePlane.normal, scene_->settings.lightintensity,
                             scene_->settings.ambientintensity);
    constexpr double kDarkest = 63;
    paint.colour = std::uint8_t(BoxColour(scene_->assets, *look.solid, 1 - row / kDarkest));
    return paint;
  }
  const TextureRef* texture =
      look.fixedColour ? nullptr : TextureOf(scene_->assets, KeeperOf(f, look.original));
  if (texture && !look.flat) {
    SetTexture(*texture, paint);
    return paint;
  }
  const int colour = look.fixedColour ? look.colour : (texture ? texture->paletteIndex : kNoTextureColour);
  paint.colour = paint.shades[colour & 0xff];
  return paint;
}

}  // namespace velk
