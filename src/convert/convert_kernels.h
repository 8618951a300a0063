// Row kernels of the type conversions and range scalings, and the image walker they share.
// The kernels themselves live in convert.cpp (compiled once per SIMD target); Convert and
// Scale only validate, set the rounding mode where they need one, and walk rows.
#pragma once

#include "core/frame.h"

#include <cstddef>
#include <cstdint>

namespace lumi {

// Constants of the affine kernels: up-scaling to 32f computes v * a + b; the scalings down to
// 8u compute (v + off) * a - b, all in single precision, in that order. Float-to-integer
// kernels may round explicitly rather than by the current mode: `truncate` names the mode the
// caller has set (toward zero, else to nearest even).
struct RowParams {
  float off = 0.0f, a = 1.0f, b = 0.0f;
  bool truncate = false;
};

// One row of n elements (channels counted individually).
using RowFn = void (*)(const void* src, void* dst, std::ptrdiff_t n, const RowParams& p);

enum class Kernel : int {
  // widening (8u16s shares the bits of 8u16u)
  k8u16u, k8u32s, k8u32f, k8s32s, k8s32f, k16u32s, k16u32f, k16s32f,
  // saturating narrowing
  k16u8u, k16s8u, k32s8u, k32s8s,
  // float to integer under the current rounding mode, saturating
  k32f8u, k32f8s, k32f16u, k32f16s,
  // full-range scalings
  kScale8u16u, kScale8u16s, kScale8u32s, kScale8u32f,
  kScale16u8u, kScale16s8u, kScale32s8u, kScale32f8u,
  kCount
};

// The kernel for k: the best SIMD variant for this processor, or the scalar one when none
// fits or LUMI_SCALAR forces the scalar path. Both give the same bits.
RowFn rowKernel(Kernel k);

// The validation of most conversions: pointers, then sizes, then steps.
inline LumStatus checkImages(const void* src, int srcStep, const void* dst, int dstStep,
                             LumiSize roi) {
  if (anyNull(src, dst)) return lumStatusNullPtrErr;
  if (badSize(roi)) return lumStatusSizeErr;
  if (badStep(srcStep, dstStep)) return lumStatusStepErr;
  return lumStatusOk;
}

// Runs fn over n pixels of layout L. Layouts that write every channel run as one flat row;
// AC4 converts a block of whole pixels into a scratch row and copies the three colour channels
// out, so the destination's alpha is never written.
template <class L, class TS, class TD>
inline void convertPixels(const TS* s, TD* d, std::ptrdiff_t n, RowFn fn, const RowParams& p) {
  if constexpr (L::kUse == L::kCh) {
    fn(s, d, n * L::kCh, p);
  } else {
    constexpr std::ptrdiff_t kBlock = 256;
    alignas(64) TD tmp[kBlock * L::kCh];
    for (std::ptrdiff_t i = 0; i < n; i += kBlock) {
      std::ptrdiff_t m = n - i < kBlock ? n - i : kBlock;
      fn(s + i * L::kCh, tmp, m * L::kCh, p);
      TD* out = d + i * L::kCh;
      for (std::ptrdiff_t k = 0; k < m; ++k)
        for (int c = 0; c < L::kUse; ++c) out[k * L::kCh + c] = tmp[k * L::kCh + c];
    }
  }
}

// Walks the ROI row by row. When both images are stored without row padding the ROI is one
// long row; `areaLimit` restricts that to areas below 2^31 - 1 pixels.
template <class L, class TS, class TD>
inline void convertRows(const TS* src, int srcStep, TD* dst, int dstStep, LumiSize roi,
                        RowFn fn, const RowParams& p, bool areaLimit = false) {
  const std::ptrdiff_t w = roi.width;
  const bool packed = srcStep == w * L::kCh * static_cast<std::ptrdiff_t>(sizeof(TS)) &&
                      dstStep == w * L::kCh * static_cast<std::ptrdiff_t>(sizeof(TD));
  const std::int64_t area = static_cast<std::int64_t>(roi.width) * roi.height;
  if (packed && (!areaLimit || area < 2147483647)) {
    convertPixels<L>(src, dst, static_cast<std::ptrdiff_t>(area), fn, p);
    return;
  }
  for (int y = 0; y < roi.height; ++y)
    convertPixels<L>(rowAt(src, srcStep, y), rowAt(dst, dstStep, y), w, fn, p);
}

}  // namespace lumi
