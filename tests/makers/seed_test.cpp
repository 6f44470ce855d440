#include "makers/seed.h"

#include <gtest/gtest.h>

#include "base/text.h"
#include "makers/lights.h"
#include "makers/pieces.h"
#include "support/builders.h"
#include "support/fatal.h"

namespace velk {
namespace {

// Boxes in a row.
Made Boxes(const Seed& seed, int count) {
  Pieces pieces(seed, Keeping::Valid);
  for (int i = 0; i < count; ++i) pieces.addBox({i * 4.0f, 0, 0}, {i * 4.0f + 2, 2, 2});
  return pieces.take();
}

struct SeedTest : test::MapTest {
  SeedTest() {
    cube(0);
    door.setKey("classname", "func_door");
    m.modified = false;
  }
  entity& door = addEntity("func_door");

  Outcome replace(brush& seed, int count, MadeFor owner, bool careful = false) {
    seed.select();
    seed.setGroup(4);
    return ReplaceSeed(m, seed, Boxes(SeedOf(seed), count),
                       {.owner = owner, .careful = careful, .status = "done..."});
  }
};

TEST_F(SeedTest, ReplacedInTheWorldOrWhereItWas) {
  const struct {
    MadeFor owner;
    bool doorIsCurrent;
    bool brushBuilt;
    const char* summary;
  } cases[] = {{MadeFor::World, false, true, "worldspawn ---**"},
               {MadeFor::Current, false, true, "worldspawn ---**"},
               {MadeFor::Current, true, true, "worldspawn --- func_door **"},
               {MadeFor::SeedsOwner, false, true, "worldspawn --- func_door **"},
               {MadeFor::SeedsOwner, false, false, "worldspawn ---**"}};
  for (const auto& c : cases) {
    test::TestMap t;
    for (int i = 0; i < 3; ++i) t.cube(i);
    entity& owner = t.addEntity("func_door");
    brush& seed = t.boxIn(owner, {0, 0, 0}, {16, 16, 32});
    owner.isModel = c.brushBuilt;
    seed.select();
    if (c.doorIsCurrent) t.m.setCurrentEntity(&owner);
    const Outcome outcome =
        ReplaceSeed(t.m, seed, Boxes(SeedOf(seed), 2), {.owner = c.owner, .status = "done..."});
    EXPECT_EQ(t.summary(), c.summary);
    EXPECT_EQ(outcome.status, "done...");
    EXPECT_EQ(t.m.workHigh().z, 32) << "the seed leaves its depth";
  }
}

TEST_F(SeedTest, WithCareIsKeptWhenNothingWasMadeAndLossesAreCounted) {
  brush& seed = cube(1);
  const Outcome kept = replace(seed, 0, MadeFor::World, true);
  EXPECT_EQ(kept.status, kNothingMade);
  EXPECT_EQ(kept.redraw, Redraw::None);
  EXPECT_EQ(summary(), "worldspawn -* func_door ");
  Made odd = Boxes(SeedOf(seed), 1);
  odd.leftOut = 3;
  EXPECT_EQ(ReplaceSeed(m, seed, std::move(odd), {.careful = true, .status = "done..."}).status,
            "done... 3 left out...");
  EXPECT_EQ(replace(*OnlySelected(m), 0, MadeFor::World).status, "done...");
  EXPECT_EQ(summary(), "worldspawn - func_door ");
}

TEST_F(SeedTest, AFullEntityLeavesTheMapAsItWas) {
  brush& seed = cube(1);
  EXPECT_FATAL(replace(seed, MAX_ENTITY_BRUSHES, MadeFor::World), "entity->addobject, too many objects");
  EXPECT_EQ(summary(), "worldspawn -* func_door ");
  EXPECT_FALSE(m.modified);
  replace(seed, MAX_ENTITY_BRUSHES - 1, MadeFor::World);
  EXPECT_EQ(world().numbrushes(), MAX_ENTITY_BRUSHES) << "it leaves before the others come";
}

TEST_F(SeedTest, TextureAlignmentIsTheMaps) {
  settings.texture_alignment = 1;
  brush& seed = cube(1);
  Made made = Boxes(SeedOf(seed), 1);
  ASSERT_TRUE(made.brushes[0]->addFace(test::Face({0, 0, 2}, {0, 2, 2}, {2, 0, 0})));
  const float before = made.brushes[0]->faces().back().shade;
  ReplaceSeed(m, seed, std::move(made), {});
  EXPECT_NE(world().at(1)->faces().back().shade, before);
}

typedef test::MapTest LightsTest;

TEST_F(LightsTest, StandInRowsWithinTheSeed) {
  const Seed seed{0, {0, 0, 0}, {100, 100, 100}, {}};
  const struct {
    int counts[3];
    std::string origins;
  } cases[] = {{{1, 0, 1}, "50 50 50"},
               {{2, 1, 1}, "0 50 50, 100 50 50"},
               {{1, 2, 2}, "50 0 0, 50 0 100, 50 100 0, 50 100 100"},
               {{1, 1, 4}, "50 50 0, 50 50 33, 50 50 66, 50 50 99"}};
  for (const auto& c : cases) {
    const LightParams params{.counts = {c.counts[0], c.counts[1], c.counts[2]}};
    std::string text;
    for (const vec3& at : LightOrigins(seed, params))
      text += Format("%s%g %g %g", text.empty() ? "" : ", ", at.x, at.y, at.z);
    EXPECT_EQ(text, c.origins);
    EXPECT_EQ(LightBoxes(seed, params, classes).brushes.size(), LightOrigins(seed, params).size());
  }
  EXPECT_EQ(LightBoxes(seed, {{1, 1, 1}}, classes).brushes[0]->maxs.z, 58);
  classes.scanText("/*QUAKED Lightning (0 1 0) ?\n*/\n/*QUAKED lamp_light (0 1 0) ?\n*/\n");
  EXPECT_EQ(LightTypes(classes), (std::vector<std::string>{"light", "Lightning"}));
}

}  // namespace
}  // namespace velk
