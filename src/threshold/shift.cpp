// Shifts by constant counts: LShiftC (8u, 16u, 32s) and RShiftC (8u, 8s, 16u, 16s, 32s),
// arithmetic for the signed types.
#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "src/threshold/shift.cpp"
#include "hwy/foreach_target.h"
#include "hwy/highway.h"
#include "core/simd.h"
#include "threshold/threshold_kernels-inl.h"

LUMI_SIMD_BEGIN
#if LUMI_TABLE_TARGET

// Rows shifted by one count in 1 .. bits - 1.
template <class T>
void shiftRows(const thr::ElemRows<T>& r, bool left, int count) {
  const hn::ScalableTag<T> d;
  patternRows(
      d, r,
      [&](const T* s, const T*, std::ptrdiff_t i, int) HWY_ATTR {
        const auto x = hn::LoadU(d, s + i);
        return left ? hn::ShiftLeftSame(x, count) : hn::ShiftRightSame(x, count);
      },
      [&](const T* s, const T*, std::ptrdiff_t i, int) {
        return thr::shiftSample<T>(left, s[i], count);
      });
}

#endif  // LUMI_TABLE_TARGET
LUMI_SIMD_END

#if HWY_ONCE
#include <cstring>

namespace lumi {
namespace {

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
using ShiftRowsFn = void (*)(const thr::ElemRows<T>&, bool, int);

template <class T>
void shiftRowsScalar(const thr::ElemRows<T>& r, bool left, int count) {
  thr::forElements(r, [&](const T* s, const T*, T* o, std::ptrdiff_t i, int) {
    o[i] = thr::shiftSample<T>(left, s[i], count);
  });
}

template <class T>
ShiftRowsFn<T> pickShiftRows() {
  LUMI_SIMD_TABLE(ShiftRowsFn<T>, table, shiftRows<T>);
  return pick(table, &shiftRowsScalar<T>);
}

template <class T, class L>
LumStatus shiftImpl(const T* src, int srcStep, const Lum32u* counts, T* dst, int dstStep,
                    LumiSize roi, bool left) {
  if (LumStatus st = thr::checkStepsThenSize(anyNull(src, counts, dst), roi, srcStep, dstStep))
    return st;
  int eff[4];
  bool uniform = true;
  for (int c = 0; c < L::kUse; ++c) {
    eff[c] = effectiveCount<T>(left, counts[c]);
    uniform = uniform && eff[c] == eff[0];
  }
  const thr::ElemRows<T> r =
      thr::elemRows<L>(src, srcStep, nullptr, 0, dst, dstStep, roi);
  if (uniform && eff[0] > 0) {
    pickShiftRows<T>()(r, left, eff[0]);
  } else if (uniform && !r.keepAlpha()) {
    // Equal counts that copy or clear every sample of a row.
    const std::size_t bytes = static_cast<std::size_t>(r.n) * sizeof(T);
    for (int y = 0; y < r.height; ++y) {
      const T* s = rowAt(src, srcStep, y);
      T* o = rowAt(dst, dstStep, y);
      if (eff[0] == kZeroFill)
        std::memset(o, 0, bytes);
      else if (s != o)
        std::memmove(o, s, bytes);
    }
  } else {
    // Counts differing per channel, or a copy / zero fill that must spare the alpha channel.
    thr::forElements(r, [&](const T* s, const T*, T* o, std::ptrdiff_t i, int c) {
      o[i] = eff[c] == kZeroFill ? T(0) : thr::shiftSample<T>(left, s[i], eff[c]);
    });
  }
  return lumStatusOk;
}

}  // namespace
}  // namespace lumi

// ---- exported functions -----------------------------------------------------------------------
// K: C1 takes the count by value (SCALAR), the others an array of counts (ARRAY).
#define LUMI_SHIFT_SCALAR Lum32u
#define LUMI_SHIFT_ARRAY const Lum32u*
#define LUMI_SHIFT_ADDR_SCALAR(x) &x
#define LUMI_SHIFT_ADDR_ARRAY(x) x

