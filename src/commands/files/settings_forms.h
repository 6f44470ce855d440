// The settings dialogs as forms, and what their answers do.
#pragma once

#include "base/form.h"
#include "settings/settings.h"

namespace velk {

// Fields carry the names of their keys and show the values as velk.ini holds them.
Form PreferencesForm(const Settings& settings);
Form ColoursForm(const Settings& settings);
Form DirectoriesForm(const Settings& settings);
// The setups of the two files of mouse bindings, and the current one of each.
Form MouseForm(const std::vector<std::string>& planSetups, int planCurrent,
               const std::vector<std::string>& cameraSetups, int cameraCurrent);

// Takes over the values of a form's fields, each within its key's limits.
void ApplyForm(const Form& form, Settings& settings);

}  // namespace velk
