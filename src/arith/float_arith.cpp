// Single-precision image arithmetic: Add, Sub, Mul, Div between two images and with a
// per-channel constant. Every element gets the IEEE single-precision operation; the constant
// division multiplies by the single-precision reciprocal of the constant.
#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "src/arith/float_arith.cpp"
#include "hwy/foreach_target.h"
#include "hwy/highway.h"
#include "core/frame.h"
#include "arith/float_kernels-inl.h"

HWY_BEFORE_NAMESPACE();
namespace lumi {
namespace arithf {
namespace HWY_NAMESPACE {
namespace hn = hwy::HWY_NAMESPACE;

template <int OP, class V>
HWY_INLINE V VOp(V x, V y) {
  if constexpr (OP == 0) return hn::Add(x, y);
  else if constexpr (OP == 1) return hn::Sub(x, y);
  else if constexpr (OP == 2) return hn::Mul(x, y);
  else return hn::Div(x, y);
}

// out = x op y over n elements; for division, reports whether an owned divisor was zero.
template <int OP>
int BinaryRowSimd(const float* x, const float* y, float* out, int n, const RowPattern<float>* pat) {
  const StreamTag<float> d;
  auto zeros = hn::Zero(d);
  int tailZero = 0;
  ForEachVector(
      d, static_cast<size_t>(n), pat,
      [&](size_t i, size_t off, auto masked) {
        const auto yv = hn::LoadU(d, y + i);
        if constexpr (OP == 3) {
          auto z = hn::VecFromMask(d, hn::Eq(yv, hn::Zero(d)));
          if constexpr (decltype(masked)::value) z = hn::And(z, hn::LoadU(d, pat->mask + off));
          zeros = hn::Or(zeros, z);
        }
        StoreOwned(d, VOp<OP>(hn::LoadU(d, x + i), yv), out + i, pat, off, masked);
      },
      [&](size_t i, size_t off) {
        if (!Owns(pat, off)) return;
        if (OP == 3 && y[i] == 0.0f) tailZero = 1;
        out[i] = fop<OP>(x[i], y[i]);
      });
  return tailZero | !hn::AllFalse(d, hn::MaskFromVec(zeros));
}

// out = x op constant, the constant taken per element from the pattern.
template <int OP>
void ConstRowSimd(const float* x, float* out, int n, const RowPattern<float>* pat) {
  const StreamTag<float> d;
  ForEachVector(
      d, static_cast<size_t>(n), pat,
      [&](size_t i, size_t off, auto masked) {
        StoreOwned(d, VOp<OP>(hn::LoadU(d, x + i), hn::LoadU(d, pat->value + off)), out + i,
                   pat, off, masked);
      },
      [&](size_t i, size_t off) {
        if (Owns(pat, off)) out[i] = fop<OP>(x[i], pat->value[off]);
      });
}

// Unmasked rows whose destination is written with cache-bypassing stores from its first
// vector-aligned element on; the results are those of the kernels above.
template <int OP>
int BinaryRowStream(const float* x, const float* y, float* out, int n, const RowPattern<float>*) {
  const StreamTag<float> d;
  const size_t N = hn::Lanes(d), count = static_cast<size_t>(n);
  auto zeros = hn::Zero(d);
  int zero = 0;
  size_t i = 0;
  auto one = [&](size_t k) {
    if (OP == 3 && y[k] == 0.0f) zero = 1;
    out[k] = fop<OP>(x[k], y[k]);
  };
  for (; i < count && reinterpret_cast<uintptr_t>(out + i) % (N * sizeof(float)) != 0; ++i) one(i);
  for (; i + N <= count; i += N) {
    const auto yv = hn::LoadU(d, y + i);
    if constexpr (OP == 3) zeros = hn::Or(zeros, hn::VecFromMask(d, hn::Eq(yv, hn::Zero(d))));
    hn::Stream(VOp<OP>(hn::LoadU(d, x + i), yv), d, out + i);
  }
  for (; i < count; ++i) one(i);
  return zero | !hn::AllFalse(d, hn::MaskFromVec(zeros));
}

template <int OP>
void ConstRowStream(const float* x, float* out, int n, const RowPattern<float>* pat) {
  const StreamTag<float> d;
  const size_t N = hn::Lanes(d), count = static_cast<size_t>(n), per = static_cast<size_t>(pat->period);
  size_t i = 0;
  for (; i < count && reinterpret_cast<uintptr_t>(out + i) % (N * sizeof(float)) != 0; ++i)
    out[i] = fop<OP>(x[i], pat->value[i % per]);
  for (; i + N <= count; i += N)
    hn::Stream(VOp<OP>(hn::LoadU(d, x + i), hn::LoadU(d, pat->value + i % per)), d, out + i);
  for (; i < count; ++i) out[i] = fop<OP>(x[i], pat->value[i % per]);
}

}  // namespace HWY_NAMESPACE
}  // namespace arithf
}  // namespace lumi
HWY_AFTER_NAMESPACE();

