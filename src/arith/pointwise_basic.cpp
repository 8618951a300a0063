// Absolute value (16s, 32f), square and square root of 32f pixels. The 32f rows advance by the
// step rounded down to a multiple of 4 bytes and the 16s Abs rows by the step rounded down to
// an even count. A negative 32f input to Sqrt stores NaN and its row reports the domain warning.
#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "src/arith/pointwise_basic.cpp"
#include "hwy/foreach_target.h"
#include "hwy/highway.h"
#include "core/simd.h"
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
          if constexpr (decltype(masked)::value) m = hn::And(m, hn::LoadU(d, pat->mask + off));
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

}  // namespace
}  // namespace arithf
}  // namespace lumi

// One line per member.
#define LUMI_UNARY(NAME, OP, T, L)                                         \
  LUMI_API LumStatus NAME(const T* s, int ss, T* d, int ds, LumiSize r) { \
    return lumi::arithf::unary<OP, lumi::L>(s, ss, d, ds, r);             \
  }
#define LUMI_UNARY_I(NAME, OP, T, L)                                                     \
  LUMI_API LumStatus NAME(T* sd, int sds, LumiSize r) {                                 \
    return lumi::arithf::unary<OP, lumi::L>(static_cast<const T*>(sd), sds, sd, sds, r); \
  }

extern "C" {
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
}

#endif  // HWY_ONCE
