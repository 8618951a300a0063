// Linear maps between the full ranges of two element types: bytes up to 16u, 16s, 32s (full
// range) and 32f (a caller-given range), and 16u, 16s, 32s, 32f down to bytes.
#include "core/frame.h"

#include "convert/convert_kernels.h"

namespace lumi {
namespace {

// The single-precision reciprocals of the steps of one byte level in 16-bit and 32-bit ranges.
constexpr float kInv257 = 0.0038910505827516317f;
constexpr float kInv16843009 = static_cast<float>(1.0 / 16843009.0);

// Bytes onto the full range of a wider integer: each byte repeated, signed ranges shifted down.
template <class L, class TD>
LumStatus scaleUp(const Lum8u* src, int srcStep, TD* dst, int dstStep, LumiSize roi, Kernel k) {
  return convertImage<L>(src, srcStep, dst, dstStep, roi, k, kCallerRounding,
                         [] { return RowParams{}; });
}

// Integer ranges onto 0..255: (v + offset) / levelStep. The accurate path rounds to nearest
// (ties to even) for the call; the fast one keeps the caller's rounding mode.
template <class L, class TS>
LumStatus scaleDown(const TS* src, int srcStep, Lum8u* dst, int dstStep, LumiSize roi,
                    LumAccuracyHint hint, Kernel k, float offset, float inverseStep) {
  const auto rounding = hint == lumHintAccurate ? std::optional<int>(lumRndNear) : kCallerRounding;
  return convertImage<L>(src, srcStep, dst, dstStep, roi, k, rounding, [=] {
    RowParams p;
    p.off = offset;
    p.a = inverseStep;
    return p;
  });
}

// Bytes and floats over a caller-given range [vMin, vMax]. Up: 0..255 onto the range,
// vMin + v * ((vMax - vMin) / 255). Down: v * a - vMin * a with a = 255 / (vMax - vMin),
// rounded to nearest (ties to even) and saturated, so values outside the range clamp; those
// factors are computed under round-to-nearest too, whatever the caller's mode, and reading the
// operands back through volatile keeps that arithmetic after the mode switch.
template <class L, class TS, class TD>
LumStatus scaleFloat(const TS* src, int srcStep, TD* dst, int dstStep, LumiSize roi, Lum32f vMin,
                     Lum32f vMax) {
  constexpr bool kUp = std::is_same_v<TD, Lum32f>;
  const float range = vMax - vMin;
  if (!(range > 0.0f)) return lumStatusScaleRangeErr;  // tested before the pointers
  volatile float rangeAfter = range, vMinAfter = vMin;
  return convertImage<L>(src, srcStep, dst, dstStep, roi,
                         kUp ? Kernel::kScale8u32f : Kernel::kScale32f8u,
                         kUp ? kCallerRounding : std::optional<int>(lumRndNear), [&] {
                           RowParams p;
                           p.a = kUp ? rangeAfter / 255.0f : 255.0f / rangeAfter;
                           p.b = kUp ? vMinAfter : vMinAfter * p.a;
                           return p;
                         });
}

}  // namespace
}  // namespace lumi

#define LUMI_SCALE_UP(NAME, TD, L, K)                                                        \
  LUMI_API LumStatus NAME(const Lum8u* pSrc, int srcStep, TD* pDst, int dstStep,           \
                          LumiSize roiSize) {                                              \
    return lumi::scaleUp<lumi::L>(pSrc, srcStep, pDst, dstStep, roiSize, lumi::Kernel::K); \
  }
#define LUMI_SCALE_DOWN(NAME, TS, L, K, OFF, INV)                                            \
  LUMI_API LumStatus NAME(const TS* pSrc, int srcStep, Lum8u* pDst, int dstStep,           \
                          LumiSize roiSize, LumAccuracyHint hint) {                        \
    return lumi::scaleDown<lumi::L>(pSrc, srcStep, pDst, dstStep, roiSize, hint,           \
                                    lumi::Kernel::K, OFF, INV);                            \
  }
#define LUMI_SCALE_FLOAT(NAME, TS, TD, L)                                                    \
  LUMI_API LumStatus NAME(const TS* pSrc, int srcStep, TD* pDst, int dstStep,              \
                          LumiSize roiSize, Lum32f vMin, Lum32f vMax) {                    \
    return lumi::scaleFloat<lumi::L>(pSrc, srcStep, pDst, dstStep, roiSize, vMin, vMax);   \
  }

