// The 4-point cubic of cubic.h for vector kernels: the Newton form, operation for operation as
// cubicCoeffs and cubicNewton write it (no fused multiply-adds), so float lanes agree with the
// scalar form bit for bit. Re-included per target from inside a Highway section (after
// "hwy/highway.h").
#if defined(LUMI_GEOMETRY_CUBIC_INL_H_) == defined(HWY_TARGET_TOGGLE)
#ifdef LUMI_GEOMETRY_CUBIC_INL_H_
#undef LUMI_GEOMETRY_CUBIC_INL_H_
#else
#define LUMI_GEOMETRY_CUBIC_INL_H_
#endif

#include "hwy/highway.h"

HWY_BEFORE_NAMESPACE();
namespace lumi {
namespace HWY_NAMESPACE {

// The coefficients of the fraction t: ka = t + 1, kb = t (t + 1) / 2, kc = (t - 1) t (t + 1) / 6.
template <class DF, class VF = hwy::HWY_NAMESPACE::Vec<DF>>
HWY_INLINE void cubicCoeffsV(DF df, VF t, VF& ka, VF& kb, VF& kc) {
  namespace hn = hwy::HWY_NAMESPACE;
  const auto f1 = hn::Set(df, 1.0f);
  ka = hn::Add(t, f1);
  kb = hn::Div(hn::Mul(t, ka), hn::Set(df, 2.0f));
  kc = hn::Div(hn::Mul(hn::Mul(hn::Sub(t, f1), t), ka), hn::Set(df, 6.0f));
}

// The Newton form through p0..p3 at the position whose coefficients are ka, kb, kc.
template <class DF, class VF = hwy::HWY_NAMESPACE::Vec<DF>>
HWY_INLINE VF cubicNewtonV(DF df, VF p0, VF p1, VF p2, VF p3, VF ka, VF kb, VF kc) {
  namespace hn = hwy::HWY_NAMESPACE;
  const auto f2 = hn::Set(df, 2.0f), f3 = hn::Set(df, 3.0f);
  const auto d1 = hn::Sub(p1, p0);
  const auto d2 = hn::Add(hn::Sub(p2, hn::Mul(f2, p1)), p0);
  const auto d3 = hn::Sub(hn::Add(hn::Sub(p3, hn::Mul(f3, p2)), hn::Mul(f3, p1)), p0);
  return hn::Add(hn::Add(hn::Add(p0, hn::Mul(ka, d1)), hn::Mul(kb, d2)), hn::Mul(kc, d3));
}

}  // namespace HWY_NAMESPACE
}  // namespace lumi
HWY_AFTER_NAMESPACE();

#endif
