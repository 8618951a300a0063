// Run-time dispatch tables for kernels compiled once per SIMD target with Highway.
//
// A kernel file includes "hwy/foreach_target.h" and "hwy/highway.h", writes its vector kernels
// inside HWY_NAMESPACE, and in its `#if HWY_ONCE` part builds one table per kernel:
//
//   LUMI_SIMD_TABLE(AddRowFn, kAddRow8u, AddRow<uint8_t>);
//   if (auto f = lumi::pickSimd(kAddRow8u)) f(...); else scalarAddRow(...);
//
// Entries are indexed by lumi::SimdLevel; targets that were not compiled are null, and
// pickSimd() returns null when the scalar path is forced or nothing fits the processor.
#pragma once

#include "core/frame.h"

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
