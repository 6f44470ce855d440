#include "build/output_line.h"

#include <vector>

#include <gtest/gtest.h>

#include "base/text.h"
#include "support/cube_text.h"

namespace velk {
namespace {

using Kind = OutputLine::Kind;

std::string PlaceText(const MapPlace& place) {
  std::string text;
  if (place.line > 0) text += Format("line %i ", place.line);
  if (place.entity >= 0) text += Format("entity %i ", place.entity);
  if (place.brush >= 0) text += Format("brush %i ", place.brush);
  if (place.point) text += Format("at %g %g %g ", place.point->x, place.point->y, place.point->z);
  return text;
}

TEST(OutputLine, MarksAndPlaces) {
  struct Case {
    const char* text;
    Kind kind;
    const char* place;
  };
  const std::vector<Case> cases{
      {"---- LoadMapFile ----", Kind::Plain, ""},
      {"0 errors, 0 warnings", Kind::Plain, ""},
      {"3 errors, 0 warnings", Kind::Error, ""},
      {"No leak", Kind::Plain, ""},
      {"terror in the mirror", Kind::Plain, ""},
      {"WARNING: line 12: texture x not found", Kind::Warning, "line 12 "},
      {"*** ERROR: Entity #3 brush 4: no volume", Kind::Error, "entity 3 brush 4 "},
      {"brush 4 of nothing", Kind::Plain, ""},
      {"Warning: Reached occupant at: (16 -32 8.5)", Kind::Warning, "at 16 -32 8.5 "},
      {"*** LEAK near 16, -32, 8.5", Kind::Leak, "at 16 -32 8.5 "},
      {"at home", Kind::Plain, ""},
      {"(1 2)", Kind::Plain, ""},
      {"online 12", Kind::Plain, ""},
      {"", Kind::Plain, ""},
  };
  for (const Case& c : cases) {
    const OutputLine line = ReadOutputLine(c.text);
    EXPECT_EQ(line.kind, c.kind) << c.text;
    EXPECT_EQ(PlaceText(line.place), c.place) << c.text;
  }
}

TEST(OutputLine, LinesOfAMapLeadToTheirBrush) {
  const std::string text = "// { not counted\n{\n\"classname\" \"a { b\"\n" +
                           test::Cube(0, "{grate 0 0 0 1 1") + test::Cube(1) +
                           "}\n{\n\"classname\" \"light\"\n}\n";
  const auto placed = [&](int line) {
    const MapPlace place = PlaceOfLine(text, line);
    return std::pair(place.entity, place.brush);
  };
  EXPECT_EQ(placed(1), std::pair(-1, -1));
  EXPECT_EQ(placed(3), std::pair(0, -1));
  EXPECT_EQ(placed(5), std::pair(0, 0));
  EXPECT_EQ(placed(13), std::pair(0, 1));
  EXPECT_EQ(placed(22), std::pair(1, -1));
  EXPECT_EQ(placed(999), std::pair(-1, -1));
}

}  // namespace
}  // namespace velk
