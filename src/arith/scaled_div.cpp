// Scaled integer division: Div (second image divided by the first; a zero divisor is a
// warning with defined results) and DivC (a zero constant channel is an error) for 8u, 16u
// and 16s in every layout. Quotients are formed in single precision and converted with the
// current rounding mode, identically on the vector and scalar paths.
#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "src/arith/scaled_div.cpp"
#include "hwy/foreach_target.h"
#include "hwy/highway.h"
#include "core/frame.h"
#include "arith/scaled_simd-inl.h"

HWY_BEFORE_NAMESPACE();
namespace lumi {
namespace HWY_NAMESPACE {
namespace scaledv {

// s2 / s1 in 32-bit lanes. A zero divisor is replaced by 2^-60, which drives the quotient of
// a nonzero dividend far past the saturation limit and leaves 0 / 0 at zero: exactly the
// defined results, without raising a floating-point exception flag. Unsigned quotients are
// never negative and are rounded by adding 1.5 x 2^23 (the addition rounds with the current
// mode, as the conversion instruction would); signed ones use the conversion itself.
template <class T, bool kScaled>
HWY_INLINE int DivLoop(const T* s1, const T* s2, T* d, int n, float scaleValue, int ac4,
                       int* done) {
  const hn::ScalableTag<float> df;
  const hn::RebindToSigned<decltype(df)> di;
  const hn::RebindToUnsigned<decltype(di)> du;
  const hn::Rebind<T, decltype(di)> dh;
  const int N = static_cast<int>(hn::Lanes(df));
  const auto scale = hn::Set(df, scaleValue);
  const auto limit = hn::Set(df, 65536.0f), negLimit = hn::Set(df, -65536.0f);
  const auto tiny = hn::Set(df, 8.673617379884035e-19f);  // 2^-60
  const auto magic = hn::Set(df, 12582912.0f);             // 1.5 x 2^23
  const auto magicBits = hn::BitCast(di, magic);
  const auto zero = hn::Zero(di);
  const auto hi = hn::Set(di, int32_t(std::numeric_limits<T>::max()));
  const auto lo = hn::Set(di, int32_t(std::numeric_limits<T>::min()));
  const auto colour = ColourLanes(dh);
  // alpha lanes never count as zero divisors
  const auto alphaBits = ac4 ? hn::IfThenZeroElse(ColourLanes(di), hn::Set(di, 1)) : zero;
  auto lowest = hn::Set(di, 1);
  int i = 0;
  for (; i + N <= n; i += N) {
    const auto b = hn::PromoteTo(di, hn::LoadU(dh, s1 + i));
    const auto a = hn::PromoteTo(di, hn::LoadU(dh, s2 + i));
    const auto bAbs = std::is_signed_v<T> ? hn::Abs(b) : b;
    lowest = hn::Min(lowest, ac4 ? hn::Or(bAbs, alphaBits) : bAbs);
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
      StoreKeep(dh, hn::TruncateTo(dh, hn::BitCast(du, r)), d + i, ac4, colour);
    else
      StoreKeep(dh, hn::DemoteTo(dh, r), d + i, ac4, colour);
  }
  *done = i;
  return hn::AllFalse(di, hn::Eq(lowest, zero)) ? 0 : 1;
}

template <class T>
HWY_NOINLINE int DivRow(const T* s1, const T* s2, T* d, int n, int sf, int ac4) {
  const float scaleValue = scaled::divScale(sf);
  int i = 0;
  int flag = sf == 0 ? DivLoop<T, false>(s1, s2, d, n, scaleValue, ac4, &i)
                     : DivLoop<T, true>(s1, s2, d, n, scaleValue, ac4, &i);
  for (; i < n; ++i) {
    if (ac4 && (i & 3) == 3) continue;
    flag |= s1[i] == 0;
    d[i] = scaled::divElem(s2[i], s1[i], scaleValue);
  }
  return flag;
}

}  // namespace scaledv
}  // namespace HWY_NAMESPACE
}  // namespace lumi
HWY_AFTER_NAMESPACE();

#if HWY_ONCE
#include "core/simd.h"

namespace lumi {
namespace {
using scaled::RowFn;
LUMI_SIMD_TABLE(RowFn<Lum8u>, kDiv8u, scaledv::DivRow<Lum8u>);
LUMI_SIMD_TABLE(RowFn<Lum16u>, kDiv16u, scaledv::DivRow<Lum16u>);
LUMI_SIMD_TABLE(RowFn<Lum16s>, kDiv16s, scaledv::DivRow<Lum16s>);
}  // namespace
}  // namespace lumi

extern "C" {
LUMI_SCALED_IMAGE(Div, lumi::scaled::kDiv, 8u, Lum8u, lumi::kDiv8u)
LUMI_SCALED_IMAGE(Div, lumi::scaled::kDiv, 16u, Lum16u, lumi::kDiv16u)
LUMI_SCALED_IMAGE(Div, lumi::scaled::kDiv, 16s, Lum16s, lumi::kDiv16s)
LUMI_SCALED_CONST(DivC, lumi::scaled::kDiv, 8u, Lum8u, lumi::kDiv8u)
LUMI_SCALED_CONST(DivC, lumi::scaled::kDiv, 16u, Lum16u, lumi::kDiv16u)
LUMI_SCALED_CONST(DivC, lumi::scaled::kDiv, 16s, Lum16s, lumi::kDiv16s)
}
#endif
