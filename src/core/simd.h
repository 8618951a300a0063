// Run-time dispatch tables for kernels compiled once per SIMD target with Highway.
//
// Per-target code lives in a kernel file's Highway section (or an `-inl.h` it re-includes per
// target) guarded by LUMI_TABLE_TARGET: only the x86 targets the tables use get the kernel;
// the other targets Highway compiles (its portable baseline) get an empty stub. The `#if
// HWY_ONCE` part then holds, per kernel, one chooser that owns the table and the scalar twin:
//
//   template <class T> AddRowFn<T> pickAddRow() {
//     LUMI_SIMD_TABLE(AddRowFn<T>, table, addRow<T>);    // per target: addRow
//     return pick(table, &addRowScalar<T>);              // plain twin:  addRowScalar
//   }
//
// Naming: the per-target kernel is `fooRow` (or `foo`), its plain twin `fooRowScalar`, the
// chooser `pickFooRow`. Entries are indexed by lumi::SimdLevel; targets that were not compiled
// are null, and pick() falls back to the twin when the scalar path is forced or nothing fits.
#pragma once

#include "core/frame.h"

// Opens and closes a kernel file's per-target section (inside namespace lumi, with hn as the
// short name of the target's Highway namespace):
//   LUMI_SIMD_BEGIN
//   #if LUMI_TABLE_TARGET
//   ... kernels ...
//   #endif
//   LUMI_SIMD_END
#define LUMI_SIMD_BEGIN    \
  HWY_BEFORE_NAMESPACE();  \
  namespace lumi {         \
  namespace HWY_NAMESPACE { \
  namespace hn = hwy::HWY_NAMESPACE;
#define LUMI_SIMD_END \
  }                   \
  }                   \
  HWY_AFTER_NAMESPACE();

// The targets that enter the tables (evaluated per target inside a Highway section).
#define LUMI_TABLE_TARGET \
  (HWY_TARGET == HWY_SSE4 || HWY_TARGET == HWY_AVX2 || HWY_TARGET == HWY_AVX3)

#if HWY_TARGETS & HWY_SSE4
#define LUMI_CHOOSE_SSE4(...) &N_SSE4::__VA_ARGS__
#else
#define LUMI_CHOOSE_SSE4(...) nullptr
#endif
#if HWY_TARGETS & HWY_AVX2
#define LUMI_CHOOSE_AVX2(...) &N_AVX2::__VA_ARGS__
#else
#define LUMI_CHOOSE_AVX2(...) nullptr
#endif
#if HWY_TARGETS & HWY_AVX3
#define LUMI_CHOOSE_AVX3(...) &N_AVX3::__VA_ARGS__
#else
#define LUMI_CHOOSE_AVX3(...) nullptr
#endif

#define LUMI_SIMD_TABLE(TYPE, TABLE, ...)                                            \
  static TYPE const TABLE[4] = {nullptr, LUMI_CHOOSE_SSE4(__VA_ARGS__),              \
                                LUMI_CHOOSE_AVX2(__VA_ARGS__), LUMI_CHOOSE_AVX3(__VA_ARGS__)}

namespace lumi {

// The best compiled entry the processor (and the current level) allows, else the twin.
template <class F, std::size_t N>
inline F pick(F const (&table)[N], F scalar) {
  for (int l = simdLevel(); l > 0; --l)
    if (l < static_cast<int>(N) && table[l]) return table[l];
  return scalar;
}

// Minimum or maximum in the operand order of the vector min/max instructions, for the scalar
// twins of kernels that take running extrema: a tie keeps the second operand.
template <bool kMax, class T>
inline T extreme(T a, T b) {
  if constexpr (kMax)
    return a > b ? a : b;
  else
    return a < b ? a : b;
}

}  // namespace lumi
