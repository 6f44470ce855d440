#include <immintrin.h>

#include "camera/kernel_loops.h"

namespace velk {
namespace {

struct Lanes {
  static constexpr int kCount = 16;
  static constexpr unsigned kAllBits = 0xffff;
  using Floats = __m512;
  using Ints = __m512i;
  using Mask = __mmask16;

  static Floats all(float value) { return _mm512_set1_ps(value); }
  static Ints all(int value) { return _mm512_set1_epi32(value); }
  static Floats countFrom(int first) {
    const Ints lanes = _mm512_setr_epi32(0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15);
    return _mm512_cvtepi32_ps(_mm512_add_epi32(all(first), lanes));
  }
  static Floats load(const float* from) { return _mm512_loadu_ps(from); }
  static void store(int* to, Ints value) { _mm512_store_si512(to, value); }
  static void store(float* to, Mask where, Floats value, Floats) { _mm512_mask_storeu_ps(to, where, value); }
  static void store(uint32_t* to, Mask where, uint32_t value) {
    _mm512_mask_storeu_epi32(to, where, all(static_cast<int>(value)));
  }

  static Mask first(int count) { return static_cast<Mask>(count >= kCount ? kAllBits : (1u << count) - 1); }
  static Mask both(Mask a, Mask b) { return a & b; }
  static Mask without(Mask mask, int lane) { return static_cast<Mask>(mask & ~(1u << lane)); }
  static Mask atLeast(Floats a, Floats b) { return _mm512_cmp_ps_mask(a, b, _CMP_GE_OQ); }
  static Mask equal(Floats a, Floats b) { return _mm512_cmp_ps_mask(a, b, _CMP_EQ_OQ); }
  static Mask equal(const uint32_t* a, uint32_t b) {
    return _mm512_cmpeq_epi32_mask(_mm512_loadu_si512(a), all(static_cast<int>(b)));
  }
  static unsigned bits(Mask mask) { return mask; }

  static Floats least(Floats a, Floats b) { return _mm512_min_ps(a, b); }
  static float leastLane(Floats a) { return _mm512_reduce_min_ps(a); }

  static Ints truncate(Floats a) { return _mm512_cvttps_epi32(a); }
  static Ints add(Ints a, Ints b) { return _mm512_add_epi32(a, b); }
  static Ints subtract(Ints a, Ints b) { return _mm512_sub_epi32(a, b); }
  static Ints both(Ints a, Ints b) { return _mm512_and_si512(a, b); }
  static Ints exclusiveOr(Ints a, Ints b) { return _mm512_xor_si512(a, b); }
  static Ints negative(Ints a) { return _mm512_srai_epi32(a, 31); }
  static Ints shiftLeft(Ints a, int by) { return _mm512_slli_epi32(a, static_cast<unsigned>(by)); }
  static Ints multiply(Ints a, int by) { return _mm512_mullo_epi32(a, all(by)); }
  // a * by >> shift, 64 bits in between; shift is 31 or more.
  static Ints highProduct(Ints a, uint32_t by, int shift) {
    const __m512i factor = all(static_cast<int>(by));
    const __m128i count = _mm_cvtsi32_si128(shift);
    const __m512i even = _mm512_srl_epi64(_mm512_mul_epu32(a, factor), count);
    const __m512i odd = _mm512_srl_epi64(_mm512_mul_epu32(_mm512_srli_epi64(a, 32), factor), count);
    return _mm512_or_si512(even, _mm512_slli_epi64(odd, 32));
  }
};

}  // namespace

const Kernels kKernelsAvx512 = MakeKernels<Lanes>("AVX-512");

}  // namespace velk
