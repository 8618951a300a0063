// Vector row kernels of the scaled integer arithmetic, compiled once per SIMD target (included
// by scaled_arith.cpp inside its per-target pass). They read the scale factor the dispatcher
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
#include "core/widen-inl.h"
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

// s2 / s1 in 32-bit lanes. A zero divisor is replaced by 2^-60, which drives the quotient of
// a nonzero dividend far past the saturation limit and leaves 0 / 0 at zero: exactly the
// defined results, without raising a floating-point exception flag. Unsigned quotients are
// never negative and are rounded by adding 1.5 x 2^23 (the addition rounds with the current
// mode, as the conversion instruction would); signed ones use the conversion itself.
template <class T, bool kScaled>
HWY_INLINE int divLoop(const T* s1, const T* s2, T* d, std::ptrdiff_t n, float scaleValue,
                       bool keepAlpha, std::ptrdiff_t* done) {
  const hn::ScalableTag<float> df;
  const hn::RebindToSigned<decltype(df)> di;
  const hn::RebindToUnsigned<decltype(di)> du;
  const hn::Rebind<T, decltype(di)> dh;
  const std::ptrdiff_t N = static_cast<std::ptrdiff_t>(hn::Lanes(df));
  const auto scale = hn::Set(df, scaleValue);
  const auto limit = hn::Set(df, 65536.0f), negLimit = hn::Set(df, -65536.0f);
  const auto tiny = hn::Set(df, 8.673617379884035e-19f);  // 2^-60
  const auto magic = hn::Set(df, 12582912.0f);             // 1.5 x 2^23
  const auto magicBits = hn::BitCast(di, magic);
  const auto zero = hn::Zero(di);
  const auto hi = hn::Set(di, int32_t(std::numeric_limits<T>::max()));
  const auto lo = hn::Set(di, int32_t(std::numeric_limits<T>::min()));
  const auto colour = colourLanes(dh);
  // alpha lanes never count as zero divisors
  const auto alphaBits = keepAlpha ? hn::IfThenZeroElse(colourLanes(di), hn::Set(di, 1)) : zero;
  auto lowest = hn::Set(di, 1);
  std::ptrdiff_t i = 0;
  for (; i + N <= n; i += N) {
    const auto b = loadAs(di, s1 + i);
    const auto a = loadAs(di, s2 + i);
    const auto bAbs = std::is_signed_v<T> ? hn::Abs(b) : b;
    lowest = hn::Min(lowest, keepAlpha ? hn::Or(bAbs, alphaBits) : bAbs);
    const auto fb = hn::IfThenElse(hn::RebindMask(df, hn::Eq(b, zero)), tiny, hn::ConvertTo(df, b));
    auto q = hn::Div(hn::ConvertTo(df, a), fb);
    if (kScaled) q = hn::Mul(q, scale);
    hn::Vec<decltype(di)> r;
    if constexpr (std::is_unsigned_v<T>) {
      r = hn::Sub(hn::BitCast(di, hn::Add(hn::Min(q, limit), magic)), magicBits);
    } else {
      r = hn::NearestInt(hn::Min(hn::Max(q, negLimit), limit));
    }
    r = std::is_signed_v<T> ? hn::Min(hn::Max(r, lo), hi) : hn::Min(r, hi);
    if constexpr (sizeof(T) == 1)  // in range already: the cheapest narrowing will do
      storeColour(dh, hn::TruncateTo(dh, hn::BitCast(du, r)), d + i, keepAlpha, colour);
    else
      storeColour(dh, hn::DemoteTo(dh, r), d + i, keepAlpha, colour);
  }
  *done = i;
  return hn::AllFalse(di, hn::Eq(lowest, zero)) ? 0 : 1;
}

// The per-target kernel of Div (twin: scaled::divRowScalar).
template <class T>
HWY_NOINLINE int divRow(const T* s1, const T* s2, T* d, std::ptrdiff_t n, const ScaleFactor& sf,
                        bool keepAlpha) {
  const float scaleValue = scaled::divScale(sf);
  std::ptrdiff_t i = 0;
  int flag = sf.mode == ScaleFactor::kNone
                 ? divLoop<T, false>(s1, s2, d, n, scaleValue, keepAlpha, &i)
                 : divLoop<T, true>(s1, s2, d, n, scaleValue, keepAlpha, &i);
  for (; i < n; ++i) {
    if (keepAlpha && (i & 3) == 3) continue;
    flag |= s1[i] == 0;
    d[i] = scaled::divElem(s2[i], s1[i], scaleValue);
  }
  return flag;
}

}  // namespace scaledv
#endif  // LUMI_TABLE_TARGET
LUMI_SIMD_END

#endif
