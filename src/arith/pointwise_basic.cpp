// The plain pointwise operations: absolute value (16s, 32f), square and square root of 32f
// pixels, and the scaled products MulScale / MulCScale of 8u and 16u pixels.
//
// The 32f rows advance by the step rounded down to a multiple of 4 bytes and the 16s Abs rows
// by the step rounded down to an even count. A negative 32f input to Sqrt stores NaN and its
// row reports the domain warning.
//
// MulScale: products of 8u and 16u pixels taken as fractions of the type's maximum M: floor(a * b / M),
// exactly, through p = a * b and (p + (p >> k) + 1) >> k with k the bit width. The maximum is
// the identity and the result never exceeds it.
#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "src/arith/pointwise_basic.cpp"
#include "hwy/foreach_target.h"
#include "hwy/highway.h"
#include "core/simd.h"
#include "core/widen-inl.h"
#include "arith/float_kernels-inl.h"

#ifndef LUMI_POINTWISE_BASIC_SCALAR_  // scalar definitions, compiled once
#define LUMI_POINTWISE_BASIC_SCALAR_
namespace lumi {
namespace arithf {
// Operations of this file: 0 Abs 16s (|-32768| saturates to 32767), 1 Abs 32f (clears the
// sign bit), 2 Sqr 32f, 3 Sqrt 32f.
template <int OP, class T>
inline T unaryScalar(T x) {
  if constexpr (OP == 0) return x == -32768 ? T(32767) : static_cast<T>(x < 0 ? -x : x);
  else if constexpr (OP == 1) return std::fabs(x);
  else if constexpr (OP == 2) return x * x;
  else return std::sqrt(x);
}

// a * b / M, exactly (MulScale).
template <class T>
inline T mulScale(uint32_t a, uint32_t b) {
  constexpr int k = 8 * sizeof(T);
  const uint32_t p = a * b;
  return static_cast<T>((p + (p >> k) + 1u) >> k);
}
}  // namespace arithf
}  // namespace lumi
#endif

LUMI_SIMD_BEGIN
#if LUMI_TABLE_TARGET
namespace arithv {

// d = op(s) over n elements; Sqrt reports whether an owned input was negative.
template <int OP, class T>
int unaryRow(const T* s, T* out, std::ptrdiff_t n, const RowPattern<T>* pat) {
  const StreamTag<T> d;
  auto neg = hn::Zero(d);
  int tailNeg = 0;
  ForEachVector(
      d, static_cast<size_t>(n), pat,
      [&](size_t i, size_t off, auto masked) {
        const auto x = hn::LoadU(d, s + i);
        hn::Vec<decltype(d)> r;
        if constexpr (OP == 0) {
          r = hn::Max(x, hn::SaturatedSub(hn::Zero(d), x));
        } else if constexpr (OP == 1) {
          r = hn::Abs(x);
        } else if constexpr (OP == 2) {
          r = hn::Mul(x, x);
        } else {
          auto m = hn::VecFromMask(d, hn::Lt(x, hn::Zero(d)));
          if constexpr (decltype(masked)::value)
            m = hn::IfThenElseZero(colourLanesAt(d, off, pat->unitShift), m);
          neg = hn::Or(neg, m);
          r = hn::Sqrt(x);
        }
        StoreOwned(d, r, out + i, pat, off, masked);
      },
      [&](size_t i, size_t off) {
        if (!Owns(pat, off)) return;
        if (OP == 3 && s[i] < 0) tailNeg = 1;
        out[i] = unaryScalar<OP>(s[i]);
      });
  return tailNeg | !hn::AllFalse(d, hn::MaskFromVec(neg));
}


// d = a * b / M with b a row, or the pattern's constants when b is null. Samples are widened
// to twice their width, where the product and the correction fit.
template <class T>
void mulScaleRow(const T* a, const T* b, T* out, std::ptrdiff_t n, const RowPattern<T>* pat) {
  using W = hwy::MakeWide<T>;
  constexpr int k = 8 * sizeof(T);
  const hn::ScalableTag<W> dw;
  const hn::Rebind<T, decltype(dw)> dt;
  const hn::Rebind<hwy::MakeSigned<W>, decltype(dw)> ds;
  const auto one = hn::Set(dw, W{1});
  ForEachVector(
      dt, static_cast<size_t>(n), pat,
      [&](size_t i, size_t off, auto masked) {
        const auto x = loadAs(dw, a + i);
        const auto y = loadAs(dw, b ? b + i : pat->value + off);
        const auto p = hn::Mul(x, y);
        const auto r = hn::ShiftRight<k>(hn::Add(hn::Add(p, hn::ShiftRight<k>(p)), one));
        StoreOwned(dt, hn::DemoteTo(dt, hn::BitCast(ds, r)), out + i, pat, off, masked);
      },
      [&](size_t i, size_t off) {
        if (Owns(pat, off)) out[i] = mulScale<T>(a[i], b ? b[i] : pat->value[off]);
      });
}

}  // namespace arithv
#endif  // LUMI_TABLE_TARGET
LUMI_SIMD_END

