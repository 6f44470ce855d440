// Forms: dialogs as data, filled in by the user, a script or a test.
#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace velk {

class FormPicture;

// What a number field allows. A value that was typed outside still arrives: its limits are shown beside the
// field, and whoever asked decides what becomes of it.
struct NumberRange {
  static constexpr double kLargest = 1e9;  // stands for no limit
  double low = -kLargest;
  double high = kLargest;
  double step = 1;     // of the field's arrows
  int decimals = 0;    // shown; of real numbers only
  std::string unit{};  // shown behind the number, "px"
  friend bool operator==(const NumberRange&, const NumberRange&) = default;
  bool holds(double value) const { return value >= low && value <= high; }
  // "1 to 64 px", "at least 1", "at most 64"; empty without limits.
  std::string text() const;
};

struct FormField {
  enum class Kind { Text, Whole, Real, Flag, Choice, Radio, Colour, Folder, File };
  std::string name{};   // as scripts set it
  std::string label{};  // & before its mnemonic
  Kind kind = Kind::Text;
  // As text: a number in decimal, "0" or "1" for a flag, "r g b" for a colour, the index for a choice or a
  // radio group.
  std::string value{};
  std::vector<std::string> choices{};  // of a choice or radio group; suggestions for a text
  std::string title{};                 // of the chooser that a colour, folder or file opens
  NumberRange range{};
  size_t maxLength = 127;  // of a text, bytes
  std::string page{};      // of the tab; fields without one stand above the tabs
  bool enabled = true;

  bool isNumber() const { return kind == Kind::Whole || kind == Kind::Real; }
  bool isChosen() const { return kind == Kind::Choice || kind == Kind::Radio; }
};

// Why a form may not be accepted as it is filled in.
struct FormRefusal {
  std::string text{};   // empty: the user has been told already
  std::string field{};  // to be corrected; may be empty
};

struct Form {
  std::string title{};
  std::vector<FormField> fields{};
  std::string note{};       // below the fields, may have several lines
  std::string saveLabel{};  // of the button that also writes the values to a file; "" for none
  bool cancel = true;       // has a Cancel button
  bool complete = true;     // may be accepted: OK and the like are enabled
  // Called when the form opens and after every change. May change everything but the number, order, kinds
  // and pages of the fields.
  std::function<void(Form&)> changed{};
  // Called at OK and Save; a refusal keeps the form open.
  std::function<std::optional<FormRefusal>(Form&)> check{};
  std::shared_ptr<FormPicture> picture{};

  // Found without regard to case; null for an unknown one.
  FormField* find(std::string_view name);
  const FormField* find(std::string_view name) const;
  // The value of a field that the form must have.
  const std::string& text(std::string_view name) const;
  int whole(std::string_view name) const;  // also the index of a choice
  double real(std::string_view name) const;
  bool flag(std::string_view name) const;
};

enum class FormAnswer { Ok, Save, Cancel };

// A form that stays open beside the windows. Its buttons leave it open; Close closes it.
struct ModelessForm {
  Form form{};
  std::vector<std::string> buttons{};  // labels with mnemonics; the first is the default one
  // Runs when a button is pressed and the form's check has nothing against it.
  std::function<void(Form& form, size_t button)> pressed{};
};

FormField TextField(std::string name, std::string label, std::string value);
FormField WholeField(std::string name, std::string label, int value, NumberRange range = {});
FormField RealField(std::string name, std::string label, double value, NumberRange range);
FormField FlagField(std::string name, std::string label, bool value);
FormField ChoiceField(std::string name, std::string label, int index, std::vector<std::string> choices);
FormField RadioField(std::string name, std::string label, int index, std::vector<std::string> choices);

// A number as a field's value: the shortest decimal text, whole numbers without a point.
std::string NumberText(double value);

}  // namespace velk
