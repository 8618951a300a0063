// Sum and mean of the samples of a ROI, one Lum64f per channel.
#include "core/frame.h"
#include "stats/stats_kernels.h"

namespace lumi {
namespace stats {
namespace {

template <class T, class L>
LumStatus sumImpl(const T* src, int step, LumiSize roi, Lum64f* sum, int hint) {
  if (anyNull(src, sum)) return lumStatusNullPtrErr;
  if (badStep(step)) return lumStatusStepErr;  // the step goes first in this family
  if (badSize(roi)) return lumStatusSizeErr;
  double out[4];
  if constexpr (std::is_same_v<T, Lum32f>) {
    if (hint == lumHintAccurate) {
      // double precision, the even and odd totals carried across all rows
      f64EvenOdd<kOpPlain, false, L::kCh, false>(src, step, nullptr, 0, roi, out);
    } else {
      float lanes[16] = {};
      reduceF32Lanes(src, step, nullptr, 0, roi, kOpPlain, L::kCh, lanes);
      for (int c = 0; c < L::kCh; ++c) {
        const float* l = lanes + 4 * c;
        long double s = static_cast<long double>(l[0]) + l[1] + l[2] + l[3];
        out[c] = static_cast<double>(s);
      }
    }
  } else {
    uint64_t acc[4] = {0, 0, 0, 0};
    reduceInt(src, step, static_cast<const T*>(nullptr), 0, roi, kOpPlain, L::kCh, acc);
    for (int c = 0; c < L::kCh; ++c)
      out[c] = std::is_signed_v<T> ? static_cast<double>(static_cast<int64_t>(acc[c]))
                                   : static_cast<double>(acc[c]);
  }
  for (int c = 0; c < L::kUse; ++c) sum[c] = out[c];
  return lumStatusOk;
}

template <class T, class L>
LumStatus meanImpl(const T* src, int step, LumiSize roi, Lum64f* mean, int hint) {
  if (mean == nullptr) return lumStatusNullPtrErr;
  double s[4];
  LumStatus st = sumImpl<T, L>(src, step, roi, s, hint);
  if (st != lumStatusOk) return st;
  // the pixel count as a 32-bit signed product
  int n = static_cast<int>(static_cast<uint32_t>(roi.width) * static_cast<uint32_t>(roi.height));
  if (L::kCh == 1) {
    mean[0] = s[0] / n;
  } else {
    double r = 1.0 / n;
    for (int c = 0; c < L::kUse; ++c) mean[c] = s[c] * r;
  }
  return lumStatusOk;
}

}  // namespace
}  // namespace stats
}  // namespace lumi

#define LUMI_SUM(NAME, T, L)                                                        \
  LUMI_API LumStatus NAME(const T* pSrc, int srcStep, LumiSize roiSize, Lum64f* pSum) { \
    return sumImpl<T, L>(pSrc, srcStep, roiSize, pSum, 0);                          \
  }
#define LUMI_MEAN(NAME, T, L)                                                          \
  LUMI_API LumStatus NAME(const T* pSrc, int srcStep, LumiSize roiSize, Lum64f* pMean) { \
    return meanImpl<T, L>(pSrc, srcStep, roiSize, pMean, 0);                           \
  }
// The 32f forms take an accuracy hint; the integer ones above sum exactly.
#define LUMI_SUM_HINT(NAME, L)                                                               \
  LUMI_API LumStatus NAME(const Lum32f* pSrc, int srcStep, LumiSize roiSize, Lum64f* pSum,   \
                          LumAccuracyHint hint) {                                            \
    return sumImpl<Lum32f, L>(pSrc, srcStep, roiSize, pSum, hint);                           \
  }
#define LUMI_MEAN_HINT(NAME, L)                                                              \
  LUMI_API LumStatus NAME(const Lum32f* pSrc, int srcStep, LumiSize roiSize, Lum64f* pMean,  \
                          LumAccuracyHint hint) {                                            \
    return meanImpl<Lum32f, L>(pSrc, srcStep, roiSize, pMean, hint);                         \
  }

using namespace lumi;
using namespace lumi::stats;

LUMI_SUM(lumiSum_8u_C1R, Lum8u, C1)
LUMI_MEAN(lumiMean_8u_C1R, Lum8u, C1)
LUMI_SUM(lumiSum_8u_C3R, Lum8u, C3)
LUMI_MEAN(lumiMean_8u_C3R, Lum8u, C3)
LUMI_SUM(lumiSum_8u_C4R, Lum8u, C4)
LUMI_MEAN(lumiMean_8u_C4R, Lum8u, C4)
LUMI_SUM(lumiSum_8u_AC4R, Lum8u, AC4)
LUMI_MEAN(lumiMean_8u_AC4R, Lum8u, AC4)
LUMI_SUM(lumiSum_16s_C1R, Lum16s, C1)
LUMI_MEAN(lumiMean_16s_C1R, Lum16s, C1)
LUMI_SUM(lumiSum_16s_C3R, Lum16s, C3)
LUMI_MEAN(lumiMean_16s_C3R, Lum16s, C3)
LUMI_SUM(lumiSum_16s_C4R, Lum16s, C4)
LUMI_MEAN(lumiMean_16s_C4R, Lum16s, C4)
LUMI_SUM(lumiSum_16s_AC4R, Lum16s, AC4)
LUMI_MEAN(lumiMean_16s_AC4R, Lum16s, AC4)
LUMI_SUM(lumiSum_16u_C1R, Lum16u, C1)
LUMI_MEAN(lumiMean_16u_C1R, Lum16u, C1)
LUMI_SUM(lumiSum_16u_C3R, Lum16u, C3)
LUMI_MEAN(lumiMean_16u_C3R, Lum16u, C3)
LUMI_SUM(lumiSum_16u_C4R, Lum16u, C4)
LUMI_MEAN(lumiMean_16u_C4R, Lum16u, C4)
LUMI_SUM(lumiSum_16u_AC4R, Lum16u, AC4)
LUMI_MEAN(lumiMean_16u_AC4R, Lum16u, AC4)
LUMI_SUM_HINT(lumiSum_32f_C1R, C1)
LUMI_MEAN_HINT(lumiMean_32f_C1R, C1)
LUMI_SUM_HINT(lumiSum_32f_C3R, C3)
LUMI_MEAN_HINT(lumiMean_32f_C3R, C3)
LUMI_SUM_HINT(lumiSum_32f_C4R, C4)
LUMI_MEAN_HINT(lumiMean_32f_C4R, C4)
LUMI_SUM_HINT(lumiSum_32f_AC4R, AC4)
LUMI_MEAN_HINT(lumiMean_32f_AC4R, AC4)
