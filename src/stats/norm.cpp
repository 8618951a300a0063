// Infinity, L1 and L2 norms of an image, of the difference of two images, and of that
// difference relative to the second image, one Lum64f per channel.
#include "core/frame.h"
#include "stats/stats_kernels.h"

#include <cmath>

namespace lumi {
namespace stats {
namespace {

// Double-precision path of 32f: per row, one sum over even and one over odd columns (per
// channel); the row sums go into an even and an odd total, which are added at the end.
template <int kOp, bool kDiff, int kCh>
void f32Accurate(const float* a, int aStep, const float* b, int bStep, LumiSize roi, double* out) {
  double even[4] = {0, 0, 0, 0}, odd[4] = {0, 0, 0, 0};
  for (int y = 0; y < roi.height; ++y) {
    const float* ra = rowAt(a, aStep, y);
    const float* rb = kDiff ? rowAt(b, bStep, y) : nullptr;
    double e[4] = {0, 0, 0, 0}, o[4] = {0, 0, 0, 0};
    for (int x = 0; x < roi.width; ++x)
      for (int c = 0; c < kCh; ++c) {
        int i = x * kCh + c;
        double v = kDiff ? static_cast<double>(ra[i]) - static_cast<double>(rb[i])
                         : static_cast<double>(ra[i]);
        double t = kOp == kOpSq ? v * v : std::fabs(v);
        if (x & 1)
          o[c] += t;
        else
          e[c] += t;
      }
    for (int c = 0; c < kCh; ++c) {
      even[c] += e[c];
      odd[c] += o[c];
    }
  }
  for (int c = 0; c < kCh; ++c) out[c] = even[c] + odd[c];
}

template <int kOp, bool kDiff>
void f32AccurateCh(int ch, const float* a, int aStep, const float* b, int bStep, LumiSize roi,
                   double* out) {
  if (ch == 1) f32Accurate<kOp, kDiff, 1>(a, aStep, b, bStep, roi, out);
  else if (ch == 3) f32Accurate<kOp, kDiff, 3>(a, aStep, b, bStep, roi, out);
  else f32Accurate<kOp, kDiff, 4>(a, aStep, b, bStep, roi, out);
}

// The quantity before the root: largest magnitude, sum of magnitudes or sum of squares, per
// channel of the kCh interleaved ones; b null for a single image.
template <class T>
void rawNorm(const T* a, int aStep, const T* b, int bStep, LumiSize roi, int op, int ch, int hint,
             double* raw) {
  if constexpr (std::is_same_v<T, Lum32f>) {
    if (op == kOpMax) {
      float m[4] = {0, 0, 0, 0};
      maxAbsF32(a, aStep, b, bStep, roi, ch, m);
      for (int c = 0; c < ch; ++c) raw[c] = m[c];
    } else if (hint == lumHintAccurate) {
      if (op == kOpAbs)
        b ? f32AccurateCh<kOpAbs, true>(ch, a, aStep, b, bStep, roi, raw)
          : f32AccurateCh<kOpAbs, false>(ch, a, aStep, b, bStep, roi, raw);
      else
        b ? f32AccurateCh<kOpSq, true>(ch, a, aStep, b, bStep, roi, raw)
          : f32AccurateCh<kOpSq, false>(ch, a, aStep, b, bStep, roi, raw);
    } else {
      float lanes[16] = {};
      reduceF32Lanes(a, aStep, b, bStep, roi, op, ch, lanes);
      for (int c = 0; c < ch; ++c) raw[c] = combineLanes(lanes + 4 * c);
    }
  } else {
    uint64_t acc[4] = {0, 0, 0, 0};
    reduceInt(a, aStep, b, bStep, roi, op, ch, acc);
    for (int c = 0; c < ch; ++c) raw[c] = static_cast<double>(acc[c]);
  }
}

inline double finish(int op, double raw) { return op == kOpSq ? std::sqrt(raw) : raw; }

template <class T, class L>
LumStatus normImpl(const T* src, int step, LumiSize roi, Lum64f* value, int op, int hint) {
  if (anyNull(src, value)) return lumStatusNullPtrErr;
  if (badSize(roi)) return lumStatusSizeErr;
  if (badStep(step)) return lumStatusStepErr;
  if constexpr (std::is_same_v<T, Lum8u> && L::kCh == 1) {
    // A row wider than 32768 pixels goes in strips of 32768 columns; the strips' norms are
    // combined as the root of the sum of their squares.
    constexpr int kStrip = 32768;
    if (op == kOpSq && roi.width > kStrip) {
      double total = 0;
      for (int x0 = 0; x0 < roi.width; x0 += kStrip) {
        LumiSize part{roi.width - x0 < kStrip ? roi.width - x0 : kStrip, roi.height};
        double raw;
        rawNorm<T>(src + x0, step, nullptr, 0, part, op, 1, hint, &raw);
        double n = std::sqrt(raw);
        total += n * n;
      }
      *value = std::sqrt(total);
      return lumStatusOk;
    }
  }
  double raw[4];
  rawNorm<T>(src, step, nullptr, 0, roi, op, L::kCh, hint, raw);
  for (int c = 0; c < L::kUse; ++c) value[c] = finish(op, raw[c]);
  return lumStatusOk;
}

template <class T, class L>
LumStatus normDiffImpl(const T* a, int aStep, const T* b, int bStep, LumiSize roi, Lum64f* value,
                       int op, int hint) {
  if (anyNull(a, b, value)) return lumStatusNullPtrErr;
  if (badSize(roi)) return lumStatusSizeErr;
  if (badStep(aStep, bStep)) return lumStatusStepErr;
  double raw[4];
  rawNorm<T>(a, aStep, b, bStep, roi, op, L::kCh, hint, raw);
  for (int c = 0; c < L::kUse; ++c) value[c] = finish(op, raw[c]);
  return lumStatusOk;
}

template <class T, class L>
LumStatus normRelImpl(const T* a, int aStep, const T* b, int bStep, LumiSize roi, Lum64f* value,
                      int op, int hint) {
  if (anyNull(a, b, value)) return lumStatusNullPtrErr;
  if (badSize(roi)) return lumStatusSizeErr;
  if (badStep(aStep, bStep)) return lumStatusStepErr;
  if constexpr (L::kCh == 1) {
    // numerator and denominator before the root; L2 divides the sums of squares
    double num, den;
    rawNorm<T>(a, aStep, b, bStep, roi, op, 1, hint, &num);
    rawNorm<T>(b, bStep, nullptr, 0, roi, op, 1, hint, &den);
    bool zero = (op == kOpMax && !std::is_same_v<T, Lum32f>) ? den == 0.0 : !(den >= kSmallestNormal);
    if (zero) {
      *value = finish(op, num);
      return lumStatusDivByZeroWarn;
    }
    *value = finish(op, num / den);
    return lumStatusOk;
  } else {
    // All channels are divided, or none: the first zero reference norm returns at once.
    double den[4];
    normImpl<T, L>(b, bStep, roi, den, op, hint);
    normDiffImpl<T, L>(a, aStep, b, bStep, roi, value, op, hint);
    for (int c = 0; c < L::kUse; ++c)
      if (den[c] < kSmallestNormal) return lumStatusDivByZeroWarn;
    for (int c = 0; c < L::kUse; ++c) value[c] /= den[c];
    return lumStatusOk;
  }
}

}  // namespace
}  // namespace stats
}  // namespace lumi

