// What the editor tells whoever shows it. Few notices, each without detail: the receiver asks the editor
// for what it shows.
#pragma once

#include <string>

namespace velk {

class Observer {
 public:
  virtual ~Observer() = default;
  // The status line's text changed.
  virtual void statusChanged(const std::string& /*text*/) {}
  // Views whose pictures are out of date.
  virtual void redrawCamera() {}
  virtual void redrawPlanViews() {}
  virtual void redrawSelectedBrush() {}
  // The list of open maps, the current one, a path or a modified flag changed: titles, tabs.
  virtual void mapsChanged() {}
  // Start-up loads `total` lumps of a wad and has done so many of them; no text: it is over.
  virtual void loadProgress(const std::string& /*text*/, int /*done*/, int /*total*/) {}
  // Contents of a tool window changed.
  virtual void entityChanged() {}
  virtual void groupsChanged() {}
  virtual void texturesChanged() {}
  // Menus, bars and check marks may look different.
  virtual void commandsChanged() {}
  // The user asked for the manual.
  virtual void helpRequested() {}
  // The user asked to exit and gave no Cancel.
  virtual void exitRequested() {}
};

}  // namespace velk
