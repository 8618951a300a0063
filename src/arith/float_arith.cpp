// Single-precision image arithmetic: Add, Sub, Mul, Div between two images and with a
// per-channel constant. Every element gets the IEEE single-precision operation; the constant
// division multiplies by the single-precision reciprocal of the constant.
#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "src/arith/float_arith.cpp"
#include "hwy/foreach_target.h"
#include "hwy/highway.h"
#include "core/simd.h"
#include "arith/float_kernels-inl.h"

LUMI_SIMD_BEGIN
#if LUMI_TABLE_TARGET
namespace arithv {

template <int OP, class V>
HWY_INLINE V vecOp(V x, V y) {
  if constexpr (OP == 0) return hn::Add(x, y);
  else if constexpr (OP == 1) return hn::Sub(x, y);
  else if constexpr (OP == 2) return hn::Mul(x, y);
  else return hn::Div(x, y);
}

// out = x op y over n elements; for division, reports whether an owned divisor was zero.
template <int OP>
int binaryRow(const float* x, const float* y, float* out, std::ptrdiff_t n,
              const RowPattern<float>* pat) {
  const StreamTag<float> d;
  auto zeros = hn::Zero(d);
  int tailZero = 0;
  ForEachVector(
      d, static_cast<size_t>(n), pat,
      [&](size_t i, size_t off, auto masked) {
        const auto yv = hn::LoadU(d, y + i);
        if constexpr (OP == 3) {
          auto z = hn::VecFromMask(d, hn::Eq(yv, hn::Zero(d)));
          if constexpr (decltype(masked)::value)
            z = hn::IfThenElseZero(colourLanesAt(d, off, pat->unitShift), z);
          zeros = hn::Or(zeros, z);
        }
        StoreOwned(d, vecOp<OP>(hn::LoadU(d, x + i), yv), out + i, pat, off, masked);
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
void constRow(const float* x, float* out, std::ptrdiff_t n, const RowPattern<float>* pat) {
  const StreamTag<float> d;
  ForEachVector(
      d, static_cast<size_t>(n), pat,
      [&](size_t i, size_t off, auto masked) {
        StoreOwned(d, vecOp<OP>(hn::LoadU(d, x + i), hn::LoadU(d, pat->value + off)), out + i,
                   pat, off, masked);
      },
      [&](size_t i, size_t off) {
        if (Owns(pat, off)) out[i] = fop<OP>(x[i], pat->value[off]);
      });
}

// Unmasked rows whose destination is written with cache-bypassing stores from its first
// vector-aligned element on; the results are those of the kernels above.
template <int OP>
int binaryRowStream(const float* x, const float* y, float* out, std::ptrdiff_t n,
                    const RowPattern<float>*) {
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
    hn::Stream(vecOp<OP>(hn::LoadU(d, x + i), yv), d, out + i);
  }
  for (; i < count; ++i) one(i);
  return zero | !hn::AllFalse(d, hn::MaskFromVec(zeros));
}

template <int OP>
void constRowStream(const float* x, float* out, std::ptrdiff_t n, const RowPattern<float>* pat) {
  const StreamTag<float> d;
  const size_t N = hn::Lanes(d), count = static_cast<size_t>(n), per = static_cast<size_t>(pat->period);
  size_t i = 0;
  for (; i < count && reinterpret_cast<uintptr_t>(out + i) % (N * sizeof(float)) != 0; ++i)
    out[i] = fop<OP>(x[i], pat->value[i % per]);
  for (; i + N <= count; i += N)
    hn::Stream(vecOp<OP>(hn::LoadU(d, x + i), hn::LoadU(d, pat->value + i % per)), d, out + i);
  for (; i < count; ++i) out[i] = fop<OP>(x[i], pat->value[i % per]);
}

}  // namespace arithv
#endif  // LUMI_TABLE_TARGET
LUMI_SIMD_END

#if HWY_ONCE
#include <xmmintrin.h>

namespace lumi {
namespace arithf {
namespace {

// Scalar twins of binaryRow / binaryRowStream and constRow / constRowStream.
template <int OP>
int binaryRowScalar(const float* x, const float* y, float* out, std::ptrdiff_t n,
                    const RowPattern<float>* pat) {
  int zero = 0;
  for (std::ptrdiff_t i = 0; i < n; ++i) {
    if (pat && !pat->writes(i)) continue;
    if (OP == 3 && y[i] == 0.0f) zero = 1;
    out[i] = fop<OP>(x[i], y[i]);
  }
  return zero;
}

template <int OP>
void constRowScalar(const float* x, float* out, std::ptrdiff_t n, const RowPattern<float>* pat) {
  for (std::ptrdiff_t i = 0; i < n; ++i)
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
  roi = coalesceRows(roi, 4 * L::kCh, s1Step, s2Step, dStep);
  const std::ptrdiff_t n = elemsOf(roi.width, L::kCh);
  const bool stream = !masked && bypassCache(12.0 * n * roi.height);
  F32BinaryRow row = pickBinaryRow(op, stream);
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
  roi = coalesceRows(roi, 4 * L::kCh, sStep, dStep);
  const std::ptrdiff_t n = elemsOf(roi.width, L::kCh);
  const bool stream = L::kUse == L::kCh && bypassCache(8.0 * n * roi.height);
  F32ConstRow row = pickConstRow(op, stream);
  for (int y = 0; y < roi.height; ++y) row(rowAt(s, sStep, y), rowAt(d, dStep, y), n, &pat);
  if (stream) endStreaming();
  return lumStatusOk;
}

template <int OP>
F32BinaryRow pickBinaryRowOf(bool stream) {
  LUMI_SIMD_TABLE(F32BinaryRow, table, arithv::binaryRow<OP>);
  LUMI_SIMD_TABLE(F32BinaryRow, streaming, arithv::binaryRowStream<OP>);
  return pick(stream ? streaming : table, &binaryRowScalar<OP>);
}
template <int OP>
F32ConstRow pickConstRowOf(bool stream) {
  LUMI_SIMD_TABLE(F32ConstRow, table, arithv::constRow<OP>);
  LUMI_SIMD_TABLE(F32ConstRow, streaming, arithv::constRowStream<OP>);
  return pick(stream ? streaming : table, &constRowScalar<OP>);
}

}  // namespace

F32BinaryRow pickBinaryRow(int op, bool stream) {
  switch (op) {
    case 0: return pickBinaryRowOf<0>(stream);
    case 1: return pickBinaryRowOf<1>(stream);
    case 2: return pickBinaryRowOf<2>(stream);
    default: return pickBinaryRowOf<3>(stream);
  }
}

F32ConstRow pickConstRow(int op, bool stream) {  // DivC is a multiplication by reciprocals
  switch (op) {
    case 0: return pickConstRowOf<0>(stream);
    case 1: return pickConstRowOf<1>(stream);
    default: return pickConstRowOf<2>(stream);
  }
}

bool bypassCache(double bytes) {
  if (bytes < 1048576.0) return false;
  int cache = 0;
  return lumGetMaxCacheSizeB(&cache) == 0 && cache > 0 && bytes > cache / 4.0;
}

void endStreaming() { _mm_sfence(); }

}  // namespace arithf
}  // namespace lumi

// ---- exports (stamps: float_kernels.h) -----------------------------------------------------
LUMI_FLOAT_IMAGE(lumiAdd_32f_C1R, binary32f, Lum32f, 0, C1)
LUMI_FLOAT_IMAGE_I(lumiAdd_32f_C1IR, binary32f, Lum32f, 0, C1)
LUMI_FLOAT_IMAGE(lumiAdd_32f_C3R, binary32f, Lum32f, 0, C3)
LUMI_FLOAT_IMAGE_I(lumiAdd_32f_C3IR, binary32f, Lum32f, 0, C3)
LUMI_FLOAT_IMAGE(lumiAdd_32f_C4R, binary32f, Lum32f, 0, C4)
LUMI_FLOAT_IMAGE_I(lumiAdd_32f_C4IR, binary32f, Lum32f, 0, C4)
LUMI_FLOAT_IMAGE(lumiAdd_32f_AC4R, binary32f, Lum32f, 0, AC4)
LUMI_FLOAT_IMAGE_I(lumiAdd_32f_AC4IR, binary32f, Lum32f, 0, AC4)
LUMI_FLOAT_IMAGE(lumiSub_32f_C1R, binary32f, Lum32f, 1, C1)
LUMI_FLOAT_IMAGE_I(lumiSub_32f_C1IR, binary32f, Lum32f, 1, C1)
LUMI_FLOAT_IMAGE(lumiSub_32f_C3R, binary32f, Lum32f, 1, C3)
LUMI_FLOAT_IMAGE_I(lumiSub_32f_C3IR, binary32f, Lum32f, 1, C3)
LUMI_FLOAT_IMAGE(lumiSub_32f_C4R, binary32f, Lum32f, 1, C4)
LUMI_FLOAT_IMAGE_I(lumiSub_32f_C4IR, binary32f, Lum32f, 1, C4)
LUMI_FLOAT_IMAGE(lumiSub_32f_AC4R, binary32f, Lum32f, 1, AC4)
LUMI_FLOAT_IMAGE_I(lumiSub_32f_AC4IR, binary32f, Lum32f, 1, AC4)
LUMI_FLOAT_IMAGE(lumiMul_32f_C1R, binary32f, Lum32f, 2, C1)
LUMI_FLOAT_IMAGE_I(lumiMul_32f_C1IR, binary32f, Lum32f, 2, C1)
LUMI_FLOAT_IMAGE(lumiMul_32f_C3R, binary32f, Lum32f, 2, C3)
LUMI_FLOAT_IMAGE_I(lumiMul_32f_C3IR, binary32f, Lum32f, 2, C3)
LUMI_FLOAT_IMAGE(lumiMul_32f_C4R, binary32f, Lum32f, 2, C4)
LUMI_FLOAT_IMAGE_I(lumiMul_32f_C4IR, binary32f, Lum32f, 2, C4)
LUMI_FLOAT_IMAGE(lumiMul_32f_AC4R, binary32f, Lum32f, 2, AC4)
LUMI_FLOAT_IMAGE_I(lumiMul_32f_AC4IR, binary32f, Lum32f, 2, AC4)
LUMI_FLOAT_IMAGE(lumiDiv_32f_C1R, binary32f, Lum32f, 3, C1)
LUMI_FLOAT_IMAGE_I(lumiDiv_32f_C1IR, binary32f, Lum32f, 3, C1)
LUMI_FLOAT_IMAGE(lumiDiv_32f_C3R, binary32f, Lum32f, 3, C3)
LUMI_FLOAT_IMAGE_I(lumiDiv_32f_C3IR, binary32f, Lum32f, 3, C3)
LUMI_FLOAT_IMAGE(lumiDiv_32f_C4R, binary32f, Lum32f, 3, C4)
LUMI_FLOAT_IMAGE_I(lumiDiv_32f_C4IR, binary32f, Lum32f, 3, C4)
LUMI_FLOAT_IMAGE(lumiDiv_32f_AC4R, binary32f, Lum32f, 3, AC4)
LUMI_FLOAT_IMAGE_I(lumiDiv_32f_AC4IR, binary32f, Lum32f, 3, AC4)
LUMI_FLOAT_CONST(lumiAddC_32f_C1R, const32f, Lum32f, 0, C1, Lum32f, &value)
LUMI_FLOAT_CONST_I(lumiAddC_32f_C1IR, const32f, Lum32f, 0, C1, Lum32f, &value)
LUMI_FLOAT_CONST(lumiAddC_32f_C3R, const32f, Lum32f, 0, C3, const Lum32f*, value)
LUMI_FLOAT_CONST_I(lumiAddC_32f_C3IR, const32f, Lum32f, 0, C3, const Lum32f*, value)
LUMI_FLOAT_CONST(lumiAddC_32f_C4R, const32f, Lum32f, 0, C4, const Lum32f*, value)
LUMI_FLOAT_CONST_I(lumiAddC_32f_C4IR, const32f, Lum32f, 0, C4, const Lum32f*, value)
LUMI_FLOAT_CONST(lumiAddC_32f_AC4R, const32f, Lum32f, 0, AC4, const Lum32f*, value)
LUMI_FLOAT_CONST_I(lumiAddC_32f_AC4IR, const32f, Lum32f, 0, AC4, const Lum32f*, value)
LUMI_FLOAT_CONST(lumiSubC_32f_C1R, const32f, Lum32f, 1, C1, Lum32f, &value)
LUMI_FLOAT_CONST_I(lumiSubC_32f_C1IR, const32f, Lum32f, 1, C1, Lum32f, &value)
LUMI_FLOAT_CONST(lumiSubC_32f_C3R, const32f, Lum32f, 1, C3, const Lum32f*, value)
LUMI_FLOAT_CONST_I(lumiSubC_32f_C3IR, const32f, Lum32f, 1, C3, const Lum32f*, value)
LUMI_FLOAT_CONST(lumiSubC_32f_C4R, const32f, Lum32f, 1, C4, const Lum32f*, value)
LUMI_FLOAT_CONST_I(lumiSubC_32f_C4IR, const32f, Lum32f, 1, C4, const Lum32f*, value)
LUMI_FLOAT_CONST(lumiSubC_32f_AC4R, const32f, Lum32f, 1, AC4, const Lum32f*, value)
LUMI_FLOAT_CONST_I(lumiSubC_32f_AC4IR, const32f, Lum32f, 1, AC4, const Lum32f*, value)
LUMI_FLOAT_CONST(lumiMulC_32f_C1R, const32f, Lum32f, 2, C1, Lum32f, &value)
LUMI_FLOAT_CONST_I(lumiMulC_32f_C1IR, const32f, Lum32f, 2, C1, Lum32f, &value)
LUMI_FLOAT_CONST(lumiMulC_32f_C3R, const32f, Lum32f, 2, C3, const Lum32f*, value)
LUMI_FLOAT_CONST_I(lumiMulC_32f_C3IR, const32f, Lum32f, 2, C3, const Lum32f*, value)
LUMI_FLOAT_CONST(lumiMulC_32f_C4R, const32f, Lum32f, 2, C4, const Lum32f*, value)
LUMI_FLOAT_CONST_I(lumiMulC_32f_C4IR, const32f, Lum32f, 2, C4, const Lum32f*, value)
LUMI_FLOAT_CONST(lumiMulC_32f_AC4R, const32f, Lum32f, 2, AC4, const Lum32f*, value)
LUMI_FLOAT_CONST_I(lumiMulC_32f_AC4IR, const32f, Lum32f, 2, AC4, const Lum32f*, value)
LUMI_FLOAT_CONST(lumiDivC_32f_C1R, const32f, Lum32f, 3, C1, Lum32f, &value)
LUMI_FLOAT_CONST_I(lumiDivC_32f_C1IR, const32f, Lum32f, 3, C1, Lum32f, &value)
LUMI_FLOAT_CONST(lumiDivC_32f_C3R, const32f, Lum32f, 3, C3, const Lum32f*, value)
LUMI_FLOAT_CONST_I(lumiDivC_32f_C3IR, const32f, Lum32f, 3, C3, const Lum32f*, value)
LUMI_FLOAT_CONST(lumiDivC_32f_C4R, const32f, Lum32f, 3, C4, const Lum32f*, value)
LUMI_FLOAT_CONST_I(lumiDivC_32f_C4IR, const32f, Lum32f, 3, C4, const Lum32f*, value)
LUMI_FLOAT_CONST(lumiDivC_32f_AC4R, const32f, Lum32f, 3, AC4, const Lum32f*, value)
LUMI_FLOAT_CONST_I(lumiDivC_32f_AC4IR, const32f, Lum32f, 3, AC4, const Lum32f*, value)

#endif  // HWY_ONCE
