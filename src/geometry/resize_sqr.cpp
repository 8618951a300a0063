// Square-pixel resizing (pixel centres map onto pixel centres, only the source ROI is read,
// tables in the caller's buffer) and resizing of 4:2:2 two-channel images. Both run the
// resize engine's tables and row kernels (resize_engine.h).
#include <cmath>
#include <vector>

#include "geometry/resize_engine.h"
#include "lumi/resize.h"

namespace lumi {
namespace resize {
namespace {

// The caller's buffer: tables for the destination ROI size at their widest, 64-byte aligned.
std::size_t sqrBufBytes(LumiSize dst, int ch, int mode) {
  return tableBytes(mode, elemsOf(dst.width, ch), 0) + tableBytes(mode, dst.height, 0) + 64;
}

// One axis of the square-pixel mapping: destination pixels [d0, d0 + dn) whose centres map into
// the ROI extent [r0, r0 + rn) give first and count; the axis is relative to the ROI origin.
bool sqrAxis(int d0, int dn, int r0, int rn, double f, double shift, int mode, Axis* a,
             int* first) {
  auto edge = [&](double x) { return (x + 0.5 - shift) / f; };  // centre of x, in source edges
  double lo = std::ceil(r0 * f + shift - 0.5), hi = std::ceil((r0 + rn) * f + shift - 0.5);
  if (!std::isfinite(lo) || !std::isfinite(hi)) return false;
  lo = std::max(lo, static_cast<double>(d0));
  hi = std::min(hi, static_cast<double>(d0) + dn);
  if (!(lo < hi)) return false;
  int x0 = static_cast<int>(lo), x1 = static_cast<int>(hi);
  while (x0 > d0 && edge(x0 - 1) >= r0) --x0;  // settle the rounding of the bounds
  while (x0 < x1 && edge(x0) < r0) ++x0;
  while (x1 < d0 + dn && edge(x1) < r0 + rn) ++x1;
  while (x1 > x0 && edge(x1 - 1) >= r0 + rn) --x1;
  if (x0 >= x1) return false;
  *first = x0;
  a->count = x1 - x0;
  a->step = 1.0 / f;
  const double e0 = (x0 - shift) / f - r0;  // left edge of pixel x0 in the source
  a->start = (mode == kNearest || mode == kSuper) ? e0 : e0 + 0.5 * a->step - 0.5;
  a->origin = 0;
  a->extent = rn;
  return true;
}

template <class T, class L, int P>
LumStatus sqrPixel(const T* const* src, LumiSize srcSize, int srcStep, LumiRect roi,
                   T* const* dst, int dstStep, LumiRect dstRoi, double xf, double yf, double xs,
                   double ys, int interpolation, Lum8u* buffer) {
  if (src == nullptr || dst == nullptr || buffer == nullptr) return lumStatusNullPtrErr;
  for (int p = 0; p < P; ++p)
    if (src[p] == nullptr || dst[p] == nullptr) return lumStatusNullPtrErr;
  if (srcSize.width < 1 || srcSize.height < 1 || roi.x < 0 || roi.y < 0 || roi.width < 1 ||
      roi.height < 1 || dstRoi.x < 0 || dstRoi.y < 0 || dstRoi.width < 1 || dstRoi.height < 1)
    return lumStatusSizeErr;
  if (roi.x >= srcSize.width || roi.y >= srcSize.height) return lumStatusNoIntersectionWarn;
  if (!(xf > 0.0 && yf > 0.0)) return lumStatusResizeFactorErr;
  if (!knownMode(interpolation) && !(interpolation == kSuper && xf <= 1.0 && yf <= 1.0))
    return lumStatusInterpolationErr;
  const int w = std::min(roi.width, srcSize.width - roi.x);
  const int h = std::min(roi.height, srcSize.height - roi.y);
  const int mode = lowerMode(interpolation, LumiSize{w, h});
  Axis ax, ay;
  int x0, y0;
  if (!sqrAxis(dstRoi.x, dstRoi.width, roi.x, w, xf, xs, mode, &ax, &x0) ||
      !sqrAxis(dstRoi.y, dstRoi.height, roi.y, h, yf, ys, mode, &ay, &y0))
    return lumStatusNoIntersectionWarn;
  const T* s[4];
  T* d[4];
  for (int p = 0; p < P; ++p) {
    s[p] = rowAt(src[p], srcStep, roi.y) + elemsOf(roi.x, L::kCh);
    d[p] = rowAt(dst[p], dstStep, y0) + elemsOf(x0, L::kCh);
  }
  Lum8u* tables = mode == kSuper ? nullptr  // super's weights depend on the factors: per call
                                 : reinterpret_cast<Lum8u*>((reinterpret_cast<uintptr_t>(buffer) + 63) & ~uintptr_t{63});
  return run<T, L, P>(s, srcStep, d, dstStep, ax, ay, mode, tables);
}

// 4:2:2: split into planes, resize luma at full and chroma at half width, join again.
LumStatus yuv422(const Lum8u* src, LumiSize srcSize, int srcStep, LumiRect roi, Lum8u* dst,
                 int dstStep, LumiSize dstSize, double xf, double yf, int interpolation) {
  if (src == nullptr || dst == nullptr) return lumStatusNullPtrErr;
  LumStatus st = checkSource(srcSize, roi);
  if (st == lumStatusOk && ((roi.width & 1) || (roi.x & 1))) st = lumStatusSizeErr;
  if (st != lumStatusOk) return st;
  if (dstSize.width < 2 || dstSize.height < 1) return lumStatusSizeErr;
  if (!(xf > 0.0 && yf > 0.0)) return lumStatusResizeFactorErr;
  if (interpolation != kNearest && interpolation != kLinear && interpolation != kCubic)
    return lumStatusInterpolationErr;
  const int w = std::min(roi.width, srcSize.width - roi.x) & ~1;
  const int h = std::min(roi.height, srcSize.height - roi.y);
  if (w < 2) return lumStatusSizeErr;
  const int lumaMode = lowerMode(interpolation, LumiSize{w, h});
  const int chromaMode = lowerMode(interpolation, LumiSize{w / 2, h});
  Axis lx, cx, ly, cy;
  if ((st = [&] {
         LumStatus s = lumStatusOk;
         Axis t;
         if ((s = resize::forwardAxis(w, xf, dstSize.width, lumaMode, 0.0, &lx)) != lumStatusOk) return s;
         if ((s = resize::forwardAxis(h, yf, dstSize.height, lumaMode, 0.0, &ly)) != lumStatusOk) return s;
         resize::forwardAxis(h, yf, dstSize.height, chromaMode, 0.0, &cy);
         if (resize::forwardAxis(w / 2, xf, dstSize.width, chromaMode, 0.0, &t) != lumStatusOk)
           t.step = chromaMode == kNearest ? 1.0 / xf : 0.0;
         cx = t;
         return s;
       }()) != lumStatusOk)
    return st;
  lx.count = std::max(2, lx.count & ~1);
  cx.count = lx.count / 2;
  lx.extent = w;
  cx.extent = w / 2;
  ly.extent = cy.extent = h;
  const int nx = lx.count, ny = ly.count;
  const std::size_t planeIn = static_cast<std::size_t>(w) * h, planeOut = static_cast<std::size_t>(nx) * ny;
  if (2 * (planeIn + planeOut) > 0x7fffffffu) return lumStatusMemAllocErr;
  Lum8u* mem = lumsMalloc_8u(static_cast<int>(2 * (planeIn + planeOut)));
  if (mem == nullptr) return lumStatusMemAllocErr;
  Lum8u *y = mem, *u = y + planeIn, *v = u + planeIn / 2;
  Lum8u *yo = v + planeIn / 2, *uo = yo + planeOut, *vo = uo + planeOut / 2;
  for (int r = 0; r < h; ++r) {
    const Lum8u* s = rowAt(src, srcStep, roi.y + r) + 2 * roi.x;
    for (int i = 0; i < w / 2; ++i) {
      y[r * w + 2 * i] = s[4 * i];
      u[r * (w / 2) + i] = s[4 * i + 1];
      y[r * w + 2 * i + 1] = s[4 * i + 2];
      v[r * (w / 2) + i] = s[4 * i + 3];
    }
  }
  const Lum8u* ys[1] = {y};
  Lum8u* yd[1] = {yo};
  const Lum8u* cs[2] = {u, v};
  Lum8u* cd[2] = {uo, vo};
  st = run<Lum8u, C1, 1>(ys, w, yd, nx, lx, ly, lumaMode);
  if (st == lumStatusOk) st = run<Lum8u, C1, 2>(cs, w / 2, cd, nx / 2, cx, cy, chromaMode);
  if (st == lumStatusOk) {
    for (int r = 0; r < ny; ++r) {
      Lum8u* d = rowAt(dst, dstStep, r);
      for (int i = 0; i < nx / 2; ++i) {
        d[4 * i] = yo[r * nx + 2 * i];
        d[4 * i + 1] = uo[r * (nx / 2) + i];
        d[4 * i + 2] = yo[r * nx + 2 * i + 1];
        d[4 * i + 3] = vo[r * (nx / 2) + i];
      }
    }
  }
  lumsFree(mem);
  return st;
}

}  // namespace
}  // namespace resize
}  // namespace lumi

