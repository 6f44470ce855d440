#include "camera/kernels.h"

namespace velk {

int AvailableKernels(const Kernels** sets, int most) {
  __builtin_cpu_init();
  const bool avx2 = __builtin_cpu_supports("avx2");
  const bool avx512 = avx2 && __builtin_cpu_supports("avx512f") && __builtin_cpu_supports("avx512dq") &&
                      __builtin_cpu_supports("avx512vl") && __builtin_cpu_supports("avx512bw");
  const Kernels* const all[] = {&kKernelsSse2, avx2 ? &kKernelsAvx2 : nullptr,
                                avx512 ? &kKernelsAvx512 : nullptr};
  int count = 0;
  for (const Kernels* set : all) {
    if (set && count < most) sets[count++] = set;
  }
  return count;
}

const Kernels& BestKernels() {
  const Kernels* sets[3];
  return *sets[AvailableKernels(sets, 3) - 1];
}

}  // namespace velk
