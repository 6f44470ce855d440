#include "ops/face_textures.h"

#include <gtest/gtest.h>

#include "support/builders.h"
#include "support/fatal.h"

namespace velk {
namespace {

struct FaceTextures : test::MapTest {
  FaceTextures() {
    for (const char* texture : {"wall1", "Wall1", "floor"}) box({0, 0, 0}, {8, 8, 8}, texture);
    m.modified = false;
  }
  brush& at(int index) { return *world().at(index); }
  std::string textureOf(int index, size_t face) { return at(index).faces()[face].texture.name; }

  const texturedef brick{"brick", 45, {1.9f, -2.9f}, {0.5f, 2}};
};

TEST_F(FaceTextures, AreSetOnTheCurrentFaceOrAllSelectedBrushes) {
  EXPECT_FALSE(SetFaceTexture(m, brick));
  EXPECT_EQ(SetBrushTexture(m, brick), 0);
  EXPECT_FALSE(m.modified);
  at(1).select(true);
  at(1).setCurrentFace(4);
  EXPECT_TRUE(SetFaceTexture(m, brick));
  EXPECT_TRUE(m.modified);
  EXPECT_EQ(textureOf(1, 3), "Wall1");
  EXPECT_EQ(FaceListLine(at(1), 4), "(4)\tbrick\t1/-2\t45\t0.5/2.0");
  at(1).setCurrentFace(6);
  EXPECT_FATAL(SetFaceTexture(m, brick), "BnSetFaceTexture:  Bad face 6");
  at(0).select(true);
  EXPECT_EQ(SetBrushTexture(m, brick), 2);
  EXPECT_EQ(textureOf(0, 5) + textureOf(1, 3) + textureOf(2, 0), "brickbrickfloor");
}

TEST_F(FaceTextures, TheCurrentFaceStepsRound) {
  EXPECT_FALSE(StepCurrentFace(m, 1));
  EXPECT_FALSE(ChooseCurrentFace(m, 1));
  at(0).select(true);
  for (const auto& [direction, face] : {std::pair{-1, 5}, {1, 0}, {1, 1}, {-1, 0}}) {
    EXPECT_TRUE(StepCurrentFace(m, direction));
    EXPECT_EQ(at(0).currentFace(), face);
  }
  for (const auto& [index, face] : {std::pair{3, 3}, {-1, 0}, {99, 5}}) {
    EXPECT_TRUE(ChooseCurrentFace(m, index));
    EXPECT_EQ(at(0).currentFace(), face);
  }
}

TEST_F(FaceTextures, ReplacingAndSelectingIgnoreCaseAndHiddenGroups) {
  EXPECT_EQ(ReplaceTexture(m, "none", "brick").faces, 0);
  EXPECT_FALSE(m.modified);
  settings.groupmode = true;
  at(1).setGroup(m.groups.add("hidden"));
  m.groups.setVisible(at(1).group(), false);
  at(2).select(true);
  EXPECT_EQ(SelectByTexture(m, "WALL1"), 1);
  EXPECT_EQ(summary(), "worldspawn *-*");
  const ReplacedTextures done = ReplaceTexture(m, "WALL1", "brick2");
  EXPECT_TRUE(done.brushes == 1 && done.faces == 6);
  EXPECT_EQ(textureOf(0, 2) + textureOf(1, 2), "BRICK2Wall1");
}

}  // namespace
}  // namespace velk
