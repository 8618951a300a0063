// Complex image arithmetic: 32fc pixels, and 16sc/32sc pixels with an integer scale factor.
// Complex products of 32fc are formed in double precision (the single-precision products are
// exact there) and rounded once to single; division by a multi-channel constant multiplies by
// the per-channel reciprocals.
#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "src/arith/complex_arith.cpp"
#include "hwy/foreach_target.h"
#include "hwy/highway.h"
#include "core/simd.h"
#include "core/widen-inl.h"
#include "arith/float_kernels-inl.h"

#ifndef LUMI_COMPLEX_ARITH_SCALAR_  // scalar definitions, compiled once
#define LUMI_COMPLEX_ARITH_SCALAR_
namespace lumi {
namespace arithf {
// (a + bi)(c + di) in double precision, rounded once to single.
inline void complexProduct(const float* x, const float* y, float* out) {
  const double a = x[0], b = x[1], c = y[0], d = y[1];
  const float re = static_cast<float>(a * c - b * d), im = static_cast<float>(a * d + b * c);
  out[0] = re;
  out[1] = im;
}
}  // namespace arithf
}  // namespace lumi
#endif

LUMI_SIMD_BEGIN
#if LUMI_TABLE_TARGET
namespace arithv {

// (a + bi)(c + di) for interleaved complex values held in double lanes.
template <class D>
HWY_INLINE hn::Vec<D> complexProductVec(D dd, hn::Vec<D> x, hn::Vec<D> y) {
  const auto re = hn::InterleaveLower(dd, x, x);     // a a
  const auto im = hn::InterleaveUpper(dd, x, x);     // b b
  const auto p1 = hn::Mul(re, y);                    // ac ad
  const auto p2 = hn::Mul(im, hn::Reverse2(dd, y));  // bd bc
  return hn::OddEven(hn::Add(p1, p2), hn::Sub(p1, p2));
}

// out = x * y over n floats (n/2 complex values); y is a row, or the pattern's constants when
// y is null.
void complexMulRow(const float* x, const float* y, float* out, std::ptrdiff_t n,
                   const RowPattern<float>* pat) {
  const hn::ScalableTag<double> dd;
  const hn::Rebind<float, decltype(dd)> df;
  ForEachVector(
      df, static_cast<size_t>(n), pat,
      [&](size_t i, size_t off, auto masked) {
        const auto xv = loadAs(dd, x + i);
        const auto yv = loadAs(dd, y ? y + i : pat->value + off);
        StoreOwned(df, hn::DemoteTo(df, complexProductVec(dd, xv, yv)), out + i, pat, off, masked);
      },
      [&](size_t i, size_t off) {  // the tail starts on a whole complex value
        if ((i & 1) == 0 && Owns(pat, off))
          complexProduct(x + i, y ? y + i : pat->value + off, out + i);
      });
}

}  // namespace arithv
#endif  // LUMI_TABLE_TARGET
LUMI_SIMD_END

#if HWY_ONCE

