// The one door that everything passes which can change a map: it refuses while a drag runs, opens and closes
// the undo level, traps fatal errors and puts the map back, applies the outcome and tells the observer once.
#pragma once

#include <chrono>
#include <functional>
#include <optional>
#include <string>

#include "documents/documents.h"

namespace velk {

// What is about to be done.
struct Change {
  std::string name;                       // of its undo level
  const char* caption = "Velk Error...";  // of the box that says why it failed
  std::string failure = {};               // what that box says first
  bool byKey = false;                     // a key that is held: repeats within a second are one level
  // The classic single level is kept only of the changes that say so.
  std::optional<UndoMode> classic = {};
};

class Door {
 public:
  using Action = std::function<Outcome()>;

  Door(const Services& services, Documents& documents) : services_(services), documents_(documents) {}

  // False when it was refused or failed: then map, selection and undo are as before, and the user was told in
  // a box; unattended, the error is reported. What an action itself performs belongs to its own level.
  bool perform(const Change& change, const Action& action);

  // Something that was let in has not come out yet.
  bool busy() const { return depth_ > 0; }

  // A drag: a change that goes on over several events. Everything else is refused meanwhile.
  bool dragRuns() const { return drag_.has_value(); }
  // The press. The drag goes on when `runs` says so afterwards; otherwise the change is complete. False as
  // for perform.
  bool press(const Change& change, const Action& action, const std::function<bool()>& runs,
             const std::function<std::string()>& name = {});
  // A move. False when it failed: the drag is over and the map as it was before the press.
  bool drag(const Action& action);
  // The release; the level gets this name.
  bool drop(const std::string& name, const Action& action);
  // Everything is as it was before the press.
  void cancelDrag();

  // Runs something that may fail without having touched an open map, such as reading a file. False when it
  // failed: the user was told `failure` and why; unattended, the error is reported.
  bool attempt(const char* caption, const std::string& failure, const std::function<void()>& action);

  // The same without telling: the message of the error, none when it went well.
  std::optional<std::string> trapped(const std::function<void()>& action);

  // Said by the action that runs, before it changes anything: the classic single level is kept of it, with
  // the name, when it did change something. `working` is the camera view's brush, if any.
  void takeClassic(const std::string& name, UndoMode mode, brush* working = nullptr);

  // Posts an outcome that changed no map and has pictures drawn anew.
  void show(const Outcome& outcome);

  // Brings the plan views to the active camera, locked or not; whether they moved.
  std::function<bool(Centre)> centreViews = [](Centre) { return false; };
  // A step of a drag failed and the map was put back: its tool has to go before the user is told.
  std::function<void()> dragFailed = [] {};
  // The time, for tests.
  std::function<std::chrono::steady_clock::time_point()> now = std::chrono::steady_clock::now;

 private:
  // A change from its begin to its end.
  struct Open {
    Change change;
    MapDocument* document = nullptr;  // none without a map
    std::optional<MapSnapshot> before;
    std::optional<History::Copy> classic;
    std::string classicName;
    std::optional<History::Place> kept;  // of the one brush that the last level is of
    entity* currentEntity = nullptr;
    int undoCount = 0;
    int redoCount = 0;
    bool differed = false;
    bool dragged = false;  // its press was followed by more
  };

  Open begin(const Change& change);
  void end(Open& open, Outcome outcome);
  void revert(Open& open);
  bool run(Open& open, const Action& action, Outcome& outcome);
  bool report(const char* caption, const std::string& text);
  bool keepLevel(Open& open);
  bool joinsLast(const Open& open) const;
  void tell(const Outcome& outcome, Changes changes);

  const Services& services_;
  Documents& documents_;
  std::optional<Open> drag_;
  Open* running_ = nullptr;  // whose action runs now
  int depth_ = 0;            // actions that run now
  Redraw pending_ = Redraw::None;
  const MapDocument* lastDocument_ = nullptr;  // that got a level last, and when
  std::chrono::steady_clock::time_point lastTime_;
};

}  // namespace velk