#if HWY_ONCE
namespace lumi {
namespace arithf {
namespace {

template <class T>
using UnaryRow = int (*)(const T*, T*, std::ptrdiff_t, const RowPattern<T>*);

template <int OP, class T>
int unaryRowScalar(const T* s, T* out, std::ptrdiff_t n, const RowPattern<T>* pat) {
  int neg = 0;
  for (std::ptrdiff_t i = 0; i < n; ++i) {
    if (pat && !pat->writes(i)) continue;
    if (OP == 3 && s[i] < 0) neg = 1;
    out[i] = unaryScalar<OP>(s[i]);
  }
  return neg;
}

template <int OP, class T>
UnaryRow<T> pickUnaryRow() {
  LUMI_SIMD_TABLE(UnaryRow<T>, table, arithv::unaryRow<OP, T>);
  return pick(table, &unaryRowScalar<OP, T>);
}

template <int OP, class L, class T>
LumStatus unary(const T* s, int sStep, T* d, int dStep, LumiSize roi) {
  if (anyNull(s, d)) return lumStatusNullPtrErr;
  if (badSize(roi)) return lumStatusSizeErr;
  if (badStep(sStep, dStep)) return lumStatusStepErr;
  sStep = stepDown(sStep, sizeof(T));
  dStep = stepDown(dStep, sizeof(T));
  const bool masked = L::kUse < L::kCh;
  RowPattern<T> pat(masked ? L::kCh : 1, masked ? L::kUse : 1, nullptr);
  roi = coalesceRows(roi, bytesOf(1, L::kCh, sizeof(T)), sStep, dStep);
  UnaryRow<T> row = pickUnaryRow<OP, T>();
  const std::ptrdiff_t n = elemsOf(roi.width, L::kCh);
  FirstStatus status;
  for (int y = 0; y < roi.height; ++y)
    if (row(rowAt(s, sStep, y), rowAt(d, dStep, y), n, masked ? &pat : nullptr))
      status.add(lumStatusDomainWarn);
  return status.value;
}


template <class T>
using MulScaleRow = void (*)(const T*, const T*, T*, std::ptrdiff_t, const RowPattern<T>*);

template <class T>
void mulScaleRowScalar(const T* a, const T* b, T* out, std::ptrdiff_t n,
                       const RowPattern<T>* pat) {
  for (std::ptrdiff_t i = 0; i < n; ++i)
    if (!pat || pat->writes(i)) out[i] = mulScale<T>(a[i], b ? b[i] : pat->value[i % pat->period]);
}

template <class T>
MulScaleRow<T> pickMulScaleRow() {
  LUMI_SIMD_TABLE(MulScaleRow<T>, table, arithv::mulScaleRow<T>);
  return pick(table, &mulScaleRowScalar<T>);
}

// Steps are checked before sizes in this family.
template <class L, class T>
LumStatus mulScaleImpl(const T* s1, int s1Step, const T* s2, int s2Step, const T* value, T* d,
                       int dStep, LumiSize roi) {
  if (anyNull(s1, d) || (s2 == nullptr && value == nullptr)) return lumStatusNullPtrErr;
  if (s2 ? badStep(s1Step, s2Step, dStep) : badStep(s1Step, dStep)) return lumStatusStepErr;
  if (badSize(roi)) return lumStatusSizeErr;
  T c[4] = {};
  if (value)
    for (int k = 0; k < L::kUse; ++k) c[k] = value[k];
  const bool masked = L::kUse < L::kCh;
  RowPattern<T> pat(value || masked ? L::kCh : 1, value || masked ? L::kUse : 1, c);
  const RowPattern<T>* p = value || masked ? &pat : nullptr;
  MulScaleRow<T> row = pickMulScaleRow<T>();
  for (int y = 0; y < roi.height; ++y)
    row(rowAt(s1, s1Step, y), s2 ? rowAt(s2, s2Step, y) : nullptr, rowAt(d, dStep, y),
        elemsOf(roi.width, L::kCh), p);
  return lumStatusOk;
}

}  // namespace
}  // namespace arithf
}  // namespace lumi

