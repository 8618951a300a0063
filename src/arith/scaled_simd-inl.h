// Vector row kernels of the scaled integer arithmetic, compiled once per SIMD target (included
// by each kernel source inside its per-target pass). They read the scale factor the dispatcher
// resolved (core/scale_factor.h) and match the scalar twins of scaled_kernels.h bit for bit;
// row tails go through the same per-element rule.

#if defined(LUMI_ARITH_SCALED_SIMD_INL_H_) == defined(HWY_TARGET_TOGGLE)
#ifdef LUMI_ARITH_SCALED_SIMD_INL_H_
#undef LUMI_ARITH_SCALED_SIMD_INL_H_
#else
#define LUMI_ARITH_SCALED_SIMD_INL_H_
#endif

#include "hwy/highway.h"
#include "core/simd.h"
#include "core/alpha-inl.h"
#include "arith/scaled_kernels.h"

LUMI_SIMD_BEGIN
#if LUMI_TABLE_TARGET
namespace scaledv {

using scaled::kAdd;
using scaled::kMul;
using scaled::kSub;

template <int op, class T>
HWY_INLINE void tailRow(const T* s1, const T* s2, T* d, std::ptrdiff_t i, std::ptrdiff_t n,
                        const ScaleFactor& sf, bool keepAlpha) {
  for (; i < n; ++i)
    if (!(keepAlpha && (i & 3) == 3)) d[i] = scaled::scaledElem<op, T>(s1[i], s2[i], sf);
}

// Scale factor 0 of Add and Sub: the native saturating operations at full width (unsigned
// subtraction saturating at zero is exactly the clamped difference).
template <int op, class T>
HWY_INLINE void saturatingRow(const T* s1, const T* s2, T* d, std::ptrdiff_t n,
                              const ScaleFactor& sf, bool keepAlpha) {
  const hn::ScalableTag<T> dt;
  const std::ptrdiff_t N = static_cast<std::ptrdiff_t>(hn::Lanes(dt));
  const auto colour = colourLanes(dt);
  std::ptrdiff_t i = 0;
  for (; i + 2 * N <= n; i += 2 * N) {
    const auto a0 = hn::LoadU(dt, s1 + i), b0 = hn::LoadU(dt, s2 + i);
    const auto a1 = hn::LoadU(dt, s1 + i + N), b1 = hn::LoadU(dt, s2 + i + N);
    const auto r0 = op == kAdd ? hn::SaturatedAdd(a0, b0) : hn::SaturatedSub(b0, a0);
    const auto r1 = op == kAdd ? hn::SaturatedAdd(a1, b1) : hn::SaturatedSub(b1, a1);
    storeColour(dt, r0, d + i, keepAlpha, colour);
    storeColour(dt, r1, d + i + N, keepAlpha, colour);
  }
  for (; i + N <= n; i += N) {
    const auto a = hn::LoadU(dt, s1 + i), b = hn::LoadU(dt, s2 + i);
    storeColour(dt, op == kAdd ? hn::SaturatedAdd(a, b) : hn::SaturatedSub(b, a), d + i,
                keepAlpha, colour);
  }
  tailRow<op, T>(s1, s2, d, i, n, sf, keepAlpha);
}

// Every other case in lanes of twice the width: the exact result, then (kMode kRight) the
// right shift rounding ties to even, or (kMode kLeft) the left shift of the saturated value,
// then saturation. The rounding compares the dropped bits with half minus the kept lowest
// bit, which is the add-half-then-shift rule without the overflow of the addition.
template <int op, class T, int kMode>
HWY_INLINE void wideRow(const T* s1, const T* s2, T* d, std::ptrdiff_t n, const ScaleFactor& sf,
                        bool keepAlpha) {
  using W = hwy::MakeWide<T>;
  const hn::ScalableTag<W> dw;
  const hn::Rebind<T, decltype(dw)> dh;
  const hn::RebindToSigned<decltype(dw)> dws;
  const std::ptrdiff_t N = static_cast<std::ptrdiff_t>(hn::Lanes(dw));
  const auto colour = colourLanes(dh);
  const int shift = sf.shift;
  W maskBits = 0, half = 0;
  if (kMode == ScaleFactor::kRight) {
    maskBits = static_cast<W>((uint64_t(1) << shift) - 1);
    half = static_cast<W>(uint64_t(1) << (shift - 1));
  }
  const auto vmask = hn::Set(dw, maskBits), vhalf = hn::Set(dw, half), one = hn::Set(dw, W(1));
  const auto hi = hn::Set(dw, W(std::numeric_limits<T>::max()));
  const auto lo = hn::Set(dw, W(std::numeric_limits<T>::min()));
  std::ptrdiff_t i = 0;
  for (; i + N <= n; i += N) {
    const auto ah = hn::LoadU(dh, s1 + i), bh = hn::LoadU(dh, s2 + i);
    hn::Vec<decltype(dw)> r;
    if constexpr (op == kAdd) {
      r = hn::Add(hn::PromoteTo(dw, ah), hn::PromoteTo(dw, bh));
    } else if constexpr (op == kSub) {
      if constexpr (std::is_unsigned_v<T>)
        r = hn::PromoteTo(dw, hn::SaturatedSub(bh, ah));
      else
        r = hn::Sub(hn::PromoteTo(dw, bh), hn::PromoteTo(dw, ah));
    } else {
      r = hn::Mul(hn::PromoteTo(dw, ah), hn::PromoteTo(dw, bh));
    }
    if constexpr (kMode == ScaleFactor::kRight) {
      const auto q = hn::ShiftRightSame(r, shift);
      const auto up = hn::Gt(hn::And(r, vmask), hn::Sub(vhalf, hn::And(q, one)));
      r = hn::Sub(q, hn::VecFromMask(dw, up));
    } else if constexpr (kMode == ScaleFactor::kLeft) {
      r = hn::ShiftLeftSame(hn::Min(hn::Max(r, lo), hi), shift);
    }
    r = hn::Min(hn::Max(r, lo), hi);
    storeColour(dh, hn::DemoteTo(dh, hn::BitCast(dws, r)), d + i, keepAlpha, colour);
  }
  tailRow<op, T>(s1, s2, d, i, n, sf, keepAlpha);
}

// The per-target kernel of Add, Sub and Mul (twin: scaled::scaledRowScalar).
template <int op, class T>
HWY_NOINLINE int scaledRow(const T* s1, const T* s2, T* d, std::ptrdiff_t n,
                           const ScaleFactor& sf, bool keepAlpha) {
  if (sf.mode == ScaleFactor::kNone) {
    if constexpr (op == scaled::kMul)
      wideRow<op, T, ScaleFactor::kNone>(s1, s2, d, n, sf, keepAlpha);
    else
      saturatingRow<op, T>(s1, s2, d, n, sf, keepAlpha);
  } else if (sf.mode == ScaleFactor::kRight) {
    wideRow<op, T, ScaleFactor::kRight>(s1, s2, d, n, sf, keepAlpha);
  } else {
    wideRow<op, T, ScaleFactor::kLeft>(s1, s2, d, n, sf, keepAlpha);
  }
  return 0;
}

}  // namespace scaledv
#endif  // LUMI_TABLE_TARGET
LUMI_SIMD_END

#endif
