// Sum and mean of the samples of a ROI, one Lum64f per channel.
#include "core/frame.h"
#include "stats/stats_kernels.h"

namespace lumi {
namespace stats {
namespace {

// Double-precision 32f sum: an even-column and an odd-column sum per channel, carried across
// all rows (an odd last sample goes to the even sum), added at the end.
template <int kCh>
void f32SumAccurate(const float* src, int step, LumiSize roi, double* out) {
  double even[4] = {0, 0, 0, 0}, odd[4] = {0, 0, 0, 0};
  for (int y = 0; y < roi.height; ++y) {
    const float* r = rowAt(src, step, y);
    int x = 0;
    for (; x + 2 <= roi.width; x += 2)
      for (int c = 0; c < kCh; ++c) {
        even[c] += r[x * kCh + c];
        odd[c] += r[(x + 1) * kCh + c];
      }
    if (x < roi.width)
      for (int c = 0; c < kCh; ++c) even[c] += r[x * kCh + c];
  }
  for (int c = 0; c < kCh; ++c) out[c] = odd[c] + even[c];
}

template <class T, class L>
LumStatus sumImpl(const T* src, int step, LumiSize roi, Lum64f* sum, int hint) {
  if (anyNull(src, sum)) return lumStatusNullPtrErr;
  if (badStep(step)) return lumStatusStepErr;  // the step goes first in this family
  if (badSize(roi)) return lumStatusSizeErr;
  double out[4];
  if constexpr (std::is_same_v<T, Lum32f>) {
    if (hint == lumHintAccurate) {
      if (L::kCh == 1) f32SumAccurate<1>(src, step, roi, out);
      else if (L::kCh == 3) f32SumAccurate<3>(src, step, roi, out);
      else f32SumAccurate<4>(src, step, roi, out);
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

using lumi::AC4;
using lumi::C1;
using lumi::C3;
using lumi::C4;
using namespace lumi::stats;

#define LUMI_SUM_INT(T, TS, L)                                                                 \
  LUMI_API LumStatus lumiSum_##TS##_##L##R(const T* pSrc, int srcStep, LumiSize roiSize,      \
                                           Lum64f* pSum) {                                    \
    return sumImpl<T, L>(pSrc, srcStep, roiSize, pSum, 0);                                     \
  }                                                                                            \
  LUMI_API LumStatus lumiMean_##TS##_##L##R(const T* pSrc, int srcStep, LumiSize roiSize,     \
                                            Lum64f* pMean) {                                  \
    return meanImpl<T, L>(pSrc, srcStep, roiSize, pMean, 0);                                   \
  }
#define LUMI_SUM_F32(L)                                                                        \
  LUMI_API LumStatus lumiSum_32f_##L##R(const Lum32f* pSrc, int srcStep, LumiSize roiSize,    \
                                        Lum64f* pSum, LumAccuracyHint hint) {                 \
    return sumImpl<Lum32f, L>(pSrc, srcStep, roiSize, pSum, hint);                             \
  }                                                                                            \
  LUMI_API LumStatus lumiMean_32f_##L##R(const Lum32f* pSrc, int srcStep, LumiSize roiSize,   \
                                         Lum64f* pMean, LumAccuracyHint hint) {               \
    return meanImpl<Lum32f, L>(pSrc, srcStep, roiSize, pMean, hint);                           \
  }
#define LUMI_SUM_LAYOUTS(T, TS) \
  LUMI_SUM_INT(T, TS, C1) LUMI_SUM_INT(T, TS, C3) LUMI_SUM_INT(T, TS, C4) LUMI_SUM_INT(T, TS, AC4)

extern "C" {
LUMI_SUM_LAYOUTS(Lum8u, 8u)
LUMI_SUM_LAYOUTS(Lum16s, 16s)
LUMI_SUM_LAYOUTS(Lum16u, 16u)
LUMI_SUM_F32(C1)
LUMI_SUM_F32(C3)
LUMI_SUM_F32(C4)
LUMI_SUM_F32(AC4)
}
