#include "commands/bars.h"

#include <gtest/gtest.h>

#include "support/session.h"

namespace velk {
namespace {

// "bars" as text: commands by number, "|" for a separator, "T" for the texture list, bars parted by '/'.
std::string Summary(std::string_view file) {
  std::string text;
  for (const ButtonBar& bar : ParseButtonBars(file)) {
    for (const BarGadget& gadget : bar) {
      if (gadget.kind == BarGadget::Kind::Button) text += std::to_string(gadget.command->id) + ' ';
      if (gadget.kind == BarGadget::Kind::Separator) text += "| ";
      if (gadget.kind == BarGadget::Kind::TextureList) text += "T ";
    }
    text += '/';
  }
  return text;
}

TEST(Bars, ReadsRecordsUpToTheFirstThingThatIsNone) {
  const std::pair<const char*, const char*> cases[] = {
      {"bars 2\nbar 1 CM_FILENEW\nbar 1 CM_FILEOPEN\nbar 1 Separator\nbar 2 TextureList\n",
       "24331 24332 | /T /"},
      {"\n// mine\nBARS 1\nBar 1 cm_filenew", "24331 /"},
      {"bars 1\nbar 1 separator bar 1 TEXTURELIST", "| T /"},
      {"bars 2\nbar 3 CM_FILENEW\nbar 0 CM_FILENEW\nbar x CM_FILENEW\nbar 2 CM_ABOUT\n", "/162 /"},
      {"bars 1\nbar 1 CM_NOTHING\nbar 1 24331\nbar 1 \"\"\nbar 1 CM_ABOUT\n", "162 /"},
      {"bars 1\nbar 1 CM_ABOUT\nbar 1\nCM_FILENEW\nbar 1 CM_FILENEW\n", "162 /"},
      {"bars 1\nbar 1 CM_ABOUT\nbar\n1 CM_FILENEW\n", "162 /"},
      {"bars 1\nbar 1 CM_ABOUT\nbaz 1 CM_FILENEW\nbar 1 CM_FILENEW\n", "162 /"},
      {"bars 1", "/"},
      {"bars -3\nbar 1 CM_FILENEW\n", ""},
  };
  for (const auto& [file, bars] : cases) EXPECT_EQ(Summary(file), bars) << file;
}

TEST(Bars, BoundsWhatAFileCanAskFor) {
  std::string file = "bars 2000000000\n";
  for (int i = 0; i < 300; ++i) file += "bar 1 CM_ABOUT\n";
  const auto bars = ParseButtonBars(file);
  EXPECT_EQ(bars.size(), size_t{kMaxBars});
  EXPECT_EQ(bars[0].size(), size_t{kMaxBarGadgets});
}

TEST(Bars, BrokenFilesAreNamed) {
  EXPECT_FATAL(ParseButtonBars(" // none\n"), "Parsing Button Bars: 'bars' not found");
  EXPECT_FATAL(ParseButtonBars("bar 1 CM_FILENEW"), "Parsing Button Bars: 'bars' not found, bar instead");
  for (const char* file : {"bars", "bars\n2\n", "bars // 2\n", "bars many\n"}) {
    EXPECT_FATAL(ParseButtonBars(file), "Parsing Button Bars: number of bars not found");
  }
  const test::TempFolder folder;
  EXPECT_FATAL(LoadButtonBars(folder.path()), "Error opening velkbars.ini: No such file or directory");
  folder.write("velkbars.ini", "bars 1\nbar 1 CM_FILENEW\n");
  EXPECT_EQ(LoadButtonBars(folder.path()).at(0).size(), 1u);
}

TEST(Bars, TipsAreHintsWithTheirKeys) {
  EXPECT_EQ(ButtonTip(*FindCommand("CM_FILENEW")), "Create new Quake .map file (Ctrl-N)");
  EXPECT_EQ(ButtonTip(*FindCommand("CM_FLIP_X")), "Mirror selected along X axis");
  EXPECT_EQ(ButtonTip(*FindCommand("CM_GRID_DOWN")), "Down (Ctrl-PgDn)");
}

}  // namespace
}  // namespace velk
