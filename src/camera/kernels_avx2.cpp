#include <immintrin.h>

#include "camera/kernel_loops.h"

namespace velk {
namespace {

struct Lanes {
  static constexpr int kCount = 8;
  static constexpr unsigned kAllBits = 0xff;
  using Floats = __m256;
  using Ints = __m256i;
  using Mask = __m256i;

  static Floats all(float value) { return _mm256_set1_ps(value); }
  static Ints all(int value) { return _mm256_set1_epi32(value); }
  static Ints lanes() { return _mm256_setr_epi32(0, 1, 2, 3, 4, 5, 6, 7); }
  static Floats countFrom(int first) { return _mm256_cvtepi32_ps(_mm256_add_epi32(all(first), lanes())); }
  static Floats load(const float* from) { return _mm256_loadu_ps(from); }
  static void store(int* to, Ints value) { _mm256_store_si256(reinterpret_cast<__m256i*>(to), value); }
  // Whole vectors are written: some machines take long over masked stores of this set.
  static void store(float* to, Mask where, Floats value, Floats stored) {
    _mm256_storeu_ps(to, _mm256_blendv_ps(stored, value, _mm256_castsi256_ps(where)));
  }
  static void store(uint32_t* to, Mask where, uint32_t value) {
    __m256i* place = reinterpret_cast<__m256i*>(to);
    _mm256_storeu_si256(place,
                        _mm256_blendv_epi8(_mm256_loadu_si256(place), all(static_cast<int>(value)), where));
  }

  static Mask first(int count) { return _mm256_cmpgt_epi32(all(count), lanes()); }
  static Mask without(Mask mask, int lane) {
    return _mm256_andnot_si256(_mm256_cmpeq_epi32(lanes(), all(lane)), mask);
  }
  static Mask atLeast(Floats a, Floats b) { return _mm256_castps_si256(_mm256_cmp_ps(a, b, _CMP_GE_OQ)); }
  static Mask equal(Floats a, Floats b) { return _mm256_castps_si256(_mm256_cmp_ps(a, b, _CMP_EQ_OQ)); }
  static Mask equal(const uint32_t* a, uint32_t b) {
    return _mm256_cmpeq_epi32(_mm256_loadu_si256(reinterpret_cast<const __m256i*>(a)),
                              all(static_cast<int>(b)));
  }
  static unsigned bits(Mask mask) {
    return static_cast<unsigned>(_mm256_movemask_ps(_mm256_castsi256_ps(mask)));
  }

  static Floats least(Floats a, Floats b) { return _mm256_min_ps(a, b); }
  static float leastLane(Floats a) {
    __m128 low = _mm_min_ps(_mm256_castps256_ps128(a), _mm256_extractf128_ps(a, 1));
    low = _mm_min_ps(low, _mm_movehl_ps(low, low));
    return _mm_cvtss_f32(_mm_min_ss(low, _mm_shuffle_ps(low, low, 1)));
  }

  static Ints truncate(Floats a) { return _mm256_cvttps_epi32(a); }
  static Ints add(Ints a, Ints b) { return _mm256_add_epi32(a, b); }
  static Ints subtract(Ints a, Ints b) { return _mm256_sub_epi32(a, b); }
  static Ints both(Ints a, Ints b) { return _mm256_and_si256(a, b); }
  static Ints exclusiveOr(Ints a, Ints b) { return _mm256_xor_si256(a, b); }
  static Ints negative(Ints a) { return _mm256_srai_epi32(a, 31); }
  static Ints shiftLeft(Ints a, int by) { return _mm256_slli_epi32(a, by); }
  static Ints multiply(Ints a, int by) { return _mm256_mullo_epi32(a, all(by)); }
  // a * by >> shift, 64 bits in between; shift is 31 or more.
  static Ints highProduct(Ints a, uint32_t by, int shift) {
    const __m256i factor = all(static_cast<int>(by));
    const __m128i count = _mm_cvtsi32_si128(shift);
    const __m256i even = _mm256_srl_epi64(_mm256_mul_epu32(a, factor), count);
    const __m256i odd = _mm256_srl_epi64(_mm256_mul_epu32(_mm256_srli_epi64(a, 32), factor), count);
    return _mm256_or_si256(even, _mm256_slli_epi64(odd, 32));
  }
};

}  // namespace

const Kernels kKernelsAvx2 = MakeKernels<Lanes>("AVX2");

}  // namespace velk