using namespace lumi;
using namespace lumi::resize;

LUMI_API LumStatus lumiResizeSqrPixelGetBufSize(LumiSize dstSize, int nChannel, int interpolation,
                                                int* pBufSize) {
  if (pBufSize == nullptr) return lumStatusNullPtrErr;
  if (badSize(dstSize)) return lumStatusSizeErr;
  if (nChannel != 1 && nChannel != 3 && nChannel != 4) return lumStatusChannelCountErr;
  if (!knownMode(interpolation) && interpolation != kSuper) return lumStatusInterpolationErr;
  const std::size_t b = sqrBufBytes(dstSize, nChannel, interpolation);
  if (b > 0x7fffffffu) return lumStatusSizeErr;
  *pBufSize = static_cast<int>(b);
  return lumStatusOk;
}

LUMI_API LumStatus lumiResizeYUV422_8u_C2R(const Lum8u* pSrc, LumiSize srcSize, int srcStep,
                                           LumiRect srcRoi, Lum8u* pDst, int dstStep,
                                           LumiSize dstRoiSize, double xFactor, double yFactor,
                                           int interpolation) {
  return yuv422(pSrc, srcSize, srcStep, srcRoi, pDst, dstStep, dstRoiSize, xFactor, yFactor,
                interpolation);
}