using lumi::AC4;
using lumi::C1;
using lumi::C3;
using lumi::C4;
using namespace lumi::stats;

#define LUMI_NORM_INT(T, TS, L, N, OP)                                                          \
  LUMI_API LumStatus lumiNorm_##N##_##TS##_##L##R(const T* pSrc, int srcStep, LumiSize roiSize, \
                                                  Lum64f* pValue) {                            \
    return normImpl<T, L>(pSrc, srcStep, roiSize, pValue, OP, 0);                               \
  }                                                                                             \
  LUMI_API LumStatus lumiNormDiff_##N##_##TS##_##L##R(const T* pSrc1, int src1Step,             \
                                                      const T* pSrc2, int src2Step,             \
                                                      LumiSize roiSize, Lum64f* pValue) {       \
    return normDiffImpl<T, L>(pSrc1, src1Step, pSrc2, src2Step, roiSize, pValue, OP, 0);        \
  }                                                                                             \
  LUMI_API LumStatus lumiNormRel_##N##_##TS##_##L##R(const T* pSrc1, int src1Step,              \
                                                     const T* pSrc2, int src2Step,              \
                                                     LumiSize roiSize, Lum64f* pValue) {        \
    return normRelImpl<T, L>(pSrc1, src1Step, pSrc2, src2Step, roiSize, pValue, OP, 0);         \
  }

