// Square, square root, natural logarithm and exponential with an integer scale factor (8u,
// 16u, 16s), and the logarithm and exponential of 32f pixels.
//
// Scaled results are the real function of the sample in double precision, multiplied by
// 2^-scaleFactor, rounded half to even and saturated. Domain rules: the root and the logarithm
// of a negative sample store 0 and report the domain warning; the logarithm of 0 is minus
// infinity and saturates to the type's minimum. 8u rows go through a 256-entry table built from
// the same double-precision functions; 16-bit rows are evaluated in double-precision vectors,
// whose logarithm and exponential give the same scaled results as the maths library's for
// every 16-bit sample and every scale factor from -40 to 40 (the tests check all of them).
// For 32f, the scalar kernels evaluate Ln and Exp in double precision and round once to
// single; the vector kernels work in single precision within 2 ulp (Ln) and 1 ulp (Exp) of that.
#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "src/arith/pointwise_scaled.cpp"
#include "hwy/foreach_target.h"
#include "hwy/highway.h"
#include <cfloat>

#include "core/simd.h"
#include "core/widen-inl.h"
#include "arith/float_kernels-inl.h"
#include "hwy/contrib/math/math-inl.h"

#ifndef LUMI_POINTWISE_SCALED_SCALAR_  // scalar definitions, compiled once
#define LUMI_POINTWISE_SCALED_SCALAR_
namespace lumi {
namespace arithf {
enum ScaledFn : int { kSqr = 0, kSqrt = 1, kLn = 2, kExp = 3 };

// The scaled value of one sample; *domain is set for inputs outside the function's domain.
template <int F, class T>
inline T scaledValue(T x, const ScaleFactor& sf, int* domain) {
  using L = std::numeric_limits<T>;
  const double v = static_cast<double>(x);
  double r;
  if constexpr (F == kSqr) {
    r = v * v;
  } else if constexpr (F == kSqrt) {
    if (v < 0) {
      *domain = 1;
      return 0;
    }
    r = std::sqrt(v);
  } else if constexpr (F == kLn) {
    if (v < 0) {
      *domain = 1;
      return 0;
    }
    r = std::log(v);
  } else {
    r = std::exp(v);
  }
  return static_cast<T>(scaleDouble(r, sf, static_cast<double>(L::min()), static_cast<double>(L::max())));
}

// 32f: the double-precision function rounded once.
template <int F>
inline float floatValue(float x, int* domain) {
  if (F == kLn && x < 0) *domain = 1;
  return static_cast<float>(F == kLn ? std::log(static_cast<double>(x)) : std::exp(static_cast<double>(x)));
}
}  // namespace arithf
}  // namespace lumi
#endif

