#include "mouse/clicks.h"

#include <algorithm>

#include "base/text.h"
#include "mouse/view_ray.h"
#include "ops/clip.h"
#include "ops/select_shown.h"

namespace velk {
namespace {

PickRay RayUnder(const MouseContext& context, Pixel at) {
  if (!context.inCamera()) return RayAt(context.plan(), context.projection().screenToWorld(at));
  return {context.model.activeCamera().origin, context.camera.beyond ? context.camera.beyond(at) : vec3{}};
}

// What is seen comes first, whatever else the ray meets before it.
std::vector<brush*> UnderInCamera(const MouseContext& context, Pixel at) {
  brush* seen = context.camera.pick(at).hit;
  if (!seen) return {};
  std::vector<brush*> under;
  if (context.settings.drawmode != kWireMode) {
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

// With the one that is taken current. Going on from it leaves nothing of a selection that it is alone in.
void KeepHits(map& m, const std::vector<brush*>& under, size_t taken) {
  KeepHits(m, under);
  if (taken >= HitList::kMax) return;
  m.hits.current = static_cast<int>(taken);
  if (m.totalSelected() == 1) m.hits.saved[taken] = false;
}

// The wire picture shows no faces: the brush's current one stays.
int FaceUnder(const MouseContext& context, const brush& b, Pixel at) {
  if (context.inCamera()) {
    if (context.settings.drawmode == kWireMode) return b.currentFace();
    const FacePick seen = context.camera.pick(at);
    if (seen.hit == &b) return seen.face;
  }
  const PickRay ray = RayUnder(context, at);
  return b.hitByRay(ray.start, ray.end).face;
}

// The face that was clicked becomes the brush's current one. False when none was.
bool TakeFace(const MouseContext& context, brush& b, Pixel at) {
  const int face = FaceUnder(context, b, at);
  if (face < 0 || face >= b.numfaces()) return false;
  b.setCurrentFace(face);
  return true;
}

// The same; of the first brush selected the texture browser takes the face's texture. Whether it did.
bool TakeTexture(const MouseContext& context, brush& b, Pixel at) {
  if (!TakeFace(context, b, at) || context.model.totalSelected() != 1 || !context.texture) return false;
  return context.texture->liftTexture(b.faces()[static_cast<size_t>(b.currentFace())].texture,
                                      context.textures);
}

Outcome AddOrRemoveFirst(const MouseContext& context, const PointerEvent& event,
                         const std::vector<brush*>& under) {
  if (under.empty()) return {};
  brush& b = *under.front();
  AddOrRemove(context.model, b);
  const int count = context.model.totalSelected();
  Outcome outcome =
      Outcome::Drawn(Redraw::All, b.selected() ? Format(kClickAdded, count) : Format(kClickRemoved, count));
  if (b.selected()) outcome.textures = TakeTexture(context, b, event.at);
  return outcome;
}

}  // namespace

std::vector<brush*> BrushesUnder(const MouseContext& context, Pixel at) {
  if (context.inCamera()) return UnderInCamera(context, at);
  const PickRay ray = RayUnder(context, at);
  return LookAlongRay(context.model, ray.start, ray.end, true);
}

bool Clicks::isAgain(const MouseContext& context, Pixel at) const {
  return view_ == context.view && InOnePlace(at_, at) && context.model.totalSelected() == 1;
}

size_t Clicks::next(const MouseContext& context, Pixel at, const std::vector<brush*>& under) const {
  if (!isAgain(context, at)) return 0;
  const auto selected = std::ranges::find_if(under, [](const brush* b) { return b->selected(); });
  if (selected == under.end()) return 0;
  return static_cast<size_t>(selected - under.begin() + 1) % under.size();
}

Outcome Clicks::select(const MouseContext& context, const PointerEvent& event) {
  map& m = context.model;
  const std::vector<brush*> under = BrushesUnder(context, event.at);
  if (event.shift || under.empty()) KeepHits(m, under);
  if (event.shift) return AddOrRemoveFirst(context, event, under);
  if (under.empty()) {
    view_ = -1;
    SelectOnly(m, nullptr);
    return Outcome::Drawn(Redraw::All, kAllDeselected);
  }
  const size_t index = next(context, event.at, under);
  view_ = context.view;
  at_ = event.at;
  SelectOnly(m, under[index]);
  KeepHits(m, under, index);
  Outcome outcome = Outcome::Drawn(
      Redraw::All, Format(kClickTook, static_cast<int>(index) + 1, static_cast<int>(under.size())));
  outcome.textures = TakeTexture(context, *under[index], event.at);
  return outcome;
}

Outcome Clicks::selectForMenu(const MouseContext& context, const PointerEvent& event) {
  const std::vector<brush*> under = BrushesUnder(context, event.at);
  if (under.empty()) return {};
  const auto selected = std::ranges::find_if(under, [](const brush* b) { return b->selected(); });
  if (selected != under.end()) {
    KeepHits(context.model, under, static_cast<size_t>(selected - under.begin()));
    return Outcome::Drawn(context.settings.show_hits ? Redraw::All : Redraw::None);
  }
  SelectOnly(context.model, under.front());
  KeepHits(context.model, under, 0);
  TakeFace(context, *under.front(), event.at);
  return Outcome::Drawn(Redraw::All);
}

}  // namespace velk
