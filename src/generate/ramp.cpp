// Ramps: v = offset + slope * t in single precision, t being the column (axis 0), the row
// (axis 1) or the product of both (axis 2), converted to the element type with saturation.
// Integer conversions round halves away from zero (unsigned types clamp negatives and NaN to
// 0, signed ones send NaN to the minimum). The 32-bit integer conversion follows the 16-bit
// signed rule but adds the half in double, where every float value is exact.
#include "core/frame.h"

#include <cstring>

#include "generate/generate_kernels.h"

namespace lumi {
namespace {

template <class T>
inline T rampValue(float v) {
  if constexpr (std::is_same_v<T, Lum8u>) {
    if (v >= 254.5f) return 255;
    if (v >= 0.0f) return static_cast<T>(static_cast<int>(v + 0.5f));
    return 0;
  } else if constexpr (std::is_same_v<T, Lum16u>) {
    if (v >= 65534.5f) return 65535;
    if (v >= 0.0f) return static_cast<T>(static_cast<int>(v + 0.5f));
    return 0;
  } else if constexpr (std::is_same_v<T, Lum8s>) {
    if (v >= 126.5f) return 127;
    if (!(v >= -128.0f)) return -128;
    return static_cast<T>(static_cast<int>(v > 0.0f ? v + 0.5f : v - 0.5f));
  } else if constexpr (std::is_same_v<T, Lum16s>) {
    if (v >= 32766.5f) return 32767;
    if (!(v >= -32768.0f)) return -32768;
    return static_cast<T>(static_cast<int>(v > 0.0f ? v + 0.5f : v - 0.5f));
  } else if constexpr (std::is_same_v<T, Lum32s>) {
    const double d = v;
    if (d >= 2147483646.5) return 2147483647;
    if (!(d >= -2147483648.0)) return -2147483647 - 1;
    return static_cast<T>(d > 0.0 ? d + 0.5 : d - 0.5);
  } else {
    return v;
  }
}

// The float ramps advance rows by the step rounded down to a multiple of 4 bytes.
template <class T>
inline int rowAdvance(int step) {
  return std::is_same_v<T, Lum32f> ? (step & ~3) : step;
}

template <class T, class L>
LumStatus ramp(T* dst, int step, LumiSize roi, float offset, float slope, int axis) {
  if (LumStatus st = gen::checkPattern(dst, step, roi)) return st;
  const int w = roi.width, h = roi.height;
  const int adv = rowAdvance<T>(step);
  if (axis == 0) {
    // One row of converted values, laid out as in the image, copied to every row.
    // in 64 bits: on 32-bit targets the row may pass what ptrdiff_t holds
    const uint64_t bytes = static_cast<uint64_t>(w) * L::kCh * sizeof(T);
    Lum8u* buf = bytes > 0x7fffffffu ? nullptr : lumsMalloc_8u(static_cast<int>(bytes));
    if (!buf) return lumStatusMemAllocErr;
    T* line = reinterpret_cast<T*>(buf);
    for (int x = 0; x < w; ++x)
      gen::putPixel<L>(line, x, rampValue<T>(offset + slope * static_cast<float>(x)));
    for (int y = 0; y < h; ++y) {
      T* row = rowAt(dst, adv, y);
      if constexpr (L::kCh == L::kUse) {
        std::memcpy(row, line, static_cast<std::size_t>(bytes));
      } else {
        for (std::ptrdiff_t i = 0; i < elemsOf(w, L::kCh); i += L::kCh)
          for (int c = 0; c < L::kUse; ++c) row[i + c] = line[i + c];
      }
    }
    lumsFree(buf);
  } else if (axis == 1) {
    for (int y = 0; y < h; ++y)
      gen::fillRow<L>(rowAt(dst, adv, y), w, rampValue<T>(offset + slope * static_cast<float>(y)));
  } else if (axis == 2) {
    for (int y = 0; y < h; ++y) {
      T* row = rowAt(dst, adv, y);
      int64_t t = 0;  // x * y, exact however wide the ROI
      for (int x = 0; x < w; ++x, t += y)
        gen::putPixel<L>(row, x, rampValue<T>(offset + slope * static_cast<float>(t)));
    }
  }
  // Any other axis leaves the destination as it is.
  return lumStatusOk;
}

}  // namespace
}  // namespace lumi

// One stamp per export.
#define LUMI_RAMP(NAME, T, L)                                                                   \
  LUMI_API LumStatus NAME(T* d, int s, LumiSize r, Lum32f off, Lum32f slope, int axis) {        \
    return lumi::ramp<T, lumi::L>(d, s, r, off, slope, axis);                                   \
  }

LUMI_RAMP(lumiImageRamp_8u_C1R, Lum8u, C1)
LUMI_RAMP(lumiImageRamp_8u_C3R, Lum8u, C3)
LUMI_RAMP(lumiImageRamp_8u_C4R, Lum8u, C4)
LUMI_RAMP(lumiImageRamp_8u_AC4R, Lum8u, AC4)
LUMI_RAMP(lumiImageRamp_8s_C1R, Lum8s, C1)
LUMI_RAMP(lumiImageRamp_8s_C3R, Lum8s, C3)
LUMI_RAMP(lumiImageRamp_8s_C4R, Lum8s, C4)
LUMI_RAMP(lumiImageRamp_8s_AC4R, Lum8s, AC4)
LUMI_RAMP(lumiImageRamp_16u_C1R, Lum16u, C1)
LUMI_RAMP(lumiImageRamp_16u_C3R, Lum16u, C3)
LUMI_RAMP(lumiImageRamp_16u_C4R, Lum16u, C4)
LUMI_RAMP(lumiImageRamp_16u_AC4R, Lum16u, AC4)
LUMI_RAMP(lumiImageRamp_16s_C1R, Lum16s, C1)
LUMI_RAMP(lumiImageRamp_16s_C3R, Lum16s, C3)
LUMI_RAMP(lumiImageRamp_16s_C4R, Lum16s, C4)
LUMI_RAMP(lumiImageRamp_16s_AC4R, Lum16s, AC4)
LUMI_RAMP(lumiImageRamp_32s_C1R, Lum32s, C1)
LUMI_RAMP(lumiImageRamp_32s_C3R, Lum32s, C3)
LUMI_RAMP(lumiImageRamp_32s_C4R, Lum32s, C4)
LUMI_RAMP(lumiImageRamp_32s_AC4R, Lum32s, AC4)
LUMI_RAMP(lumiImageRamp_32f_C1R, Lum32f, C1)
LUMI_RAMP(lumiImageRamp_32f_C3R, Lum32f, C3)
LUMI_RAMP(lumiImageRamp_32f_C4R, Lum32f, C4)
LUMI_RAMP(lumiImageRamp_32f_AC4R, Lum32f, AC4)