#if HWY_ONCE
#include <xmmintrin.h>

#include "core/simd.h"

namespace lumi {
namespace arithf {

LUMI_SIMD_TABLE(F32BinaryRow, kAddRow, BinaryRowSimd<0>);
LUMI_SIMD_TABLE(F32BinaryRow, kSubRow, BinaryRowSimd<1>);
LUMI_SIMD_TABLE(F32BinaryRow, kMulRow, BinaryRowSimd<2>);
LUMI_SIMD_TABLE(F32BinaryRow, kDivRow, BinaryRowSimd<3>);
LUMI_SIMD_TABLE(F32ConstRow, kAddCRow, ConstRowSimd<0>);
LUMI_SIMD_TABLE(F32ConstRow, kSubCRow, ConstRowSimd<1>);
LUMI_SIMD_TABLE(F32ConstRow, kMulCRow, ConstRowSimd<2>);
LUMI_SIMD_TABLE(F32BinaryRow, kAddRowNT, BinaryRowStream<0>);
LUMI_SIMD_TABLE(F32BinaryRow, kSubRowNT, BinaryRowStream<1>);
LUMI_SIMD_TABLE(F32BinaryRow, kMulRowNT, BinaryRowStream<2>);
LUMI_SIMD_TABLE(F32BinaryRow, kDivRowNT, BinaryRowStream<3>);
LUMI_SIMD_TABLE(F32ConstRow, kAddCRowNT, ConstRowStream<0>);
LUMI_SIMD_TABLE(F32ConstRow, kSubCRowNT, ConstRowStream<1>);
LUMI_SIMD_TABLE(F32ConstRow, kMulCRowNT, ConstRowStream<2>);

namespace {

template <int OP>
int binaryRowScalar(const float* x, const float* y, float* out, int n,
                    const RowPattern<float>* pat) {
  int zero = 0;
  for (int i = 0; i < n; ++i) {
    if (pat && !pat->writes(i)) continue;
    if (OP == 3 && y[i] == 0.0f) zero = 1;
    out[i] = fop<OP>(x[i], y[i]);
  }
  return zero;
}

template <int OP>
void constRowScalar(const float* x, float* out, int n, const RowPattern<float>* pat) {
  for (int i = 0; i < n; ++i)
    if (pat->writes(i)) out[i] = fop<OP>(x[i], pat->value[i % pat->period]);
}

// Image-image members; x is the second operand image (src2 or the in-place image), y the
// first, so Sub gives src2 - src1 and Div src2 / src1.
template <class L>
LumStatus binary32f(int op, const float* s1, int s1Step, const float* s2, int s2Step, float* d,
                    int dStep, LumiSize roi) {
  if (anyNull(s1, s2, d)) return lumStatusNullPtrErr;
  if (badSize(roi)) return lumStatusSizeErr;
  if (op == 3 && badStep(s1Step, s2Step, dStep)) return lumStatusStepErr;
  const bool masked = L::kUse < L::kCh;
  RowPattern<float> pat(masked ? L::kCh : 1, masked ? L::kUse : 1, nullptr);
  roi = oneRowIfContiguous(roi, 4 * L::kCh, s1Step, s2Step, dStep);
  const int n = roi.width * L::kCh;
  const bool stream = !masked && bypassCache(12.0 * n * roi.height);
  F32BinaryRow row = pickF32Binary(op, stream);
  FirstStatus status;
  for (int y = 0; y < roi.height; ++y)
    if (row(rowAt(s2, s2Step, y), rowAt(s1, s1Step, y), rowAt(d, dStep, y), n,
            masked ? &pat : nullptr))
      status.add(lumStatusDivByZeroWarn);
  if (stream) endStreaming();
  return status.value;
}

// Constant members; op 3 (DivC) becomes a multiplication by the reciprocals.
template <class L>
LumStatus const32f(int op, const float* s, int sStep, const float* value, float* d, int dStep,
                   LumiSize roi) {
  if (anyNull(s, value, d)) return lumStatusNullPtrErr;
  if (badSize(roi)) return lumStatusSizeErr;
  float c[4] = {0, 0, 0, 0};
  for (int k = 0; k < L::kUse; ++k) c[k] = value[k];
  if (op == 3) {
    if (badStep(sStep, dStep)) return lumStatusStepErr;
    for (int k = 0; k < L::kUse; ++k)
      if (c[k] == 0.0f) return lumStatusDivisorZeroErr;
    for (int k = 0; k < L::kUse; ++k) c[k] = 1.0f / c[k];
    op = 2;
  }
  RowPattern<float> pat(L::kCh, L::kUse, c);
  roi = oneRowIfContiguous(roi, 4 * L::kCh, sStep, dStep);
  const int n = roi.width * L::kCh;
  const bool stream = L::kUse == L::kCh && bypassCache(8.0 * n * roi.height);
  F32ConstRow row = pickF32Const(op, stream);
  for (int y = 0; y < roi.height; ++y) row(rowAt(s, sStep, y), rowAt(d, dStep, y), n, &pat);
  if (stream) endStreaming();
  return lumStatusOk;
}

}  // namespace

F32BinaryRow pickF32Binary(int op, bool stream) {
  static F32BinaryRow const scalar[4] = {binaryRowScalar<0>, binaryRowScalar<1>,
                                         binaryRowScalar<2>, binaryRowScalar<3>};
  F32BinaryRow simd = nullptr;
  switch (op) {
    case 0: simd = pickSimd(stream ? kAddRowNT : kAddRow); break;
    case 1: simd = pickSimd(stream ? kSubRowNT : kSubRow); break;
    case 2: simd = pickSimd(stream ? kMulRowNT : kMulRow); break;
    default: simd = pickSimd(stream ? kDivRowNT : kDivRow); break;
  }
  return simd ? simd : scalar[op & 3];
}

F32ConstRow pickF32Const(int op, bool stream) {
  static F32ConstRow const scalar[3] = {constRowScalar<0>, constRowScalar<1>, constRowScalar<2>};
  F32ConstRow simd = nullptr;
  switch (op) {
    case 0: simd = pickSimd(stream ? kAddCRowNT : kAddCRow); break;
    case 1: simd = pickSimd(stream ? kSubCRowNT : kSubCRow); break;
    default: simd = pickSimd(stream ? kMulCRowNT : kMulCRow); break;
  }
  return simd ? simd : scalar[op > 2 ? 2 : op];
}

bool bypassCache(double bytes) {
  if (bytes < 1048576.0) return false;
  int cache = 0;
  return lumGetMaxCacheSizeB(&cache) == 0 && cache > 0 && bytes > cache / 4.0;
}

void endStreaming() { _mm_sfence(); }

}  // namespace arithf
}  // namespace lumi