namespace lumi {
namespace arithf {
namespace {

using ComplexMulRow = void (*)(const float*, const float*, float*, std::ptrdiff_t,
                               const RowPattern<float>*);

void complexMulRowScalar(const float* x, const float* y, float* out, std::ptrdiff_t n,
                         const RowPattern<float>* pat) {
  for (std::ptrdiff_t i = 0; i < n; i += 2)
    if (!pat || pat->writes(i)) complexProduct(x + i, y ? y + i : pat->value + i % pat->period, out + i);
}

ComplexMulRow pickComplexMulRow() {
  LUMI_SIMD_TABLE(ComplexMulRow, table, arithv::complexMulRow);
  return pick(table, &complexMulRowScalar);
}

// (a + bi) / (c + di) in double precision, rounded once to single. A zero divisor stores the
// IEEE quotients (infinities or NaN) and is reported.
int complexDivRow(const float* x, const float* y, float* out, std::ptrdiff_t n,
                  const RowPattern<float>* pat) {
  int zero = 0;
  for (std::ptrdiff_t i = 0; i < n; i += 2) {
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
  const std::ptrdiff_t n = elemsOf(roi.width, 2 * L::kCh);
  const bool stream = op < 2 && !masked && bypassCache(12.0 * n * roi.height);
  F32BinaryRow addSub = op < 2 ? pickBinaryRow(op, stream) : nullptr;
  ComplexMulRow mul = pickComplexMulRow();
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
  const std::ptrdiff_t n = elemsOf(roi.width, 2 * L::kCh);
  const bool stream = op < 2 && L::kUse == L::kCh && bypassCache(8.0 * n * roi.height);
  F32ConstRow addSub = op < 2 ? pickConstRow(op, stream) : nullptr;
  for (int y = 0; y < roi.height; ++y) {
    const float* x = reinterpret_cast<const float*>(rowAt(s, sStep, y));
    float* o = reinterpret_cast<float*>(rowAt(d, dStep, y));
    if (op < 2)
      addSub(x, o, n, &pat);
    else if (op == 2)
      pickComplexMulRow()(x, nullptr, o, n, &pat);
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
inline P scaled(int64_t v, const ScaleFactor& sf) {
  return static_cast<P>(scaleInt64(v, sf, PartRange<P>::lo, PartRange<P>::hi));
}

// One complex element: x op y, op 0 add, 1 subtract, 2 multiply, 3 divide. Quotients are
// formed in double precision, scaled, rounded half to even and saturated; a zero divisor
// gives each part the type's bound by the sign of the dividend part (0 for a zero part).
template <class P, int OP>
inline int complexIntOp(const P* x, const P* y, P* out, const ScaleFactor& sf) {
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
int complexIntRow(const P* x, const P* y, const P* table, P* out, int width,
                  const ScaleFactor& sf) {
  int zero = 0;
  for (int px = 0; px < width; ++px)
    for (int ch = 0; ch < L::kUse; ++ch) {
      const std::ptrdiff_t e = 2 * (elemsOf(px, L::kCh) + ch);
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
      for (int e = 0; e < 2 * L::kUse; ++e) o[2 * elemsOf(px, L::kCh) + e] = 0;
  }
}

template <class P, int OP, class L>
LumStatus rowsInt(const P* x, int xStep, const P* y, int yStep, const P* table, P* d, int dStep,
                  LumiSize roi, int sf) {
  if (OP < 2 && sf > zeroFillAbove<P>()) {
    fillZeroParts<P, L>(d, dStep, roi);
    return lumStatusOk;
  }
  const ScaleFactor scale = resolveSf(sf);
  LastStatus status;
  for (int r = 0; r < roi.height; ++r)
    if (complexIntRow<P, OP, L>(rowAt(x, xStep, r), y ? rowAt(y, yStep, r) : nullptr, table,
                                rowAt(d, dStep, r), roi.width, scale))
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
// One line per member; the 32fc stamps are those of the 32f members (float_kernels.h). VT is
// how the constant is passed (the value for C1, else a pointer to one per channel), VP its
// address.
#define LUMI_CINT_IMAGE(NAME, OP, CT, L)                                                         \
  LUMI_API LumStatus NAME(const CT* a, int as, const CT* b, int bs, CT* d, int ds, LumiSize r,  \
                          int sf) {                                                             \
    return lumi::arithf::binaryInt<CT, OP, lumi::L>(a, as, b, bs, d, ds, r, sf);                \
  }
#define LUMI_CINT_IMAGE_I(NAME, OP, CT, L)                                                   \
  LUMI_API LumStatus NAME(const CT* s, int ss, CT* sd, int sds, LumiSize r, int sf) {       \
    return lumi::arithf::binaryInt<CT, OP, lumi::L>(s, ss, sd, sds, sd, sds, r, sf);        \
  }
#define LUMI_CINT_CONST(NAME, OP, CT, L, VT, VP)                                              \
  LUMI_API LumStatus NAME(const CT* s, int ss, VT value, CT* d, int ds, LumiSize r, int sf) { \
    return lumi::arithf::constInt<CT, OP, lumi::L>(s, ss, VP, d, ds, r, sf);                 \
  }
#define LUMI_CINT_CONST_I(NAME, OP, CT, L, VT, VP)                                \
  LUMI_API LumStatus NAME(VT value, CT* sd, int sds, LumiSize r, int sf) {       \
    return lumi::arithf::constInt<CT, OP, lumi::L>(sd, sds, VP, sd, sds, r, sf); \
  }

LUMI_FLOAT_IMAGE(lumiAdd_32fc_C1R, binary32fc, Lum32fc, 0, C1)
LUMI_FLOAT_IMAGE_I(lumiAdd_32fc_C1IR, binary32fc, Lum32fc, 0, C1)
LUMI_FLOAT_IMAGE(lumiAdd_32fc_C3R, binary32fc, Lum32fc, 0, C3)
LUMI_FLOAT_IMAGE_I(lumiAdd_32fc_C3IR, binary32fc, Lum32fc, 0, C3)
LUMI_FLOAT_IMAGE(lumiAdd_32fc_AC4R, binary32fc, Lum32fc, 0, AC4)
LUMI_FLOAT_IMAGE_I(lumiAdd_32fc_AC4IR, binary32fc, Lum32fc, 0, AC4)
LUMI_FLOAT_CONST(lumiAddC_32fc_C1R, const32fc, Lum32fc, 0, C1, Lum32fc, &value)
LUMI_FLOAT_CONST_I(lumiAddC_32fc_C1IR, const32fc, Lum32fc, 0, C1, Lum32fc, &value)
LUMI_FLOAT_CONST(lumiAddC_32fc_C3R, const32fc, Lum32fc, 0, C3, const Lum32fc*, value)
LUMI_FLOAT_CONST_I(lumiAddC_32fc_C3IR, const32fc, Lum32fc, 0, C3, const Lum32fc*, value)
LUMI_FLOAT_CONST(lumiAddC_32fc_AC4R, const32fc, Lum32fc, 0, AC4, const Lum32fc*, value)
LUMI_FLOAT_CONST_I(lumiAddC_32fc_AC4IR, const32fc, Lum32fc, 0, AC4, const Lum32fc*, value)
LUMI_FLOAT_IMAGE(lumiSub_32fc_C1R, binary32fc, Lum32fc, 1, C1)
LUMI_FLOAT_IMAGE_I(lumiSub_32fc_C1IR, binary32fc, Lum32fc, 1, C1)
LUMI_FLOAT_IMAGE(lumiSub_32fc_C3R, binary32fc, Lum32fc, 1, C3)
LUMI_FLOAT_IMAGE_I(lumiSub_32fc_C3IR, binary32fc, Lum32fc, 1, C3)
LUMI_FLOAT_IMAGE(lumiSub_32fc_AC4R, binary32fc, Lum32fc, 1, AC4)
LUMI_FLOAT_IMAGE_I(lumiSub_32fc_AC4IR, binary32fc, Lum32fc, 1, AC4)
LUMI_FLOAT_CONST(lumiSubC_32fc_C1R, const32fc, Lum32fc, 1, C1, Lum32fc, &value)
LUMI_FLOAT_CONST_I(lumiSubC_32fc_C1IR, const32fc, Lum32fc, 1, C1, Lum32fc, &value)
LUMI_FLOAT_CONST(lumiSubC_32fc_C3R, const32fc, Lum32fc, 1, C3, const Lum32fc*, value)
LUMI_FLOAT_CONST_I(lumiSubC_32fc_C3IR, const32fc, Lum32fc, 1, C3, const Lum32fc*, value)
LUMI_FLOAT_CONST(lumiSubC_32fc_AC4R, const32fc, Lum32fc, 1, AC4, const Lum32fc*, value)
LUMI_FLOAT_CONST_I(lumiSubC_32fc_AC4IR, const32fc, Lum32fc, 1, AC4, const Lum32fc*, value)
LUMI_FLOAT_IMAGE(lumiMul_32fc_C1R, binary32fc, Lum32fc, 2, C1)
LUMI_FLOAT_IMAGE_I(lumiMul_32fc_C1IR, binary32fc, Lum32fc, 2, C1)
LUMI_FLOAT_IMAGE(lumiMul_32fc_C3R, binary32fc, Lum32fc, 2, C3)
LUMI_FLOAT_IMAGE_I(lumiMul_32fc_C3IR, binary32fc, Lum32fc, 2, C3)
LUMI_FLOAT_IMAGE(lumiMul_32fc_AC4R, binary32fc, Lum32fc, 2, AC4)
LUMI_FLOAT_IMAGE_I(lumiMul_32fc_AC4IR, binary32fc, Lum32fc, 2, AC4)
LUMI_FLOAT_CONST(lumiMulC_32fc_C1R, const32fc, Lum32fc, 2, C1, Lum32fc, &value)
LUMI_FLOAT_CONST_I(lumiMulC_32fc_C1IR, const32fc, Lum32fc, 2, C1, Lum32fc, &value)
LUMI_FLOAT_CONST(lumiMulC_32fc_C3R, const32fc, Lum32fc, 2, C3, const Lum32fc*, value)
LUMI_FLOAT_CONST_I(lumiMulC_32fc_C3IR, const32fc, Lum32fc, 2, C3, const Lum32fc*, value)
LUMI_FLOAT_CONST(lumiMulC_32fc_AC4R, const32fc, Lum32fc, 2, AC4, const Lum32fc*, value)
LUMI_FLOAT_CONST_I(lumiMulC_32fc_AC4IR, const32fc, Lum32fc, 2, AC4, const Lum32fc*, value)
LUMI_FLOAT_IMAGE(lumiDiv_32fc_C1R, binary32fc, Lum32fc, 3, C1)
LUMI_FLOAT_IMAGE_I(lumiDiv_32fc_C1IR, binary32fc, Lum32fc, 3, C1)
LUMI_FLOAT_IMAGE(lumiDiv_32fc_C3R, binary32fc, Lum32fc, 3, C3)
LUMI_FLOAT_IMAGE_I(lumiDiv_32fc_C3IR, binary32fc, Lum32fc, 3, C3)
LUMI_FLOAT_IMAGE(lumiDiv_32fc_AC4R, binary32fc, Lum32fc, 3, AC4)
LUMI_FLOAT_IMAGE_I(lumiDiv_32fc_AC4IR, binary32fc, Lum32fc, 3, AC4)
LUMI_FLOAT_CONST(lumiDivC_32fc_C1R, const32fc, Lum32fc, 3, C1, Lum32fc, &value)
LUMI_FLOAT_CONST_I(lumiDivC_32fc_C1IR, const32fc, Lum32fc, 3, C1, Lum32fc, &value)
LUMI_FLOAT_CONST(lumiDivC_32fc_C3R, const32fc, Lum32fc, 3, C3, const Lum32fc*, value)
LUMI_FLOAT_CONST_I(lumiDivC_32fc_C3IR, const32fc, Lum32fc, 3, C3, const Lum32fc*, value)
LUMI_FLOAT_CONST(lumiDivC_32fc_AC4R, const32fc, Lum32fc, 3, AC4, const Lum32fc*, value)
LUMI_FLOAT_CONST_I(lumiDivC_32fc_AC4IR, const32fc, Lum32fc, 3, AC4, const Lum32fc*, value)
LUMI_CINT_IMAGE(lumiAdd_16sc_C1RSfs, 0, Lum16sc, C1)
LUMI_CINT_IMAGE_I(lumiAdd_16sc_C1IRSfs, 0, Lum16sc, C1)
LUMI_CINT_IMAGE(lumiAdd_16sc_C3RSfs, 0, Lum16sc, C3)
LUMI_CINT_IMAGE_I(lumiAdd_16sc_C3IRSfs, 0, Lum16sc, C3)
LUMI_CINT_IMAGE(lumiAdd_16sc_AC4RSfs, 0, Lum16sc, AC4)
LUMI_CINT_IMAGE_I(lumiAdd_16sc_AC4IRSfs, 0, Lum16sc, AC4)
LUMI_CINT_CONST(lumiAddC_16sc_C1RSfs, 0, Lum16sc, C1, Lum16sc, &value)
LUMI_CINT_CONST_I(lumiAddC_16sc_C1IRSfs, 0, Lum16sc, C1, Lum16sc, &value)
LUMI_CINT_CONST(lumiAddC_16sc_C3RSfs, 0, Lum16sc, C3, const Lum16sc*, value)
LUMI_CINT_CONST_I(lumiAddC_16sc_C3IRSfs, 0, Lum16sc, C3, const Lum16sc*, value)
LUMI_CINT_CONST(lumiAddC_16sc_AC4RSfs, 0, Lum16sc, AC4, const Lum16sc*, value)
LUMI_CINT_CONST_I(lumiAddC_16sc_AC4IRSfs, 0, Lum16sc, AC4, const Lum16sc*, value)
LUMI_CINT_IMAGE(lumiSub_16sc_C1RSfs, 1, Lum16sc, C1)
LUMI_CINT_IMAGE_I(lumiSub_16sc_C1IRSfs, 1, Lum16sc, C1)
LUMI_CINT_IMAGE(lumiSub_16sc_C3RSfs, 1, Lum16sc, C3)
LUMI_CINT_IMAGE_I(lumiSub_16sc_C3IRSfs, 1, Lum16sc, C3)
LUMI_CINT_IMAGE(lumiSub_16sc_AC4RSfs, 1, Lum16sc, AC4)
LUMI_CINT_IMAGE_I(lumiSub_16sc_AC4IRSfs, 1, Lum16sc, AC4)
LUMI_CINT_CONST(lumiSubC_16sc_C1RSfs, 1, Lum16sc, C1, Lum16sc, &value)
LUMI_CINT_CONST_I(lumiSubC_16sc_C1IRSfs, 1, Lum16sc, C1, Lum16sc, &value)
LUMI_CINT_CONST(lumiSubC_16sc_C3RSfs, 1, Lum16sc, C3, const Lum16sc*, value)
LUMI_CINT_CONST_I(lumiSubC_16sc_C3IRSfs, 1, Lum16sc, C3, const Lum16sc*, value)
LUMI_CINT_CONST(lumiSubC_16sc_AC4RSfs, 1, Lum16sc, AC4, const Lum16sc*, value)
LUMI_CINT_CONST_I(lumiSubC_16sc_AC4IRSfs, 1, Lum16sc, AC4, const Lum16sc*, value)
LUMI_CINT_IMAGE(lumiMul_16sc_C1RSfs, 2, Lum16sc, C1)
LUMI_CINT_IMAGE_I(lumiMul_16sc_C1IRSfs, 2, Lum16sc, C1)
LUMI_CINT_IMAGE(lumiMul_16sc_C3RSfs, 2, Lum16sc, C3)
LUMI_CINT_IMAGE_I(lumiMul_16sc_C3IRSfs, 2, Lum16sc, C3)
LUMI_CINT_IMAGE(lumiMul_16sc_AC4RSfs, 2, Lum16sc, AC4)
LUMI_CINT_IMAGE_I(lumiMul_16sc_AC4IRSfs, 2, Lum16sc, AC4)
LUMI_CINT_CONST(lumiMulC_16sc_C1RSfs, 2, Lum16sc, C1, Lum16sc, &value)
LUMI_CINT_CONST_I(lumiMulC_16sc_C1IRSfs, 2, Lum16sc, C1, Lum16sc, &value)
LUMI_CINT_CONST(lumiMulC_16sc_C3RSfs, 2, Lum16sc, C3, const Lum16sc*, value)
LUMI_CINT_CONST_I(lumiMulC_16sc_C3IRSfs, 2, Lum16sc, C3, const Lum16sc*, value)
LUMI_CINT_CONST(lumiMulC_16sc_AC4RSfs, 2, Lum16sc, AC4, const Lum16sc*, value)
LUMI_CINT_CONST_I(lumiMulC_16sc_AC4IRSfs, 2, Lum16sc, AC4, const Lum16sc*, value)
LUMI_CINT_IMAGE(lumiDiv_16sc_C1RSfs, 3, Lum16sc, C1)
LUMI_CINT_IMAGE_I(lumiDiv_16sc_C1IRSfs, 3, Lum16sc, C1)
LUMI_CINT_IMAGE(lumiDiv_16sc_C3RSfs, 3, Lum16sc, C3)
LUMI_CINT_IMAGE_I(lumiDiv_16sc_C3IRSfs, 3, Lum16sc, C3)
LUMI_CINT_IMAGE(lumiDiv_16sc_AC4RSfs, 3, Lum16sc, AC4)
LUMI_CINT_IMAGE_I(lumiDiv_16sc_AC4IRSfs, 3, Lum16sc, AC4)
LUMI_CINT_CONST(lumiDivC_16sc_C1RSfs, 3, Lum16sc, C1, Lum16sc, &value)
LUMI_CINT_CONST_I(lumiDivC_16sc_C1IRSfs, 3, Lum16sc, C1, Lum16sc, &value)
LUMI_CINT_CONST(lumiDivC_16sc_C3RSfs, 3, Lum16sc, C3, const Lum16sc*, value)
LUMI_CINT_CONST_I(lumiDivC_16sc_C3IRSfs, 3, Lum16sc, C3, const Lum16sc*, value)
LUMI_CINT_CONST(lumiDivC_16sc_AC4RSfs, 3, Lum16sc, AC4, const Lum16sc*, value)
LUMI_CINT_CONST_I(lumiDivC_16sc_AC4IRSfs, 3, Lum16sc, AC4, const Lum16sc*, value)
LUMI_CINT_IMAGE(lumiAdd_32sc_C1RSfs, 0, Lum32sc, C1)
LUMI_CINT_IMAGE_I(lumiAdd_32sc_C1IRSfs, 0, Lum32sc, C1)
LUMI_CINT_IMAGE(lumiAdd_32sc_C3RSfs, 0, Lum32sc, C3)
LUMI_CINT_IMAGE_I(lumiAdd_32sc_C3IRSfs, 0, Lum32sc, C3)
LUMI_CINT_IMAGE(lumiAdd_32sc_AC4RSfs, 0, Lum32sc, AC4)
LUMI_CINT_IMAGE_I(lumiAdd_32sc_AC4IRSfs, 0, Lum32sc, AC4)
LUMI_CINT_CONST(lumiAddC_32sc_C1RSfs, 0, Lum32sc, C1, Lum32sc, &value)
LUMI_CINT_CONST_I(lumiAddC_32sc_C1IRSfs, 0, Lum32sc, C1, Lum32sc, &value)
LUMI_CINT_CONST(lumiAddC_32sc_C3RSfs, 0, Lum32sc, C3, const Lum32sc*, value)
LUMI_CINT_CONST_I(lumiAddC_32sc_C3IRSfs, 0, Lum32sc, C3, const Lum32sc*, value)
LUMI_CINT_CONST(lumiAddC_32sc_AC4RSfs, 0, Lum32sc, AC4, const Lum32sc*, value)
LUMI_CINT_CONST_I(lumiAddC_32sc_AC4IRSfs, 0, Lum32sc, AC4, const Lum32sc*, value)
LUMI_CINT_IMAGE(lumiSub_32sc_C1RSfs, 1, Lum32sc, C1)
LUMI_CINT_IMAGE_I(lumiSub_32sc_C1IRSfs, 1, Lum32sc, C1)
LUMI_CINT_IMAGE(lumiSub_32sc_C3RSfs, 1, Lum32sc, C3)
LUMI_CINT_IMAGE_I(lumiSub_32sc_C3IRSfs, 1, Lum32sc, C3)
LUMI_CINT_IMAGE(lumiSub_32sc_AC4RSfs, 1, Lum32sc, AC4)
LUMI_CINT_IMAGE_I(lumiSub_32sc_AC4IRSfs, 1, Lum32sc, AC4)
LUMI_CINT_CONST(lumiSubC_32sc_C1RSfs, 1, Lum32sc, C1, Lum32sc, &value)
LUMI_CINT_CONST_I(lumiSubC_32sc_C1IRSfs, 1, Lum32sc, C1, Lum32sc, &value)
LUMI_CINT_CONST(lumiSubC_32sc_C3RSfs, 1, Lum32sc, C3, const Lum32sc*, value)
LUMI_CINT_CONST_I(lumiSubC_32sc_C3IRSfs, 1, Lum32sc, C3, const Lum32sc*, value)
LUMI_CINT_CONST(lumiSubC_32sc_AC4RSfs, 1, Lum32sc, AC4, const Lum32sc*, value)
LUMI_CINT_CONST_I(lumiSubC_32sc_AC4IRSfs, 1, Lum32sc, AC4, const Lum32sc*, value)
LUMI_CINT_IMAGE(lumiMul_32sc_C1RSfs, 2, Lum32sc, C1)
LUMI_CINT_IMAGE_I(lumiMul_32sc_C1IRSfs, 2, Lum32sc, C1)
LUMI_CINT_IMAGE(lumiMul_32sc_C3RSfs, 2, Lum32sc, C3)
LUMI_CINT_IMAGE_I(lumiMul_32sc_C3IRSfs, 2, Lum32sc, C3)
LUMI_CINT_IMAGE(lumiMul_32sc_AC4RSfs, 2, Lum32sc, AC4)
LUMI_CINT_IMAGE_I(lumiMul_32sc_AC4IRSfs, 2, Lum32sc, AC4)
LUMI_CINT_CONST(lumiMulC_32sc_C1RSfs, 2, Lum32sc, C1, Lum32sc, &value)
LUMI_CINT_CONST_I(lumiMulC_32sc_C1IRSfs, 2, Lum32sc, C1, Lum32sc, &value)
LUMI_CINT_CONST(lumiMulC_32sc_C3RSfs, 2, Lum32sc, C3, const Lum32sc*, value)
LUMI_CINT_CONST_I(lumiMulC_32sc_C3IRSfs, 2, Lum32sc, C3, const Lum32sc*, value)
LUMI_CINT_CONST(lumiMulC_32sc_AC4RSfs, 2, Lum32sc, AC4, const Lum32sc*, value)
LUMI_CINT_CONST_I(lumiMulC_32sc_AC4IRSfs, 2, Lum32sc, AC4, const Lum32sc*, value)
LUMI_CINT_IMAGE(lumiDiv_32sc_C1RSfs, 3, Lum32sc, C1)
LUMI_CINT_IMAGE_I(lumiDiv_32sc_C1IRSfs, 3, Lum32sc, C1)
LUMI_CINT_IMAGE(lumiDiv_32sc_C3RSfs, 3, Lum32sc, C3)
LUMI_CINT_IMAGE_I(lumiDiv_32sc_C3IRSfs, 3, Lum32sc, C3)
LUMI_CINT_IMAGE(lumiDiv_32sc_AC4RSfs, 3, Lum32sc, AC4)
LUMI_CINT_IMAGE_I(lumiDiv_32sc_AC4IRSfs, 3, Lum32sc, AC4)
LUMI_CINT_CONST(lumiDivC_32sc_C1RSfs, 3, Lum32sc, C1, Lum32sc, &value)
LUMI_CINT_CONST_I(lumiDivC_32sc_C1IRSfs, 3, Lum32sc, C1, Lum32sc, &value)
LUMI_CINT_CONST(lumiDivC_32sc_C3RSfs, 3, Lum32sc, C3, const Lum32sc*, value)
LUMI_CINT_CONST_I(lumiDivC_32sc_C3IRSfs, 3, Lum32sc, C3, const Lum32sc*, value)
LUMI_CINT_CONST(lumiDivC_32sc_AC4RSfs, 3, Lum32sc, AC4, const Lum32sc*, value)
LUMI_CINT_CONST_I(lumiDivC_32sc_AC4IRSfs, 3, Lum32sc, AC4, const Lum32sc*, value)

#endif  // HWY_ONCE
