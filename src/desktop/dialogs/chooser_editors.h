// Editors of fields whose values are chosen in a dialog of their own.
#pragma once

#include "desktop/dialogs/field_editors.h"

namespace velk {

// A button with the label and a swatch of the colour.
FieldEditor ColourEditor(const FormField& field, const Edited& edited);
// A button with the label, and the path beside it.
FieldEditor PathEditor(const FormField& field, const Paths* paths, const Edited& edited);

}  // namespace velk
