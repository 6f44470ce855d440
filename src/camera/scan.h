// How a polygon on the picture is split into rows and pixels. Plain data, shared by the code that is
// compiled once for each instruction set.
//
// All values here are floats, and every value along an edge or a span is start + steps * step, each
// operation rounded to float: never a running sum, so that a span may begin anywhere and be filled many
// pixels at a time with the same result.
#pragma once

#include <cstdint>

namespace velk {

// x, w, s * w and t * w of a point on the edge of a polygon.
typedef float EdgeValues __attribute__((vector_size(16)));
inline constexpr int kX = 0, kW = 1, kSW = 2, kTW = 3;

// One edge of a polygon in rows top..bottom-1: start at row top, and step more for each row.
struct Edge {
  EdgeValues start;
  EdgeValues step;
  int top = 0;
  int bottom = 0;
};

// The edges of a polygon in an array of them: those its spans start at, then those they end at, each
// from the top row to the bottom row without gaps.
struct Outline {
  std::uint32_t startEdges = 0;
  std::uint32_t endEdges = 0;
  int top = 0;  // rows top..bottom-1
  int bottom = 0;
  int left = 0;  // no pixel lies outside columns left..right-1
  int right = 0;
  float nearest = 0;  // no pixel has a larger w
};

// A row of a polygon: from column trunc(start x) up to, not including, trunc(end x).
struct Span {
  EdgeValues start;
  EdgeValues end;
};

}  // namespace velk
