#include "materials.h"

#include <array>
#include <cmath>

#include "noise.h"

namespace velk::kit {
namespace {

struct Glyph {
  char letter;
  std::array<const char*, 7> rows;
};

constexpr Glyph kGlyphs[] = {
    {'C', {" ### ", "#   #", "#    ", "#    ", "#    ", "#   #", " ### "}},
    {'E', {"#####", "#    ", "#    ", "#### ", "#    ", "#    ", "#####"}},
    {'G', {" ### ", "#   #", "#    ", "#  ##", "#   #", "#   #", " ### "}},
    {'I', {" ### ", "  #  ", "  #  ", "  #  ", "  #  ", "  #  ", " ### "}},
    {'L', {"#    ", "#    ", "#    ", "#    ", "#    ", "#    ", "#####"}},
    {'P', {"#### ", "#   #", "#   #", "#### ", "#    ", "#    ", "#    "}},
    {'R', {"#### ", "#   #", "#   #", "#### ", "# #  ", "#  # ", "#   #"}},
    {'T', {"#####", "  #  ", "  #  ", "  #  ", "  #  ", "  #  ", "  #  "}},
    {'X', {"#   #", "#   #", " # # ", "  #  ", " # # ", "#   #", "#   #"}},
    {'K', {"#   #", "#  # ", "# #  ", "##   ", "# #  ", "#  # ", "#   #"}},
    {'S', {" ####", "#    ", "#    ", " ### ", "    #", "    #", "#### "}},
};

void WriteGlyph(Surface& surface, int x, int y, const Glyph& glyph, Ramp ramp, double level) {
  surface.each({x, y, 5, 7}, [&](int i, int j, Texel& t) {
    if (glyph.rows[static_cast<size_t>(j - y)][i - x] == '#') t.ramp = ramp, t.level = level;
  });
}

// Chips a stone's edge unevenly and gives it a tone of its own.
void FinishStone(Surface& surface, const Box& box, const Masonry& style, double tone) {
  surface.each(box, [&](int, int, Texel& t) {
    t.ramp = style.stone;
    t.level = style.level + style.variety * (tone - 0.5) * 2;
  });
  surface.raise(box, style.rise, 2);
}

}  // namespace

Surface MakeMasonry(const Masonry& style) {
  Surface surface(style.width, style.height, style.joint, style.jointLevel);
  surface.mottle(0.15, 8, style.seed + 9);
  const int across = style.width / style.stoneWidth;
  for (int row = 0; row * style.stoneHeight < style.height; ++row) {
    const int shift = style.shifted && row % 2 == 1 ? style.stoneWidth / 2 : 0;
    for (int i = 0; i < across; ++i) {
      const Box box{i * style.stoneWidth + shift, row * style.stoneHeight, style.stoneWidth - style.gap,
                    style.stoneHeight - style.gap};
      FinishStone(surface, box, style, Hash(i, row, style.seed));
    }
  }
  surface.roughen(style.rough, style.width / 6, style.seed + 2);
  surface.finish(0.18, 0.10, style.seed + 3);
  return surface;
}

Surface MakeCobbles(int size, int cells, Ramp stone, Ramp joint, double level, uint32_t seed) {
  Surface surface(size, size, joint, 0.2);
  surface.eachPart([&](double u, double v, Texel& t) {
    const Cell cell = CellNoise(u, v, cells, cells, seed);
    if (cell.edge < 0.09) return;
    t.ramp = stone;
    t.level = level + 0.22 * (cell.random - 0.5);
    t.height = 4 * std::min(1.0, std::sqrt(cell.edge * 1.6));
  });
  surface.roughen(1.2, size / 8, seed + 5);
  surface.grain(0.12, seed + 6);
  surface.light();
  return surface;
}

Surface MakeRock(int size, Ramp ramp, double level, double rough, uint32_t seed) {
  Surface surface(size, size, ramp, level);
  surface.eachPart([&](double u, double v, Texel& t) {
    const double ridge = 1 - std::abs(2 * CloudNoise(u, v, 4, 4, 4, seed) - 1);
    t.height = rough * ridge * 4;
    t.level += 0.3 * (CloudNoise(u, v, 6, 6, 3, seed + 1) - 0.5);
  });
  surface.roughen(rough, size / 4, seed + 2);
  surface.grain(0.14, seed + 3);
  surface.light(0.12);
  return surface;
}

Surface MakePlanks(int width, int height, int boardWidth, Ramp ramp, double level, uint32_t seed) {
  Surface surface(width, height, ramp, level);
  for (int x = 0; x < width; x += boardWidth) {
    const double tone = 0.16 * (Hash(x, 0, seed) - 0.5);
    const double phase = Hash(x, 1, seed) * 7;
    surface.each({x, 0, boardWidth, height}, [&](int i, int j, Texel& t) {
      const double u = (i - x + 0.5) / boardWidth, v = (j + 0.5) / height;
      const double bend = CloudNoise(u + x, v, 2, 3, 2, seed + static_cast<uint32_t>(x));
      t.level += tone + 0.13 * std::sin((u * 2.2 + bend * 3 + phase) * 6.28) * (0.4 + bend);
    });
    surface.raise({x, 0, boardWidth - 1, height}, 1.5);
    for (int y : {3, height - 5}) {
      surface.fill({x + boardWidth / 2 - 1, y, 2, 2}, ramp, 0.1);
    }
  }
  surface.grain(0.12, seed + 2);
  surface.light();
  return surface;
}

Surface MakePlates(int width, int height, int plateWidth, int plateHeight, Ramp ramp, double level,
                   uint32_t seed) {
  Surface surface(width, height, ramp, level);
  for (int y = 0; y < height; y += plateHeight) {
    for (int x = 0; x < width; x += plateWidth) {
      const double tone = 0.08 * (Hash(x, y, seed) - 0.5);
      surface.each({x, y, plateWidth, plateHeight}, [&](int, int, Texel& t) { t.level += tone; });
      surface.raise({x, y, plateWidth - 1, plateHeight - 1}, 2.5);
      for (int corner = 0; corner < 4; ++corner) {
        surface.rivet(corner % 2 ? x + plateWidth - 6 : x + 4, corner / 2 ? y + plateHeight - 6 : y + 4);
      }
    }
  }
  surface.streaks(0.14, seed + 2);
  surface.finish(0.16, 0.05, seed + 1);
  return surface;
}

Surface Quarter(const Surface& surface) {
  Surface turned(surface.height(), surface.width(), ramp::kGrey, 0);
  turned.each(turned.all(), [&](int x, int y, Texel& t) { t = surface.at(y, x); });
  return turned;
}

void Write(Surface& surface, int x, int y, std::string_view text, Ramp ramp, double level) {
  for (const char letter : text) {
    for (const Glyph& glyph : kGlyphs) {
      if (glyph.letter == letter) WriteGlyph(surface, x, y, glyph, ramp, level);
    }
    x += 6;
  }
}

void Stripes(Surface& surface, const Box& box, int width, Ramp ramp, double level) {
  surface.each(box, [&](int x, int y, Texel& t) {
    if ((x + y) / width % 2 == 0) t.ramp = ramp, t.level = level;
  });
}

}  // namespace velk::kit
