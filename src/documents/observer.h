// What the editor tells whoever shows it. Notices come without detail: the receiver asks the editor for what
// it shows.
#pragma once

#include <string>

namespace velk {

// What looks different after something was done.
struct Changes {
  bool planViews = false;
  bool strips = false;  // of the plan views
  bool camera = false;
  bool selectedBrush = false;
  bool maps = false;      // the list of open maps, the current one, a name, whether one differs from its file
  bool entity = false;    // contents of the entity window
  bool groups = false;    // of the group window
  bool textures = false;  // of the texture browser
  bool commands = false;  // menus, bars and check marks

  static Changes All() { return {true, true, true, true, true, true, true, true, true}; }
};

class Observer {
 public:
  virtual ~Observer() = default;
  // The status line's text changed.
  virtual void statusChanged(const std::string& /*text*/) {}
  // Once after everything that was done.
  virtual void changed(const Changes& /*what*/) {}
  // Start-up loads `total` lumps of a wad and has done so many of them; no text: it is over.
  virtual void loadProgress(const std::string& /*text*/, int /*done*/, int /*total*/) {}
  // Something long says how far it is, to be written over the camera view's picture from that pixel on.
  // False: the user wants it to stop.
  virtual bool progress(const std::string& /*text*/, int /*left*/, int /*top*/) { return true; }
  // The user asked for the manual.
  virtual void helpRequested() {}
  // The user asked for the build window, or started a build that it is to show.
  virtual void buildRequested() {}
  // The user asked to exit and gave no Cancel.
  virtual void exitRequested() {}
};

}  // namespace velk