// One line per member. VT is how the constant is passed (the value for C1, else a pointer to
// one per channel) and VP its address.
#define LUMI_UNARY(NAME, OP, T, L)                                         \
  LUMI_API LumStatus NAME(const T* s, int ss, T* d, int ds, LumiSize r) { \
    return lumi::arithf::unary<OP, lumi::L>(s, ss, d, ds, r);             \
  }
#define LUMI_UNARY_I(NAME, OP, T, L)                                                     \
  LUMI_API LumStatus NAME(T* sd, int sds, LumiSize r) {                                 \
    return lumi::arithf::unary<OP, lumi::L>(static_cast<const T*>(sd), sds, sd, sds, r); \
  }

#define LUMI_MULSCALE(NAME, T, L)                                                              \
  LUMI_API LumStatus NAME(const T* a, int as, const T* b, int bs, T* d, int ds, LumiSize r) { \
    return lumi::arithf::mulScaleImpl<lumi::L>(a, as, b, bs, static_cast<const T*>(nullptr), d, \
                                               ds, r);                                        \
  }
#define LUMI_MULSCALE_I(NAME, T, L)                                                            \
  LUMI_API LumStatus NAME(const T* s, int ss, T* sd, int sds, LumiSize r) {                   \
    return lumi::arithf::mulScaleImpl<lumi::L>(static_cast<const T*>(sd), sds, s, ss,         \
                                               static_cast<const T*>(nullptr), sd, sds, r);   \
  }
#define LUMI_MULCSCALE(NAME, T, L, VT, VP)                                                     \
  LUMI_API LumStatus NAME(const T* s, int ss, VT value, T* d, int ds, LumiSize r) {           \
    return lumi::arithf::mulScaleImpl<lumi::L>(s, ss, static_cast<const T*>(nullptr), 0, VP, d, \
                                               ds, r);                                        \
  }
#define LUMI_MULCSCALE_I(NAME, T, L, VT, VP)                                                   \
  LUMI_API LumStatus NAME(VT value, T* sd, int sds, LumiSize r) {                             \
    return lumi::arithf::mulScaleImpl<lumi::L>(static_cast<const T*>(sd), sds,                \
                                               static_cast<const T*>(nullptr), 0, VP, sd, sds, r); \
  }

