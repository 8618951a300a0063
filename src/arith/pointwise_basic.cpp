// Absolute value (16s, 32f), square and square root of 32f pixels. The 32f rows advance by the
// step rounded down to a multiple of 4 bytes and the 16s Abs rows by the step rounded down to
// an even count. A negative 32f input to Sqrt stores NaN and its row reports the domain warning.
#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "src/arith/pointwise_basic.cpp"
#include "hwy/foreach_target.h"
#include "hwy/highway.h"
#include "core/frame.h"
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

HWY_BEFORE_NAMESPACE();
namespace lumi {
namespace arithf {
namespace HWY_NAMESPACE {
namespace hn = hwy::HWY_NAMESPACE;

// d = op(s) over n elements; Sqrt reports whether an owned input was negative.
template <int OP, class T>
int UnaryRowSimd(const T* s, T* out, int n, const RowPattern<T>* pat) {
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

}  // namespace HWY_NAMESPACE
}  // namespace arithf
}  // namespace lumi
HWY_AFTER_NAMESPACE();

#if HWY_ONCE
#include "core/simd.h"

namespace lumi {
namespace arithf {
namespace {

template <class T>
using UnaryRow = int (*)(const T*, T*, int, const RowPattern<T>*);
LUMI_SIMD_TABLE(UnaryRow<int16_t>, kAbs16s, UnaryRowSimd<0, int16_t>);
LUMI_SIMD_TABLE(UnaryRow<float>, kAbs32f, UnaryRowSimd<1, float>);
LUMI_SIMD_TABLE(UnaryRow<float>, kSqr32f, UnaryRowSimd<2, float>);
LUMI_SIMD_TABLE(UnaryRow<float>, kSqrt32f, UnaryRowSimd<3, float>);

template <int OP, class T>
int unaryRowScalar(const T* s, T* out, int n, const RowPattern<T>* pat) {
  int neg = 0;
  for (int i = 0; i < n; ++i) {
    if (pat && !pat->writes(i)) continue;
    if (OP == 3 && s[i] < 0) neg = 1;
    out[i] = unaryScalar<OP>(s[i]);
  }
  return neg;
}

template <int OP, class T>
UnaryRow<T> pickUnary() {
  UnaryRow<T> f = nullptr;
  if constexpr (OP == 0) f = pickSimd(kAbs16s);
  else if constexpr (OP == 1) f = pickSimd(kAbs32f);
  else if constexpr (OP == 2) f = pickSimd(kSqr32f);
  else f = pickSimd(kSqrt32f);
  return f ? f : unaryRowScalar<OP, T>;
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
  roi = oneRowIfContiguous(roi, static_cast<int>(sizeof(T)) * L::kCh, sStep, dStep);
  UnaryRow<T> row = pickUnary<OP, T>();
  const int n = roi.width * L::kCh;
  FirstStatus status;
  for (int y = 0; y < roi.height; ++y)
    if (row(rowAt(s, sStep, y), rowAt(d, dStep, y), n, masked ? &pat : nullptr))
      status.add(lumStatusDomainWarn);
  return status.value;
}

}  // namespace
}  // namespace arithf
}  // namespace lumi

#define LUMI_UNARY_R(NAME, TY, T, OP, L)                                                   \
  LUMI_API LumStatus lumi##NAME##_##TY##_##L##R(const T* s, int ss, T* d, int ds,           \
                                                LumiSize r) {                               \
    return lumi::arithf::unary<OP, lumi::L>(s, ss, d, ds, r);                                       \
  }
#define LUMI_UNARY_IR(NAME, TY, T, OP, L)                                                  \
  LUMI_API LumStatus lumi##NAME##_##TY##_##L##IR(T* sd, int sds, LumiSize r) {              \
    return lumi::arithf::unary<OP, lumi::L>(static_cast<const T*>(sd), sds, sd, sds, r);            \
  }
#define LUMI_UNARY_BOTH(NAME, TY, T, OP, L) \
  LUMI_UNARY_R(NAME, TY, T, OP, L)          \
  LUMI_UNARY_IR(NAME, TY, T, OP, L)
#define LUMI_UNARY_ALL(NAME, TY, T, OP)   \
  LUMI_UNARY_BOTH(NAME, TY, T, OP, C1)    \
  LUMI_UNARY_BOTH(NAME, TY, T, OP, C3)    \
  LUMI_UNARY_BOTH(NAME, TY, T, OP, C4)    \
  LUMI_UNARY_BOTH(NAME, TY, T, OP, AC4)

extern "C" {
LUMI_UNARY_ALL(Abs, 16s, Lum16s, 0)
LUMI_UNARY_ALL(Abs, 32f, Lum32f, 1)
LUMI_UNARY_ALL(Sqr, 32f, Lum32f, 2)
LUMI_UNARY_BOTH(Sqrt, 32f, Lum32f, 3, C1)
LUMI_UNARY_BOTH(Sqrt, 32f, Lum32f, 3, C3)
LUMI_UNARY_BOTH(Sqrt, 32f, Lum32f, 3, AC4)
LUMI_UNARY_IR(Sqrt, 32f, Lum32f, 3, C4)  // in place only
}

#endif  // HWY_ONCE
