// Linear maps between the full ranges of two element types: bytes up to 16u, 16s, 32s (full
// range) and 32f (a caller-given range), and 16u, 16s, 32s, 32f down to bytes.
#include "core/frame.h"

#include "convert/convert_kernels.h"

namespace lumi {
namespace {

// The single-precision reciprocals of the steps of one byte level in 16-bit and 32-bit ranges.
constexpr float kInv257 = 0.0038910505827516317f;
constexpr float kInv16843009 = static_cast<float>(1.0 / 16843009.0);

template <class L, class TS, class TD>
LumStatus scaleUp(const TS* src, int srcStep, TD* dst, int dstStep, LumiSize roi, Kernel k) {
  if (LumStatus st = checkImages(src, srcStep, dst, dstStep, roi)) return st;
  convertRows<L>(src, srcStep, dst, dstStep, roi, rowKernel(k), RowParams{}, true);
  return lumStatusOk;
}

// 0..255 onto [vMin, vMax]: vMin + v * ((vMax - vMin) / 255).
template <class L>
LumStatus scaleToFloat(const Lum8u* src, int srcStep, Lum32f* dst, int dstStep, LumiSize roi,
                       Lum32f vMin, Lum32f vMax) {
  const float range = vMax - vMin;
  if (!(range > 0.0f)) return lumStatusScaleRangeErr;  // tested before the pointers
  if (LumStatus st = checkImages(src, srcStep, dst, dstStep, roi)) return st;
  RowParams p;
  p.a = range / 255.0f;
  p.b = vMin;
  convertRows<L>(src, srcStep, dst, dstStep, roi, rowKernel(Kernel::kScale8u32f), p, true);
  return lumStatusOk;
}

// Integer ranges onto 0..255: (v + offset) / levelStep. The accurate path rounds to nearest
// (ties to even) for the call; the fast one keeps the caller's rounding mode.
template <class L, class TS>
LumStatus scaleDown(const TS* src, int srcStep, Lum8u* dst, int dstStep, LumiSize roi,
                    LumAccuracyHint hint, Kernel k, float offset, float inverseStep) {
  if (LumStatus st = checkImages(src, srcStep, dst, dstStep, roi)) return st;
  RowParams p;
  p.off = offset;
  p.a = inverseStep;
  RowFn fn = rowKernel(k);
  if (hint == lumHintAccurate) {
    ConversionRounding rounding(lumRndNear);
    convertRows<L>(src, srcStep, dst, dstStep, roi, fn, p, true);
  } else {
    convertRows<L>(src, srcStep, dst, dstStep, roi, fn, p, true);
  }
  return lumStatusOk;
}

// [vMin, vMax] onto 0..255: v * a - vMin * a with a = 255 / (vMax - vMin), rounded to nearest
// (ties to even) and saturated, so values outside the range clamp.
template <class L>
LumStatus scaleFromFloat(const Lum32f* src, int srcStep, Lum8u* dst, int dstStep, LumiSize roi,
                         Lum32f vMin, Lum32f vMax) {
  const float range = vMax - vMin;
  if (!(range > 0.0f)) return lumStatusScaleRangeErr;  // tested before the pointers
  if (LumStatus st = checkImages(src, srcStep, dst, dstStep, roi)) return st;
  RowFn fn = rowKernel(Kernel::kScale32f8u);
  // The factors are computed under round-to-nearest too, whatever the caller's mode; reading
  // the operands back through volatile keeps the arithmetic after the mode switch.
  volatile float rangeAfter = range, vMinAfter = vMin;
  ConversionRounding rounding(lumRndNear);
  RowParams p;
  p.a = 255.0f / rangeAfter;
  p.b = vMinAfter * p.a;
  convertRows<L>(src, srcStep, dst, dstStep, roi, fn, p, true);
  return lumStatusOk;
}

}  // namespace
}  // namespace lumi

#define LUMI_SCALE_UP_ONE(td, TD, L, K)                                                       \
  LUMI_API LumStatus lumiScale_8u##td##_##L##R(const Lum8u* pSrc, int srcStep, TD* pDst,    \
                                               int dstStep, LumiSize roiSize) {             \
    return lumi::scaleUp<lumi::L>(pSrc, srcStep, pDst, dstStep, roiSize, lumi::Kernel::K); \
  }
#define LUMI_SCALE_UP(td, TD, K)                                              \
  LUMI_SCALE_UP_ONE(td, TD, C1, K) LUMI_SCALE_UP_ONE(td, TD, C3, K)           \
  LUMI_SCALE_UP_ONE(td, TD, AC4, K) LUMI_SCALE_UP_ONE(td, TD, C4, K)

#define LUMI_SCALE_DOWN_ONE(ts, TS, L, K, OFF, INV)                                          \
  LUMI_API LumStatus lumiScale_##ts##8u_##L##R(const TS* pSrc, int srcStep, Lum8u* pDst,    \
                                               int dstStep, LumiSize roiSize,               \
                                               LumAccuracyHint hint) {                      \
    return lumi::scaleDown<lumi::L>(pSrc, srcStep, pDst, dstStep, roiSize, hint,            \
                                    lumi::Kernel::K, OFF, INV);                             \
  }
#define LUMI_SCALE_DOWN(ts, TS, K, OFF, INV)                                                 \
  LUMI_SCALE_DOWN_ONE(ts, TS, C1, K, OFF, INV) LUMI_SCALE_DOWN_ONE(ts, TS, C3, K, OFF, INV)  \
  LUMI_SCALE_DOWN_ONE(ts, TS, AC4, K, OFF, INV) LUMI_SCALE_DOWN_ONE(ts, TS, C4, K, OFF, INV)

#define LUMI_SCALE_FLOAT_ONE(L)                                                               \
  LUMI_API LumStatus lumiScale_8u32f_##L##R(const Lum8u* pSrc, int srcStep, Lum32f* pDst,   \
                                            int dstStep, LumiSize roiSize, Lum32f vMin,     \
                                            Lum32f vMax) {                                  \
    return lumi::scaleToFloat<lumi::L>(pSrc, srcStep, pDst, dstStep, roiSize, vMin, vMax); \
  }                                                                                         \
  LUMI_API LumStatus lumiScale_32f8u_##L##R(const Lum32f* pSrc, int srcStep, Lum8u* pDst,   \
                                            int dstStep, LumiSize roiSize, Lum32f vMin,     \
                                            Lum32f vMax) {                                  \
    return lumi::scaleFromFloat<lumi::L>(pSrc, srcStep, pDst, dstStep, roiSize, vMin,      \
                                         vMax);                                             \
  }

extern "C" {
LUMI_SCALE_UP(16u, Lum16u, kScale8u16u)
LUMI_SCALE_UP(16s, Lum16s, kScale8u16s)
LUMI_SCALE_UP(32s, Lum32s, kScale8u32s)
LUMI_SCALE_DOWN(16u, Lum16u, kScale16u8u, 0.0f, lumi::kInv257)
LUMI_SCALE_DOWN(16s, Lum16s, kScale16s8u, 32768.0f, lumi::kInv257)
LUMI_SCALE_DOWN(32s, Lum32s, kScale32s8u, 2147483648.0f, lumi::kInv16843009)
LUMI_SCALE_FLOAT_ONE(C1)
LUMI_SCALE_FLOAT_ONE(C3)
LUMI_SCALE_FLOAT_ONE(AC4)
LUMI_SCALE_FLOAT_ONE(C4)
}  // extern "C"
