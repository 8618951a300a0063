// Complex image arithmetic: 32fc pixels, and 16sc/32sc pixels with an integer scale factor.
// Complex products of 32fc are formed in double precision (the single-precision products are
// exact there) and rounded once to single; division by a multi-channel constant multiplies by
// the per-channel reciprocals.
#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "src/arith/complex_arith.cpp"
#include "hwy/foreach_target.h"
#include "hwy/highway.h"
#include "core/frame.h"
#include "arith/float_kernels-inl.h"

HWY_BEFORE_NAMESPACE();
namespace lumi {
namespace arithf {
namespace HWY_NAMESPACE {
namespace hn = hwy::HWY_NAMESPACE;

#if HWY_TARGET != HWY_SCALAR
// (a + bi)(c + di) for interleaved complex values held in double lanes.
template <class D>
HWY_INLINE hn::Vec<D> ComplexProduct(D dd, hn::Vec<D> x, hn::Vec<D> y) {
  const auto re = hn::InterleaveLower(dd, x, x);  // a a
  const auto im = hn::InterleaveUpper(dd, x, x);  // b b
  const auto p1 = hn::Mul(re, y);                 // ac ad
  const auto p2 = hn::Mul(im, hn::Reverse2(dd, y));  // bd bc
  return hn::OddEven(hn::Add(p1, p2), hn::Sub(p1, p2));
}
#endif

HWY_INLINE void ComplexProductScalar(const float* x, const float* y, float* out) {
  const double a = x[0], b = x[1], c = y[0], d = y[1];
  const float re = static_cast<float>(a * c - b * d), im = static_cast<float>(a * d + b * c);
  out[0] = re;
  out[1] = im;
}

// out = x * y over n floats (n/2 complex values); y is a row, or the pattern's constants when
// y is null.
void ComplexMulRowSimd(const float* x, const float* y, float* out, int n,
                       const RowPattern<float>* pat) {
#if HWY_TARGET == HWY_SCALAR
  for (int i = 0; i < n; i += 2)
    if (Owns(pat, static_cast<size_t>(i)))
      ComplexProductScalar(x + i, y ? y + i : pat->value + i % pat->period, out + i);
#else
  const hn::ScalableTag<double> dd;
  const hn::Rebind<float, decltype(dd)> df;
  ForEachVector(
      df, static_cast<size_t>(n), pat,
      [&](size_t i, size_t off, auto masked) {
        const auto xv = hn::PromoteTo(dd, hn::LoadU(df, x + i));
        const auto yv = hn::PromoteTo(dd, hn::LoadU(df, y ? y + i : pat->value + off));
        StoreOwned(df, hn::DemoteTo(df, ComplexProduct(dd, xv, yv)), out + i, pat, off, masked);
      },
      [&](size_t i, size_t off) {  // the tail starts on a whole complex value
        if ((i & 1) == 0 && Owns(pat, off))
          ComplexProductScalar(x + i, y ? y + i : pat->value + off, out + i);
      });
#endif
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

using ComplexMulRow = void (*)(const float*, const float*, float*, int, const RowPattern<float>*);
LUMI_SIMD_TABLE(ComplexMulRow, kComplexMulRow, ComplexMulRowSimd);

void complexMulRowScalar(const float* x, const float* y, float* out, int n,
                         const RowPattern<float>* pat) {
  for (int i = 0; i < n; i += 2) {
    if (pat && !pat->writes(i)) continue;
    const float* c = y ? y + i : pat->value + i % pat->period;
    const double a = x[i], b = x[i + 1];
    const float re = static_cast<float>(a * c[0] - b * c[1]);
    const float im = static_cast<float>(a * c[1] + b * c[0]);
    out[i] = re;
    out[i + 1] = im;
  }
}

ComplexMulRow pickComplexMul() {
  auto f = pickSimd(kComplexMulRow);
  return f ? f : complexMulRowScalar;
}

// (a + bi) / (c + di) in double precision, rounded once to single. A zero divisor stores the
// IEEE quotients (infinities or NaN) and is reported.
int complexDivRow(const float* x, const float* y, float* out, int n, const RowPattern<float>* pat) {
  int zero = 0;
  for (int i = 0; i < n; i += 2) {
    if (pat && !pat->writes(i)) continue;
    const float* cv = y ? y + i : pat->value + i % pat->period;
    const double a = x[i], b = x[i + 1], c = cv[0], d = cv[1];
    const double den = c * c + d * d;
    if (den == 0.0) zero = 1;
    const float re = static_cast<float>((a * c + b * d) / den);
    const float im = static_cast<float>((b * c - a * d) / den);
    out[i] = re;
    out[i + 1] = im;
  }
  return zero;
}

// ---- 32fc ----------------------------------------------------------------------------------
// x is the second operand image (src2 or the in-place image): Sub gives src2 - src1, Div
// src2 / src1.
template <class L>
LumStatus binary32fc(int op, const Lum32fc* s1, int s1Step, const Lum32fc* s2, int s2Step,
                     Lum32fc* d, int dStep, LumiSize roi) {
  if (anyNull(s1, s2, d)) return lumStatusNullPtrErr;
  if (badSize(roi)) return lumStatusSizeErr;
  if (badStep(s1Step, s2Step, dStep)) return lumStatusStepErr;
  const bool masked = L::kUse < L::kCh;
  RowPattern<float> pat(masked ? 2 * L::kCh : 2, masked ? 2 * L::kUse : 2, nullptr);
  const RowPattern<float>* p = masked ? &pat : nullptr;
  const int n = roi.width * L::kCh * 2;
  const bool stream = op < 2 && !masked && bypassCache(12.0 * n * roi.height);
  F32BinaryRow addSub = op < 2 ? pickF32Binary(op, stream) : nullptr;
  ComplexMulRow mul = pickComplexMul();
  LastStatus status;
  for (int y = 0; y < roi.height; ++y) {
    const float* x = reinterpret_cast<const float*>(rowAt(s2, s2Step, y));
    const float* v = reinterpret_cast<const float*>(rowAt(s1, s1Step, y));
    float* o = reinterpret_cast<float*>(rowAt(d, dStep, y));
    if (op < 2) {
      addSub(x, v, o, n, p);
    } else if (op == 2) {
      mul(x, v, o, n, p);
    } else if (complexDivRow(x, v, o, n, p)) {
      status.add(lumStatusDivByZeroWarn);
    }
  }
  if (stream) endStreaming();
  return status.value;
}

template <class L>
LumStatus const32fc(int op, const Lum32fc* s, int sStep, const Lum32fc* value, Lum32fc* d,
                    int dStep, LumiSize roi) {
  if (anyNull(s, value, d)) return lumStatusNullPtrErr;
  if (badSize(roi)) return lumStatusSizeErr;
  if (badStep(sStep, dStep)) return lumStatusStepErr;
  float c[8] = {0, 0, 0, 0, 0, 0, 0, 0};
  for (int k = 0; k < L::kUse; ++k) {
    c[2 * k] = value[k].re;
    c[2 * k + 1] = value[k].im;
  }
  if (op == 3) {
    for (int k = 0; k < L::kUse; ++k)
      if (c[2 * k] * c[2 * k] + c[2 * k + 1] * c[2 * k + 1] == 0.0f)
        return lumStatusDivisorZeroErr;
    if (L::kCh > 1) {  // multiply by conj(c) / |c|^2 instead
      for (int k = 0; k < L::kUse; ++k) {
        const float inv = 1.0f / (c[2 * k] * c[2 * k] + c[2 * k + 1] * c[2 * k + 1]);
        c[2 * k] = c[2 * k] * inv;
        c[2 * k + 1] = -c[2 * k + 1] * inv;
      }
      op = 2;
    }
  }
  RowPattern<float> pat(2 * L::kCh, 2 * L::kUse, c);
  const int n = roi.width * L::kCh * 2;
  const bool stream = op < 2 && L::kUse == L::kCh && bypassCache(8.0 * n * roi.height);
  F32ConstRow addSub = op < 2 ? pickF32Const(op, stream) : nullptr;
  for (int y = 0; y < roi.height; ++y) {
    const float* x = reinterpret_cast<const float*>(rowAt(s, sStep, y));
    float* o = reinterpret_cast<float*>(rowAt(d, dStep, y));
    if (op < 2)
      addSub(x, o, n, &pat);
    else if (op == 2)
      pickComplexMul()(x, nullptr, o, n, &pat);
    else
      complexDivRow(x, nullptr, o, n, &pat);
  }
  if (stream) endStreaming();
  return lumStatusOk;
}

// ---- 16sc, 32sc with a scale factor ----------------------------------------------------------
template <class P>
struct PartRange {
  static constexpr int64_t lo = std::numeric_limits<P>::min(), hi = std::numeric_limits<P>::max();
};

// Sign and magnitude of p + q for exact 64-bit products p, q (|p|, |q| <= 2^62): the sum may
// reach 2^63, one past the signed range.
inline void sumSignMagnitude(int64_t p, int64_t q, bool* neg, uint64_t* mag) {
  if ((p >= 0) == (q >= 0)) {
    *neg = p < 0;
    *mag = *neg ? (0u - static_cast<uint64_t>(p)) + (0u - static_cast<uint64_t>(q))
                : static_cast<uint64_t>(p) + static_cast<uint64_t>(q);
  } else {
    const int64_t s = p + q;
    *neg = s < 0;
    *mag = *neg ? 0u - static_cast<uint64_t>(s) : static_cast<uint64_t>(s);
  }
}

template <class P>
inline P scaled(int64_t v, int sf) {
  return static_cast<P>(scaleInt64(v, sf, PartRange<P>::lo, PartRange<P>::hi));
}

// One complex element: x op y, op 0 add, 1 subtract, 2 multiply, 3 divide. Quotients are
// formed in double precision, scaled, rounded half to even and saturated; a zero divisor
// gives each part the type's bound by the sign of the dividend part (0 for a zero part).
template <class P, int OP>
inline int complexIntOp(const P* x, const P* y, P* out, int sf) {
  const int64_t a = x[0], b = x[1], c = y[0], d = y[1];
  P re, im;
  int zero = 0;
  if constexpr (OP == 0) {
    re = scaled<P>(a + c, sf);
    im = scaled<P>(b + d, sf);
  } else if constexpr (OP == 1) {
    re = scaled<P>(a - c, sf);
    im = scaled<P>(b - d, sf);
  } else if constexpr (OP == 2) {
    bool neg;
    uint64_t mag;
    sumSignMagnitude(a * c, -(b * d), &neg, &mag);
    re = static_cast<P>(scaleMagnitude(neg, mag, sf, PartRange<P>::lo, PartRange<P>::hi));
    sumSignMagnitude(a * d, b * c, &neg, &mag);
    im = static_cast<P>(scaleMagnitude(neg, mag, sf, PartRange<P>::lo, PartRange<P>::hi));
  } else {
    const double dc = static_cast<double>(c), dd = static_cast<double>(d);
    const double den = dc * dc + dd * dd;
    const double lo = static_cast<double>(PartRange<P>::lo), hi = static_cast<double>(PartRange<P>::hi);
    if (den == 0.0) {
      zero = 1;
      re = static_cast<P>(a > 0 ? PartRange<P>::hi : a < 0 ? PartRange<P>::lo : 0);
      im = static_cast<P>(b > 0 ? PartRange<P>::hi : b < 0 ? PartRange<P>::lo : 0);
    } else {
      const double da = static_cast<double>(a), db = static_cast<double>(b);
      re = static_cast<P>(scaleDouble((da * dc + db * dd) / den, sf, lo, hi));
      im = static_cast<P>(scaleDouble((db * dc - da * dd) / den, sf, lo, hi));
    }
  }
  out[0] = re;
  out[1] = im;
  return zero;
}

// Runs one operation over a row of complex elements; y is a row or, with yStride 0 and a
// per-channel table, the constants. Returns nonzero when a divisor was zero.
template <class P, int OP, class L>
int complexIntRow(const P* x, const P* y, const P* table, P* out, int width, int sf) {
  int zero = 0;
  for (int px = 0; px < width; ++px)
    for (int ch = 0; ch < L::kUse; ++ch) {
      const int e = 2 * (px * L::kCh + ch);
      zero |= complexIntOp<P, OP>(x + e, y ? y + e : table + 2 * ch, out + e, sf);
    }
  return zero;
}

// Sums and differences of two parts round to 0 beyond this scale factor, so those members
// fill zeros without reading the sources.
template <class P>
constexpr int zeroFillAbove() { return sizeof(P) == 2 ? 16 : 32; }

template <class P, class L>
void fillZeroParts(P* d, int dStep, LumiSize roi) {
  for (int y = 0; y < roi.height; ++y) {
    P* o = rowAt(d, dStep, y);
    for (int px = 0; px < roi.width; ++px)
      for (int e = 0; e < 2 * L::kUse; ++e) o[2 * px * L::kCh + e] = 0;
  }
}

template <class P, int OP, class L>
LumStatus rowsInt(const P* x, int xStep, const P* y, int yStep, const P* table, P* d, int dStep,
                  LumiSize roi, int sf) {
  if (OP < 2 && sf > zeroFillAbove<P>()) {
    fillZeroParts<P, L>(d, dStep, roi);
    return lumStatusOk;
  }
  LastStatus status;
  for (int r = 0; r < roi.height; ++r)
    if (complexIntRow<P, OP, L>(rowAt(x, xStep, r), y ? rowAt(y, yStep, r) : nullptr, table,
                                rowAt(d, dStep, r), roi.width, sf))
      status.add(lumStatusDivByZeroWarn);
  return status.value;
}

template <class CT, int OP, class L>
LumStatus binaryInt(const CT* s1, int s1Step, const CT* s2, int s2Step, CT* d, int dStep,
                    LumiSize roi, int sf) {
  using P = decltype(CT::re);
  if (anyNull(s1, s2, d)) return lumStatusNullPtrErr;
  if (badSize(roi)) return lumStatusSizeErr;
  if (badStep(s1Step, s2Step, dStep)) return lumStatusStepErr;
  return rowsInt<P, OP, L>(reinterpret_cast<const P*>(s2), s2Step,
                           reinterpret_cast<const P*>(s1), s1Step, nullptr,
                           reinterpret_cast<P*>(d), dStep, roi, sf);
}

template <class CT, int OP, class L>
LumStatus constInt(const CT* s, int sStep, const CT* value, CT* d, int dStep, LumiSize roi,
                   int sf) {
  using P = decltype(CT::re);
  if (anyNull(s, value, d)) return lumStatusNullPtrErr;
  if (badSize(roi)) return lumStatusSizeErr;
  if (badStep(sStep, dStep)) return lumStatusStepErr;
  P table[8] = {};
  for (int k = 0; k < L::kUse; ++k) {
    table[2 * k] = value[k].re;
    table[2 * k + 1] = value[k].im;
    if (OP == 3 && value[k].re == 0 && value[k].im == 0) return lumStatusDivisorZeroErr;
  }
  return rowsInt<P, OP, L>(reinterpret_cast<const P*>(s), sStep, nullptr, 0, table,
                           reinterpret_cast<P*>(d), dStep, roi, sf);
}

}  // namespace
}  // namespace arithf
}  // namespace lumi

// ---- exports -------------------------------------------------------------------------------
#define LUMI_32FC_BIN_ONE(NAME, OP, L)                                                          \
  LUMI_API LumStatus lumi##NAME##_32fc_##L##R(const Lum32fc* a, int as, const Lum32fc* b,        \
                                              int bs, Lum32fc* d, int ds, LumiSize r) {          \
    return lumi::arithf::binary32fc<lumi::L>(OP, a, as, b, bs, d, ds, r);                                \
  }                                                                                              \
  LUMI_API LumStatus lumi##NAME##_32fc_##L##IR(const Lum32fc* s, int ss, Lum32fc* sd, int sds,   \
                                               LumiSize r) {                                     \
    return lumi::arithf::binary32fc<lumi::L>(OP, s, ss, sd, sds, sd, sds, r);                            \
  }