LUMI_SCALE_UP(lumiScale_8u16u_C1R, Lum16u, C1, kScale8u16u)
LUMI_SCALE_UP(lumiScale_8u16u_C3R, Lum16u, C3, kScale8u16u)
LUMI_SCALE_UP(lumiScale_8u16u_AC4R, Lum16u, AC4, kScale8u16u)
LUMI_SCALE_UP(lumiScale_8u16u_C4R, Lum16u, C4, kScale8u16u)
LUMI_SCALE_UP(lumiScale_8u16s_C1R, Lum16s, C1, kScale8u16s)
LUMI_SCALE_UP(lumiScale_8u16s_C3R, Lum16s, C3, kScale8u16s)
LUMI_SCALE_UP(lumiScale_8u16s_AC4R, Lum16s, AC4, kScale8u16s)
LUMI_SCALE_UP(lumiScale_8u16s_C4R, Lum16s, C4, kScale8u16s)
LUMI_SCALE_UP(lumiScale_8u32s_C1R, Lum32s, C1, kScale8u32s)
LUMI_SCALE_UP(lumiScale_8u32s_C3R, Lum32s, C3, kScale8u32s)
LUMI_SCALE_UP(lumiScale_8u32s_AC4R, Lum32s, AC4, kScale8u32s)
LUMI_SCALE_UP(lumiScale_8u32s_C4R, Lum32s, C4, kScale8u32s)
LUMI_SCALE_DOWN(lumiScale_16u8u_C1R, Lum16u, C1, kScale16u8u, 0.0f, lumi::kInv257)
LUMI_SCALE_DOWN(lumiScale_16u8u_C3R, Lum16u, C3, kScale16u8u, 0.0f, lumi::kInv257)
LUMI_SCALE_DOWN(lumiScale_16u8u_AC4R, Lum16u, AC4, kScale16u8u, 0.0f, lumi::kInv257)
LUMI_SCALE_DOWN(lumiScale_16u8u_C4R, Lum16u, C4, kScale16u8u, 0.0f, lumi::kInv257)
LUMI_SCALE_DOWN(lumiScale_16s8u_C1R, Lum16s, C1, kScale16s8u, 32768.0f, lumi::kInv257)
LUMI_SCALE_DOWN(lumiScale_16s8u_C3R, Lum16s, C3, kScale16s8u, 32768.0f, lumi::kInv257)
LUMI_SCALE_DOWN(lumiScale_16s8u_AC4R, Lum16s, AC4, kScale16s8u, 32768.0f, lumi::kInv257)
LUMI_SCALE_DOWN(lumiScale_16s8u_C4R, Lum16s, C4, kScale16s8u, 32768.0f, lumi::kInv257)
LUMI_SCALE_DOWN(lumiScale_32s8u_C1R, Lum32s, C1, kScale32s8u, 2147483648.0f, lumi::kInv16843009)
LUMI_SCALE_DOWN(lumiScale_32s8u_C3R, Lum32s, C3, kScale32s8u, 2147483648.0f, lumi::kInv16843009)
LUMI_SCALE_DOWN(lumiScale_32s8u_AC4R, Lum32s, AC4, kScale32s8u, 2147483648.0f, lumi::kInv16843009)
LUMI_SCALE_DOWN(lumiScale_32s8u_C4R, Lum32s, C4, kScale32s8u, 2147483648.0f, lumi::kInv16843009)
LUMI_SCALE_FLOAT(lumiScale_8u32f_C1R, Lum8u, Lum32f, C1)
LUMI_SCALE_FLOAT(lumiScale_32f8u_C1R, Lum32f, Lum8u, C1)
LUMI_SCALE_FLOAT(lumiScale_8u32f_C3R, Lum8u, Lum32f, C3)
LUMI_SCALE_FLOAT(lumiScale_32f8u_C3R, Lum32f, Lum8u, C3)
LUMI_SCALE_FLOAT(lumiScale_8u32f_AC4R, Lum8u, Lum32f, AC4)
LUMI_SCALE_FLOAT(lumiScale_32f8u_AC4R, Lum32f, Lum8u, AC4)
LUMI_SCALE_FLOAT(lumiScale_8u32f_C4R, Lum8u, Lum32f, C4)
LUMI_SCALE_FLOAT(lumiScale_32f8u_C4R, Lum32f, Lum8u, C4)