#define LUMI_SQR(NAME, T, L)                                                                     \
  LUMI_API LumStatus NAME(const T* pSrc, LumiSize srcSize, int srcStep, LumiRect srcRoi, T* pDst, \
                          int dstStep, LumiRect dstRoi, double xFactor, double yFactor,          \
                          double xShift, double yShift, int interpolation, Lum8u* pBuffer) {     \
    return sqrPixel<T, L, 1>(pSrc ? &pSrc : nullptr, srcSize, srcStep, srcRoi,                   \
                             pDst ? &pDst : nullptr, dstStep, dstRoi, xFactor, yFactor, xShift,  \
                             yShift, interpolation, pBuffer);                                    \
  }
#define LUMI_SQR_P(NAME, T, P)                                                                   \
  LUMI_API LumStatus NAME(const T* const pSrc[P], LumiSize srcSize, int srcStep, LumiRect srcRoi, \
                          T* const pDst[P], int dstStep, LumiRect dstRoi, double xFactor,         \
                          double yFactor, double xShift, double yShift, int interpolation,       \
                          Lum8u* pBuffer) {                                                      \
    return sqrPixel<T, C1, P>(pSrc, srcSize, srcStep, srcRoi, pDst, dstStep, dstRoi, xFactor,    \
                              yFactor, xShift, yShift, interpolation, pBuffer);                  \
  }

LUMI_SQR(lumiResizeSqrPixel_8u_C1R, Lum8u, C1)
LUMI_SQR(lumiResizeSqrPixel_8u_C3R, Lum8u, C3)
LUMI_SQR(lumiResizeSqrPixel_8u_C4R, Lum8u, C4)
LUMI_SQR(lumiResizeSqrPixel_8u_AC4R, Lum8u, AC4)
LUMI_SQR_P(lumiResizeSqrPixel_8u_P3R, Lum8u, 3)
LUMI_SQR_P(lumiResizeSqrPixel_8u_P4R, Lum8u, 4)
LUMI_SQR(lumiResizeSqrPixel_16u_C1R, Lum16u, C1)
LUMI_SQR(lumiResizeSqrPixel_16u_C3R, Lum16u, C3)
LUMI_SQR(lumiResizeSqrPixel_16u_C4R, Lum16u, C4)
LUMI_SQR(lumiResizeSqrPixel_16u_AC4R, Lum16u, AC4)
LUMI_SQR_P(lumiResizeSqrPixel_16u_P3R, Lum16u, 3)
LUMI_SQR_P(lumiResizeSqrPixel_16u_P4R, Lum16u, 4)
LUMI_SQR(lumiResizeSqrPixel_32f_C1R, Lum32f, C1)
LUMI_SQR(lumiResizeSqrPixel_32f_C3R, Lum32f, C3)
LUMI_SQR(lumiResizeSqrPixel_32f_C4R, Lum32f, C4)
LUMI_SQR(lumiResizeSqrPixel_32f_AC4R, Lum32f, AC4)
LUMI_SQR_P(lumiResizeSqrPixel_32f_P3R, Lum32f, 3)
LUMI_SQR_P(lumiResizeSqrPixel_32f_P4R, Lum32f, 4)
