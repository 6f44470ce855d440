// The form that replaces one texture by another all over the map.
#pragma once

#include <string>
#include <vector>

#include "base/form.h"

namespace velk {

constexpr const char* kReplaceCaption = "Velk - Replace Texture";

// Fields `find` and `replace`. The names are suggestions; others can be typed. Its two buttons do the same,
// since a name stands for all its faces; they are enabled once both texts are given. The caller adds what
// they do.
ModelessForm ReplaceForm(const std::string& initialFind, const std::string& initialReplace,
                         const std::vector<std::string>& names = {});

// The text of a field without blanks around it.
std::string NameIn(const Form& form, const char* field);

}  // namespace velk
