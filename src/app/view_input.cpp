#include "app/view_input.h"

#include "mouse/camera/camera_clicks.h"
#include "mouse/operations.h"
#include "mouse/view_drag.h"

namespace velk {

ViewInput::ViewInput(const Services& services, Documents& documents, Door& door, Views& views,
                     TextureChoice& texture, const std::filesystem::path& home)
    : services_(services), documents_(documents), door_(door), views_(views), texture_(texture), home_(home) {
  pointer_.tools.emplace_back(CompassClick);
  pointer_.tools.emplace_back([this](const MouseContext& context, const PointerEvent& event) {
    return StartBound(fileOf(context.view).bindings,
                      context.inCamera() ? CameraOperations() : PlanOperations(), context, event);
  });
  pointer_.tools.emplace_back(StartViewDrag);
}

// A map must be open.
MouseContext ViewInput::context(int view) const {
  MapDocument& document = *documents_.current();
  return {.model = document.model,
          .settings = services_.settings,
          .plans = views_.plans,
          .prompts = services_.prompts,
          .view = view,
          .texture = &texture_,
          .textures = &document.textures,
          .camera = {.width = views_.cameraWidth,
                     .pickFace = [this](Pixel at) { return views_.pickInCamera(at); },
                     .pickWire = [this](Pixel at, int reach) { return views_.pickInWire(at, reach); }},
          .saveUndo = [this](const char* name, UndoMode mode, brush* working) {
            MapDocument& saved = *documents_.current();
            saved.history.save(saved.model, name, mode, History::Limits::of(services_.settings), working);
          }};
}

// False when the file is damaged, of which the user is told once.
bool ViewInput::readBindings(BindingsFile& file) {
  if (file.read) return true;
  file.read = true;
  return door_.attempt("Velk Error", "", [&] {
    file.bindings = loadMouseBindings(file.name, {std::filesystem::current_path(), home_});
  });
}

std::optional<StripField> ViewInput::stripFieldAt(int view, Pixel at) const {
  if (view == kCameraView || at.y >= kStripHeight) return std::nullopt;
  return velk::StripFieldAt(views_.plans.views[static_cast<size_t>(view)].clientWidth, at);
}

// The other fields have menus, or do nothing.
void ViewInput::pressStrip(int view, Pixel at) {
  if (stripFieldAt(view, at) != StripField::Direction) return;
  views_.plans.views[static_cast<size_t>(view)].flip();
  door_.show(Outcome::Drawn(documents_.currentMap() ? Redraw::Plans | Redraw::Strips : Redraw::Strips));
}

void ViewInput::press(int view, const PointerEvent& event) {
  if (pointer_.drag()) return;
  if (view != kCameraView) {
    views_.plans.current = view;
    if (event.at.y < kStripHeight) return pressStrip(view, event.at);
  }
  if (!documents_.currentMap() || !readBindings(fileOf(view))) return;
  door_.press(
      {.name = ""}, [&] { return pointer_.press(context(view), event); },
      [&] { return pointer_.drag() != nullptr; }, [&] { return pointer_.undoName(); });
}

void ViewInput::readCoordinates(int view, Pixel at) {
  PlanView& plan = views_.plans.views[static_cast<size_t>(view)];
  std::string text =
      CoordinateText(views_.plans.projection(view, services_.settings).screenToWorld(at), services_.settings);
  if (text == plan.coordinateText) return;
  plan.coordinateText = std::move(text);
  door_.show(Outcome::Drawn(Redraw::Strips));
}

void ViewInput::move(int view, const PointerEvent& event) {
  mouse_[static_cast<size_t>(view)] = event;
  const int shown = pointer_.drag() ? pointer_.view() : view;
  if (shown != kCameraView) readCoordinates(shown, event.at);
  if (!pointer_.drag()) return;
  if (!door_.drag([&] { return pointer_.move(context(shown), event); })) pointer_.cancel(context(shown));
}

void ViewInput::release(int /*view*/, const PointerEvent& event) {
  if (!pointer_.drag()) return;
  const MouseContext dragged = context(pointer_.view());
  const std::string name = pointer_.drag()->undoName();
  if (!door_.drop(name, [&] { return pointer_.release(dragged, event); })) pointer_.cancel(dragged);
}

void ViewInput::wheel(int view, const PointerEvent& event, int notches) {
  if (!documents_.currentMap() || pointer_.drag()) return;
  const Outcome outcome = ZoomAt(context(view), event.at, notches);
  if (outcome.redraw != Redraw::None) door_.show(outcome);
}

void ViewInput::cancel() {
  if (!pointer_.drag()) return;
  pointer_.cancel(context(pointer_.view()));
  door_.cancelDrag();
}

}  // namespace velk
