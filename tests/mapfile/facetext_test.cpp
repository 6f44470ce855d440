#include "mapfile/facetext.h"

#include <random>
#include <sstream>

#include "base/text.h"
#include "support/fatal.h"

namespace velk {
namespace {

// Room behind the line for the fast way to look at.
const std::string kRoom = "\n" + std::string(300, ' ');
const std::string kPoints = "( 0 64 -64 ) ( 1 2 3 ) ( 12345678 -1 7 ) ";

std::string Describe(const face& f, int cut) {
  std::ostringstream text;
  text << std::hexfloat;
  for (const vec3& p : f.planepts) text << p.x << ' ' << p.y << ' ' << p.z << ", ";
  const texturedef& t = f.texture;
  text << t.name << ' ' << t.shift[0] << ' ' << t.shift[1] << ' ' << t.rotate << ' ' << t.scale[0] << ' '
       << t.scale[1] << " cut " << cut;
  return text.str();
}

// What one way of reading makes of a line, its place afterwards included: the fatal message if there is one.
template <typename Read>
std::string Outcome(const std::string& line, Read&& read, bool& declined) {
  const std::string text = line + kRoom;
  Tokenizer tokens(text);
  face f;
  int cut = 0;
  const std::string fatal = test::FatalMessage([&] {
    tokens.GetScriptToken(true);
    cut = read(tokens, f);
  });
  declined = cut < 0;
  return fatal.empty() ? Describe(f, cut) + " at " + std::to_string(tokens.position() - text.data()) : fatal;
}

// Reads the line both ways and compares.
std::string ReadBothWays(const std::string& line, bool* fast = nullptr) {
  bool declined = false;
  const std::string expected = Outcome(line, ReadFaceTokens, declined);
  const std::string straight = Outcome(line, ReadFaceLine, declined);
  EXPECT_EQ(declined ? expected : straight, expected) << line;
  if (fast != nullptr) *fast = !declined;
  return expected;
}

struct FaceCase {
  std::string numbers;  // after the points
  const char* name;
  float values[5];  // shift, shift, rotate, scale, scale
};

TEST(FaceText, ReadsTextureDefinitions) {
  const FaceCase cases[] = {
      {"BRICK1 0 0 0 1.000000 1.000000", "brick1", {0, 0, 0, 1, 1}},
      {"*Water1\t-16 8\t90  0.500000 -2.000000 ", "*water1", {-16, 8, 90, 0.5f, -2}},
      {"+0SlipBot 12.75 1e2 -0.25 .5 5.", "+0slipbot", {12.75f, 100, -0.25f, 0.5f, 5}},
      {"A_TEXTURE_NAME_OF_MORE_THAN_15 1 2 3 0.1 0.3333333333333333333",
       "a_texture_name_of_more_than_15",
       {1, 2, 3, 0.1f, 1.0f / 3}},
      {"\"two words\" 0 0 0 1e99 0", "two words", {0, 0, 0, 3.4028235e38f, 0}},
      {"n x 99999999999 1 1 1", "n", {0, 99999999999.0f, 1, 1, 1}},
  };
  for (const FaceCase& c : cases) {
    for (const char* ending : {"", "\r", " // comment"}) {
      const std::string line = kPoints + c.numbers + ending;
      ReadBothWays(line);
      const std::string text = line + kRoom;
      Tokenizer tokens(text);
      tokens.GetScriptToken(true);
      face f;
      EXPECT_EQ(ReadFace(tokens, f), 0);
      EXPECT_EQ(f.texture.name, c.name);
      const texturedef& t = f.texture;
      const float read[] = {t.shift[0], t.shift[1], t.rotate, t.scale[0], t.scale[1]};
      for (int i = 0; i < 5; ++i) EXPECT_FLOAT_EQ(read[i], c.values[i]) << c.numbers;
    }
  }
}

TEST(FaceText, PlanePointsAreWholeNumbers) {
  const std::string line = "( 15.99 -0.5 64.000 ) ( -15.99 2e3 99999999999 ) ( 0 0.0 x ) a 0 0 0 1 1" + kRoom;
  Tokenizer tokens(line);
  tokens.GetScriptToken(true);
  face f;
  EXPECT_EQ(ReadFace(tokens, f), 2);
  const vec3 expected[] = {{15, 0, 64}, {-15, 2000, 2147483648.0f}, {0, 0, 0}};
  for (int i = 0; i < 3; ++i) EXPECT_TRUE(VecEqual(f.planepts[i], expected[i])) << i;
}

TEST(FaceText, NamesWhatIsWrong) {
  const char* brackets = "Line 1 gives its texture axes in square brackets, a format that Velk does not read";
  const std::pair<std::string, std::string> cases[] = {
      {kPoints + "A [ 1 0 0 0 ] [ 0 -1 0 0 ] 0 1 1", brackets},
      {kPoints + "A [1 0 0 0] [0 -1 0 0] 0 1 1", brackets},
      {kPoints + "A 0 0 0 1", "Line 1 is incomplete"},
      {"( 0 0 0 0 ) ( 1 2 3 ) ( 4 5 6 ) a 0 0 0 1 1", "parsing map file"},
      {"( 0 0 0 ) 1 2 3 ) ( 4 5 6 ) a 0 0 0 1 1", "parsing map file"},
      {"( 0 0 ) ( 1 2 3 ) ( 4 5 6 ) a 0 0 0 1 1", "parsing map file"},
      {kPoints + std::string(256, 'a') + " 0 0 0 1 1", "Token too large on line 1"},
  };
  for (const auto& [line, message] : cases) EXPECT_EQ(ReadBothWays(line), message) << line;
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
  const int whole = static_cast<int>(random() % 8192) - 4096;
  switch (random() % 8) {
    case 0:
      return Format("%f", whole / 512.0);
    case 1:
      return Format("%g", whole * 1.37e-5);
    case 2:
      return Format("%.12f", whole / 3.0);
    case 3:
      return Format("%u", static_cast<unsigned>(random()));
    default:
      return std::to_string(whole);
  }
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
  for (int i = 0; i < 20000; ++i) {
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
