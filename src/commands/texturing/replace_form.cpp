#include "commands/texturing/replace_form.h"

#include "base/text.h"

namespace velk {
namespace {

constexpr size_t kLongestName = 15;  // that a wad holds

FormField NameField(const char* name, const char* label, const std::string& value,
                    const std::vector<std::string>& names) {
  FormField field = TextField(name, label, value);
  field.choices = names;
  return field;
}

}  // namespace

ModelessForm ReplaceForm(const std::string& initialFind, const std::string& initialReplace,
                         const std::vector<std::string>& names) {
  ModelessForm replace;
  replace.form.title = kReplaceCaption;
  replace.form.fields = {NameField("find", "Fi&nd what:", initialFind, names),
                         NameField("replace", "Re&place with:", initialReplace, names)};
  replace.form.fields[1].maxLength = kLongestName;
  replace.form.changed = [](Form& form) {
    form.complete = !NameIn(form, "find").empty() && !NameIn(form, "replace").empty();
  };
  replace.buttons = {"&Replace", "Replace &All"};
  return replace;
}

std::string NameIn(const Form& form, const char* field) { return std::string(Trimmed(form.text(field))); }

}  // namespace velk
