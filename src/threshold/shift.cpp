// Shifts by constant counts: LShiftC (8u, 16u, 32s) and RShiftC (8u, 8s, 16u, 16s, 32s),
// arithmetic for the signed types.
#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "src/threshold/shift.cpp"
#include "hwy/foreach_target.h"
#include "hwy/highway.h"
#include "core/frame.h"
#include "threshold/threshold_kernels.h"

HWY_BEFORE_NAMESPACE();
namespace lumi {
namespace HWY_NAMESPACE {
namespace hn = hwy::HWY_NAMESPACE;

// Rows of n elements shifted by one count in 1 .. bits - 1; keep flags the lanes to leave.
template <class T>
void ShiftRowsSimd(const T* src, int srcStep, T* dst, int dstStep, int n, int height, bool left,
                   int count, const T* keep) {
  const hn::ScalableTag<T> d;
  for (int y = 0; y < height; ++y) {
    const T* s = rowAt(src, srcStep, y);
    T* o = rowAt(dst, dstStep, y);
    thrv::patternRow(
        d, n,
        [&](int i, int off) HWY_ATTR {
          const auto x = hn::LoadU(d, s + i);
          const auto r = left ? hn::ShiftLeftSame(x, count) : hn::ShiftRightSame(x, count);
          thrv::storeKeeping(d, r, o + i, keep, off);
        },
        [&](int i, int off) {
          if (thr::keepLane(keep, sizeof(T), off)) return;
          o[i] = thr::shiftSample<T>(left, s[i], count);
        });
  }
}

}  // namespace HWY_NAMESPACE
}  // namespace lumi
HWY_AFTER_NAMESPACE();

#if HWY_ONCE
#include "core/simd.h"

namespace lumi {
namespace {

template <class T>
using ShiftRowsFn = void (*)(const T*, int, T*, int, int, int, bool, int, const T*);
LUMI_SIMD_TABLE(ShiftRowsFn<Lum8u>, kShift8u, ShiftRowsSimd<Lum8u>);
LUMI_SIMD_TABLE(ShiftRowsFn<Lum8s>, kShift8s, ShiftRowsSimd<Lum8s>);
LUMI_SIMD_TABLE(ShiftRowsFn<Lum16u>, kShift16u, ShiftRowsSimd<Lum16u>);
LUMI_SIMD_TABLE(ShiftRowsFn<Lum16s>, kShift16s, ShiftRowsSimd<Lum16s>);
LUMI_SIMD_TABLE(ShiftRowsFn<Lum32s>, kShift32s, ShiftRowsSimd<Lum32s>);

template <class T>
ShiftRowsFn<T> shiftSimd() {
  if constexpr (std::is_same_v<T, Lum8u>) return pickSimd(kShift8u);
  else if constexpr (std::is_same_v<T, Lum8s>) return pickSimd(kShift8s);
  else if constexpr (std::is_same_v<T, Lum16u>) return pickSimd(kShift16u);
  else if constexpr (std::is_same_v<T, Lum16s>) return pickSimd(kShift16s);
  else return pickSimd(kShift32s);
}

constexpr int kZeroFill = -1;

// The count a sample is really shifted by: a left or unsigned right shift by at least the bit
// width leaves nothing (kZeroFill); a signed right shift by that much leaves the sign in every
// bit, which is a shift by bits - 1.
template <class T>
int effectiveCount(bool left, Lum32u count) {
  constexpr Lum32u bits = sizeof(T) * 8;
  if (count < bits) return static_cast<int>(count);
  if (!left && std::is_signed_v<T>) return static_cast<int>(bits - 1);
  return kZeroFill;
}

template <class T>
void copyRows(const T* src, int srcStep, T* dst, int dstStep, LumiSize roi, int elems) {
  const std::size_t bytes = static_cast<std::size_t>(elems) * sizeof(T);
  for (int y = 0; y < roi.height; ++y) {
    const T* s = rowAt(src, srcStep, y);
    T* o = rowAt(dst, dstStep, y);
    if (s != o) std::memmove(o, s, bytes);
  }
}

template <class T>
void zeroRows(T* dst, int dstStep, LumiSize roi, int elems) {
  const std::size_t bytes = static_cast<std::size_t>(elems) * sizeof(T);
  for (int y = 0; y < roi.height; ++y) std::memset(rowAt(dst, dstStep, y), 0, bytes);
}

template <class T, class L>
LumStatus shiftImpl(const T* src, int srcStep, const Lum32u* counts, T* dst, int dstStep,
                    LumiSize roi, bool left) {
  if (anyNull(src, counts, dst)) return lumStatusNullPtrErr;
  if (badStep(srcStep, dstStep)) return lumStatusStepErr;
  if (badSize(roi)) return lumStatusSizeErr;

  int eff[4];
  bool uniform = true;
  for (int c = 0; c < L::kUse; ++c) {
    eff[c] = effectiveCount<T>(left, counts[c]);
    uniform = uniform && eff[c] == eff[0];
  }
  const int n = roi.width * L::kCh;
  const bool alpha = L::kUse < L::kCh;
  if (uniform && !alpha) {
    // Equal counts on every channel: one run of width * channels samples.
    if (eff[0] == 0) {
      copyRows(src, srcStep, dst, dstStep, roi, n);
    } else if (eff[0] == kZeroFill) {
      zeroRows(dst, dstStep, roi, n);
    } else if (auto f = shiftSimd<T>()) {
      f(src, srcStep, dst, dstStep, n, roi.height, left, eff[0], nullptr);
    } else {
      thr::eachRow(src, srcStep, dst, dstStep, roi.height, [&](const T* s, T* o) {
        for (int i = 0; i < n; ++i) o[i] = thr::shiftSample<T>(left, s[i], eff[0]);
      });
    }
    return lumStatusOk;
  }
  if (uniform && eff[0] > 0) {
    if (auto f = shiftSimd<T>()) {
      thr::Pattern<T> keep;
      thr::fillKeep(keep, L::kCh, L::kUse);
      f(src, srcStep, dst, dstStep, n, roi.height, left, eff[0], keep.v);
      return lumStatusOk;
    }
  }
  // Counts differing per channel, or a copy / zero fill that must spare the alpha channel.
  thr::eachRow(src, srcStep, dst, dstStep, roi.height, [&](const T* s, T* o) {
    for (int x = 0; x < roi.width; ++x)
      for (int c = 0; c < L::kUse; ++c) {
        const int i = x * L::kCh + c;
        o[i] = eff[c] == kZeroFill ? T(0) : thr::shiftSample<T>(left, s[i], eff[c]);
      }
  });
  return lumStatusOk;
}

}  // namespace
}  // namespace lumi

