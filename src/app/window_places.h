// The saved arrangements of the frame's windows: velk.pos.
#pragma once

#include "app/windows.h"
#include "documents/services.h"

namespace velk {

class WindowPlaces {
 public:
  explicit WindowPlaces(const Services& services) : services_(services) {}

  // The windows that commands act on; without a host, windows that nobody sees.
  WindowHost& windows() const { return *windows_; }
  void setWindows(WindowHost& host) { windows_ = &host; }

  const Arrangements& arrangements() const { return arrangements_; }
  // Reads velk.pos when there is one. Until then, and without one, no slot was saved.
  void load();
  // Whether a slot (0..3) holds places.
  bool isSaved(int slot) const;
  // Gives the windows the places of the current slot; without a saved one nothing happens.
  Outcome apply();
  // Makes a slot (0..3) current and gives the windows its places.
  Outcome use(int slot);
  // Takes the windows' places into a slot (0..3) and writes all slots to velk.pos.
  Outcome save(int slot);

 private:
  // What velk.pos holds now; none without one, or when it cannot be read, which then holds.
  std::optional<Arrangements> readKept();

  const Services& services_;
  bool unreadable_ = false;
  PlainWindows plainWindows_;
  WindowHost* windows_ = &plainWindows_;
  Arrangements arrangements_;
};

}  // namespace velk
