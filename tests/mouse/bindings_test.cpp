#include "mouse/bindings.h"

#include <gtest/gtest.h>

#include "base/error.h"
#include "mouse/operations.h"
#include "support/fatal.h"
#include "support/temp_folder.h"

namespace velk {
namespace {

std::string NamesOf(const MouseBinding* binding) {
  std::string names;
  for (size_t i = 0; binding && i < binding->names.size(); ++i) names += binding->names[i] + ' ';
  return binding ? names : "none";
}

TEST(MouseBindingsTest, FirstBindingOfTheSetupInUse) {
  const MouseBindings bindings = ParseMouseBindings(
      "2 2\n{ One\n{ SELECT LEFT }\n}\n{ \"Two words\" // comment\n"
      "{ FACEDRAG;brushdrag left }\n{ SELECT LEFT }\n{ A Right ALT }\n{ B MIDDLE SHIFT odd }\n}\n");
  EXPECT_EQ(bindings.setups[1].name, "Two words");
  const struct {
    MouseButton button;
    int modifiers;
    const char* names;
  } cases[] = {{MouseButton::Left, 0, "FACEDRAG brushdrag "},
               {MouseButton::Right, 3, "A "},
               {MouseButton::Right, 1, "none"},
               {MouseButton::Middle, 1, "B "},
               {MouseButton::Middle, 3, "none"}};
  for (const auto& c : cases) EXPECT_EQ(NamesOf(bindings.find(c.button, c.modifiers)), c.names);
}

TEST(MouseBindingsTest, DamagedTexts) {
  const struct {
    const char* text;
    const char* message;
  } cases[] = {
      {"", "Parsing Button Bars: Number of Setups not found"},
      {"33 1", "Parsing Button Bars: Number of Setups invalid"},
      {"2", "Parsing Button Bars: Current Setup not found"},
      {"2 0", "Parsing Button Bars: Current Setup invalid"},
      {"2 3", "Parsing Button Bars: Current Setup invalid"},
      {"1 1", "Parsing Button Bars: '{' not found"},
      {"1 1 {", "Parsing Button Bars: Current Setup Name not found"},
      {"1 1 { N\n{ a;b;c;d;e;f;g;h;i;j LEFT }", "Parse Mouse:  Too many mouse options [10]..."},
      {"1 1 { N\n{ a UP }", "Mouse Parse:  Bad mouse type..."},
      {"1 1 { N\n{ a LEFT SHIFT\n}", "Line 2 is incomplete"},
  };
  for (const auto& c : cases) EXPECT_FATAL(ParseMouseBindings(c.text), c.message);
  EXPECT_FATAL(loadMouseBindings("nofile.ini", {"/nowhere"}),
               "Error opening nofile.ini: No such file or directory");
}

TEST(MouseBindingsTest, DamagedFilesNameTheirLine) {
  const test::TempFolder folder;
  folder.write("mouse.ini", "1 1\n// A comment\n{ N\n{ SELECT LEFT }\n{ SELECT UP }\n}\n");
  const ErrorTrap trap;
  try {
    loadMouseBindings("mouse.ini", {"/nowhere", folder.path()});
    FAIL();
  } catch (const TrappedError& error) {
    EXPECT_NE(std::string(error.what()).find("mouse.ini], line 5"), std::string::npos) << error.what();
  }
}

}  // namespace
}  // namespace velk
