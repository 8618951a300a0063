// Scaled integer division: Div (second image divided by the first; a zero divisor is a
// warning with defined results) and DivC (a zero constant channel is an error) for 8u, 16u
// and 16s in every layout. Quotients are formed in single precision and converted with the
// current rounding mode, identically on the vector and scalar paths.
#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "src/arith/scaled_div.cpp"
#include "hwy/foreach_target.h"
#include "hwy/highway.h"
#include "core/simd.h"
#include "core/alpha-inl.h"
#include "arith/scaled_kernels.h"

LUMI_SIMD_BEGIN
#if LUMI_TABLE_TARGET
namespace scaledv {

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
    const auto b = hn::PromoteTo(di, hn::LoadU(dh, s1 + i));
    const auto a = hn::PromoteTo(di, hn::LoadU(dh, s2 + i));
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

#if HWY_ONCE
namespace lumi {
namespace scaled {
namespace {
// Called for kDiv only by the stamps below.
template <int op, class T>
RowFn<T> pickScaledRow() {
  static_assert(op == kDiv, "division kernels only");
  LUMI_SIMD_TABLE(RowFn<T>, table, scaledv::divRow<T>);
  return pick(table, &divRowScalar<T>);
}
}  // namespace
}  // namespace scaled
}  // namespace lumi

extern "C" {
LUMI_SCALED_IMAGE(lumiDiv_8u_C1RSfs, kDiv, Lum8u, C1)
LUMI_SCALED_IMAGE_I(lumiDiv_8u_C1IRSfs, kDiv, Lum8u, C1)
LUMI_SCALED_IMAGE(lumiDiv_8u_C3RSfs, kDiv, Lum8u, C3)
LUMI_SCALED_IMAGE_I(lumiDiv_8u_C3IRSfs, kDiv, Lum8u, C3)
LUMI_SCALED_IMAGE(lumiDiv_8u_AC4RSfs, kDiv, Lum8u, AC4)
LUMI_SCALED_IMAGE_I(lumiDiv_8u_AC4IRSfs, kDiv, Lum8u, AC4)
LUMI_SCALED_IMAGE(lumiDiv_8u_C4RSfs, kDiv, Lum8u, C4)
LUMI_SCALED_IMAGE_I(lumiDiv_8u_C4IRSfs, kDiv, Lum8u, C4)
LUMI_SCALED_IMAGE(lumiDiv_16u_C1RSfs, kDiv, Lum16u, C1)
LUMI_SCALED_IMAGE_I(lumiDiv_16u_C1IRSfs, kDiv, Lum16u, C1)
LUMI_SCALED_IMAGE(lumiDiv_16u_C3RSfs, kDiv, Lum16u, C3)
LUMI_SCALED_IMAGE_I(lumiDiv_16u_C3IRSfs, kDiv, Lum16u, C3)
LUMI_SCALED_IMAGE(lumiDiv_16u_AC4RSfs, kDiv, Lum16u, AC4)
LUMI_SCALED_IMAGE_I(lumiDiv_16u_AC4IRSfs, kDiv, Lum16u, AC4)
LUMI_SCALED_IMAGE(lumiDiv_16u_C4RSfs, kDiv, Lum16u, C4)
LUMI_SCALED_IMAGE_I(lumiDiv_16u_C4IRSfs, kDiv, Lum16u, C4)
LUMI_SCALED_IMAGE(lumiDiv_16s_C1RSfs, kDiv, Lum16s, C1)
LUMI_SCALED_IMAGE_I(lumiDiv_16s_C1IRSfs, kDiv, Lum16s, C1)
LUMI_SCALED_IMAGE(lumiDiv_16s_C3RSfs, kDiv, Lum16s, C3)
LUMI_SCALED_IMAGE_I(lumiDiv_16s_C3IRSfs, kDiv, Lum16s, C3)
LUMI_SCALED_IMAGE(lumiDiv_16s_AC4RSfs, kDiv, Lum16s, AC4)
LUMI_SCALED_IMAGE_I(lumiDiv_16s_AC4IRSfs, kDiv, Lum16s, AC4)
LUMI_SCALED_IMAGE(lumiDiv_16s_C4RSfs, kDiv, Lum16s, C4)
LUMI_SCALED_IMAGE_I(lumiDiv_16s_C4IRSfs, kDiv, Lum16s, C4)
LUMI_SCALED_CONST(lumiDivC_8u_C1RSfs, kDiv, Lum8u, C1, Lum8u, &value)
LUMI_SCALED_CONST_I(lumiDivC_8u_C1IRSfs, kDiv, Lum8u, C1, Lum8u, &value)
LUMI_SCALED_CONST(lumiDivC_8u_C3RSfs, kDiv, Lum8u, C3, const Lum8u*, value)
LUMI_SCALED_CONST_I(lumiDivC_8u_C3IRSfs, kDiv, Lum8u, C3, const Lum8u*, value)
LUMI_SCALED_CONST(lumiDivC_8u_AC4RSfs, kDiv, Lum8u, AC4, const Lum8u*, value)
LUMI_SCALED_CONST_I(lumiDivC_8u_AC4IRSfs, kDiv, Lum8u, AC4, const Lum8u*, value)
LUMI_SCALED_CONST(lumiDivC_8u_C4RSfs, kDiv, Lum8u, C4, const Lum8u*, value)
LUMI_SCALED_CONST_I(lumiDivC_8u_C4IRSfs, kDiv, Lum8u, C4, const Lum8u*, value)
LUMI_SCALED_CONST(lumiDivC_16u_C1RSfs, kDiv, Lum16u, C1, Lum16u, &value)
LUMI_SCALED_CONST_I(lumiDivC_16u_C1IRSfs, kDiv, Lum16u, C1, Lum16u, &value)
LUMI_SCALED_CONST(lumiDivC_16u_C3RSfs, kDiv, Lum16u, C3, const Lum16u*, value)
LUMI_SCALED_CONST_I(lumiDivC_16u_C3IRSfs, kDiv, Lum16u, C3, const Lum16u*, value)
LUMI_SCALED_CONST(lumiDivC_16u_AC4RSfs, kDiv, Lum16u, AC4, const Lum16u*, value)
LUMI_SCALED_CONST_I(lumiDivC_16u_AC4IRSfs, kDiv, Lum16u, AC4, const Lum16u*, value)
LUMI_SCALED_CONST(lumiDivC_16u_C4RSfs, kDiv, Lum16u, C4, const Lum16u*, value)
LUMI_SCALED_CONST_I(lumiDivC_16u_C4IRSfs, kDiv, Lum16u, C4, const Lum16u*, value)
LUMI_SCALED_CONST(lumiDivC_16s_C1RSfs, kDiv, Lum16s, C1, Lum16s, &value)
LUMI_SCALED_CONST_I(lumiDivC_16s_C1IRSfs, kDiv, Lum16s, C1, Lum16s, &value)
LUMI_SCALED_CONST(lumiDivC_16s_C3RSfs, kDiv, Lum16s, C3, const Lum16s*, value)
LUMI_SCALED_CONST_I(lumiDivC_16s_C3IRSfs, kDiv, Lum16s, C3, const Lum16s*, value)
LUMI_SCALED_CONST(lumiDivC_16s_AC4RSfs, kDiv, Lum16s, AC4, const Lum16s*, value)
LUMI_SCALED_CONST_I(lumiDivC_16s_AC4IRSfs, kDiv, Lum16s, AC4, const Lum16s*, value)
LUMI_SCALED_CONST(lumiDivC_16s_C4RSfs, kDiv, Lum16s, C4, const Lum16s*, value)
LUMI_SCALED_CONST_I(lumiDivC_16s_C4IRSfs, kDiv, Lum16s, C4, const Lum16s*, value)
}
#endif