#define LUMI_SHIFT(NAME, LEFT, T, L, K)                                                         \
  LUMI_API LumStatus NAME(const T* pSrc, int srcStep, LUMI_SHIFT_##K value, T* pDst,            \
                          int dstStep, LumiSize roi) {                                          \
    return lumi::shiftImpl<T, lumi::L>(pSrc, srcStep, LUMI_SHIFT_ADDR_##K(value), pDst,         \
                                       dstStep, roi, LEFT);                                     \
  }
#define LUMI_SHIFT_I(NAME, LEFT, T, L, K)                                                       \
  LUMI_API LumStatus NAME(LUMI_SHIFT_##K value, T* pSrcDst, int srcDstStep, LumiSize roi) {     \
    return lumi::shiftImpl<T, lumi::L>(pSrcDst, srcDstStep, LUMI_SHIFT_ADDR_##K(value),         \
                                       pSrcDst, srcDstStep, roi, LEFT);                         \
  }

LUMI_SHIFT(lumiLShiftC_8u_C1R, true, Lum8u, C1, SCALAR)
LUMI_SHIFT_I(lumiLShiftC_8u_C1IR, true, Lum8u, C1, SCALAR)
LUMI_SHIFT(lumiLShiftC_8u_C3R, true, Lum8u, C3, ARRAY)
LUMI_SHIFT_I(lumiLShiftC_8u_C3IR, true, Lum8u, C3, ARRAY)
LUMI_SHIFT(lumiLShiftC_8u_C4R, true, Lum8u, C4, ARRAY)
LUMI_SHIFT_I(lumiLShiftC_8u_C4IR, true, Lum8u, C4, ARRAY)
LUMI_SHIFT(lumiLShiftC_8u_AC4R, true, Lum8u, AC4, ARRAY)
LUMI_SHIFT_I(lumiLShiftC_8u_AC4IR, true, Lum8u, AC4, ARRAY)
LUMI_SHIFT(lumiLShiftC_16u_C1R, true, Lum16u, C1, SCALAR)
LUMI_SHIFT_I(lumiLShiftC_16u_C1IR, true, Lum16u, C1, SCALAR)
LUMI_SHIFT(lumiLShiftC_16u_C3R, true, Lum16u, C3, ARRAY)
LUMI_SHIFT_I(lumiLShiftC_16u_C3IR, true, Lum16u, C3, ARRAY)
LUMI_SHIFT(lumiLShiftC_16u_C4R, true, Lum16u, C4, ARRAY)
LUMI_SHIFT_I(lumiLShiftC_16u_C4IR, true, Lum16u, C4, ARRAY)
LUMI_SHIFT(lumiLShiftC_16u_AC4R, true, Lum16u, AC4, ARRAY)
LUMI_SHIFT_I(lumiLShiftC_16u_AC4IR, true, Lum16u, AC4, ARRAY)
LUMI_SHIFT(lumiLShiftC_32s_C1R, true, Lum32s, C1, SCALAR)
LUMI_SHIFT_I(lumiLShiftC_32s_C1IR, true, Lum32s, C1, SCALAR)
LUMI_SHIFT(lumiLShiftC_32s_C3R, true, Lum32s, C3, ARRAY)
LUMI_SHIFT_I(lumiLShiftC_32s_C3IR, true, Lum32s, C3, ARRAY)
LUMI_SHIFT(lumiLShiftC_32s_C4R, true, Lum32s, C4, ARRAY)
LUMI_SHIFT_I(lumiLShiftC_32s_C4IR, true, Lum32s, C4, ARRAY)
LUMI_SHIFT(lumiLShiftC_32s_AC4R, true, Lum32s, AC4, ARRAY)
LUMI_SHIFT_I(lumiLShiftC_32s_AC4IR, true, Lum32s, AC4, ARRAY)
LUMI_SHIFT(lumiRShiftC_8u_C1R, false, Lum8u, C1, SCALAR)
LUMI_SHIFT_I(lumiRShiftC_8u_C1IR, false, Lum8u, C1, SCALAR)
LUMI_SHIFT(lumiRShiftC_8u_C3R, false, Lum8u, C3, ARRAY)
LUMI_SHIFT_I(lumiRShiftC_8u_C3IR, false, Lum8u, C3, ARRAY)
LUMI_SHIFT(lumiRShiftC_8u_C4R, false, Lum8u, C4, ARRAY)
LUMI_SHIFT_I(lumiRShiftC_8u_C4IR, false, Lum8u, C4, ARRAY)
LUMI_SHIFT(lumiRShiftC_8u_AC4R, false, Lum8u, AC4, ARRAY)
LUMI_SHIFT_I(lumiRShiftC_8u_AC4IR, false, Lum8u, AC4, ARRAY)
LUMI_SHIFT(lumiRShiftC_8s_C1R, false, Lum8s, C1, SCALAR)
LUMI_SHIFT_I(lumiRShiftC_8s_C1IR, false, Lum8s, C1, SCALAR)
LUMI_SHIFT(lumiRShiftC_8s_C3R, false, Lum8s, C3, ARRAY)
LUMI_SHIFT_I(lumiRShiftC_8s_C3IR, false, Lum8s, C3, ARRAY)
LUMI_SHIFT(lumiRShiftC_8s_C4R, false, Lum8s, C4, ARRAY)
LUMI_SHIFT_I(lumiRShiftC_8s_C4IR, false, Lum8s, C4, ARRAY)
LUMI_SHIFT(lumiRShiftC_8s_AC4R, false, Lum8s, AC4, ARRAY)
LUMI_SHIFT_I(lumiRShiftC_8s_AC4IR, false, Lum8s, AC4, ARRAY)
LUMI_SHIFT(lumiRShiftC_16u_C1R, false, Lum16u, C1, SCALAR)
LUMI_SHIFT_I(lumiRShiftC_16u_C1IR, false, Lum16u, C1, SCALAR)
LUMI_SHIFT(lumiRShiftC_16u_C3R, false, Lum16u, C3, ARRAY)
LUMI_SHIFT_I(lumiRShiftC_16u_C3IR, false, Lum16u, C3, ARRAY)
LUMI_SHIFT(lumiRShiftC_16u_C4R, false, Lum16u, C4, ARRAY)
LUMI_SHIFT_I(lumiRShiftC_16u_C4IR, false, Lum16u, C4, ARRAY)
LUMI_SHIFT(lumiRShiftC_16u_AC4R, false, Lum16u, AC4, ARRAY)
LUMI_SHIFT_I(lumiRShiftC_16u_AC4IR, false, Lum16u, AC4, ARRAY)
LUMI_SHIFT(lumiRShiftC_16s_C1R, false, Lum16s, C1, SCALAR)
LUMI_SHIFT_I(lumiRShiftC_16s_C1IR, false, Lum16s, C1, SCALAR)
LUMI_SHIFT(lumiRShiftC_16s_C3R, false, Lum16s, C3, ARRAY)
LUMI_SHIFT_I(lumiRShiftC_16s_C3IR, false, Lum16s, C3, ARRAY)
LUMI_SHIFT(lumiRShiftC_16s_C4R, false, Lum16s, C4, ARRAY)
LUMI_SHIFT_I(lumiRShiftC_16s_C4IR, false, Lum16s, C4, ARRAY)
LUMI_SHIFT(lumiRShiftC_16s_AC4R, false, Lum16s, AC4, ARRAY)
LUMI_SHIFT_I(lumiRShiftC_16s_AC4IR, false, Lum16s, AC4, ARRAY)
LUMI_SHIFT(lumiRShiftC_32s_C1R, false, Lum32s, C1, SCALAR)
LUMI_SHIFT_I(lumiRShiftC_32s_C1IR, false, Lum32s, C1, SCALAR)
LUMI_SHIFT(lumiRShiftC_32s_C3R, false, Lum32s, C3, ARRAY)
LUMI_SHIFT_I(lumiRShiftC_32s_C3IR, false, Lum32s, C3, ARRAY)
LUMI_SHIFT(lumiRShiftC_32s_C4R, false, Lum32s, C4, ARRAY)
LUMI_SHIFT_I(lumiRShiftC_32s_C4IR, false, Lum32s, C4, ARRAY)
LUMI_SHIFT(lumiRShiftC_32s_AC4R, false, Lum32s, AC4, ARRAY)
LUMI_SHIFT_I(lumiRShiftC_32s_AC4IR, false, Lum32s, AC4, ARRAY)

#endif  // HWY_ONCE