LUMI_UNARY(lumiAbs_16s_C1R, 0, Lum16s, C1)
LUMI_UNARY_I(lumiAbs_16s_C1IR, 0, Lum16s, C1)
LUMI_UNARY(lumiAbs_16s_C3R, 0, Lum16s, C3)
LUMI_UNARY_I(lumiAbs_16s_C3IR, 0, Lum16s, C3)
LUMI_UNARY(lumiAbs_16s_C4R, 0, Lum16s, C4)
LUMI_UNARY_I(lumiAbs_16s_C4IR, 0, Lum16s, C4)
LUMI_UNARY(lumiAbs_16s_AC4R, 0, Lum16s, AC4)
LUMI_UNARY_I(lumiAbs_16s_AC4IR, 0, Lum16s, AC4)
LUMI_UNARY(lumiAbs_32f_C1R, 1, Lum32f, C1)
LUMI_UNARY_I(lumiAbs_32f_C1IR, 1, Lum32f, C1)
LUMI_UNARY(lumiAbs_32f_C3R, 1, Lum32f, C3)
LUMI_UNARY_I(lumiAbs_32f_C3IR, 1, Lum32f, C3)
LUMI_UNARY(lumiAbs_32f_C4R, 1, Lum32f, C4)
LUMI_UNARY_I(lumiAbs_32f_C4IR, 1, Lum32f, C4)
LUMI_UNARY(lumiAbs_32f_AC4R, 1, Lum32f, AC4)
LUMI_UNARY_I(lumiAbs_32f_AC4IR, 1, Lum32f, AC4)
LUMI_UNARY(lumiSqr_32f_C1R, 2, Lum32f, C1)
LUMI_UNARY_I(lumiSqr_32f_C1IR, 2, Lum32f, C1)
LUMI_UNARY(lumiSqr_32f_C3R, 2, Lum32f, C3)
LUMI_UNARY_I(lumiSqr_32f_C3IR, 2, Lum32f, C3)
LUMI_UNARY(lumiSqr_32f_C4R, 2, Lum32f, C4)
LUMI_UNARY_I(lumiSqr_32f_C4IR, 2, Lum32f, C4)
LUMI_UNARY(lumiSqr_32f_AC4R, 2, Lum32f, AC4)
LUMI_UNARY_I(lumiSqr_32f_AC4IR, 2, Lum32f, AC4)
LUMI_UNARY(lumiSqrt_32f_C1R, 3, Lum32f, C1)
LUMI_UNARY_I(lumiSqrt_32f_C1IR, 3, Lum32f, C1)
LUMI_UNARY(lumiSqrt_32f_C3R, 3, Lum32f, C3)
LUMI_UNARY_I(lumiSqrt_32f_C3IR, 3, Lum32f, C3)
LUMI_UNARY(lumiSqrt_32f_AC4R, 3, Lum32f, AC4)
LUMI_UNARY_I(lumiSqrt_32f_AC4IR, 3, Lum32f, AC4)
LUMI_UNARY_I(lumiSqrt_32f_C4IR, 3, Lum32f, C4)  // in place only
LUMI_MULSCALE(lumiMulScale_8u_C1R, Lum8u, C1)
LUMI_MULSCALE_I(lumiMulScale_8u_C1IR, Lum8u, C1)
LUMI_MULCSCALE(lumiMulCScale_8u_C1R, Lum8u, C1, Lum8u, &value)
LUMI_MULCSCALE_I(lumiMulCScale_8u_C1IR, Lum8u, C1, Lum8u, &value)
LUMI_MULSCALE(lumiMulScale_8u_C3R, Lum8u, C3)
LUMI_MULSCALE_I(lumiMulScale_8u_C3IR, Lum8u, C3)
LUMI_MULCSCALE(lumiMulCScale_8u_C3R, Lum8u, C3, const Lum8u*, value)
LUMI_MULCSCALE_I(lumiMulCScale_8u_C3IR, Lum8u, C3, const Lum8u*, value)
LUMI_MULSCALE(lumiMulScale_8u_C4R, Lum8u, C4)
LUMI_MULSCALE_I(lumiMulScale_8u_C4IR, Lum8u, C4)
LUMI_MULCSCALE(lumiMulCScale_8u_C4R, Lum8u, C4, const Lum8u*, value)
LUMI_MULCSCALE_I(lumiMulCScale_8u_C4IR, Lum8u, C4, const Lum8u*, value)
LUMI_MULSCALE(lumiMulScale_8u_AC4R, Lum8u, AC4)
LUMI_MULSCALE_I(lumiMulScale_8u_AC4IR, Lum8u, AC4)
LUMI_MULCSCALE(lumiMulCScale_8u_AC4R, Lum8u, AC4, const Lum8u*, value)
LUMI_MULCSCALE_I(lumiMulCScale_8u_AC4IR, Lum8u, AC4, const Lum8u*, value)
LUMI_MULSCALE(lumiMulScale_16u_C1R, Lum16u, C1)
LUMI_MULSCALE_I(lumiMulScale_16u_C1IR, Lum16u, C1)
LUMI_MULCSCALE(lumiMulCScale_16u_C1R, Lum16u, C1, Lum16u, &value)
LUMI_MULCSCALE_I(lumiMulCScale_16u_C1IR, Lum16u, C1, Lum16u, &value)
LUMI_MULSCALE(lumiMulScale_16u_C3R, Lum16u, C3)
LUMI_MULSCALE_I(lumiMulScale_16u_C3IR, Lum16u, C3)
LUMI_MULCSCALE(lumiMulCScale_16u_C3R, Lum16u, C3, const Lum16u*, value)
LUMI_MULCSCALE_I(lumiMulCScale_16u_C3IR, Lum16u, C3, const Lum16u*, value)
LUMI_MULSCALE(lumiMulScale_16u_C4R, Lum16u, C4)
LUMI_MULSCALE_I(lumiMulScale_16u_C4IR, Lum16u, C4)
LUMI_MULCSCALE(lumiMulCScale_16u_C4R, Lum16u, C4, const Lum16u*, value)
LUMI_MULCSCALE_I(lumiMulCScale_16u_C4IR, Lum16u, C4, const Lum16u*, value)
LUMI_MULSCALE(lumiMulScale_16u_AC4R, Lum16u, AC4)
LUMI_MULSCALE_I(lumiMulScale_16u_AC4IR, Lum16u, AC4)
LUMI_MULCSCALE(lumiMulCScale_16u_AC4R, Lum16u, AC4, const Lum16u*, value)
LUMI_MULCSCALE_I(lumiMulCScale_16u_AC4IR, Lum16u, AC4, const Lum16u*, value)

#endif  // HWY_ONCE
