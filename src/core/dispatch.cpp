// Processor detection for the run-time choice between the scalar and SIMD kernels.
// LUMI_SCALAR=1 forces the plain scalar kernels.
#include <cpuid.h>

#include <atomic>

#include <cstdlib>
#include <cstring>

#include "core/frame.h"

namespace lumi {
namespace {

uint64_t xgetbv0() {
  uint32_t lo, hi;
  __asm__ volatile("xgetbv" : "=a"(lo), "=d"(hi) : "c"(0));
  return (static_cast<uint64_t>(hi) << 32) | lo;
}

// The feature groups match what each compiled SIMD target assumes.
int detect() {
  const char* forced = std::getenv("LUMI_SCALAR");
  if (forced && *forced && std::strcmp(forced, "0") != 0) return kScalar;
  unsigned a, b, c, d;
  if (!__get_cpuid(1, &a, &b, &c, &d)) return kScalar;
  const bool sse4 = (c & bit_SSE4_1) && (c & bit_SSE4_2) && (c & bit_PCLMUL) && (c & bit_AES) &&
                    (c & bit_SSSE3);
  if (!sse4) return kScalar;
  const bool osxsave = (c & bit_OSXSAVE) != 0;
  const bool avx = (c & bit_AVX) && (c & bit_FMA) && (c & bit_F16C) && osxsave &&
                   (xgetbv0() & 0x6) == 0x6;
  if (!avx) return kSSE4;
  unsigned a7, b7, c7, d7;
  if (!__get_cpuid_count(7, 0, &a7, &b7, &c7, &d7)) return kSSE4;
  unsigned a8, b8, c8, d8;
  const bool lzcnt = __get_cpuid(0x80000001u, &a8, &b8, &c8, &d8) && (c8 & bit_LZCNT);
  const bool avx2 = (b7 & bit_AVX2) && (b7 & bit_BMI) && (b7 & bit_BMI2) && lzcnt;
  if (!avx2) return kSSE4;
  const bool avx512 = (b7 & bit_AVX512F) && (b7 & bit_AVX512VL) && (b7 & bit_AVX512DQ) &&
                      (b7 & bit_AVX512BW) && (xgetbv0() & 0xe6) == 0xe6;
#if defined(__x86_64__)
  return avx512 ? kAVX3 : kAVX2;
#else
  (void)avx512;
  return kAVX2;
#endif
}

// LUMI_SIMD_LEVEL=1 or 2 caps the choice (SSE4, AVX2), so that every compiled target can be
// tested on a processor that has a higher one.
int capped(int level) {
  const char* cap = std::getenv("LUMI_SIMD_LEVEL");
  if (!cap || *cap < '0' || *cap > '9') return level;
  int c = std::atoi(cap);
  return c < level ? c : level;
}

int supported() {
  static const int level = capped(detect());
  return level;
}

std::atomic<int> current{-1};  // -1 until first asked: then what the processor supports

}  // namespace

int simdLevel() {
  int l = current.load(std::memory_order_relaxed);
  if (l < 0) {
    l = supported();
    current.store(l, std::memory_order_relaxed);
  }
  return l;
}

int setSimdLevel(int level) {
  const int before = simdLevel();
  const int top = supported();
  current.store(level < 0 ? 0 : level > top ? top : level, std::memory_order_relaxed);
  return before;
}

}  // namespace lumi
