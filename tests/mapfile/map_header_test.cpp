#include "mapfile/map_header.h"

#include <gtest/gtest.h>

#include "mapfile/sample_map.h"

namespace velk {
namespace {

// A header whose last group and last camera are given.
std::string Header(const std::string& group, const std::string& camera) {
  std::string cameras = "//\"1.5 -2.0 3.0 180 270 45\"\n";
  for (int i = 0; i < 3; ++i) cameras += "//\"0.0 0.0 0.0 180 270 0\"\n";
  return "//VELKGROUPS0003\n//VELKGROUPINFO\"None\" \"255 255 255\" \"1\"\n"
         "//VELKGROUPINFO\"Walls and more\" \"1 2 3\" \"0\"\n//VELKGROUPINFO" +
         group + "\n//VELKFAVORITES0010\n//brick1;+0button;*water\n//VELKCAMERAS0005\n" + cameras + "//" +
         camera + "\n";
}

const std::string kHeader = Header("\"Odd\" \"red\" \"x\"", "\"-7 8 9 -1 0x10 7\"");
const std::string kWritten = Header("\"a 'b' \" \"9 9 9\" \"1\"", "\"-7.0 8.0 9.0 -1 16 7\"");

TEST(MapHeader, ReadsEveryLineEndAndWritesItsBytes) {
  const std::string variants[] = {
      kHeader, test::WithCrLf(kHeader), test::WithCrLf(kHeader.substr(0, 90)) + kHeader.substr(90),
      "// by hand\n\n" + kHeader + "// more\n{\n}\n", kHeader.substr(0, kHeader.size() - 1)};
  MapReadOptions options;
  options.groupColour = {9, 9, 9};
  for (const std::string& text : variants) {
    test::SampleMap sample;
    const MapReadResult read = sample.read(text, options);
    EXPECT_TRUE(read.camerasRead);
    EXPECT_EQ(sample.m.groups.at(2).name, "Odd");
    sample.m.groups.rename(2, "a \"b\"\n");
    sample.m.favourites = read.favourites;
    sample.m.favourites.insert(sample.m.favourites.begin() + 1, "");
    TextOut out;
    WriteMapHeader(sample.m, out);
    EXPECT_EQ(out.take(), test::WithCrLf(kWritten)) << text;
  }
}

TEST(MapHeader, ShortAndOddHeadersKeepWhatReads) {
  const std::string camera = "//\"0 0 0 0 0 0\"\n";
  const struct {
    std::string text;
    size_t groups, favourites, cameras;
    bool camerasComplete;
  } cases[] = {
      {"{\n//VELKCAMERAS0001\n" + camera, 0, 0, 0, false},
      {"//VELKGROUPS0001\n//VELKGROUPINFO\"a\"\n//VELKGROUPINFO\"b\"\n", 1, 0, 0, false},
      {"//VELKGROUPS9999\n//VELKGROUPINFO\"a\n{\n", 1, 0, 0, false},
      {"//VELKGROUPS-001\n//VELKGROUPINFO\"a\"\n", 0, 0, 0, false},
      {"//VELKFAVORITES0010\n\n//VELKCAMERAS0001\n" + camera, 0, 0, 1, true},
      {"//VELKFAVORITES0010\n//VELKCAMERAS0001\n" + camera, 0, 0, 1, true},
      {"//VELKFAVORITES0002\n//a;;b;c\n", 0, 2, 0, false},
      {"//VELKCAMERAS0005\n" + camera + camera + "{\n", 0, 0, 2, false},
      {"//VELKCAMERAS0005\n" + camera, 0, 0, 1, true},
      {"//VELKCAMERAS0002\n" + camera + "//\"0 0 nan 0 0 0\"\n", 0, 0, 1, false},
      {"//VELKCAMERAS9999\n//\"1e30 0 0 0 0 99999999999999\"\n", 0, 0, 1, true},
  };
  for (const auto& c : cases) {
    const MapHeader header = ReadMapHeader(c.text);
    EXPECT_EQ(header.groups.size(), c.groups) << c.text;
    EXPECT_EQ(header.favourites.size(), c.favourites) << c.text;
    EXPECT_EQ(header.hasFavourites, c.text.starts_with("//VELKFAVORITES")) << c.text;
    EXPECT_EQ(header.cameras.size(), c.cameras) << c.text;
    EXPECT_EQ(header.camerasComplete, c.camerasComplete) << c.text;
  }
}

TEST(MapHeader, CutShortAnywhereLeavesTheMapReadable) {
  const std::string crLf = test::WithCrLf(kHeader);
  for (size_t length = 0; length <= crLf.size(); ++length) {
    if (length > 0 && crLf.compare(length - 1, 2, "//") == 0) continue;  // a lone slash is no comment
    // A buffer of just that length, so that reading past it is found.
    const std::vector<char> bytes(crLf.begin(), crLf.begin() + static_cast<std::ptrdiff_t>(length));
    ReadMapHeader({bytes.data(), bytes.size()});
    test::SampleMap sample(crLf.substr(0, length) + "\n{\n" + test::Cube(0) + "}\n");
    EXPECT_EQ(sample.m.world()->numbrushes(), 1) << length;
  }
}

TEST(MapHeader, WholeDegreesSurviveReadingAndWriting) {
  for (int degrees = -720; degrees <= 720; ++degrees) {
    const std::string line = Format("//\"0.0 0.0 0.0 %i %i %i\"", degrees, -degrees, degrees * 1000);
    test::SampleMap sample("//VELKCAMERAS0001\n" + line);
    ASSERT_NE(sample.text().find(line), std::string::npos) << line;
  }
}

}  // namespace
}  // namespace velk
