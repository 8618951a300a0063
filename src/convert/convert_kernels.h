// Row kernels of the type conversions and range scalings, and the image walk they share. The
// kernels live in convert.cpp (compiled once per SIMD target, with plain scalar twins);
// Convert and Scale only validate, set the rounding mode where they need one, and walk rows.
#pragma once

#include "core/frame.h"

#include <cstddef>
#include <cstdint>
#include <optional>

namespace lumi {

// Constants of the affine kernels: up-scaling to 32f computes v * a + b; the scalings down to
// 8u compute (v + off) * a - b, all in single precision, in that order. Float-to-integer
// kernels may round explicitly rather than by the current mode: `truncate` names the mode the
// caller has set (toward zero, else to nearest even). `keepAlpha`: the row is of AC4 pixels,
// whose fourth elements are not written.
struct RowParams {
  float off = 0.0f, a = 1.0f, b = 0.0f;
  bool truncate = false;
  bool keepAlpha = false;
};

// One row of n elements (channels counted individually).
using RowFn = void (*)(const void* src, void* dst, std::ptrdiff_t n, const RowParams& p);

// What a kernel does to each element.
enum class Kind : int {
  kWiden,       // integer to a wider integer or to 32f, exact (but 32-bit integers to 32f)
  kNarrow,      // saturating integer narrowing
  kFloatToInt,  // float to integer under the current rounding mode, saturating
  kScaleUp,     // 8u onto the full range of 16u, 16s or 32s: each byte repeated, sign flipped
  kScaleToFloat,  // 8u to 32f: v * a + b
  kScaleTo8u,     // (v + off) * a - b, rounded by the current mode, saturated to 0..255
};

// Every kernel: its name, kind, source and destination element types.
#define LUMI_CONVERT_KERNELS(X)                                                              \
  X(k8u16u, kWiden, uint8_t, uint16_t) X(k8u32s, kWiden, uint8_t, int32_t)                   \
  X(k8u32f, kWiden, uint8_t, float) X(k8s32s, kWiden, int8_t, int32_t)                       \
  X(k8s32f, kWiden, int8_t, float) X(k16u32s, kWiden, uint16_t, int32_t)                     \
  X(k16u32f, kWiden, uint16_t, float) X(k16s32f, kWiden, int16_t, float)                     \
  X(k16u8u, kNarrow, uint16_t, uint8_t) X(k16s8u, kNarrow, int16_t, uint8_t)                 \
  X(k32s8u, kNarrow, int32_t, uint8_t) X(k32s8s, kNarrow, int32_t, int8_t)                   \
  X(k32f8u, kFloatToInt, float, uint8_t) X(k32f8s, kFloatToInt, float, int8_t)               \
  X(k32f16u, kFloatToInt, float, uint16_t) X(k32f16s, kFloatToInt, float, int16_t)           \
  X(kScale8u16u, kScaleUp, uint8_t, uint16_t) X(kScale8u16s, kScaleUp, uint8_t, int16_t)     \
  X(kScale8u32s, kScaleUp, uint8_t, int32_t) X(kScale8u32f, kScaleToFloat, uint8_t, float)   \
  X(kScale16u8u, kScaleTo8u, uint16_t, uint8_t) X(kScale16s8u, kScaleTo8u, int16_t, uint8_t) \
  X(kScale32s8u, kScaleTo8u, int32_t, uint8_t) X(kScale32f8u, kScaleTo8u, float, uint8_t)

#define LUMI_CONVERT_KERNEL_NAME(K, KIND, S, D) K,
enum class Kernel : int { LUMI_CONVERT_KERNELS(LUMI_CONVERT_KERNEL_NAME) kCount };
#undef LUMI_CONVERT_KERNEL_NAME

// The kernel k: the best SIMD variant for this processor, or the scalar twin when none fits or
// the scalar path is forced. Both give the same bits. (convert.cpp)
RowFn pickRowKernel(Kernel k);

// The validation of most conversions: pointers, then sizes, then steps.
inline LumStatus checkImages(const void* src, int srcStep, const void* dst, int dstStep,
                             LumiSize roi) {
  if (LumStatus st = checkPointersSize(roi, src, dst)) return st;
  return badStep(srcStep, dstStep) ? lumStatusStepErr : lumStatusOk;
}

// Runs fn over the ROI of layout L row by row, or as one long row when neither image has row
// padding; AC4 rows keep the destination's alpha.
template <class L, class TS, class TD>
inline void convertRows(const TS* src, int srcStep, TD* dst, int dstStep, LumiSize roi,
                        RowFn fn, RowParams p) {
  p.keepAlpha = L::kUse < L::kCh;
  const LumiSize walk =
      coalesceBoth(roi, coalesceRows(roi, bytesOf(1, L::kCh, sizeof(TS)), srcStep),
                   coalesceRows(roi, bytesOf(1, L::kCh, sizeof(TD)), dstStep));
  for (int y = 0; y < walk.height; ++y)
    fn(rowAt(src, srcStep, y), rowAt(dst, dstStep, y), elemsOf(walk.width, L::kCh), p);
}

// No rounding selector: the call keeps the caller's mode.
inline constexpr std::optional<int> kCallerRounding{};

// One conversion or scaling call: validates, sets the rounding mode of the call from the
// selector (lumRndNear to nearest, any other value toward zero; kCallerRounding keeps the
// caller's), then runs kernel k with the constants params() gives, computed under that mode.
template <class L, class TS, class TD, class Params>
LumStatus convertImage(const TS* src, int srcStep, TD* dst, int dstStep, LumiSize roi, Kernel k,
                       std::optional<int> rounding, Params&& params) {
  if (LumStatus st = checkImages(src, srcStep, dst, dstStep, roi)) return st;
  const RowFn fn = pickRowKernel(k);
  std::optional<ConversionRounding> mode;
  if (rounding) mode.emplace(*rounding);
  convertRows<L>(src, srcStep, dst, dstStep, roi, fn, params());
  return lumStatusOk;
}

}  // namespace lumi
