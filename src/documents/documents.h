// The open maps, one of which is current, and the line that says what was done.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "documents/map_document.h"
#include "documents/recent.h"
#include "documents/services.h"
#include "mapfile/map_reader.h"
#include "textures/texture_choice.h"
#include "textures/texture_manager.h"

namespace velk {

inline constexpr int MAX_MAPS = 10;

class Documents {
 public:
  // All must outlive it.
  Documents(const Services& services, const EntityClassList& classes, TextureManager& textures,
            TextureChoice& choice);
  ~Documents();

  // Open maps, 0..count()-1 without gaps.
  int count() const { return static_cast<int>(documents_.size()); }
  int currentIndex() const { return current_; }
  MapDocument* at(int index) const;  // none outside the range
  MapDocument* current() const { return at(current_); }
  map* currentMap() const { return current() ? &current()->model : nullptr; }
  // Whether that document is still open.
  bool holds(const MapDocument* document) const;
  // The open map of that file; -1 when it is not open.
  int indexOfFile(const std::string& path) const;

  // A map without contents of its own, and one read from a file. Neither is in the list yet. Fatal as reading
  // a map is.
  std::unique_ptr<MapDocument> makeNew();
  std::unique_ptr<MapDocument> read(const std::string& path);
  // Adds the entities of a file to an open map; all or nothing. Fatal as a merge is.
  void merge(map& m, const std::string& path);
  // Adds a map to the list, which must have room, and makes it current.
  void add(std::unique_ptr<MapDocument> added);
  // Makes another map current; an index outside the range is ignored.
  void show(int index) {
    if (!at(index)) return;
    turn_ += index != current_;
    current_ = index;
  }
  // Changes whenever another map becomes current.
  int turn() const { return turn_; }
  // The last one moves into its place, the first becomes current.
  void close(int index);

  // The clipboard of all open maps; none before the first copy.
  map* clipboard() const { return clipboard_.get(); }
  // An empty one in its place.
  map& newClipboard();

  RecentMaps& recent() { return recent_; }
  const RecentMaps& recent() const { return recent_; }

  // The status line, at most 127 characters; in debug mode with the numbers of objects behind it.
  void post(const std::string& text);
  const std::string& status() const { return status_; }
  // What was posted last.
  const std::string& statusText() const { return statusText_; }

 private:
  std::unique_ptr<MapDocument> make();
  WadProgressSink wadProgress();
  MapReadOptions readOptions();
  void offerFirstTexture(const MapDocument& from);
  std::string statusLine(const std::string& text) const;

  const Services& services_;
  const EntityClassList& classes_;
  TextureManager& textures_;
  TextureChoice& choice_;
  ObjectCounters counters_;
  std::unique_ptr<map> clipboard_;
  std::vector<std::unique_ptr<MapDocument>> documents_;
  int current_ = 0;
  int turn_ = 0;
  RecentMaps recent_;
  std::string status_;
  std::string statusText_;
};

}  // namespace velk
