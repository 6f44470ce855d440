// Undo: what a map was before its last changes.
#pragma once

#include <deque>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "model/snapshot.h"

namespace velk {

// What a command is about to change.
enum class UndoMode {
  Selection,  // the one selected brush of the current entity, otherwise the map
  Working,    // the brush that the camera view works on, otherwise the map
  Groups,     // the group list
  All,        // the map
};

// With one level, the classic record: the last copy saved, whole map, one brush or the groups, and no redo.
// With more, whole maps that share what did not change, and redo.
class History {
 public:
  static constexpr size_t kMaxName = 63;

  struct Limits {
    int levels = 1;
    int megabytes = 0;  // that levels may keep beside the map; 0 for any number

    static Limits of(const Settings& settings) { return {settings.undo_levels, settings.undo_megabytes}; }
  };

  // A copy of what is about to change, to be kept when it did.
  class Copy;
  // `working` is the camera view's brush, if any.
  static Copy copyOf(map& m, UndoMode mode, brush* working = nullptr);
  void keep(Copy copy, const std::string& name, const Limits& limits);

  // Keeps what the map was before a change; what could be redone is gone. Beyond the limits the oldest go.
  void changed(MapSnapshot before, const std::string& name, const Limits& limits);

  // Where the brush is that the last level is a copy of, and its entity, whether it holds the brush or not;
  // none when the level is of more, or the entity is gone.
  struct Place {
    int entity = 0;
    int brush = -1;
  };
  std::optional<Place> placeOfOne(map& m) const;
  // The objects there now are the ones meant, since the map was put back to when the place was taken.
  void followOne(map& m, const Place& place);

  // Whether a repeat of the change `name` may join the last level instead of making one: it is of that name,
  // and nothing was undone, saved or closed since.
  bool canExtend(const std::string& name) const { return open_ && undoName() == name.substr(0, kMaxName); }
  // Nothing joins the last level any more.
  void close() { open_ = false; }

  // Gives up what is beyond the limits, the oldest first, but not the newest level. With one level there is
  // no redo.
  void limit(const Limits& limits);

  bool canUndo() const { return !records_.empty(); }
  bool canRedo() const { return !redo_.empty(); }
  int undoCount() const { return static_cast<int>(records_.size()); }
  int redoCount() const { return static_cast<int>(redo_.size()); }
  // Of the change that would be taken back or done again; "" for none.
  std::string undoName() const { return records_.empty() ? "" : records_.back().name; }
  std::string redoName() const { return redo_.empty() ? "" : redo_.back().name; }
  // Of all that is kept, the next one first.
  std::vector<std::string> undoNames() const { return namesFromBack(records_); }
  std::vector<std::string> redoNames() const { return namesFromBack(redo_); }
  // About what the levels keep beside what the map shares with the newest one.
  size_t bytes() const;

  // Take the last change back, or do it again; false when there is none.
  bool undo(map& m, const Limits& limits);
  bool redo(map& m);

 private:
  struct OneBrush {
    KeptEntity owner;  // its pairs, and the one brush
    std::weak_ptr<const void> liveOwner;
    std::weak_ptr<const void> liveBrush;
  };
  struct Record {
    std::string name;
    std::unique_ptr<MapSnapshot> whole;
    std::unique_ptr<OneBrush> one;
    std::unique_ptr<GroupList> groups;
    size_t bytes = 0;  // that it keeps and its neighbour towards the map's present state does not
  };
  template <class Records>
  static std::vector<std::string> namesFromBack(const Records& records) {
    std::vector<std::string> names;
    for (auto record = records.rbegin(); record != records.rend(); ++record) names.push_back(record->name);
    return names;
  }
  static std::unique_ptr<OneBrush> keepOne(brush& b);
  static void restoreOne(map& m, const OneBrush& kept);
  // The whole map as it is, which `record` is about to replace.
  static Record present(const map& m, const Record& record);
  void push(Record record, const Limits& limits);

  std::deque<Record> records_;
  std::vector<Record> redo_;
  bool open_ = false;
};

class History::Copy {
  friend class History;
  Record record_;
};

}  // namespace velk
