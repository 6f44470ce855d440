#include "app/view_input.h"

#include <algorithm>
#include <utility>

#include "mouse/camera/camera_clicks.h"
#include "mouse/operations.h"
#include "mouse/view_drag.h"

namespace velk {
namespace {

constexpr int kTextureStep = 4;  // pixels of a texture drag that are one step

// While one lives, other events are passed over.
class Busy {
 public:
  explicit Busy(bool& flag) : flag_(flag) { flag_ = true; }
  ~Busy() { flag_ = false; }
  Busy(const Busy&) = delete;
  Busy& operator=(const Busy&) = delete;

 private:
  bool& flag_;
};

}  // namespace

ViewInput::ViewInput(const Services& services, Documents& documents, Door& door, Views& views,
                     TextureChoice& texture, const std::filesystem::path& home)
    : services_(services), documents_(documents), door_(door), views_(views), texture_(texture), home_(home) {
  door_.dragFailed = [this] {
    pointer_.cancel(context(pointer_.view()));
    press_.reset();
    stopDragMotions();
  };
  pointer_.tools.emplace_back(CompassClick);
  pointer_.tools.emplace_back(
      [this](const MouseContext& context, const PointerEvent& event) { return startBound(context, event); });
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
          .group = currentGroup(),
          .camera = {.width = views_.cameraWidth,
                     .pick = [this](Pixel at) { return views_.pick(at); },
                     .beyond = [this](Pixel at) { return views_.beyondInCamera(at); }},
          .saveUndo = [this](const char* name, UndoMode mode, brush* working) {
            door_.takeClassic(name, mode, working);
          }};
}

ToolStart ViewInput::startBound(const MouseContext& context, const PointerEvent& event) {
  return StartBound(fileOf(context.view).bindings, OperationsOf(context.view), context, event);
}

bool ViewInput::readBindings(BindingsFile& file) {
  if (file.read) return !file.damaged;
  file.read = true;
  file.damaged = !door_.attempt("Velk Error...", "", [&] {
    std::error_code gone;  // the folder may be
    file.bindings = loadMouseBindings(file.name, {std::filesystem::current_path(gone), home_});
  });
  return !file.damaged;
}

void ViewInput::readBindings() {
  readBindings(planFile_);
  readBindings(cameraFile_);
}

MouseBindings* ViewInput::bindings(int view) {
  BindingsFile& file = fileOf(view);
  return readBindings(file) ? &file.bindings : nullptr;
}

std::optional<StripField> ViewInput::stripFieldAt(int view, Pixel at) const {
  if (view == kCameraView || at.y >= kStripHeight) return std::nullopt;
  return velk::StripFieldAt(views_.plans.views[static_cast<size_t>(view)].clientWidth, at);
}

std::vector<brush*> ViewInput::brushesUnder(int view) const {
  if (!documents_.currentMap()) return {};
  return BrushesUnder(context(view), mouses_[static_cast<size_t>(view)].event.at);
}

// The other fields have menus, or do nothing.
void ViewInput::pressStrip(int view, Pixel at) {
  if (stripFieldAt(view, at) != StripField::Direction) return;
  views_.plans.views[static_cast<size_t>(view)].flip();
  door_.show(Outcome::Drawn(documents_.currentMap() ? Redraw::Plans | Redraw::Strips : Redraw::Strips));
}

void ViewInput::makeCurrent(int view) {
  if (std::exchange(views_.plans.current, view) == view) return;
  const map* m = documents_.currentMap();
  if (m && m->clip.count == 2) door_.show(Outcome::Drawn(Redraw::All));
}

void ViewInput::press(int view, const PointerEvent& event) {
  if (busy_) return;
  if (pointer_.drag()) {
    const bool other = event.button != pointer_.state().press.button;
    if (other && services_.settings.cancel_drags) cancel();
    return;
  }
  mouseOf(view) = {event, true};
  press_.reset();
  if (view != kCameraView) {
    makeCurrent(view);
    if (event.at.y < kStripHeight) return pressStrip(view, event.at);
  }
  if (!documents_.currentMap()) return;
  const bool first = !fileOf(view).read;
  if (!readBindings(fileOf(view)) && first) return;
  begin(view, event);
}

void ViewInput::begin(int view, const PointerEvent& event) {
  const Busy busy(busy_);
  bool claimed = false;
  centreBefore_ = views_.plans.planCenter;
  statusBefore_ = documents_.statusText();
  hint_.clear();
  const auto start = [&] {
    Outcome outcome = pointer_.press(context(view), event);
    claimed = pointer_.claimed();
    const MouseOperation* running = runningOperation();
    if (running && outcome.status.empty()) outcome.status = hint_ = HintOf(*running, services_.settings);
    return outcome;
  };
  const bool done = door_.press(
      {.name = ""}, start, [&] { return pointer_.drag() != nullptr; }, [&] { return pointer_.undoName(); });
  // What a click operation has done is no longer a click.
  if (done && (!claimed || pointer_.drag())) press_ = Press{view, event};
}

void ViewInput::readCoordinates(int view, Pixel at) {
  PlanView& plan = views_.plans.views[static_cast<size_t>(view)];
  std::string text =
      CoordinateText(views_.plans.projection(view, services_.settings).screenToWorld(at), services_.settings);
  if (text == plan.coordinateText) return;
  plan.coordinateText = std::move(text);
  door_.show(Outcome::Drawn(Redraw::Strips));
}

