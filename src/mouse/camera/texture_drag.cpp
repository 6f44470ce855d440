#include "mouse/camera/texture_drag.h"

#include <cmath>

#include "base/error.h"
#include "base/text.h"
#include "mouse/view_ray.h"

namespace velk {
namespace {

constexpr int kPixelsAStep = 4;
constexpr double kScaleStep = 0.1;

// A whole turn stays one.
double UpToTurn(double degrees) {
  const double turned = WithinTurn(degrees);
  return turned == 0 && degrees > 0 ? 360 : turned;
}

class TextureDrag : public Drag {
 public:
  TextureDrag(int code, const char* undoName, const FacePick& pick)
      : code_(code), undoName_(undoName), pick_(pick), rotation_(definition().rotate) {}

  int code() const override { return code_; }
  const char* undoName() const override { return undoName_; }

  Outcome move(const MouseContext& context, const DragState& state) override {
    const bool everyPixel = code_ == kRotateTextureCode && context.settings.showtexturedrag;
    const int unit = everyPixel ? 1 : kPixelsAStep;
    const Pixel total{(state.now.at.x - state.press.at.x) / unit, (state.now.at.y - state.press.at.y) / unit};
    if (total == total_) return {};
    const Pixel step{total.x - total_.x, total.y - total_.y};
    total_ = total;
    if (!pick_.hit->owner->isModel) return {};
    texturedef& texture = pick_.hit->editFaces()[static_cast<size_t>(pick_.face)].texture;
    std::string status = change(texture, step);
    pick_.hit->buildWindings();
    context.model.modified = true;
    return Outcome::Drawn(context.settings.showtexturedrag ? Redraw::Camera : Redraw::None,
                          std::move(status));
  }

  Outcome finish(const MouseContext& /*context*/, const DragState& /*state*/) override {
    if (pick_.hit->currentFace() >= pick_.hit->numfaces()) {
      Error("DragFaceTexture:  Bad face %i", pick_.face);
    }
    return Outcome::Drawn(Redraw::All);
  }

 private:
  const texturedef& definition() const { return pick_.hit->faces()[static_cast<size_t>(pick_.face)].texture; }

  // By one step, or for a turn by the whole way from the press. Returns the status text.
  std::string change(texturedef& texture, Pixel step) const {
    if (code_ == kShiftTextureCode) {
      texture.shift[0] = float(texture.shift[0] + step.x);
      texture.shift[1] = float(texture.shift[1] - step.y);
      return Format("(S %i, T %i)     ", Truncate(texture.shift[0]), Truncate(texture.shift[1]));
    }
    if (code_ == kStretchTextureCode) {
      texture.scale[0] = float(texture.scale[0] + kScaleStep * step.x);
      texture.scale[1] = float(texture.scale[1] - kScaleStep * step.y);
      return Format("(SX %3.1f, SY %3.1f)     ", texture.scale[0], texture.scale[1]);
    }
    const double rotation = UpToTurn(rotation_ + Truncate(DirectionDegrees(total_.x, -total_.y)));
    texture.rotate = float(rotation);
    return Format("(R %i)     ", Truncate(rotation));
  }

  int code_;
  const char* undoName_;
  FacePick pick_;
  double rotation_;  // of the face at the press
  Pixel total_{0, 0};
};

ToolStart Start(const MouseContext& context, int code, const char* undoName) {
  ToolStart start;
  const FacePick& pick = context.camera.under;
  if (!pick.hit || pick.face < 0) return start;
  if (context.saveUndo) context.saveUndo(undoName, UndoMode::Working, pick.hit);
  start.claimed = true;
  start.drag = std::make_unique<TextureDrag>(code, undoName, pick);
  return start;
}

}  // namespace

ToolStart StartShiftTexture(const MouseContext& context, const PointerEvent& /*event*/) {
  return Start(context, kShiftTextureCode, "Shift Texture");
}

ToolStart StartStretchTexture(const MouseContext& context, const PointerEvent& /*event*/) {
  return Start(context, kStretchTextureCode, "Stretch Texture");
}

ToolStart StartRotateTexture(const MouseContext& context, const PointerEvent& /*event*/) {
  return Start(context, kRotateTextureCode, "Rotate Texture");
}

}  // namespace velk
