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

// s2 / s1 in 32-bit lanes. Zero divisors are replaced by one before dividing (no floating
// point exception flags are raised) and their lanes then get the defined value.
template <class T>
HWY_NOINLINE int DivRow(const T* s1, const T* s2, T* d, int n, int sf, int ac4) {
  const hn::ScalableTag<float> df;
  const hn::RebindToSigned<decltype(df)> di;
  const hn::Rebind<T, decltype(di)> dh;
  const int N = static_cast<int>(hn::Lanes(df));
  const float scaleValue = scaled::divScale(sf);
  const auto scale = hn::Set(df, scaleValue);
  const auto limit = hn::Set(df, 65536.0f), negLimit = hn::Set(df, -65536.0f);
  const auto zero = hn::Zero(di), one = hn::Set(di, 1);
  const auto hi = hn::Set(di, int32_t(std::numeric_limits<T>::max()));
  const auto lo = hn::Set(di, int32_t(std::numeric_limits<T>::min()));
  const auto colour = ColourLanes(dh);
  const auto counted = ac4 ? hn::VecFromMask(di, ColourLanes(di)) : hn::Set(di, -1);
  auto seen = zero;
  int i = 0;
  for (; i + N <= n; i += N) {
    const auto b = hn::PromoteTo(di, hn::LoadU(dh, s1 + i));
    const auto a = hn::PromoteTo(di, hn::LoadU(dh, s2 + i));
    const auto z = hn::Eq(b, zero);
    const auto fb = hn::ConvertTo(df, hn::IfThenElse(z, one, b));
    auto q = hn::Mul(hn::Div(hn::ConvertTo(df, a), fb), scale);
    q = hn::Min(hn::Max(q, negLimit), limit);
    const auto byZero = hn::IfThenElse(hn::Gt(a, zero), hi, hn::IfThenElseZero(hn::Lt(a, zero), lo));
    const auto r = hn::IfThenElse(z, byZero, hn::NearestInt(q));
    seen = hn::Or(seen, hn::And(hn::VecFromMask(di, z), counted));
    // clamp first: some targets narrow 32-bit lanes to bytes through a signed 16-bit step
    StoreKeep(dh, hn::DemoteTo(dh, hn::Min(hn::Max(r, lo), hi)), d + i, ac4, colour);
  }
  int flag = hn::AllFalse(di, hn::Ne(seen, zero)) ? 0 : 1;
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
