// The widgets that edit a form's fields.
#pragma once

#include <QWidget>
#include <functional>
#include <string>

#include "base/form.h"
#include "base/paths.h"

namespace velk {

// Widgets belong to whatever layout they are put into.
struct FieldEditor {
  QWidget* label = nullptr;  // to stand in front of the editor; none where it shows the label itself
  QWidget* widget = nullptr;
  QWidget* focus = nullptr;                    // takes what is typed
  std::function<void(const FormField&)> show;  // shows the field as it is now, without reporting an edit
};

// Takes a new value of the field.
using Edited = std::function<void(std::string value)>;

// `paths` (may be none) turns a field's folder into a native one. The editor shows nothing until it is told.
FieldEditor MakeFieldEditor(const FormField& field, const Paths* paths, const Edited& edited);

}  // namespace velk