LUMI_SIMD_BEGIN
#if LUMI_TABLE_TARGET
namespace arithv {

// 16-bit rows: each sample widened to double, the function applied, multiplied by the scale
// factor's 2^-sf (a normal double: the chooser sends other factors to the scalar twin),
// rounded half to even, clamped to the type and narrowed.
template <class T, int F>
int scaledRow(const T* s, T* out, std::ptrdiff_t n, const RowPattern<T>* pat,
              const ScaleFactor& sf) {
  using L = std::numeric_limits<T>;
  const hn::ScalableTag<double> dd;
  const hn::Rebind<int32_t, decltype(dd)> di;
  const hn::Rebind<T, decltype(dd)> dt;
  const auto scale = hn::Set(dd, sf.factor());
  const auto lo = hn::Set(dd, static_cast<double>(L::min()));
  const auto hi = hn::Set(dd, static_cast<double>(L::max()));
  const auto zero = hn::Zero(dd);
  auto bad = hn::Zero(dd);
  int tailBad = 0;
  ForEachVector(
      dt, static_cast<size_t>(n), pat,
      [&](size_t i, size_t off, auto masked) {
        const auto x = loadAs(dd, s + i);
        hn::Vec<decltype(dd)> r;
        hn::Mask<decltype(dd)> neg = hn::Lt(x, zero);
        if constexpr (F == kSqr) {
          r = hn::Mul(x, x);
        } else if constexpr (F == kSqrt) {
          r = hn::Sqrt(hn::Max(x, zero));
        } else if constexpr (F == kLn) {
          r = hn::Log(dd, hn::Max(x, hn::Set(dd, 1.0)));
          r = hn::IfThenElse(hn::Eq(x, zero), hn::Set(dd, -HUGE_VAL), r);
        } else {
          r = hn::Exp(dd, hn::Min(x, hn::Set(dd, 706.0)));
        }
        r = hn::Round(hn::Mul(r, scale));
        r = hn::Min(hn::Max(r, lo), hi);
        if constexpr (F == kSqrt || F == kLn) {
          r = hn::IfThenZeroElse(neg, r);
          if constexpr (decltype(masked)::value) {  // a negative alpha sample is not processed
            neg = hn::And(neg, colourLanesAt(dd, off, pat->unitShift));
          }
          bad = hn::Or(bad, hn::VecFromMask(dd, neg));
        }
        StoreOwned(dt, hn::DemoteTo(dt, hn::DemoteTo(di, r)), out + i, pat, off, masked);
      },
      [&](size_t i, size_t off) {
        if (Owns(pat, off)) out[i] = scaledValue<F>(s[i], sf, &tailBad);
      });
  return tailBad | !hn::AllFalse(dd, hn::MaskFromVec(bad));
}

// e^x for -86 <= x <= 88, where the result and every intermediate are normal: Highway's
// reduction and polynomial, with the scaling by 2^q done on the exponent bits.
template <class D>
HWY_INLINE hn::Vec<D> ExpNormal(D d, hn::Vec<D> x) {
  const hn::RebindToSigned<D> di;
  hn::impl::ExpImpl<float> impl;
  // q = round(x / ln 2), ties away from zero
  const auto q = hn::ConvertTo(
      di, hn::MulAdd(x, hn::Set(d, 1.442695040888963407359924681f),
                     hn::Or(hn::Set(d, 0.5f), hn::And(x, hn::Set(d, -0.0f)))));
  const auto y = hn::Add(impl.ExpPoly(d, impl.ExpReduce(d, x, q)), hn::Set(d, 1.0f));
  return hn::BitCast(d, hn::Add(hn::BitCast(di, y), hn::ShiftLeft<23>(q)));
}

// 32f Ln and Exp in single-precision vectors. Against the double-precision function rounded
// once (the scalar kernels), results differ by at most 2 ulp for Ln and 1 ulp for Exp.
template <int F>
int floatRow(const float* s, float* out, std::ptrdiff_t n, const RowPattern<float>* pat) {
  const hn::ScalableTag<float> d;
  const auto zero = hn::Zero(d);
  auto bad = hn::Zero(d);
  int tailBad = 0;
  ForEachVector(
      d, static_cast<size_t>(n), pat,
      [&](size_t i, size_t, auto) {
        const auto x = hn::LoadU(d, s + i);
        hn::Vec<decltype(d)> r;
        // the common case, every lane a finite normal positive (Ln) or below the overflow
        // clamp (Exp; NaN fails both tests), needs no special values
        if constexpr (F == kLn) {
          if (hn::AllTrue(d, hn::And(hn::Ge(x, hn::Set(d, FLT_MIN)), hn::Le(x, hn::Set(d, FLT_MAX))))) {
            hn::StoreU(hn::Log(d, x), d, out + i);
            return;
          }
        } else {
          // results in the normal range: 2^q scales the polynomial by an exponent add
          if (hn::AllTrue(d, hn::And(hn::Ge(x, hn::Set(d, -86.0f)), hn::Le(x, hn::Set(d, 88.0f))))) {
            hn::StoreU(ExpNormal(d, x), d, out + i);
            return;
          }
        }
        if constexpr (F == kLn) {
          const auto neg = hn::Lt(x, zero);
          bad = hn::Or(bad, hn::VecFromMask(d, neg));
          // subnormal inputs are scaled up by 2^32 first; 0, infinity, NaN and negatives are
          // set below
          const auto tiny = hn::Lt(x, hn::Set(d, FLT_MIN));
          auto xs = hn::IfThenElse(tiny, hn::Mul(x, hn::Set(d, 4294967296.0f)), x);
          xs = hn::Min(hn::Max(xs, hn::Set(d, FLT_MIN)), hn::Set(d, FLT_MAX));
          r = hn::Log(d, xs);
          r = hn::IfThenElse(tiny, hn::Sub(r, hn::Set(d, 22.18070977791825f)), r);
          r = hn::IfThenElse(hn::Eq(x, zero), hn::Set(d, -HUGE_VALF), r);
          r = hn::IfThenElse(hn::Eq(x, hn::Set(d, HUGE_VALF)), x, r);
          r = hn::IfThenElse(neg, hn::Set(d, std::numeric_limits<float>::quiet_NaN()), r);
        } else {
          r = hn::Exp(d, hn::Min(x, hn::Set(d, 100.0f)));
        }
        r = hn::IfThenElse(hn::IsNaN(x), x, r);
        hn::StoreU(r, d, out + i);
      },
      [&](size_t i, size_t) { out[i] = floatValue<F>(s[i], &tailBad); });
  return tailBad | !hn::AllFalse(d, hn::MaskFromVec(bad));
}
}  // namespace arithv
#endif  // LUMI_TABLE_TARGET
LUMI_SIMD_END