#define LUMI_32FC_CONST_ONE(NAME, OP, L, VT, VP)                                                 \
  LUMI_API LumStatus lumi##NAME##_32fc_##L##R(const Lum32fc* s, int ss, VT value, Lum32fc* d,     \
                                              int ds, LumiSize r) {                               \
    return lumi::arithf::const32fc<lumi::L>(OP, s, ss, VP, d, ds, r);                                     \
  }                                                                                               \
  LUMI_API LumStatus lumi##NAME##_32fc_##L##IR(VT value, Lum32fc* sd, int sds, LumiSize r) {      \
    return lumi::arithf::const32fc<lumi::L>(OP, sd, sds, VP, sd, sds, r);                                 \
  }
#define LUMI_32FC(NAME, OP)                                                       \
  LUMI_32FC_BIN_ONE(NAME, OP, C1)                                                 \
  LUMI_32FC_BIN_ONE(NAME, OP, C3)                                                 \
  LUMI_32FC_BIN_ONE(NAME, OP, AC4)                                                \
  LUMI_32FC_CONST_ONE(NAME##C, OP, C1, Lum32fc, &value)                           \
  LUMI_32FC_CONST_ONE(NAME##C, OP, C3, const Lum32fc*, value)                     \
  LUMI_32FC_CONST_ONE(NAME##C, OP, AC4, const Lum32fc*, value)

#define LUMI_CINT_BIN_ONE(NAME, OP, TY, CT, L)                                                  \
  LUMI_API LumStatus lumi##NAME##_##TY##_##L##RSfs(const CT* a, int as, const CT* b, int bs,     \
                                                   CT* d, int ds, LumiSize r, int sf) {          \
    return lumi::arithf::binaryInt<CT, OP, lumi::L>(a, as, b, bs, d, ds, r, sf);                         \
  }                                                                                              \
  LUMI_API LumStatus lumi##NAME##_##TY##_##L##IRSfs(const CT* s, int ss, CT* sd, int sds,        \
                                                    LumiSize r, int sf) {                        \
    return lumi::arithf::binaryInt<CT, OP, lumi::L>(s, ss, sd, sds, sd, sds, r, sf);                     \
  }
#define LUMI_CINT_CONST_ONE(NAME, OP, TY, CT, L, VT, VP)                                        \
  LUMI_API LumStatus lumi##NAME##_##TY##_##L##RSfs(const CT* s, int ss, VT value, CT* d, int ds, \
                                                   LumiSize r, int sf) {                         \
    return lumi::arithf::constInt<CT, OP, lumi::L>(s, ss, VP, d, ds, r, sf);                             \
  }                                                                                              \
  LUMI_API LumStatus lumi##NAME##_##TY##_##L##IRSfs(VT value, CT* sd, int sds, LumiSize r,       \
                                                    int sf) {                                    \
    return lumi::arithf::constInt<CT, OP, lumi::L>(sd, sds, VP, sd, sds, r, sf);                         \
  }
