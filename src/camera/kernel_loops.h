// The loops of kernels.h over a set of lanes `L`, included by the translation unit of each instruction
// set after it has defined its `Lanes` in its anonymous namespace. See kernels.h for what must not be
// used here.
#pragma once

#include <string.h>

#include "camera/kernels.h"

namespace velk {
namespace {

int ColumnAt(float x) {
  constexpr int kFar = 1 << 22;
  if (x > -kFar && x < kFar) return static_cast<int>(x);
  return x > 0 ? kFar : (x < 0 ? -kFar : 0);
}

// The columns of a span that are on the picture, and where its values start.
struct Columns {
  int start;   // of the whole span
  int length;  // of the whole span
  int first;   // on the picture
  int stop;
};

Columns ColumnsOf(const Span& span, int width) {
  Columns c;
  c.start = ColumnAt(span.start[kX]);
  const int end = ColumnAt(span.end[kX]);
  c.length = end - c.start;
  c.first = c.start < 0 ? 0 : c.start;
  c.stop = end < width ? end : width;
  return c;
}

// Depth test of one span. Ties go to the face drawn later.
template <class L>
void TestSpan(float* depth, uint32_t* faces, const Columns& c, float w, float step, const FaceDraw* table,
              uint32_t number, bool always) {
  const typename L::Floats start = L::all(w);
  const typename L::Floats slope = L::all(step);
  for (int x = c.first; x < c.stop; x += L::kCount) {
    const typename L::Floats pixelW = start + L::countFrom(x - c.start) * slope;
    const typename L::Floats stored = L::load(depth + x);
    typename L::Mask pass = L::first(c.stop - x);
    if (!always) {
      pass = L::both(pass, L::atLeast(pixelW, stored));
      unsigned ties = L::bits(L::both(pass, L::equal(pixelW, stored)));
      while (ties != 0) {
        const int lane = __builtin_ctz(ties);
        ties &= ties - 1;
        if (table[faces[x + lane]].rank > table[number].rank) pass = L::without(pass, lane);
      }
    }
    L::store(depth + x, pass, pixelW, stored);
    L::store(faces + x, pass, number);
  }
}

template <class L>
long DrawFace(const Strip& strip, const FaceTable& table, uint32_t number, int top, int bottom, Span* spans,
              bool always) {
  const Outline& outline = table.faces[number].outline;
  const Edge* startEdge = table.edges + outline.startEdges;
  const Edge* endEdge = table.edges + outline.endEdges;
  long tested = 0;
  for (int row = top; row < bottom; ++row) {
    while (row >= startEdge->bottom) ++startEdge;
    while (row >= endEdge->bottom) ++endEdge;
    Span& span = spans[row - top];
    span.start = startEdge->start + static_cast<float>(row - startEdge->top) * startEdge->step;
    span.end = endEdge->start + static_cast<float>(row - endEdge->top) * endEdge->step;
    const Columns c = ColumnsOf(span, strip.width);
    if (c.first >= c.stop) continue;
    const long offset = static_cast<long>(row - strip.top) * strip.width;
    const float step = (span.end[kW] - span.start[kW]) / static_cast<float>(c.length);
    TestSpan<L>(strip.depth + offset, strip.faces + offset, c, span.start[kW], step, table.faces, number,
                always);
    tested += c.stop - c.first;
  }
  return tested;
}

// The smallest depth of a tile. At the right end of the rows the columns are those before the end.
template <class L>
float SmallestDepth(const Strip& strip, int column, int rowTop) {
  int x = column * kTileWidth;
  if (x + kTileWidth > strip.width) x = strip.width > kTileWidth ? strip.width - kTileWidth : 0;
  const int stop = x + kTileWidth < strip.width ? x + kTileWidth : strip.width;
  const int rows =
      strip.bottom - strip.top - rowTop < kTileHeight ? strip.bottom - strip.top - rowTop : kTileHeight;
  if (stop - x < kTileWidth) return 0;
  const float* depth = strip.depth + static_cast<long>(rowTop) * strip.width + x;
  typename L::Floats smallest = L::load(depth);
  for (int row = 0; row < rows; ++row, depth += strip.width) {
    for (int lane = 0; lane < kTileWidth; lane += L::kCount)
      smallest = L::least(smallest, L::load(depth + lane));
  }
  return L::leastLane(smallest);
}

template <class L>
bool Hides(const Strip& strip, int left, int top, int right, int bottom, float w) {
  for (int tileRow = (top - strip.top) / kTileHeight; tileRow <= (bottom - 1 - strip.top) / kTileHeight;
       ++tileRow) {
    for (int column = left / kTileWidth; column <= (right - 1) / kTileWidth; ++column) {
      const long tile = static_cast<long>(tileRow) * strip.tileColumns + column;
      if (strip.tiles[tile] > w) continue;
      if (!strip.stale[tile]) return false;
      strip.stale[tile] = 0;
      strip.tiles[tile] = SmallestDepth<L>(strip, column, tileRow * kTileHeight);
      if (!(strip.tiles[tile] > w)) return false;
    }
  }
  return true;
}

// n mod size for every lane, also below 0.
template <class L>
typename L::Ints Modulo(typename L::Ints n, int size, uint32_t magic, int shift) {
  const typename L::Ints sign = L::negative(n);
  const typename L::Ints folded = L::exclusiveOr(n, sign);
  const typename L::Ints rest = L::subtract(folded, L::multiply(L::highProduct(folded, magic, shift), size));
  return L::add(L::exclusiveOr(rest, sign), L::both(sign, L::all(size)));
}

template <class L, Paint::Kind kind>
typename L::Ints Texels(const Paint& paint, typename L::Floats u, typename L::Floats v) {
  if constexpr (kind == Paint::Kind::Masked) {
    const typename L::Ints row = L::both(L::truncate(v), L::all(paint.height - 1));
    const typename L::Ints column = L::both(L::truncate(u), L::all(paint.width - 1));
    return L::add(L::shiftLeft(row, paint.shift), column);
  } else {
    const typename L::Floats biasU = L::all(static_cast<float>(paint.width) * 1024);
    const typename L::Floats biasV = L::all(static_cast<float>(paint.height) * 1024);
    const typename L::Ints column =
        Modulo<L>(L::truncate(u + biasU), paint.width, paint.magicU, paint.magicShiftU);
    const typename L::Ints row =
        Modulo<L>(L::truncate(v + biasV), paint.height, paint.magicV, paint.magicShiftV);
    return L::add(L::multiply(row, paint.width), column);
  }
}

// Textures columns from..to-1 of a span.
template <class L, Paint::Kind kind>
void PaintTexture(const Paint& paint, const Span& span, const Columns& c, int from, int to, uint8_t* out) {
  const EdgeValues step = (span.end - span.start) / static_cast<float>(c.length);
  const typename L::Floats w = L::all(span.start[kW]), stepW = L::all(step[kW]);
  const typename L::Floats sw = L::all(span.start[kSW]), stepSW = L::all(step[kSW]);
  const typename L::Floats tw = L::all(span.start[kTW]), stepTW = L::all(step[kTW]);
  const uint8_t* pixels = paint.pixels;
  const uint8_t* shades = paint.shades;
  alignas(64) int texels[L::kCount];
  uint8_t behind[L::kCount];  // whole vectors are painted, and what stands behind the run is put back
  memcpy(behind, out + to, L::kCount);
  for (int x = from; x < to; x += L::kCount) {
    const typename L::Floats steps = L::countFrom(x - c.start);
    const typename L::Floats depth = L::all(1.0f) / (w + steps * stepW);
    L::store(texels, Texels<L, kind>(paint, (sw + steps * stepSW) * depth, (tw + steps * stepTW) * depth));
    for (int lane = 0; lane < L::kCount; ++lane) out[x + lane] = shades[pixels[texels[lane]]];
  }
  memcpy(out + to, behind, L::kCount);
}

template <class L>
void PaintRun(const FaceDraw& face, const Span& span, int width, int from, int to, uint8_t* out) {
  const Paint& paint = face.paint;
  const Columns c = ColumnsOf(span, width);
  switch (paint.kind) {
    case Paint::Kind::Flat:
      memset(out + from, paint.colour, static_cast<unsigned long>(to - from));
      break;
    case Paint::Kind::Masked:
      PaintTexture<L, Paint::Kind::Masked>(paint, span, c, from, to, out);
      break;
    case Paint::Kind::Modulo:
      PaintTexture<L, Paint::Kind::Modulo>(paint, span, c, from, to, out);
      break;
  }
  if (!paint.outlined) return;
  if (from == c.first) out[from] = paint.outline;
  if (to == c.stop) out[to - 1] = paint.outline;
}

template <class L>
int EndOfRun(const uint32_t* faces, int x, int width) {
  const uint32_t number = faces[x];
  while (x < width) {
    const unsigned same = L::bits(L::equal(faces + x, number));
    if (same != L::kAllBits) {
      x += __builtin_ctz(~same);
      break;
    }
    x += L::kCount;
  }
  return x < width ? x : width;
}

template <class L>
long PaintRow(const Strip& strip, const FaceTable& table, const Span* spans, int row, uint8_t* out,
              bool keep) {
  const uint32_t* faces = strip.faces + static_cast<long>(row - strip.top) * strip.width;
  long painted = 0;
  for (int x = 0; x < strip.width;) {
    const int stop = EndOfRun<L>(faces, x, strip.width);
    const FaceDraw& face = table.faces[faces[x]];
    if (faces[x] != 0) {
      PaintRun<L>(face, spans[face.firstSpan + static_cast<uint32_t>(row)], strip.width, x, stop, out);
      painted += stop - x;
    } else if (!keep) {
      memset(out + x, 0, static_cast<unsigned long>(stop - x));
    }
    x = stop;
  }
  return painted;
}

template <class L>
constexpr Kernels MakeKernels(const char* name) {
  return {name, DrawFace<L>, Hides<L>, PaintRow<L>};
}

}  // namespace
}  // namespace velk