#if HWY_ONCE

namespace lumi {
namespace arithf {
namespace {

template <class T>
using ScaledRow = int (*)(const T*, T*, std::ptrdiff_t, const RowPattern<T>*, const ScaleFactor&);
using FloatRow = int (*)(const float*, float*, std::ptrdiff_t, const RowPattern<float>*);

// Scalar twins of arithv::scaledRow and arithv::floatRow.
template <class T, int F>
int scaledRowScalar(const T* s, T* out, std::ptrdiff_t n, const RowPattern<T>* pat,
                    const ScaleFactor& sf) {
  int bad = 0;
  for (std::ptrdiff_t i = 0; i < n; ++i)
    if (!pat || pat->writes(i)) out[i] = scaledValue<F>(s[i], sf, &bad);
  return bad;
}

template <int F>
int floatRowScalar(const float* s, float* out, std::ptrdiff_t n, const RowPattern<float>*) {
  int bad = 0;
  for (std::ptrdiff_t i = 0; i < n; ++i) out[i] = floatValue<F>(s[i], &bad);
  return bad;
}

// The 16-bit rows with vector kernels: Sqr and Sqrt of 16u, all four functions of 16s.
template <class T, int F>
ScaledRow<T> pickScaledRow() {
  if constexpr (std::is_same_v<T, int16_t> || (std::is_same_v<T, uint16_t> && F <= kSqrt)) {
    LUMI_SIMD_TABLE(ScaledRow<T>, table, arithv::scaledRow<T, F>);
    return pick(table, &scaledRowScalar<T, F>);
  } else {
    return &scaledRowScalar<T, F>;
  }
}

template <int F>
FloatRow pickFloatRow() {
  LUMI_SIMD_TABLE(FloatRow, table, arithv::floatRow<F>);
  return pick(table, &floatRowScalar<F>);
}

// 8u rows: every possible sample looked up in a table of the scaled values.
template <int F>
struct Table8u {
  uint8_t v[256];
  explicit Table8u(const ScaleFactor& sf) {
    int unused = 0;
    for (int x = 0; x < 256; ++x) v[x] = scaledValue<F>(static_cast<uint8_t>(x), sf, &unused);
  }
};

template <class T, int F, class L>
LumStatus scaledImpl(const T* s, int sStep, T* d, int dStep, LumiSize roi, int sf) {
  if (anyNull(s, d)) return lumStatusNullPtrErr;
  if (badSize(roi)) return lumStatusSizeErr;
  if (badStep(sStep, dStep)) return lumStatusStepErr;
  const std::ptrdiff_t n = elemsOf(roi.width, L::kCh);
  const ScaleFactor scale = resolveSf(sf);
  if constexpr (sizeof(T) == 1) {
    const Table8u<F> table(scale);
    for (int y = 0; y < roi.height; ++y) {
      const T* in = rowAt(s, sStep, y);
      T* out = rowAt(d, dStep, y);
      for (std::ptrdiff_t i = 0; i < n; i += L::kCh)
        for (int c = 0; c < L::kUse; ++c) out[i + c] = table.v[in[i + c]];
    }
    return lumStatusOk;
  } else {
    const bool masked = L::kUse < L::kCh;
    RowPattern<T> pat(masked ? L::kCh : 1, masked ? L::kUse : 1, nullptr);
    // The vector rows multiply by 2^-sf, which they need as a normal double; otherwise the
    // scalar rows scale the value itself.
    ScaledRow<T> row = scale.normalFactor() ? pickScaledRow<T, F>() : &scaledRowScalar<T, F>;
    FirstStatus status;
    for (int y = 0; y < roi.height; ++y)
      if (row(rowAt(s, sStep, y), rowAt(d, dStep, y), n, masked ? &pat : nullptr, scale))
        status.add(lumStatusDomainWarn);
    return status.value;
  }
}

template <int F, class L>
LumStatus floatImpl(const float* s, int sStep, float* d, int dStep, LumiSize roi) {
  if (anyNull(s, d)) return lumStatusNullPtrErr;
  if (badSize(roi)) return lumStatusSizeErr;
  if (badStep(sStep, dStep)) return lumStatusStepErr;
  roi = coalesceRows(roi, 4 * L::kCh, sStep, dStep);
  const FloatRow row = pickFloatRow<F>();
  FirstStatus status;
  for (int y = 0; y < roi.height; ++y)
    if (row(rowAt(s, sStep, y), rowAt(d, dStep, y), elemsOf(roi.width, L::kCh), nullptr))
      status.add(lumStatusDomainWarn);
  return status.value;
}

}  // namespace
}  // namespace arithf
}  // namespace lumi

