// The editor without a window, put together of its parts. The desktop shows it and passes events in; scripts
// and tests drive it the same way.
#pragma once

#include <string>

#include "app/panels.h"
#include "app/place.h"
#include "app/remembered.h"
#include "app/view_input.h"
#include "app/views.h"
#include "app/window_places.h"
#include "documents/documents.h"
#include "documents/door.h"
#include "documents/rescue_keeper.h"
#include "entities/entity_class.h"
#include "textures/texture_choice.h"
#include "textures/texture_manager.h"

namespace velk {

class Editor {
 public:
  // Prompts and observer must outlive the editor.
  Editor(EditorPlace place, Prompts& prompts, Observer& observer);
  Editor(const Editor&) = delete;
  Editor& operator=(const Editor&) = delete;

  // Start-up in its fixed order: settings, the badtex check, entity classes, default wads, light table,
  // "Welcome to Velk...".
  void start();
  // From now on a user sits before the editor; see Services.
  void attend();
  // The user asked to exit and gave no Cancel.
  void requestExit();
  bool exiting() const { return exiting_; }

  const EditorPlace& place() const { return place_; }
  Settings& settings() { return settings_; }
  const Settings& settings() const { return settings_; }
  const Services& services() const { return services_; }
  Documents& documents() { return documents_; }
  const Documents& documents() const { return documents_; }
  Door& door() { return door_; }
  RescueKeeper& rescue() { return rescue_; }
  EntityClassList& classes() { return classes_; }
  TextureManager& textures() { return textures_; }
  const TextureManager& textures() const { return textures_; }
  TextureChoice& texture() { return texture_; }
  Remembered& remembered() { return remembered_; }
  const Remembered& remembered() const { return remembered_; }
  Panels& panels() { return panels_; }
  Views& views() { return views_; }
  const Views& views() const { return views_; }
  ViewInput& input() { return input_; }
  const ViewInput& input() const { return input_; }
  WindowPlaces& windows() { return windows_; }
  const WindowPlaces& windows() const { return windows_; }

 private:
  void loadSettings();
  void checkBadtex();
  void startTextures();

  EditorPlace place_;
  Paths paths_;
  Settings settings_;
  Services services_;
  EntityClassList classes_;
  TextureManager textures_;
  TextureChoice texture_;
  Remembered remembered_;
  Documents documents_;
  Door door_;
  RescueKeeper rescue_;
  Panels panels_;
  Views views_;
  ViewInput input_;
  WindowPlaces windows_;
  bool exiting_ = false;
};

// "[Velk - <path>]"
std::string FrameTitle(const Editor& editor);
// As the window's title bar shows it.
std::string WindowTitle(const Editor& editor, ToolWindow window);

}  // namespace velk
