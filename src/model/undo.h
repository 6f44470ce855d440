// Undo: what a map was before its last changes.
#pragma once

#include <deque>
#include <memory>
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
class UndoHistory {
 public:
  static constexpr size_t kMaxName = 63;

  // Saves a copy before a change. With more than one level only explicit copies (All) are kept here, since
  // every change takes its own. `working` is the camera view's brush, if any.
  void save(map& m, const std::string& name, UndoMode mode, int levels, brush* working = nullptr);
  // Keeps what the map was before a change; what could be redone is gone. Beyond `levels` the oldest goes.
  void changed(MapSnapshot before, const std::string& name, int levels);

  // Gives up what is beyond that many levels; with one level there is no redo.
  void limit(int levels);

  // The whole map that was kept last, for the next snapshot to share what did not change; none otherwise.
  const MapSnapshot* latest() const { return records_.empty() ? nullptr : records_.back().whole.get(); }

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

  // Take the last change back, or do it again; false when there is none.
  bool undo(map& m, int levels);
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
  };
  template <class Records>
  static std::vector<std::string> namesFromBack(const Records& records) {
    std::vector<std::string> names;
    for (auto record = records.rbegin(); record != records.rend(); ++record) names.push_back(record->name);
    return names;
  }
  static std::unique_ptr<OneBrush> keepOne(brush& b);
  static void restoreOne(map& m, const OneBrush& kept);
  void push(Record record, int levels);

  std::deque<Record> records_;
  std::vector<Record> redo_;
};

}  // namespace velk
