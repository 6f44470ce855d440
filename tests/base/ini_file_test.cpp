#include "base/ini_file.h"

#include <gtest/gtest.h>

#include "support/temp_folder.h"

namespace velk {
namespace {

constexpr const char* kText =
    "\xEF\xBB\xBF; my settings\n"
    "gridsize=1\n"
    "[VELK]\n"
    " GridSize = 16 \n"
    "gridsize=32\n"
    ";show_grid=1\n"
    "velk_font=\"Two Words \"\n"
    "empty=\n"
    "word=on\n"
    "\n"
    "[VelkColors]\n"
    "fgcolor=1 2 3\n"
    "[velk]\n"
    "badtex='a=b.bmp'";

TEST(IniFileTest, Finds) {
  const IniFile ini = IniFile::Parse(kText);
  const struct {
    const char *section, *key;
    std::optional<std::string> value;
  } cases[] = {{"Velk", "gridsize", "16"},
               {"velk", "VELK_FONT", "Two Words "},
               {"Velk", "show_grid", {}},
               {"Velk", ";show_grid", {}},
               {"Velk", "empty", ""},
               {"Velk", "fgcolor", {}},
               {"Velkcolors", "fgcolor", "1 2 3"},
               {"Velk", "badtex", "a=b.bmp"},
               {"Other", "gridsize", {}}};
  for (const auto& c : cases) EXPECT_EQ(ini.find(c.section, c.key), c.value) << c.key;
  EXPECT_EQ(ini.integer("Velk", "gridsize", 8), 16);
  for (const char* key : {"missing", "empty", "word"}) EXPECT_EQ(ini.integer("Velk", key, -8), -8) << key;
  EXPECT_EQ(ini.string("Velk", "missing", "x"), "x");
}

TEST(IniFileTest, ChangesOnlyWhatIsSet) {
  const struct {
    const char *text, *section, *key, *value, *result;
  } cases[] = {
      {"[Velk]\n; c\n GridSize =  16\nx=1\n", "velk", "gridsize", "8", "[Velk]\n; c\n GridSize =  8\nx=1\n"},
      {"[Velk]\r\na=\r\nb=2", "Velk", "a", "1", "[Velk]\r\na=1\r\nb=2"},
      {"[Velk]\r\na=1\n\r\n\n[Other]\nb=2", "Velk", "b", "3", "[Velk]\r\na=1\nb=3\r\n\r\n\n[Other]\nb=2"},
      {"[Velk]\na=1", "Velk", "b", "2", "[Velk]\na=1\nb=2\n"},
      {"[Velk]\na=1\n", "VelkColors", "b", "2", "[Velk]\na=1\n\n[VelkColors]\nb=2\n"},
      {"[A]\na=1\n[B]\nb=2\n[a]\nc=3\n", "A", "c", "4", "[A]\na=1\n[B]\nb=2\n[a]\nc=4\n"},
      {"", "Velk", "a", "1", "[Velk]\na=1\n"},
      {"a=1\n[Velk]", "Velk", "a", "two\n[words]", "a=1\n[Velk]\na=two\n"},
      {"not a key\n\n[Velk", "Velk", "a", "1", "not a key\n\n[Velk\na=1\n"},
  };
  for (const auto& c : cases) {
    IniFile ini = IniFile::Parse(c.text);
    EXPECT_EQ(ini.text(), c.text);
    ini.set(c.section, c.key, c.value);
    EXPECT_EQ(ini.text(), c.result);
  }
}

TEST(IniFileTest, ValuesReadBackAsTheyWereSet) {
  IniFile ini;
  for (const char* value : {"", " blanks ", "\"quoted\"", "'", "a;b=c", "\"", "c:\\qbsp\\"}) {
    ini.set("Velk", "key", value);
    EXPECT_EQ(IniFile::Parse(ini.text()).find("Velk", "key"), value);
  }
}

TEST(IniFileTest, MissingAndUnreadableFilesAreEmpty) {
  const test::TempFolder folder;
  EXPECT_EQ(IniFile::Load(folder.path() / "velk.ini").text(), "");
  EXPECT_EQ(IniFile::Load(folder.path() / "velk.ini").unreadable(), "");
  const IniFile unreadable = IniFile::Load(folder.path());
  EXPECT_EQ(unreadable.text(), "");
  EXPECT_NE(unreadable.unreadable(), "");
  EXPECT_FALSE(unreadable.save(folder.path() / "other.ini").ok);
  EXPECT_TRUE(IniFile::Parse(kText).save(folder.path() / "velk.ini").ok);
  EXPECT_EQ(IniFile::Load(folder.path() / "velk.ini").text(), kText);
}

}  // namespace
}  // namespace velk