bool ViewInput::clicksMatter(MouseButton button) const {
  if (button == MouseButton::Left) return services_.settings.click_selects;
  return button == MouseButton::Right && services_.settings.click_menu;
}

// Whether the mouse has not left the place of its press yet, where it may become a click.
bool ViewInput::staysPut(int view, const PointerEvent& event) {
  if (!press_ || press_->moved) return false;
  const bool here = clicksMatter(press_->event.button) ? InOnePlace(press_->event.at, event.at)
                                                       : press_->event.at == event.at;
  press_->moved = view != press_->view || !here;
  return !press_->moved;
}

const MouseOperation* ViewInput::runningOperation() const {
  const Drag* drag = pointer_.drag();
  return drag ? OperationOf(OperationsOf(pointer_.view()), drag->code()) : nullptr;
}

void ViewInput::move(int view, const PointerEvent& event) {
  if (busy_) return;
  const bool drags = pointer_.drag() != nullptr;
  const int shown = drags ? pointer_.view() : view;
  mouseOf(shown) = {event, true};
  if (shown != kCameraView) readCoordinates(shown, event.at);
  if (staysPut(shown, event) || !drags) return;
  const Busy busy(busy_);
  door_.drag([&] { return pointer_.move(context(shown), event); });
  if (scrolls()) ticksWanted();
}

void ViewInput::drop(const PointerEvent& event) {
  const Busy busy(busy_);
  const MouseContext dragged = context(pointer_.view());
  const std::string name = pointer_.drag()->undoName();
  door_.drop(name, [&] { return pointer_.release(dragged, event); });
  stopDragMotions();
  takeHintBack();
}

// What the drag itself said stays.
void ViewInput::takeHintBack() {
  if (!hint_.empty() && documents_.statusText() == hint_) documents_.post(statusBefore_);
  hint_.clear();
}

bool ViewInput::isClick(const PointerEvent& event) const {
  if (!press_ || press_->moved || press_->event.button != event.button) return false;
  if (!clicksMatter(event.button) || !InOnePlace(press_->event.at, event.at)) return false;
  return !pointer_.drag() || !pointer_.drag()->actsUnmoved(pointer_.state());
}

bool ViewInput::isOtherButton(const PointerEvent& event) const {
  if (pointer_.drag()) return pointer_.state().press.button != event.button;
  return press_ && press_->event.button != event.button;
}

bool ViewInput::release(int view, const PointerEvent& event) {
  if (busy_ || isOtherButton(event)) return false;
  const bool isClicked = isClick(event);
  const PointerEvent pressed = press_ ? press_->event : event;
  if (press_) view = press_->view;
  press_.reset();
  if (pointer_.drag() && !isClicked) drop(event);
  if (!isClicked) return false;
  cancel();
  return click(view, pressed);
}

// CTRL is for what drags do with the selected brush.
bool ViewInput::click(int view, const PointerEvent& event) {
  const bool menu = event.button == MouseButton::Right;
  if (!documents_.currentMap() || (event.ctrl && !menu)) return false;
  const Busy busy(busy_);
  door_.perform({.name = "Select"}, [&] {
    return menu ? Clicks::selectForMenu(context(view), event) : clicks_.select(context(view), event);
  });
  return menu;
}

void ViewInput::wheel(int view, const PointerEvent& event, int notches) {
  if (busy_ || !documents_.currentMap() || pointer_.drag() || !services_.settings.wheel_zoom) return;
  if (view == kCameraView) {
    door_.perform({.name = ""}, [&] { return FlyBy(context(view), notches); });
    return;
  }
  const Outcome outcome = ZoomAt(context(view), event.at, notches);
  if (outcome.redraw != Redraw::None) door_.show(outcome);
}

void ViewInput::cancel() {
  press_.reset();
  if (!pointer_.drag()) return;
  const int view = pointer_.view();
  pointer_.cancel(context(view));
  views_.plans.planCenter = centreBefore_;
  stopDragMotions();
  door_.cancelDrag();
  // Nor does what it said along the way hold any more.
  if (documents_.statusText() != statusBefore_) documents_.post(statusBefore_);
  hint_.clear();
}

void ViewInput::focusLost() {
  if (busy_) return;
  held_.clear();
  flight_.stop();
  press_.reset();
  if (pointer_.drag()) drop(pointer_.lastEvent());
}

bool ViewInput::dragKey(DragKey key) {
  if (busy_ || !pointer_.drag()) return false;
  const Settings& settings = services_.settings;
  if (key == DragKey::Escape) {
    if (!settings.cancel_drags) return false;
    cancel();
    return true;
  }
  if (!settings.drag_arrows) return false;
  if (pointer_.drag()->goesByPixels()) return true;
  const Busy busy(busy_);
  const int view = pointer_.view();
  const double step = view == kCameraView ? kTextureStep : std::max(1, settings.gridsize);
  ViewPoint by;
  if (key == DragKey::Left || key == DragKey::Right) by.u = key == DragKey::Right ? step : -step;
  if (key == DragKey::Up || key == DragKey::Down) by.v = key == DragKey::Up ? step : -step;
  if (press_) press_->moved = true;
  door_.drag([&] { return pointer_.nudge(context(view), by); });
  return true;
}

}  // namespace velk