using lumi::C1;
using lumi::C3;
using lumi::AC4;
using lumi::C4;

#define LUMI_SHIFT_SCALAR Lum32u
#define LUMI_SHIFT_ARRAY const Lum32u*
#define LUMI_SHIFT_ADDR_SCALAR(x) &x
#define LUMI_SHIFT_ADDR_ARRAY(x) x

#define LUMI_SHIFT(Op, LEFT, tc, T, L, KIND)                                                    \
  LUMI_API LumStatus lumi##Op##_##tc##_##L##R(const T* pSrc, int srcStep,                       \
                                              LUMI_SHIFT_##KIND value, T* pDst, int dstStep,    \
                                              LumiSize roi) {                                   \
    return lumi::shiftImpl<T, L>(pSrc, srcStep, LUMI_SHIFT_ADDR_##KIND(value), pDst, dstStep,   \
                                 roi, LEFT);                                                    \
  }                                                                                             \
  LUMI_API LumStatus lumi##Op##_##tc##_##L##IR(LUMI_SHIFT_##KIND value, T* pSrcDst,             \
                                               int srcDstStep, LumiSize roi) {                  \
    return lumi::shiftImpl<T, L>(pSrcDst, srcDstStep, LUMI_SHIFT_ADDR_##KIND(value), pSrcDst,   \
                                 srcDstStep, roi, LEFT);                                        \
  }

#define LUMI_SHIFT_LAYOUTS(Op, LEFT, tc, T) \
  LUMI_SHIFT(Op, LEFT, tc, T, C1, SCALAR)   \
  LUMI_SHIFT(Op, LEFT, tc, T, C3, ARRAY)    \
  LUMI_SHIFT(Op, LEFT, tc, T, C4, ARRAY)    \
  LUMI_SHIFT(Op, LEFT, tc, T, AC4, ARRAY)

extern "C" {
LUMI_SHIFT_LAYOUTS(LShiftC, true, 8u, Lum8u)
LUMI_SHIFT_LAYOUTS(LShiftC, true, 16u, Lum16u)
LUMI_SHIFT_LAYOUTS(LShiftC, true, 32s, Lum32s)
LUMI_SHIFT_LAYOUTS(RShiftC, false, 8u, Lum8u)
LUMI_SHIFT_LAYOUTS(RShiftC, false, 8s, Lum8s)
LUMI_SHIFT_LAYOUTS(RShiftC, false, 16u, Lum16u)
LUMI_SHIFT_LAYOUTS(RShiftC, false, 16s, Lum16s)
LUMI_SHIFT_LAYOUTS(RShiftC, false, 32s, Lum32s)
}

#endif  // HWY_ONCE
