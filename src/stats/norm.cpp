// Infinity, L1 and L2 norms of an image, of the difference of two images, and of that
// difference relative to the second image, one Lum64f per channel.
#include "core/frame.h"
#include "stats/stats_kernels.h"

#include <cmath>

namespace lumi {
namespace stats {
namespace {

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
      // double precision, every row summed on its own before it joins the totals
      if (op == kOpAbs)
        b ? f64EvenOdd<kOpAbs, true, true>(ch, a, aStep, b, bStep, roi, raw)
          : f64EvenOdd<kOpAbs, false, true>(ch, a, aStep, b, bStep, roi, raw);
      else
        b ? f64EvenOdd<kOpSq, true, true>(ch, a, aStep, b, bStep, roi, raw)
          : f64EvenOdd<kOpSq, false, true>(ch, a, aStep, b, bStep, roi, raw);
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

// The argument checks of every norm: pointers, then the ROI, then the steps; b and bStep
// count only for the two-image forms.
template <class T>
LumStatus checkNorm(const T* a, int aStep, const T* b, int bStep, bool twoImages, LumiSize roi,
                    const Lum64f* value) {
  if (anyNull(a, value) || (twoImages && b == nullptr)) return lumStatusNullPtrErr;
  if (badSize(roi)) return lumStatusSizeErr;
  if (badStep(aStep) || (twoImages && badStep(bStep))) return lumStatusStepErr;
  return lumStatusOk;
}

// The finished norm of every channel the layout owns (b null for a single image).
template <class T, class L>
void normOf(const T* a, int aStep, const T* b, int bStep, LumiSize roi, int op, int hint,
            Lum64f* value) {
  double raw[4];
  rawNorm<T>(a, aStep, b, bStep, roi, op, L::kCh, hint, raw);
  for (int c = 0; c < L::kUse; ++c) value[c] = finish(op, raw[c]);
}

template <class T, class L>
LumStatus normImpl(const T* src, int step, LumiSize roi, Lum64f* value, int op, int hint) {
  if (LumStatus st = checkNorm(src, step, src, step, false, roi, value)) return st;
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
  normOf<T, L>(src, step, nullptr, 0, roi, op, hint, value);
  return lumStatusOk;
}

template <class T, class L>
LumStatus normDiffImpl(const T* a, int aStep, const T* b, int bStep, LumiSize roi, Lum64f* value,
                       int op, int hint) {
  if (LumStatus st = checkNorm(a, aStep, b, bStep, true, roi, value)) return st;
  normOf<T, L>(a, aStep, b, bStep, roi, op, hint, value);
  return lumStatusOk;
}

template <class T, class L>
LumStatus normRelImpl(const T* a, int aStep, const T* b, int bStep, LumiSize roi, Lum64f* value,
                      int op, int hint) {
  if (LumStatus st = checkNorm(a, aStep, b, bStep, true, roi, value)) return st;
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

// One stamp per export. The 32f L1 and L2 forms take an accuracy hint; the others pass 0.
#define LUMI_NORM(NAME, T, L, OP)                                                        \
  LUMI_API LumStatus NAME(const T* pSrc, int srcStep, LumiSize roiSize, Lum64f* pValue) { \
    return normImpl<T, L>(pSrc, srcStep, roiSize, pValue, OP, 0);                        \
  }
// IMPL: normDiffImpl or normRelImpl.
#define LUMI_NORM_TWO(NAME, IMPL, T, L, OP)                                           \
  LUMI_API LumStatus NAME(const T* pSrc1, int src1Step, const T* pSrc2, int src2Step, \
                          LumiSize roiSize, Lum64f* pValue) {                         \
    return IMPL<T, L>(pSrc1, src1Step, pSrc2, src2Step, roiSize, pValue, OP, 0);      \
  }
#define LUMI_NORM_HINT(NAME, L, OP)                                                          \
  LUMI_API LumStatus NAME(const Lum32f* pSrc, int srcStep, LumiSize roiSize, Lum64f* pValue, \
                          LumAccuracyHint hint) {                                            \
    return normImpl<Lum32f, L>(pSrc, srcStep, roiSize, pValue, OP, hint);                    \
  }
#define LUMI_NORM_TWO_HINT(NAME, IMPL, L, OP)                                            \
  LUMI_API LumStatus NAME(const Lum32f* pSrc1, int src1Step, const Lum32f* pSrc2,        \
                          int src2Step, LumiSize roiSize, Lum64f* pValue,                \
                          LumAccuracyHint hint) {                                        \
    return IMPL<Lum32f, L>(pSrc1, src1Step, pSrc2, src2Step, roiSize, pValue, OP, hint); \
  }

using namespace lumi;
using namespace lumi::stats;

LUMI_NORM(lumiNorm_Inf_8u_C1R, Lum8u, C1, kOpMax)
LUMI_NORM(lumiNorm_Inf_8u_C3R, Lum8u, C3, kOpMax)
LUMI_NORM(lumiNorm_Inf_8u_C4R, Lum8u, C4, kOpMax)
LUMI_NORM(lumiNorm_Inf_8u_AC4R, Lum8u, AC4, kOpMax)
LUMI_NORM_TWO(lumiNormDiff_Inf_8u_C1R, normDiffImpl, Lum8u, C1, kOpMax)
LUMI_NORM_TWO(lumiNormDiff_Inf_8u_C3R, normDiffImpl, Lum8u, C3, kOpMax)
LUMI_NORM_TWO(lumiNormDiff_Inf_8u_C4R, normDiffImpl, Lum8u, C4, kOpMax)
LUMI_NORM_TWO(lumiNormDiff_Inf_8u_AC4R, normDiffImpl, Lum8u, AC4, kOpMax)
LUMI_NORM_TWO(lumiNormRel_Inf_8u_C1R, normRelImpl, Lum8u, C1, kOpMax)
LUMI_NORM_TWO(lumiNormRel_Inf_8u_C3R, normRelImpl, Lum8u, C3, kOpMax)
LUMI_NORM_TWO(lumiNormRel_Inf_8u_C4R, normRelImpl, Lum8u, C4, kOpMax)
LUMI_NORM_TWO(lumiNormRel_Inf_8u_AC4R, normRelImpl, Lum8u, AC4, kOpMax)
LUMI_NORM(lumiNorm_L1_8u_C1R, Lum8u, C1, kOpAbs)
LUMI_NORM(lumiNorm_L1_8u_C3R, Lum8u, C3, kOpAbs)
LUMI_NORM(lumiNorm_L1_8u_C4R, Lum8u, C4, kOpAbs)
LUMI_NORM(lumiNorm_L1_8u_AC4R, Lum8u, AC4, kOpAbs)
LUMI_NORM_TWO(lumiNormDiff_L1_8u_C1R, normDiffImpl, Lum8u, C1, kOpAbs)
LUMI_NORM_TWO(lumiNormDiff_L1_8u_C3R, normDiffImpl, Lum8u, C3, kOpAbs)
LUMI_NORM_TWO(lumiNormDiff_L1_8u_C4R, normDiffImpl, Lum8u, C4, kOpAbs)
LUMI_NORM_TWO(lumiNormDiff_L1_8u_AC4R, normDiffImpl, Lum8u, AC4, kOpAbs)
LUMI_NORM_TWO(lumiNormRel_L1_8u_C1R, normRelImpl, Lum8u, C1, kOpAbs)
LUMI_NORM_TWO(lumiNormRel_L1_8u_C3R, normRelImpl, Lum8u, C3, kOpAbs)
LUMI_NORM_TWO(lumiNormRel_L1_8u_C4R, normRelImpl, Lum8u, C4, kOpAbs)
LUMI_NORM_TWO(lumiNormRel_L1_8u_AC4R, normRelImpl, Lum8u, AC4, kOpAbs)
LUMI_NORM(lumiNorm_L2_8u_C1R, Lum8u, C1, kOpSq)
LUMI_NORM(lumiNorm_L2_8u_C3R, Lum8u, C3, kOpSq)
LUMI_NORM(lumiNorm_L2_8u_C4R, Lum8u, C4, kOpSq)
LUMI_NORM(lumiNorm_L2_8u_AC4R, Lum8u, AC4, kOpSq)
LUMI_NORM_TWO(lumiNormDiff_L2_8u_C1R, normDiffImpl, Lum8u, C1, kOpSq)
LUMI_NORM_TWO(lumiNormDiff_L2_8u_C3R, normDiffImpl, Lum8u, C3, kOpSq)
LUMI_NORM_TWO(lumiNormDiff_L2_8u_C4R, normDiffImpl, Lum8u, C4, kOpSq)
LUMI_NORM_TWO(lumiNormDiff_L2_8u_AC4R, normDiffImpl, Lum8u, AC4, kOpSq)
LUMI_NORM_TWO(lumiNormRel_L2_8u_C1R, normRelImpl, Lum8u, C1, kOpSq)
LUMI_NORM_TWO(lumiNormRel_L2_8u_C3R, normRelImpl, Lum8u, C3, kOpSq)
LUMI_NORM_TWO(lumiNormRel_L2_8u_C4R, normRelImpl, Lum8u, C4, kOpSq)
LUMI_NORM_TWO(lumiNormRel_L2_8u_AC4R, normRelImpl, Lum8u, AC4, kOpSq)
LUMI_NORM(lumiNorm_Inf_16s_C1R, Lum16s, C1, kOpMax)
LUMI_NORM(lumiNorm_Inf_16s_C3R, Lum16s, C3, kOpMax)
LUMI_NORM(lumiNorm_Inf_16s_C4R, Lum16s, C4, kOpMax)
LUMI_NORM(lumiNorm_Inf_16s_AC4R, Lum16s, AC4, kOpMax)
LUMI_NORM_TWO(lumiNormDiff_Inf_16s_C1R, normDiffImpl, Lum16s, C1, kOpMax)
LUMI_NORM_TWO(lumiNormDiff_Inf_16s_C3R, normDiffImpl, Lum16s, C3, kOpMax)
LUMI_NORM_TWO(lumiNormDiff_Inf_16s_C4R, normDiffImpl, Lum16s, C4, kOpMax)
LUMI_NORM_TWO(lumiNormDiff_Inf_16s_AC4R, normDiffImpl, Lum16s, AC4, kOpMax)
LUMI_NORM_TWO(lumiNormRel_Inf_16s_C1R, normRelImpl, Lum16s, C1, kOpMax)
LUMI_NORM_TWO(lumiNormRel_Inf_16s_C3R, normRelImpl, Lum16s, C3, kOpMax)
LUMI_NORM_TWO(lumiNormRel_Inf_16s_C4R, normRelImpl, Lum16s, C4, kOpMax)
LUMI_NORM_TWO(lumiNormRel_Inf_16s_AC4R, normRelImpl, Lum16s, AC4, kOpMax)
LUMI_NORM(lumiNorm_L1_16s_C1R, Lum16s, C1, kOpAbs)
LUMI_NORM(lumiNorm_L1_16s_C3R, Lum16s, C3, kOpAbs)
LUMI_NORM(lumiNorm_L1_16s_C4R, Lum16s, C4, kOpAbs)
LUMI_NORM(lumiNorm_L1_16s_AC4R, Lum16s, AC4, kOpAbs)
LUMI_NORM_TWO(lumiNormDiff_L1_16s_C1R, normDiffImpl, Lum16s, C1, kOpAbs)
LUMI_NORM_TWO(lumiNormDiff_L1_16s_C3R, normDiffImpl, Lum16s, C3, kOpAbs)
LUMI_NORM_TWO(lumiNormDiff_L1_16s_C4R, normDiffImpl, Lum16s, C4, kOpAbs)
LUMI_NORM_TWO(lumiNormDiff_L1_16s_AC4R, normDiffImpl, Lum16s, AC4, kOpAbs)
LUMI_NORM_TWO(lumiNormRel_L1_16s_C1R, normRelImpl, Lum16s, C1, kOpAbs)
LUMI_NORM_TWO(lumiNormRel_L1_16s_C3R, normRelImpl, Lum16s, C3, kOpAbs)
LUMI_NORM_TWO(lumiNormRel_L1_16s_C4R, normRelImpl, Lum16s, C4, kOpAbs)
LUMI_NORM_TWO(lumiNormRel_L1_16s_AC4R, normRelImpl, Lum16s, AC4, kOpAbs)
LUMI_NORM(lumiNorm_L2_16s_C1R, Lum16s, C1, kOpSq)
LUMI_NORM(lumiNorm_L2_16s_C3R, Lum16s, C3, kOpSq)
LUMI_NORM(lumiNorm_L2_16s_C4R, Lum16s, C4, kOpSq)
LUMI_NORM(lumiNorm_L2_16s_AC4R, Lum16s, AC4, kOpSq)
LUMI_NORM_TWO(lumiNormDiff_L2_16s_C1R, normDiffImpl, Lum16s, C1, kOpSq)
LUMI_NORM_TWO(lumiNormDiff_L2_16s_C3R, normDiffImpl, Lum16s, C3, kOpSq)
LUMI_NORM_TWO(lumiNormDiff_L2_16s_C4R, normDiffImpl, Lum16s, C4, kOpSq)
LUMI_NORM_TWO(lumiNormDiff_L2_16s_AC4R, normDiffImpl, Lum16s, AC4, kOpSq)
LUMI_NORM_TWO(lumiNormRel_L2_16s_C1R, normRelImpl, Lum16s, C1, kOpSq)
LUMI_NORM_TWO(lumiNormRel_L2_16s_C3R, normRelImpl, Lum16s, C3, kOpSq)
LUMI_NORM_TWO(lumiNormRel_L2_16s_C4R, normRelImpl, Lum16s, C4, kOpSq)
LUMI_NORM_TWO(lumiNormRel_L2_16s_AC4R, normRelImpl, Lum16s, AC4, kOpSq)
LUMI_NORM(lumiNorm_Inf_16u_C1R, Lum16u, C1, kOpMax)
LUMI_NORM(lumiNorm_Inf_16u_C3R, Lum16u, C3, kOpMax)
LUMI_NORM(lumiNorm_Inf_16u_C4R, Lum16u, C4, kOpMax)
LUMI_NORM(lumiNorm_Inf_16u_AC4R, Lum16u, AC4, kOpMax)
LUMI_NORM_TWO(lumiNormDiff_Inf_16u_C1R, normDiffImpl, Lum16u, C1, kOpMax)
LUMI_NORM_TWO(lumiNormDiff_Inf_16u_C3R, normDiffImpl, Lum16u, C3, kOpMax)
LUMI_NORM_TWO(lumiNormDiff_Inf_16u_C4R, normDiffImpl, Lum16u, C4, kOpMax)
LUMI_NORM_TWO(lumiNormDiff_Inf_16u_AC4R, normDiffImpl, Lum16u, AC4, kOpMax)
LUMI_NORM_TWO(lumiNormRel_Inf_16u_C1R, normRelImpl, Lum16u, C1, kOpMax)
LUMI_NORM_TWO(lumiNormRel_Inf_16u_C3R, normRelImpl, Lum16u, C3, kOpMax)
LUMI_NORM_TWO(lumiNormRel_Inf_16u_C4R, normRelImpl, Lum16u, C4, kOpMax)
LUMI_NORM_TWO(lumiNormRel_Inf_16u_AC4R, normRelImpl, Lum16u, AC4, kOpMax)
LUMI_NORM(lumiNorm_L1_16u_C1R, Lum16u, C1, kOpAbs)
LUMI_NORM(lumiNorm_L1_16u_C3R, Lum16u, C3, kOpAbs)
LUMI_NORM(lumiNorm_L1_16u_C4R, Lum16u, C4, kOpAbs)
LUMI_NORM(lumiNorm_L1_16u_AC4R, Lum16u, AC4, kOpAbs)
LUMI_NORM_TWO(lumiNormDiff_L1_16u_C1R, normDiffImpl, Lum16u, C1, kOpAbs)
LUMI_NORM_TWO(lumiNormDiff_L1_16u_C3R, normDiffImpl, Lum16u, C3, kOpAbs)
LUMI_NORM_TWO(lumiNormDiff_L1_16u_C4R, normDiffImpl, Lum16u, C4, kOpAbs)
LUMI_NORM_TWO(lumiNormDiff_L1_16u_AC4R, normDiffImpl, Lum16u, AC4, kOpAbs)
LUMI_NORM_TWO(lumiNormRel_L1_16u_C1R, normRelImpl, Lum16u, C1, kOpAbs)
LUMI_NORM_TWO(lumiNormRel_L1_16u_C3R, normRelImpl, Lum16u, C3, kOpAbs)
LUMI_NORM_TWO(lumiNormRel_L1_16u_C4R, normRelImpl, Lum16u, C4, kOpAbs)
LUMI_NORM_TWO(lumiNormRel_L1_16u_AC4R, normRelImpl, Lum16u, AC4, kOpAbs)
LUMI_NORM(lumiNorm_L2_16u_C1R, Lum16u, C1, kOpSq)
LUMI_NORM(lumiNorm_L2_16u_C3R, Lum16u, C3, kOpSq)
LUMI_NORM(lumiNorm_L2_16u_C4R, Lum16u, C4, kOpSq)
LUMI_NORM(lumiNorm_L2_16u_AC4R, Lum16u, AC4, kOpSq)
LUMI_NORM_TWO(lumiNormDiff_L2_16u_C1R, normDiffImpl, Lum16u, C1, kOpSq)
LUMI_NORM_TWO(lumiNormDiff_L2_16u_C3R, normDiffImpl, Lum16u, C3, kOpSq)
LUMI_NORM_TWO(lumiNormDiff_L2_16u_C4R, normDiffImpl, Lum16u, C4, kOpSq)
LUMI_NORM_TWO(lumiNormDiff_L2_16u_AC4R, normDiffImpl, Lum16u, AC4, kOpSq)
LUMI_NORM_TWO(lumiNormRel_L2_16u_C1R, normRelImpl, Lum16u, C1, kOpSq)
LUMI_NORM_TWO(lumiNormRel_L2_16u_C3R, normRelImpl, Lum16u, C3, kOpSq)
LUMI_NORM_TWO(lumiNormRel_L2_16u_C4R, normRelImpl, Lum16u, C4, kOpSq)
LUMI_NORM_TWO(lumiNormRel_L2_16u_AC4R, normRelImpl, Lum16u, AC4, kOpSq)
LUMI_NORM(lumiNorm_Inf_32f_C1R, Lum32f, C1, kOpMax)
LUMI_NORM(lumiNorm_Inf_32f_C3R, Lum32f, C3, kOpMax)
LUMI_NORM(lumiNorm_Inf_32f_C4R, Lum32f, C4, kOpMax)
LUMI_NORM(lumiNorm_Inf_32f_AC4R, Lum32f, AC4, kOpMax)
LUMI_NORM_TWO(lumiNormDiff_Inf_32f_C1R, normDiffImpl, Lum32f, C1, kOpMax)
LUMI_NORM_TWO(lumiNormDiff_Inf_32f_C3R, normDiffImpl, Lum32f, C3, kOpMax)
LUMI_NORM_TWO(lumiNormDiff_Inf_32f_C4R, normDiffImpl, Lum32f, C4, kOpMax)
LUMI_NORM_TWO(lumiNormDiff_Inf_32f_AC4R, normDiffImpl, Lum32f, AC4, kOpMax)
LUMI_NORM_TWO(lumiNormRel_Inf_32f_C1R, normRelImpl, Lum32f, C1, kOpMax)
LUMI_NORM_TWO(lumiNormRel_Inf_32f_C3R, normRelImpl, Lum32f, C3, kOpMax)
LUMI_NORM_TWO(lumiNormRel_Inf_32f_C4R, normRelImpl, Lum32f, C4, kOpMax)
LUMI_NORM_TWO(lumiNormRel_Inf_32f_AC4R, normRelImpl, Lum32f, AC4, kOpMax)
LUMI_NORM_HINT(lumiNorm_L1_32f_C1R, C1, kOpAbs)
LUMI_NORM_HINT(lumiNorm_L1_32f_C3R, C3, kOpAbs)
LUMI_NORM_HINT(lumiNorm_L1_32f_C4R, C4, kOpAbs)
LUMI_NORM_HINT(lumiNorm_L1_32f_AC4R, AC4, kOpAbs)
LUMI_NORM_TWO_HINT(lumiNormDiff_L1_32f_C1R, normDiffImpl, C1, kOpAbs)
LUMI_NORM_TWO_HINT(lumiNormDiff_L1_32f_C3R, normDiffImpl, C3, kOpAbs)
LUMI_NORM_TWO_HINT(lumiNormDiff_L1_32f_C4R, normDiffImpl, C4, kOpAbs)
LUMI_NORM_TWO_HINT(lumiNormDiff_L1_32f_AC4R, normDiffImpl, AC4, kOpAbs)
LUMI_NORM_TWO_HINT(lumiNormRel_L1_32f_C1R, normRelImpl, C1, kOpAbs)
LUMI_NORM_TWO_HINT(lumiNormRel_L1_32f_C3R, normRelImpl, C3, kOpAbs)
LUMI_NORM_TWO_HINT(lumiNormRel_L1_32f_C4R, normRelImpl, C4, kOpAbs)
LUMI_NORM_TWO_HINT(lumiNormRel_L1_32f_AC4R, normRelImpl, AC4, kOpAbs)
LUMI_NORM_HINT(lumiNorm_L2_32f_C1R, C1, kOpSq)
LUMI_NORM_HINT(lumiNorm_L2_32f_C3R, C3, kOpSq)
LUMI_NORM_HINT(lumiNorm_L2_32f_C4R, C4, kOpSq)
LUMI_NORM_HINT(lumiNorm_L2_32f_AC4R, AC4, kOpSq)
LUMI_NORM_TWO_HINT(lumiNormDiff_L2_32f_C1R, normDiffImpl, C1, kOpSq)
LUMI_NORM_TWO_HINT(lumiNormDiff_L2_32f_C3R, normDiffImpl, C3, kOpSq)
LUMI_NORM_TWO_HINT(lumiNormDiff_L2_32f_C4R, normDiffImpl, C4, kOpSq)
LUMI_NORM_TWO_HINT(lumiNormDiff_L2_32f_AC4R, normDiffImpl, AC4, kOpSq)
LUMI_NORM_TWO_HINT(lumiNormRel_L2_32f_C1R, normRelImpl, C1, kOpSq)
LUMI_NORM_TWO_HINT(lumiNormRel_L2_32f_C3R, normRelImpl, C3, kOpSq)
LUMI_NORM_TWO_HINT(lumiNormRel_L2_32f_C4R, normRelImpl, C4, kOpSq)
LUMI_NORM_TWO_HINT(lumiNormRel_L2_32f_AC4R, normRelImpl, AC4, kOpSq)

// The one 32-bit signed norm: |-2^31| = 2^31 still fits the unsigned maximum.
LUMI_API LumStatus lumiNorm_Inf_32s_C1R(const Lum32s* pSrc, int srcStep, LumiSize roiSize,
                                        Lum64f* pValue) {
  if (LumStatus st = checkNorm(pSrc, srcStep, pSrc, srcStep, false, roiSize, pValue)) return st;
  uint32_t m = 0;
  for (int y = 0; y < roiSize.height; ++y) {
    const Lum32s* r = rowAt(pSrc, srcStep, y);
    for (int x = 0; x < roiSize.width; ++x) {
      uint32_t v = r[x] < 0 ? 0u - static_cast<uint32_t>(r[x]) : static_cast<uint32_t>(r[x]);
      m = v > m ? v : m;
    }
  }
  *pValue = m;
  return lumStatusOk;
}
