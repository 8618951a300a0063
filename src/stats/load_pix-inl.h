// Per-channel vectors of interleaved pixels, shared by the statistics kernels. Included once
// per SIMD target (after hwy/highway.h and core/simd.h), hence the toggle guard instead of
// #pragma once.
#if defined(LUMI_STATS_LOAD_PIX_INL_H_) == defined(HWY_TARGET_TOGGLE)
#ifdef LUMI_STATS_LOAD_PIX_INL_H_
#undef LUMI_STATS_LOAD_PIX_INL_H_
#else
#define LUMI_STATS_LOAD_PIX_INL_H_
#endif

#include "core/simd.h"

LUMI_SIMD_BEGIN
#if LUMI_TABLE_TARGET

// v[c] receives channel c of the Lanes(d) pixels starting at p (kCh interleaved channels).
template <int kCh, class D, class V>
HWY_INLINE void LoadPix(D d, const hn::TFromD<D>* HWY_RESTRICT p, V* v) {
  if constexpr (kCh == 1) {
    v[0] = hn::LoadU(d, p);
  } else if constexpr (kCh == 3) {
    hn::LoadInterleaved3(d, p, v[0], v[1], v[2]);
  } else {
    hn::LoadInterleaved4(d, p, v[0], v[1], v[2], v[3]);
  }
}

#endif
LUMI_SIMD_END

#endif
