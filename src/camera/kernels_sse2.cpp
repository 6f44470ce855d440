#include <emmintrin.h>

#include "camera/kernel_loops.h"

namespace velk {
namespace {

struct Lanes {
  static constexpr int kCount = 4;
  static constexpr unsigned kAllBits = 0xf;
  using Floats = __m128;
  using Ints = __m128i;
  using Mask = __m128i;

  static Floats all(float value) { return _mm_set1_ps(value); }
  static Ints all(int value) { return _mm_set1_epi32(value); }
  static Ints lanes() { return _mm_setr_epi32(0, 1, 2, 3); }
  static Floats countFrom(int first) { return _mm_cvtepi32_ps(_mm_add_epi32(all(first), lanes())); }
  static Floats load(const float* from) { return _mm_loadu_ps(from); }
  static void store(int* to, Ints value) { _mm_store_si128(reinterpret_cast<__m128i*>(to), value); }
  static void store(float* to, Mask where, Floats value, Floats stored) {
    const Floats mask = _mm_castsi128_ps(where);
    _mm_storeu_ps(to, _mm_or_ps(_mm_and_ps(mask, value), _mm_andnot_ps(mask, stored)));
  }
  static void store(uint32_t* to, Mask where, uint32_t value) {
    __m128i* place = reinterpret_cast<__m128i*>(to);
    const Ints kept = _mm_andnot_si128(where, _mm_loadu_si128(place));
    _mm_storeu_si128(place, _mm_or_si128(kept, _mm_and_si128(where, all(static_cast<int>(value)))));
  }

  static Mask first(int count) { return _mm_cmpgt_epi32(all(count), lanes()); }
  static Mask without(Mask mask, int lane) {
    return _mm_andnot_si128(_mm_cmpeq_epi32(lanes(), all(lane)), mask);
  }
  static Mask atLeast(Floats a, Floats b) { return _mm_castps_si128(_mm_cmpge_ps(a, b)); }
  static Mask equal(Floats a, Floats b) { return _mm_castps_si128(_mm_cmpeq_ps(a, b)); }
  static Mask equal(const uint32_t* a, uint32_t b) {
    return _mm_cmpeq_epi32(_mm_loadu_si128(reinterpret_cast<const __m128i*>(a)), all(static_cast<int>(b)));
  }
  static unsigned bits(Mask mask) { return static_cast<unsigned>(_mm_movemask_ps(_mm_castsi128_ps(mask))); }

  static Floats least(Floats a, Floats b) { return _mm_min_ps(a, b); }
  static float leastLane(Floats a) {
    const Floats pairs = _mm_min_ps(a, _mm_movehl_ps(a, a));
    return _mm_cvtss_f32(_mm_min_ss(pairs, _mm_shuffle_ps(pairs, pairs, 1)));
  }

  static Ints truncate(Floats a) { return _mm_cvttps_epi32(a); }
  static Ints add(Ints a, Ints b) { return _mm_add_epi32(a, b); }
  static Ints subtract(Ints a, Ints b) { return _mm_sub_epi32(a, b); }
  static Ints both(Ints a, Ints b) { return _mm_and_si128(a, b); }
  static Ints exclusiveOr(Ints a, Ints b) { return _mm_xor_si128(a, b); }
  static Ints negative(Ints a) { return _mm_srai_epi32(a, 31); }
  static Ints shiftLeft(Ints a, int by) { return _mm_slli_epi32(a, by); }
  // The low halves of the products.
  static Ints multiply(Ints a, int by) {
    const Ints even = _mm_mul_epu32(a, all(by));
    const Ints odd = _mm_mul_epu32(_mm_srli_epi64(a, 32), all(by));
    return _mm_unpacklo_epi32(_mm_shuffle_epi32(even, 0x08), _mm_shuffle_epi32(odd, 0x08));
  }
  // a * by >> shift, 64 bits in between; shift is 31 or more.
  static Ints highProduct(Ints a, uint32_t by, int shift) {
    const __m128i factor = all(static_cast<int>(by));
    const __m128i count = _mm_cvtsi32_si128(shift);
    const __m128i even = _mm_srl_epi64(_mm_mul_epu32(a, factor), count);
    const __m128i odd = _mm_srl_epi64(_mm_mul_epu32(_mm_srli_epi64(a, 32), factor), count);
    return _mm_or_si128(even, _mm_slli_epi64(odd, 32));
  }
};

}  // namespace

const Kernels kKernelsSse2 = MakeKernels<Lanes>("SSE2");

}  // namespace velk