#define LUMI_NORM_HINT(T, TS, L, N, OP)                                                         \
  LUMI_API LumStatus lumiNorm_##N##_##TS##_##L##R(const T* pSrc, int srcStep, LumiSize roiSize, \
                                                  Lum64f* pValue, LumAccuracyHint hint) {      \
    return normImpl<T, L>(pSrc, srcStep, roiSize, pValue, OP, hint);                            \
  }                                                                                             \
  LUMI_API LumStatus lumiNormDiff_##N##_##TS##_##L##R(                                          \
      const T* pSrc1, int src1Step, const T* pSrc2, int src2Step, LumiSize roiSize,            \
      Lum64f* pValue, LumAccuracyHint hint) {                                                   \
    return normDiffImpl<T, L>(pSrc1, src1Step, pSrc2, src2Step, roiSize, pValue, OP, hint);     \
  }                                                                                             \
  LUMI_API LumStatus lumiNormRel_##N##_##TS##_##L##R(                                           \
      const T* pSrc1, int src1Step, const T* pSrc2, int src2Step, LumiSize roiSize,            \
      Lum64f* pValue, LumAccuracyHint hint) {                                                   \
    return normRelImpl<T, L>(pSrc1, src1Step, pSrc2, src2Step, roiSize, pValue, OP, hint);      \
  }

#define LUMI_NORM_LAYOUTS(M, T, TS, N, OP) \
  M(T, TS, C1, N, OP) M(T, TS, C3, N, OP) M(T, TS, C4, N, OP) M(T, TS, AC4, N, OP)
#define LUMI_NORM_INT_TYPE(T, TS)                     \
  LUMI_NORM_LAYOUTS(LUMI_NORM_INT, T, TS, Inf, kOpMax) \
  LUMI_NORM_LAYOUTS(LUMI_NORM_INT, T, TS, L1, kOpAbs)  \
  LUMI_NORM_LAYOUTS(LUMI_NORM_INT, T, TS, L2, kOpSq)

extern "C" {
LUMI_NORM_INT_TYPE(Lum8u, 8u)
LUMI_NORM_INT_TYPE(Lum16s, 16s)
LUMI_NORM_INT_TYPE(Lum16u, 16u)
LUMI_NORM_LAYOUTS(LUMI_NORM_INT, Lum32f, 32f, Inf, kOpMax)
LUMI_NORM_LAYOUTS(LUMI_NORM_HINT, Lum32f, 32f, L1, kOpAbs)
LUMI_NORM_LAYOUTS(LUMI_NORM_HINT, Lum32f, 32f, L2, kOpSq)

LUMI_API LumStatus lumiNorm_Inf_32s_C1R(const Lum32s* pSrc, int srcStep, LumiSize roiSize,
                                        Lum64f* pValue) {
  if (lumi::anyNull(pSrc, pValue)) return lumStatusNullPtrErr;
  if (lumi::badSize(roiSize)) return lumStatusSizeErr;
  if (lumi::badStep(srcStep)) return lumStatusStepErr;
  uint32_t m = 0;  // |-2^31| = 2^31 still fits
  for (int y = 0; y < roiSize.height; ++y) {
    const Lum32s* r = lumi::rowAt(pSrc, srcStep, y);
    for (int x = 0; x < roiSize.width; ++x) {
      uint32_t v = r[x] < 0 ? 0u - static_cast<uint32_t>(r[x]) : static_cast<uint32_t>(r[x]);
      m = v > m ? v : m;
    }
  }
  *pValue = m;
  return lumStatusOk;
}
}
