// Noise that repeats at the edges of a texture. Positions are fractions of the texture, 0..1.
#pragma once

#include <cstdint>

namespace velk::kit {

// A value 0..1 that looks random but depends only on its arguments.
double Hash(int x, int y, uint32_t seed);

// Smooth noise 0..1 on a lattice of cellsX by cellsY.
double SmoothNoise(double u, double v, int cellsX, int cellsY, uint32_t seed);

// Several octaves of it, each twice as fine and half as strong, 0..1.
double CloudNoise(double u, double v, int cellsX, int cellsY, int octaves, uint32_t seed);

// The texture parted into irregular cells, one to a lattice square.
struct Cell {
  double edge;    // how far inside its cell the position is, 0 at the border, about 1 in the middle
  double random;  // 0..1, the same for the whole cell
};
Cell CellNoise(double u, double v, int cellsX, int cellsY, uint32_t seed);

}  // namespace velk::kit