#define LUMI_CINT(NAME, OP, TY, CT)                                     \
  LUMI_CINT_BIN_ONE(NAME, OP, TY, CT, C1)                               \
  LUMI_CINT_BIN_ONE(NAME, OP, TY, CT, C3)                               \
  LUMI_CINT_BIN_ONE(NAME, OP, TY, CT, AC4)                              \
  LUMI_CINT_CONST_ONE(NAME##C, OP, TY, CT, C1, CT, &value)              \
  LUMI_CINT_CONST_ONE(NAME##C, OP, TY, CT, C3, const CT*, value)        \
  LUMI_CINT_CONST_ONE(NAME##C, OP, TY, CT, AC4, const CT*, value)

extern "C" {
LUMI_32FC(Add, 0)
LUMI_32FC(Sub, 1)
LUMI_32FC(Mul, 2)
LUMI_32FC(Div, 3)
LUMI_CINT(Add, 0, 16sc, Lum16sc)
LUMI_CINT(Sub, 1, 16sc, Lum16sc)
LUMI_CINT(Mul, 2, 16sc, Lum16sc)
LUMI_CINT(Div, 3, 16sc, Lum16sc)
LUMI_CINT(Add, 0, 32sc, Lum32sc)
LUMI_CINT(Sub, 1, 32sc, Lum32sc)
LUMI_CINT(Mul, 2, 32sc, Lum32sc)
LUMI_CINT(Div, 3, 32sc, Lum32sc)
}

#endif  // HWY_ONCE