// ---- exports -------------------------------------------------------------------------------
#define LUMI_F32_BIN_ONE(NAME, OP, L)                                                         \
  LUMI_API LumStatus lumi##NAME##_32f_##L##R(const Lum32f* a, int as, const Lum32f* b, int bs, \
                                             Lum32f* d, int ds, LumiSize r) {                  \
    return lumi::arithf::binary32f<lumi::L>(OP, a, as, b, bs, d, ds, r);                               \
  }                                                                                            \
  LUMI_API LumStatus lumi##NAME##_32f_##L##IR(const Lum32f* s, int ss, Lum32f* sd, int sds,    \
                                              LumiSize r) {                                    \
    return lumi::arithf::binary32f<lumi::L>(OP, s, ss, sd, sds, sd, sds, r);                           \
  }
#define LUMI_F32_BIN(NAME, OP)   \
  LUMI_F32_BIN_ONE(NAME, OP, C1) \
  LUMI_F32_BIN_ONE(NAME, OP, C3) \
  LUMI_F32_BIN_ONE(NAME, OP, C4) \
  LUMI_F32_BIN_ONE(NAME, OP, AC4)

#define LUMI_F32_CONST_ONE(NAME, OP, L, VT, VP)                                                \
  LUMI_API LumStatus lumi##NAME##_32f_##L##R(const Lum32f* s, int ss, VT value, Lum32f* d,      \
                                             int ds, LumiSize r) {                              \
    return lumi::arithf::const32f<lumi::L>(OP, s, ss, VP, d, ds, r);                                    \
  }                                                                                             \
  LUMI_API LumStatus lumi##NAME##_32f_##L##IR(VT value, Lum32f* sd, int sds, LumiSize r) {      \
    return lumi::arithf::const32f<lumi::L>(OP, sd, sds, VP, sd, sds, r);                                \
  }
#define LUMI_F32_CONST(NAME, OP)                                      \
  LUMI_F32_CONST_ONE(NAME, OP, C1, Lum32f, &value)                    \
  LUMI_F32_CONST_ONE(NAME, OP, C3, const Lum32f*, value)              \
  LUMI_F32_CONST_ONE(NAME, OP, C4, const Lum32f*, value)              \
  LUMI_F32_CONST_ONE(NAME, OP, AC4, const Lum32f*, value)

extern "C" {
LUMI_F32_BIN(Add, 0)
LUMI_F32_BIN(Sub, 1)
LUMI_F32_BIN(Mul, 2)
LUMI_F32_BIN(Div, 3)
LUMI_F32_CONST(AddC, 0)
LUMI_F32_CONST(SubC, 1)
LUMI_F32_CONST(MulC, 2)
LUMI_F32_CONST(DivC, 3)
}

#endif  // HWY_ONCE