// One line per member.
#define LUMI_SCALEDFN(NAME, F, T, L)                                                       \
  LUMI_API LumStatus NAME(const T* s, int ss, T* d, int ds, LumiSize r, int sf) {         \
    return lumi::arithf::scaledImpl<T, lumi::arithf::F, lumi::L>(s, ss, d, ds, r, sf);    \
  }
#define LUMI_SCALEDFN_I(NAME, F, T, L)                                                     \
  LUMI_API LumStatus NAME(T* sd, int sds, LumiSize r, int sf) {                           \
    return lumi::arithf::scaledImpl<T, lumi::arithf::F, lumi::L>(static_cast<const T*>(sd), \
                                                                 sds, sd, sds, r, sf);    \
  }
#define LUMI_FLOATFN(NAME, F, L)                                                          \
  LUMI_API LumStatus NAME(const Lum32f* s, int ss, Lum32f* d, int ds, LumiSize r) {      \
    return lumi::arithf::floatImpl<lumi::arithf::F, lumi::L>(s, ss, d, ds, r);           \
  }
#define LUMI_FLOATFN_I(NAME, F, L)                                               \
  LUMI_API LumStatus NAME(Lum32f* sd, int sds, LumiSize r) {                    \
    return lumi::arithf::floatImpl<lumi::arithf::F, lumi::L>(sd, sds, sd, sds, r); \
  }

