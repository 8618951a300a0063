// Jaehne test pattern: concentric rings whose frequency grows with the squared distance from
// the ROI centre, s = sin(2 pi r^2 / (4 H)), scaled to the element type by truncation.
//
// Everything is computed in double with the maths library's sin. The pattern is symmetric
// about both centre lines, and the mirrored offsets x - cx and (W - 1 - x) - cx are exact
// negatives of each other (half-integers), so each value is computed once and written to up
// to four pixels; the channels of a pixel share it.
#include "core/frame.h"

#include <cmath>

#include "generate/generate_kernels.h"

namespace lumi {
namespace {

template <class T>
inline T ringValue(double s) {
  if constexpr (std::is_same_v<T, Lum8u>)
    return static_cast<T>(static_cast<int>(127.99999 * (s + 1.0)));
  if constexpr (std::is_same_v<T, Lum8s>) return static_cast<T>(static_cast<int>(127.99999 * s));
  if constexpr (std::is_same_v<T, Lum16u>)
    return static_cast<T>(static_cast<int>(32767.99999 * (s + 1.0)));
  if constexpr (std::is_same_v<T, Lum16s>) return static_cast<T>(static_cast<int>(32767.99999 * s));
  if constexpr (std::is_same_v<T, Lum32s>) return static_cast<T>(2147483647.99999 * s);
  if constexpr (std::is_same_v<T, Lum32f>) return static_cast<T>(0.49999 * (s + 1.0));
}

template <class T, class L>
LumStatus jaehne(T* dst, int step, LumiSize roi) {
  if (LumStatus st = gen::checkPattern(dst, step, roi)) return st;
  const int w = roi.width, h = roi.height;
  const double cx = 0.5 * (w - 1), cy = 0.5 * (h - 1);
  const double denom = 4.0 * h;
  const int halfW = (w + 1) / 2, halfH = (h + 1) / 2;
  constexpr int kChunk = 256;
  T vals[kChunk];
  for (int y = 0; y < halfH; ++y) {
    const double dy = y - cy;
    const double dy2 = dy * dy;
    T* top = rowAt(dst, step, y);
    T* bottom = rowAt(dst, step, h - 1 - y);
    for (int x0 = 0; x0 < halfW; x0 += kChunk) {
      const int n = halfW - x0 < kChunk ? halfW - x0 : kChunk;
      for (int k = 0; k < n; ++k) {
        const double dx = (x0 + k) - cx;
        const double r2 = dx * dx + dy2;
        vals[k] = ringValue<T>(std::sin(6.283185307179586 * r2 / denom));
      }
      for (T* row : {top, bottom}) {
        for (int k = 0; k < n; ++k) {
          gen::putPixel<L>(row, x0 + k, vals[k]);
          gen::putPixel<L>(row, w - 1 - x0 - k, vals[k]);
        }
        if (bottom == top) break;
      }
    }
  }
  return lumStatusOk;
}

}  // namespace
}  // namespace lumi

// One stamp per export.
#define LUMI_JAEHNE(NAME, T, L) \
  LUMI_API LumStatus NAME(T* d, int s, LumiSize r) { return lumi::jaehne<T, lumi::L>(d, s, r); }

LUMI_JAEHNE(lumiImageJaehne_8u_C1R, Lum8u, C1)
LUMI_JAEHNE(lumiImageJaehne_8u_C3R, Lum8u, C3)
LUMI_JAEHNE(lumiImageJaehne_8u_C4R, Lum8u, C4)
LUMI_JAEHNE(lumiImageJaehne_8u_AC4R, Lum8u, AC4)
LUMI_JAEHNE(lumiImageJaehne_8s_C1R, Lum8s, C1)
LUMI_JAEHNE(lumiImageJaehne_8s_C3R, Lum8s, C3)
LUMI_JAEHNE(lumiImageJaehne_8s_C4R, Lum8s, C4)
LUMI_JAEHNE(lumiImageJaehne_8s_AC4R, Lum8s, AC4)
LUMI_JAEHNE(lumiImageJaehne_16u_C1R, Lum16u, C1)
LUMI_JAEHNE(lumiImageJaehne_16u_C3R, Lum16u, C3)
LUMI_JAEHNE(lumiImageJaehne_16u_C4R, Lum16u, C4)
LUMI_JAEHNE(lumiImageJaehne_16u_AC4R, Lum16u, AC4)
LUMI_JAEHNE(lumiImageJaehne_16s_C1R, Lum16s, C1)
LUMI_JAEHNE(lumiImageJaehne_16s_C3R, Lum16s, C3)
LUMI_JAEHNE(lumiImageJaehne_16s_C4R, Lum16s, C4)
LUMI_JAEHNE(lumiImageJaehne_16s_AC4R, Lum16s, AC4)
LUMI_JAEHNE(lumiImageJaehne_32s_C1R, Lum32s, C1)
LUMI_JAEHNE(lumiImageJaehne_32s_C3R, Lum32s, C3)
LUMI_JAEHNE(lumiImageJaehne_32s_C4R, Lum32s, C4)
LUMI_JAEHNE(lumiImageJaehne_32s_AC4R, Lum32s, AC4)
LUMI_JAEHNE(lumiImageJaehne_32f_C1R, Lum32f, C1)
LUMI_JAEHNE(lumiImageJaehne_32f_C3R, Lum32f, C3)
LUMI_JAEHNE(lumiImageJaehne_32f_C4R, Lum32f, C4)
LUMI_JAEHNE(lumiImageJaehne_32f_AC4R, Lum32f, AC4)
