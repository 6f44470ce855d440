// Forms: dialogs as data, filled in by the user, a script or a test.
#pragma once

#include <string>
#include <vector>

namespace velk {

struct FormField {
  enum class Kind { Text, Flag, Colour, Folder, File, Choice };
  std::string name;  // as scripts set it
  std::string label;
  Kind kind = Kind::Text;
  std::string value;  // "0" or "1" for a flag, "r g b" for a colour, the index for a choice
  std::vector<std::string> choices;
  std::string title;  // of the chooser that a colour, folder or file opens
};

struct Form {
  std::string title;
  std::vector<FormField> fields;
  std::string note;       // below the fields, may have several lines
  std::string saveLabel;  // of the button that also writes the values to a file; "" for none
  bool cancel = true;     // has a Cancel button
};

enum class FormAnswer { Ok, Save, Cancel };

}  // namespace velk
