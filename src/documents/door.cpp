#include "documents/door.h"

#include <filesystem>
#include <new>
#include <utility>

#include "base/error.h"

namespace velk {
namespace {

constexpr std::chrono::seconds kHeldKey{1};

// Takes a level's place in a count for as long as it lives.
class Entered {
 public:
  explicit Entered(int& depth) : depth_(depth) { ++depth_; }
  ~Entered() { --depth_; }
  Entered(const Entered&) = delete;
  Entered& operator=(const Entered&) = delete;

 private:
  int& depth_;
};

bool SameRange(const MapSnapshot& before, const map& m) {
  return VecEqual(before.workLow, m.workLow()) && VecEqual(before.workHigh, m.workHigh());
}

}  // namespace

std::optional<std::string> Door::trapped(const std::function<void()>& action) {
  const Entered entered(depth_);
  try {
    const ErrorTrap trap;
    action();
    return std::nullopt;
  } catch (const TrappedError& error) {
    return error.what();
  } catch (const std::bad_alloc&) {
    return "Not enough memory";
  } catch (const std::filesystem::filesystem_error& error) {
    return error.what();
  }
}

bool Door::report(const char* caption, const std::string& text) {
  if (!services_.attended) Error("%s", text.c_str());
  services_.tell(caption, text);
  return false;
}

bool Door::attempt(const char* caption, const std::string& failure, const std::function<void()>& action) {
  const auto error = trapped(action);
  if (!error) return true;
  return report(caption, services_.attended ? failure + *error : *error);
}

Door::Open Door::begin(const Change& change) {
  Open open;
  open.change = change;
  open.document = documents_.current();
  if (!open.document) return open;
  MapDocument& document = *open.document;
  if (change.classic && services_.settings.undo_levels <= 1) {
    open.classic = History::copyOf(document.model, *change.classic);
  }
  open.kept = document.history.placeOfOne(document.model);
  open.before = TakeSnapshot(document.model);
  if (!document.saved) document.saved = open.before;
  open.currentEntity = document.model.currentEntity();
  open.undoCount = document.history.undoCount();
  open.redoCount = document.history.redoCount();
  open.differed = services_.settings.ask_when_changed && document.isUnsaved();
  return open;
}

bool Door::run(Open& open, const Action& action, Outcome& outcome) {
  Open* const outer = std::exchange(running_, &open);
  const auto error = trapped([&] { outcome = action(); });
  running_ = outer;
  if (!error) return true;
  revert(open);
  if (open.dragged) dragFailed();
  return report(open.change.caption, services_.attended ? open.change.failure + *error : *error);
}

void Door::revert(Open& open) {
  if (!open.before || !documents_.holds(open.document)) return;
  MapDocument& document = *open.document;
  RestoreSnapshot(document.model, *open.before, true);
  if (open.kept) document.history.followOne(document.model, *open.kept);
  tell(Outcome::Drawn(Redraw::All), Changes::All());
}

bool Door::joinsLast(const Open& open) const {
  return open.change.byKey && lastDocument_ == open.document && now() - lastTime_ < kHeldKey &&
         open.document->history.canExtend(open.change.name);
}

// Whether the map's contents changed. Undo and redo move levels by themselves.
bool Door::keepLevel(Open& open) {
  History& history = open.document->history;
  if (history.undoCount() != open.undoCount || history.redoCount() != open.redoCount) return true;
  if (SameContents(*open.before, TakeSnapshot(open.document->model))) return false;
  const History::Limits limits = History::Limits::of(services_.settings);
  if (limits.levels <= 1) {
    const std::string& name = open.classicName.empty() ? open.change.name : open.classicName;
    if (open.classic) history.keep(std::move(*open.classic), name, limits);
    return true;
  }
  if (!joinsLast(open)) history.changed(std::move(*open.before), open.change.name, limits);
  lastDocument_ = open.document;
  lastTime_ = now();
  return true;
}

void Door::end(Open& open, Outcome outcome) {
  Changes changes;
  changes.commands = true;
  MapDocument* document = documents_.holds(open.document) ? open.document : nullptr;
  if (document) {
    const map& m = document->model;
    if (!SameRange(*open.before, m)) outcome.redraw = outcome.redraw | Redraw::Plans;
    changes.groups = !(open.before->groups == m.groups);
    changes.entity = keepLevel(open) || document->model.currentEntity() != open.currentEntity;
    changes.maps = services_.settings.ask_when_changed && document->isUnsaved() != open.differed;
  }
  tell(outcome, changes);
}

void Door::tell(const Outcome& outcome, Changes changes) {
  pending_ = pending_ | outcome.redraw;
  if (documents_.currentMap() && outcome.centre != Centre::Stay && centreViews(outcome.centre)) {
    pending_ = pending_ | Redraw::Plans;
  }
  if (!outcome.status.empty()) documents_.post(outcome.status);
  // Without a map the pictures wait for one.
  if (documents_.currentMap() || outcome.maps) {
    changes.planViews = Includes(pending_, Redraw::Plans);
    changes.camera = Includes(pending_, Redraw::Camera);
    changes.strips = Includes(pending_, Redraw::Strips);
    changes.selectedBrush = Includes(pending_, Redraw::All);
    pending_ = Redraw::None;
  }
  if (outcome.maps) changes = Changes::All();
  changes.maps |= outcome.names;
  changes.groups |= outcome.groups;
  changes.textures |= outcome.textures;
  services_.observer.changed(changes);
}

void Door::takeClassic(const std::string& name, UndoMode mode, brush* working) {
  if (!running_ || !running_->document || services_.settings.undo_levels > 1) return;
  running_->classic = History::copyOf(running_->document->model, mode, working);
  running_->classicName = name;
}

void Door::show(const Outcome& outcome) { tell(outcome, {}); }

bool Door::perform(const Change& change, const Action& action) {
  if (drag_) return false;
  if (depth_ > 0) {
    show(action());
    return true;
  }
  Open open = begin(change);
  Outcome outcome;
  if (!run(open, action, outcome)) return false;
  end(open, std::move(outcome));
  return true;
}

bool Door::press(const Change& change, const Action& action, const std::function<bool()>& runs,
                 const std::function<std::string()>& name) {
  if (drag_) return false;
  Open open = begin(change);
  Outcome outcome;
  if (!run(open, action, outcome)) return false;
  if (name && open.change.name.empty()) open.change.name = name();
  if (!runs()) {
    end(open, std::move(outcome));
    return true;
  }
  open.dragged = true;
  drag_ = std::move(open);
  show(outcome);
  return true;
}

bool Door::drag(const Action& action) {
  if (!drag_) return false;
  Outcome outcome;
  Open open = std::move(*drag_);
  drag_.reset();
  if (!run(open, action, outcome)) return false;
  drag_ = std::move(open);
  show(outcome);
  return true;
}

bool Door::drop(const std::string& name, const Action& action) {
  if (!drag_) return false;
  Outcome outcome;
  Open open = std::move(*drag_);
  drag_.reset();
  if (!name.empty()) open.change.name = name;
  if (!run(open, action, outcome)) return false;
  end(open, std::move(outcome));
  return true;
}

void Door::cancelDrag() {
  if (!drag_) return;
  Open open = std::move(*drag_);
  drag_.reset();
  revert(open);
}

}  // namespace velk
