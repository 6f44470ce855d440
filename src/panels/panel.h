// What every tool window offers beside what it shows: its context menu, and the ways in which the desktop and
// scripts use it.
#pragma once

#include <string>
#include <vector>

#include "base/menu.h"
#include "documents/door.h"
#include "entities/entity_class.h"
#include "textures/texture_choice.h"
#include "textures/texture_manager.h"

namespace velk {

// What tool windows work with. All of it outlives them.
struct PanelContext {
  const Services& services;
  Documents& documents;
  Door& door;
  EntityClassList& classes;
  TextureManager& textures;
  TextureChoice& texture;
};

class Panel {
 public:
  explicit Panel(const PanelContext& context) : context_(context) {}
  virtual ~Panel() = default;
  Panel(const Panel&) = delete;
  Panel& operator=(const Panel&) = delete;

  // As things stand.
  virtual Menu contextMenu() { return {}; }
  // A click and a double click on a line of its list, counted from 0. False when there is no such line.
  virtual bool pick(int /*line*/) { return false; }
  virtual bool doubleClick(int /*line*/) { return false; }
  // Uses one of its controls as a user would; false when there is none of that name, or not with that value.
  virtual bool control(const std::string& /*name*/, const std::string& /*value*/) { return false; }
  // What it shows, line by line, as scripts print it.
  virtual std::vector<std::string> printed() { return {}; }

 protected:
  map* currentMap() const { return context_.documents.currentMap(); }

  const PanelContext context_;
};

}  // namespace velk
