#include "app/windows.h"

#include <gtest/gtest.h>

#include "support/session.h"

namespace velk {
namespace {

using test::Session;

bool Overlap(const WindowPlacement& a, const WindowPlacement& b) {
  return a.normal[0] < b.normal[2] && b.normal[0] < a.normal[2] && a.normal[1] < b.normal[3] &&
         b.normal[1] < a.normal[3];
}

TEST(Windows, FirstLayoutShowsEveryWindowBesideTheOthers) {
  for (const auto& [width, height] : {std::pair{1280, 740}, {1366, 700}, {1920, 1000}, {3840, 2060}}) {
    const Arrangement layout = FirstLayout(width, height);
    for (size_t i = 0; i < layout.size(); ++i) {
      const auto& [left, top, right, bottom] = layout[i].normal;
      EXPECT_TRUE(left >= 0 && top >= 0 && right <= width && bottom <= height) << i;
      EXPECT_TRUE(right - left >= 200 && bottom - top >= 100) << i;
      for (size_t k = 0; k < i; ++k) EXPECT_FALSE(Overlap(layout[i], layout[k])) << i << " " << k;
    }
  }
}

TEST(Windows, ArrangementsKeepTheirFourSlotsInTheFile) {
  Arrangements saved;
  saved.slots[1][3].state = ShowState::Minimised;
  saved.slots[1][3].normal = {-5, 6, 700, 8000};
  saved.slots[3][7].minimised = {1, 2};
  EXPECT_EQ(saved.bytes().size(), Arrangements::kFileSize);
  const auto read = Arrangements::Parse(saved.bytes());
  ASSERT_TRUE(read);
  EXPECT_TRUE(read->loaded);
  EXPECT_EQ(read->slots, saved.slots);
  saved.slots[1][3].normal = {INT32_MIN, 6, INT32_MAX, 8000};
  const WindowPlacement bounded = Arrangements::Parse(saved.bytes())->slots[1][3];
  EXPECT_EQ(bounded.normal, (std::array<std::int32_t, 4>{-8192, 6, 8192, 8000}));
  EXPECT_FALSE(Arrangements::Parse(saved.bytes().substr(1)));
  EXPECT_FALSE(Arrangements::Parse(std::string(Arrangements::kFileSize, '\0')));
}

TEST(Windows, SavesASlotAndGoesRoundTheSlots) {
  Session session;
  session.run("CM_FILENEW");
  for (const char* refused : {"0", "5", "x"}) {
    session.answer(refused);
    session.run("CM_FILE_ARRANGE");
    EXPECT_FALSE(session.editor.windows().arrangements().loaded) << refused;
  }
  session.answer("2");
  session.run("CM_FILE_ARRANGE");
  EXPECT_EQ(session.editor.documents().status(), "Window arrangement 2 saved...");
  EXPECT_EQ(session.home.read("velk.pos").size(), Arrangements::kFileSize);
  EXPECT_EQ(session.editor.windows().arrangements().current, 0);
  session.run("CM_S1");
  EXPECT_EQ(session.editor.documents().status(), "Window arrangement 1 was never saved...");
  session.run("CM_WDOWN");
  EXPECT_EQ(session.editor.windows().arrangements().current, 3);
  session.run("CM_WUP");
  EXPECT_EQ(session.editor.windows().arrangements().current, 0);
}

}  // namespace
}  // namespace velk
