#include "mapfile/face_text.h"

#include <random>

#include "base/text.h"
#include "support/fatal.h"

namespace velk {
namespace {

// Room behind the line for the fast way to look at.
const std::string kRoom = "\n" + std::string(300, ' ');
const std::string kPoints = "( 0 64 -64 ) ( 1 2 3 ) ( 12345678 -1 7 ) ";

struct Outcome {
  std::string text;  // the face, or the fatal message
  long end = 0;      // where reading went on
  int cut = 0;       // -1: declined
};

template <typename Read>
Outcome OutcomeOf(const std::string& line, Read&& read) {
  const std::string text = line + kRoom;
  Tokenizer tokens(text);
  face f;
  Outcome result;
  result.text = test::FatalMessage([&] {
    tokens.GetScriptToken(true);
    result.cut = read(tokens, f);
  });
  if (!result.text.empty()) return result;
  result.end = tokens.position() - text.data();
  for (const vec3& p : f.planepts) result.text += Format("%.9g %.9g %.9g ", p.x, p.y, p.z);
  const texturedef& t = f.texture;
  result.text += Format("%s %.9g %.9g %.9g %.9g %.9g", t.name.c_str(), t.shift[0], t.shift[1], t.rotate,
                        t.scale[0], t.scale[1]);
  return result;
}

// What the line reads as, token by token; the fast way gives the same or declines.
Outcome ReadBothWays(const std::string& line, bool* fast = nullptr) {
  Outcome expected = OutcomeOf(line, [](Tokenizer& tokens, face& f) { return ReadFaceTokens(tokens, f); });
  const Outcome straight = OutcomeOf(line, ReadFaceLine);
  if (fast != nullptr) *fast = straight.cut >= 0;
  if (straight.cut < 0) return expected;
  EXPECT_EQ(straight.text, expected.text) << line;
  EXPECT_EQ(straight.end, expected.end) << line;
  EXPECT_EQ(straight.cut, expected.cut) << line;
  return expected;
}

TEST(FaceText, ReadsLinesAndNamesWhatIsWrong) {
  const std::string points = "0 64 -64 1 2 3 12345678 -1 7 ";
  const char* brackets = "Line 1 gives its texture axes in square brackets, a format that Velk does not read";
  const struct {
    std::string line;
    std::string outcome;
    int cut = 0;
  } cases[] = {
      {kPoints + "BRICK1 0 0 0 1.000000 1.000000\r", points + "brick1 0 0 0 1 1"},
      {kPoints + "*Water1\t-16 8\t90  0.500000 -2.000000 ", points + "*water1 -16 8 90 0.5 -2"},
      {kPoints + "+0SlipBot 12.75 1e2 -0.25 .5 5. // comment", points + "+0slipbot 12.75 100 -0.25 0.5 5"},
      {kPoints + "NAME_OF_MORE_THAN_15 1 2 3 0.1 0.333333333333333333",
       points + "name_of_more_than_15 1 2 3 0.100000001 0.333333343"},
      {kPoints + "\"two words\" x 99999999999 0 1e99 0",
       points + "two words 0 9.9999998e+10 0 3.40282347e+38 0"},
      {"( 15.99 -0.5 64.000 ) ( -15.99 2e3 99999999999 ) ( 0 0.0 x ) a 0 0 0 1 1",
       "15 0 64 -15 2000 2.14748365e+09 0 0 0 a 0 0 0 1 1", 2},
      {kPoints + "A [ 1 0 0 0 ] [ 0 -1 0 0 ] 0 1 1", brackets},
      {kPoints + "A [1 0 0 0] [0 -1 0 0] 0 1 1", brackets},
      {kPoints + "A 0 0 0 1", "Line 1 is incomplete"},
      {"( 0 0 0 0 ) ( 1 2 3 ) ( 4 5 6 ) a 0 0 0 1 1", "parsing map file"},
      {"( 0 0 0 ) 1 2 3 ) ( 4 5 6 ) a 0 0 0 1 1", "parsing map file"},
      {"( 0 0 ) ( 1 2 3 ) ( 4 5 6 ) a 0 0 0 1 1", "parsing map file"},
      {kPoints + std::string(256, 'a') + " 0 0 0 1 1", "Token too large on line 1"},
  };
  for (const auto& c : cases) {
    const Outcome outcome = ReadBothWays(c.line);
    EXPECT_EQ(outcome.text, c.outcome);
    EXPECT_EQ(outcome.cut, c.cut) << c.line;
  }
}

TEST(FaceText, LooksNoFurtherThanTheText) {
  for (size_t length = 100; length < 255; ++length) {
    const std::string text = kPoints + std::string(length, 'a');
    const std::vector<char> bytes(text.begin(), text.end());
    Tokenizer tokens({bytes.data(), bytes.size()});
    tokens.GetScriptToken(true);
    face f;
    EXPECT_EQ(ReadFaceLine(tokens, f), -1);
  }
}

std::string RandomNumber(std::mt19937& random) {
  const double number = (static_cast<int>(random() % 8192) - 4096) / (random() % 2 == 0 ? 1.0 : 768.0);
  const int form = static_cast<int>(random() % 8);
  return form == 0  ? Format("%g", number)
         : form < 3 ? Format("%.*f", 6 * form, number)
                    : Format("%.0f", number);
}

std::string RandomLine(std::mt19937& random) {
  std::string line;
  for (int point = 0; point < 3; ++point) {
    line += "( ";
    for (int axis = 0; axis < 3; ++axis) line += RandomNumber(random) + " ";
    line += ") ";
  }
  line += std::string(1 + random() % 20, 'W');
  for (int i = 0; i < 5; ++i) line += " " + RandomNumber(random);
  return line;
}

TEST(FaceText, BothWaysAgreeOnRandomAndDamagedLines) {
  std::mt19937 random(7);
  const std::string bytes = "0123456789-+.eE()[]\"/ \t\r\n\x01\xA0qA";
  int fastLines = 0;
  for (int i = 0; i < 8000; ++i) {
    std::string line = RandomLine(random);
    bool fast = false;
    ReadBothWays(line, &fast);
    fastLines += fast;
    for (int damage = 0; damage < 3; ++damage) {
      line[1 + random() % (line.size() - 1)] = bytes[random() % bytes.size()];
      ReadBothWays(line);
    }
  }
  EXPECT_GT(fastLines, 1000);
}

}  // namespace
}  // namespace velk