LUMI_SCALEDFN(lumiSqr_8u_C1RSfs, kSqr, Lum8u, C1)
LUMI_SCALEDFN_I(lumiSqr_8u_C1IRSfs, kSqr, Lum8u, C1)
LUMI_SCALEDFN(lumiSqr_8u_C3RSfs, kSqr, Lum8u, C3)
LUMI_SCALEDFN_I(lumiSqr_8u_C3IRSfs, kSqr, Lum8u, C3)
LUMI_SCALEDFN(lumiSqr_8u_C4RSfs, kSqr, Lum8u, C4)
LUMI_SCALEDFN_I(lumiSqr_8u_C4IRSfs, kSqr, Lum8u, C4)
LUMI_SCALEDFN(lumiSqr_8u_AC4RSfs, kSqr, Lum8u, AC4)
LUMI_SCALEDFN_I(lumiSqr_8u_AC4IRSfs, kSqr, Lum8u, AC4)
LUMI_SCALEDFN(lumiSqrt_8u_C1RSfs, kSqrt, Lum8u, C1)
LUMI_SCALEDFN_I(lumiSqrt_8u_C1IRSfs, kSqrt, Lum8u, C1)
LUMI_SCALEDFN(lumiSqrt_8u_C3RSfs, kSqrt, Lum8u, C3)
LUMI_SCALEDFN_I(lumiSqrt_8u_C3IRSfs, kSqrt, Lum8u, C3)
LUMI_SCALEDFN(lumiSqrt_8u_AC4RSfs, kSqrt, Lum8u, AC4)
LUMI_SCALEDFN_I(lumiSqrt_8u_AC4IRSfs, kSqrt, Lum8u, AC4)
LUMI_SCALEDFN(lumiSqr_16u_C1RSfs, kSqr, Lum16u, C1)
LUMI_SCALEDFN_I(lumiSqr_16u_C1IRSfs, kSqr, Lum16u, C1)
LUMI_SCALEDFN(lumiSqr_16u_C3RSfs, kSqr, Lum16u, C3)
LUMI_SCALEDFN_I(lumiSqr_16u_C3IRSfs, kSqr, Lum16u, C3)
LUMI_SCALEDFN(lumiSqr_16u_C4RSfs, kSqr, Lum16u, C4)
LUMI_SCALEDFN_I(lumiSqr_16u_C4IRSfs, kSqr, Lum16u, C4)
LUMI_SCALEDFN(lumiSqr_16u_AC4RSfs, kSqr, Lum16u, AC4)
LUMI_SCALEDFN_I(lumiSqr_16u_AC4IRSfs, kSqr, Lum16u, AC4)
LUMI_SCALEDFN(lumiSqrt_16u_C1RSfs, kSqrt, Lum16u, C1)
LUMI_SCALEDFN_I(lumiSqrt_16u_C1IRSfs, kSqrt, Lum16u, C1)
LUMI_SCALEDFN(lumiSqrt_16u_C3RSfs, kSqrt, Lum16u, C3)
LUMI_SCALEDFN_I(lumiSqrt_16u_C3IRSfs, kSqrt, Lum16u, C3)
LUMI_SCALEDFN(lumiSqrt_16u_AC4RSfs, kSqrt, Lum16u, AC4)
LUMI_SCALEDFN_I(lumiSqrt_16u_AC4IRSfs, kSqrt, Lum16u, AC4)
LUMI_SCALEDFN(lumiSqr_16s_C1RSfs, kSqr, Lum16s, C1)
LUMI_SCALEDFN_I(lumiSqr_16s_C1IRSfs, kSqr, Lum16s, C1)
LUMI_SCALEDFN(lumiSqr_16s_C3RSfs, kSqr, Lum16s, C3)
LUMI_SCALEDFN_I(lumiSqr_16s_C3IRSfs, kSqr, Lum16s, C3)
LUMI_SCALEDFN(lumiSqr_16s_C4RSfs, kSqr, Lum16s, C4)
LUMI_SCALEDFN_I(lumiSqr_16s_C4IRSfs, kSqr, Lum16s, C4)
LUMI_SCALEDFN(lumiSqr_16s_AC4RSfs, kSqr, Lum16s, AC4)
LUMI_SCALEDFN_I(lumiSqr_16s_AC4IRSfs, kSqr, Lum16s, AC4)
LUMI_SCALEDFN(lumiSqrt_16s_C1RSfs, kSqrt, Lum16s, C1)
LUMI_SCALEDFN_I(lumiSqrt_16s_C1IRSfs, kSqrt, Lum16s, C1)
LUMI_SCALEDFN(lumiSqrt_16s_C3RSfs, kSqrt, Lum16s, C3)
LUMI_SCALEDFN_I(lumiSqrt_16s_C3IRSfs, kSqrt, Lum16s, C3)
LUMI_SCALEDFN(lumiSqrt_16s_AC4RSfs, kSqrt, Lum16s, AC4)
LUMI_SCALEDFN_I(lumiSqrt_16s_AC4IRSfs, kSqrt, Lum16s, AC4)
LUMI_SCALEDFN(lumiLn_8u_C1RSfs, kLn, Lum8u, C1)
LUMI_SCALEDFN_I(lumiLn_8u_C1IRSfs, kLn, Lum8u, C1)
LUMI_SCALEDFN(lumiLn_8u_C3RSfs, kLn, Lum8u, C3)
LUMI_SCALEDFN_I(lumiLn_8u_C3IRSfs, kLn, Lum8u, C3)
LUMI_SCALEDFN(lumiExp_8u_C1RSfs, kExp, Lum8u, C1)
LUMI_SCALEDFN_I(lumiExp_8u_C1IRSfs, kExp, Lum8u, C1)
LUMI_SCALEDFN(lumiExp_8u_C3RSfs, kExp, Lum8u, C3)
LUMI_SCALEDFN_I(lumiExp_8u_C3IRSfs, kExp, Lum8u, C3)
LUMI_SCALEDFN(lumiLn_16s_C1RSfs, kLn, Lum16s, C1)
LUMI_SCALEDFN_I(lumiLn_16s_C1IRSfs, kLn, Lum16s, C1)
LUMI_SCALEDFN(lumiLn_16s_C3RSfs, kLn, Lum16s, C3)
LUMI_SCALEDFN_I(lumiLn_16s_C3IRSfs, kLn, Lum16s, C3)
LUMI_SCALEDFN(lumiExp_16s_C1RSfs, kExp, Lum16s, C1)
LUMI_SCALEDFN_I(lumiExp_16s_C1IRSfs, kExp, Lum16s, C1)
LUMI_SCALEDFN(lumiExp_16s_C3RSfs, kExp, Lum16s, C3)
LUMI_SCALEDFN_I(lumiExp_16s_C3IRSfs, kExp, Lum16s, C3)
LUMI_FLOATFN(lumiLn_32f_C1R, kLn, C1)
LUMI_FLOATFN_I(lumiLn_32f_C1IR, kLn, C1)
LUMI_FLOATFN(lumiLn_32f_C3R, kLn, C3)
LUMI_FLOATFN_I(lumiLn_32f_C3IR, kLn, C3)
LUMI_FLOATFN(lumiExp_32f_C1R, kExp, C1)
LUMI_FLOATFN_I(lumiExp_32f_C1IR, kExp, C1)
LUMI_FLOATFN(lumiExp_32f_C3R, kExp, C3)
LUMI_FLOATFN_I(lumiExp_32f_C3IR, kExp, C3)

#endif  // HWY_ONCE
