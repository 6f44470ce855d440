#include "noise.h"

#include <cmath>

namespace velk::kit {
namespace {

int Wrap(int value, int period) { return ((value % period) + period) % period; }

double Smooth(double t) { return t * t * (3 - 2 * t); }

}  // namespace

double Hash(int x, int y, uint32_t seed) {
  uint32_t h =
      static_cast<uint32_t>(x) * 0x9E3779B1u ^ static_cast<uint32_t>(y) * 0x85EBCA77u ^ seed * 0xC2B2AE3Du;
  h = (h ^ (h >> 15)) * 0x2C1B3C6Du;
  h = (h ^ (h >> 12)) * 0x297A2D39u;
  return (h ^ (h >> 15)) / 4294967296.0;
}

double SmoothNoise(double u, double v, int cellsX, int cellsY, uint32_t seed) {
  const double x = u * cellsX, y = v * cellsY;
  const int x0 = static_cast<int>(std::floor(x)), y0 = static_cast<int>(std::floor(y));
  const double tx = Smooth(x - x0), ty = Smooth(y - y0);
  const auto corner = [&](int i, int j) { return Hash(Wrap(x0 + i, cellsX), Wrap(y0 + j, cellsY), seed); };
  const double top = corner(0, 0) + (corner(1, 0) - corner(0, 0)) * tx;
  const double bottom = corner(0, 1) + (corner(1, 1) - corner(0, 1)) * tx;
  return top + (bottom - top) * ty;
}

double CloudNoise(double u, double v, int cellsX, int cellsY, int octaves, uint32_t seed) {
  double sum = 0, weight = 1, total = 0;
  for (int i = 0; i < octaves; ++i) {
    sum += weight * SmoothNoise(u, v, cellsX << i, cellsY << i, seed + static_cast<uint32_t>(i) * 31);
    total += weight;
    weight /= 2;
  }
  return sum / total;
}

Cell CellNoise(double u, double v, int cellsX, int cellsY, uint32_t seed) {
  const double x = u * cellsX, y = v * cellsY;
  const int x0 = static_cast<int>(std::floor(x)), y0 = static_cast<int>(std::floor(y));
  double nearest = 1e9, second = 1e9, random = 0;
  for (int j = y0 - 2; j <= y0 + 2; ++j) {
    for (int i = x0 - 2; i <= x0 + 2; ++i) {
      const int wi = Wrap(i, cellsX), wj = Wrap(j, cellsY);
      const double cx = i + 0.15 + 0.7 * Hash(wi, wj, seed), cy = j + 0.15 + 0.7 * Hash(wi, wj, seed + 1);
      const double d = std::hypot(cx - x, cy - y);
      if (d < nearest) {
        second = nearest;
        nearest = d;
        random = Hash(wi, wj, seed + 2);
      } else if (d < second) {
        second = d;
      }
    }
  }
  return {second - nearest, random};
}

}  // namespace velk::kit
