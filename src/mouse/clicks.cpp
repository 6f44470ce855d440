#include "mouse/clicks.h"

#include <algorithm>

#include "base/text.h"
#include "mouse/view_ray.h"
#include "ops/clip.h"
#include "ops/select_shown.h"

namespace velk {
namespace {

constexpr int kWireReach = 8;  // pixels

PickRay RayUnder(const MouseContext& context, Pixel at) {
  if (!context.inCamera()) return RayAt(context.plan(), context.projection().screenToWorld(at));
  return {context.model.activeCamera().origin, context.camera.beyond ? context.camera.beyond(at) : vec3{}};
}

// What is seen comes first, whatever else the ray meets before it.
std::vector<brush*> UnderInCamera(const MouseContext& context, Pixel at) {
  const CameraPicks& camera = context.camera;
  const bool wire = context.settings.drawmode == 0;
  brush* seen = nullptr;
  if (wire && camera.pickWire) seen = camera.pickWire(at, kWireReach);
  if (!wire && camera.pickFace) seen = camera.pickFace(at).hit;
  if (!seen) return {};
  std::vector<brush*> under;
  if (!wire) {
    const PickRay ray = RayUnder(context, at);
    under = LookAlongRay(context.model, ray.start, ray.end, false);
  }
  std::erase(under, seen);
  under.insert(under.begin(), seen);
  return under;
}

void KeepHits(map& m, const std::vector<brush*>& under) {
  m.hits.clear();
  for (brush* b : under) m.hits.add(*b);
}

// The face that was clicked becomes the brush's current one; of the first brush selected the texture browser
// takes its texture.
bool TakeFace(const MouseContext& context, brush& b, Pixel at) {
  FacePick seen;
  if (context.inCamera() && context.settings.drawmode != 0 && context.camera.pickFace) {
    seen = context.camera.pickFace(at);
  }
  const PickRay ray = RayUnder(context, at);
  const int face = seen.hit == &b ? seen.face : b.hitByRay(ray.start, ray.end).face;
  if (face < 0 || face >= b.numfaces()) return false;
  b.setCurrentFace(face);
  return context.model.totalSelected() == 1 && context.texture &&
         context.texture->liftTexture(b.faces()[static_cast<size_t>(face)].texture, context.textures);
}

Outcome AddOrRemoveFirst(const MouseContext& context, const PointerEvent& event,
                         const std::vector<brush*>& under) {
  if (under.empty()) return {};
  brush& b = *under.front();
  AddOrRemove(context.model, b);
  const int count = context.model.totalSelected();
  Outcome outcome =
      Outcome::Drawn(Redraw::All, b.selected() ? Format(kClickAdded, count) : Format(kClickRemoved, count));
  if (b.selected()) outcome.textures = TakeFace(context, b, event.at);
  return outcome;
}

}  // namespace

std::vector<brush*> BrushesUnder(const MouseContext& context, Pixel at) {
  if (context.inCamera()) return UnderInCamera(context, at);
  const PickRay ray = RayUnder(context, at);
  return LookAlongRay(context.model, ray.start, ray.end, true);
}

// Behind the one that is selected alone, when it was clicked here before; else the first.
size_t Clicks::next(const MouseContext& context, const PointerEvent& event,
                    const std::vector<brush*>& under) const {
  if (view_ != context.view || !InOnePlace(at_, event.at) || context.model.totalSelected() != 1) return 0;
  const auto selected = std::ranges::find_if(under, [](const brush* b) { return b->selected(); });
  if (selected == under.end()) return 0;
  return static_cast<size_t>(selected - under.begin() + 1) % under.size();
}

Outcome Clicks::select(const MouseContext& context, const PointerEvent& event) {
  map& m = context.model;
  const std::vector<brush*> under = BrushesUnder(context, event.at);
  KeepHits(m, under);
  if (event.shift) return AddOrRemoveFirst(context, event, under);
  if (under.empty()) {
    view_ = -1;
    SelectOnly(m, nullptr);
    return Outcome::Drawn(Redraw::All, kAllDeselected);
  }
  const size_t index = next(context, event, under);
  view_ = context.view;
  at_ = event.at;
  SelectOnly(m, under[index]);
  if (index < HitList::kMax) m.hits.current = static_cast<int>(index);
  Outcome outcome = Outcome::Drawn(
      Redraw::All, Format(kClickTook, static_cast<int>(index) + 1, static_cast<int>(under.size())));
  outcome.textures = TakeFace(context, *under[index], event.at);
  return outcome;
}

Outcome Clicks::selectForMenu(const MouseContext& context, const PointerEvent& event) {
  const std::vector<brush*> under = BrushesUnder(context, event.at);
  if (under.empty() || std::ranges::any_of(under, [](const brush* b) { return b->selected(); })) return {};
  SelectOnly(context.model, under.front());
  Outcome outcome = Outcome::Drawn(Redraw::All);
  outcome.textures = TakeFace(context, *under.front(), event.at);
  return outcome;
}

}  // namespace velk
