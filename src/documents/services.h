// What everything round the open maps works with. All of it outlives them.
#pragma once

#include <functional>

#include "base/outcome.h"
#include "base/paths.h"
#include "base/prompts.h"
#include "documents/observer.h"
#include "settings/settings.h"

namespace velk {

struct Services {
  Settings& settings;
  const Paths& paths;
  Prompts& prompts;
  Observer& observer;
  // A user sits before the editor: recent maps are kept between runs, and failures are told in a message box
  // instead of ending the program.
  bool attended = false;

  // A box to be read and closed.
  void tell(const char* caption, const std::string& text,
            MessageBox::Icon icon = MessageBox::Icon::Error) const {
    prompts.ask({.caption = caption, .text = text, .buttons = MessageBox::Buttons::Ok, .icon = icon});
  }
};

}  // namespace velk
