// Resize engine: validation, lowering of the mode for small images, destination counts and
// coordinate tables, then the rows (in parallel above a work threshold) through the row kernels
// of resize_kernels.h, or their vector versions from resize_simd.cpp. lumiResize,
// lumiResizeCenter, lumiResizeShift and lumiGetResizeFract.
#include <cmath>
#include <cstring>

#include "geometry/resize_engine.h"
#include "lumi/resize.h"

namespace lumi {
namespace resize {

// ---- validation and counts ---------------------------------------------------------------------
LumStatus checkSource(LumiSize srcSize, LumiRect roi) {
  if (srcSize.width < 1 || srcSize.height < 1 || roi.x < 0 || roi.y < 0 || roi.width < 1 ||
      roi.height < 1)
    return lumStatusSizeErr;
  if (roi.x >= srcSize.width || roi.y >= srcSize.height) return lumStatusNoIntersectionWarn;
  return lumStatusOk;
}

bool knownMode(int m) { return m == kNearest || m == kLinear || m == kCubic || m == kLanczos; }

int lowerMode(int mode, LumiSize s) {
  const int small = std::min(s.width, s.height);
  if (mode == kLanczos && small < 8) mode = kCubic;
  if (mode == kCubic && small < 4) mode = kLinear;
  if (small < 2) mode = kNearest;
  return mode;
}

// Count and step of one axis for factors (destination over source); w is the cut ROI extent.
LumStatus forwardAxis(int w, double f, int dstN, int mode, double shift, Axis* a) {
  const double s = w * f + 1e-7;
  int n;
  if (s >= dstN) {
    n = dstN;
  } else {
    n = static_cast<int>(s);
    if (n < 1) {
      if (s >= 0.5) n = 1;
      else return lumStatusResizeDegenerateErr;
    }
  }
  a->count = n;
  a->start = shift;
  if (mode == kNearest || mode == kSuper) a->step = 1.0 / f;
  else a->step = w * f > 1.0 ? (w - 1) / (w * f - 1.0) : 0.0;
  return lumStatusOk;
}

// Count of one axis for a step (source pixels per destination pixel).
void shiftAxis(int w, double fr, int dstN, int mode, double shift, Axis* a) {
  int n;
  if (fr == 0.0) {
    n = 1;
  } else if (mode == kNearest) {
    const double q = std::trunc(w / fr + 1e-7);
    n = q >= dstN ? dstN : std::max(1, static_cast<int>(q));
  } else {
    const double q = std::trunc((w - 1) / fr + 1e-7);
    n = q < dstN - 1 ? static_cast<int>(q) + 1 : dstN;
  }
  a->count = n;
  a->start = shift;
  a->step = fr;
}

// The whole engine after the pointer checks of the caller.
template <class T, class L, int P>
LumStatus engine(const T* const* src, LumiSize srcSize, int srcStep, LumiRect roi, T* const* dst,
                 int dstStep, LumiSize dstSize, double xf, double yf, double xs, double ys,
                 int interpolation, bool shiftMode) {
  if (src == nullptr || dst == nullptr) return lumStatusNullPtrErr;
  for (int p = 0; p < P; ++p)
    if (src[p] == nullptr || dst[p] == nullptr) return lumStatusNullPtrErr;
  LumStatus st = checkSource(srcSize, roi);
  if (st != lumStatusOk) return st;
  if (badSize(dstSize)) return lumStatusSizeErr;
  if (shiftMode ? !(xf >= 0.0 && yf >= 0.0) : !(xf > 0.0 && yf > 0.0))
    return lumStatusResizeFactorErr;
  if (!knownMode(interpolation) &&
      !(interpolation == kSuper && !shiftMode && xf <= 1.0 && yf <= 1.0))
    return lumStatusInterpolationErr;
  const int mode = lowerMode(interpolation, srcSize);
  const int w = std::min(roi.width, srcSize.width - roi.x);
  const int h = std::min(roi.height, srcSize.height - roi.y);
  Axis ax, ay;
  if (shiftMode) {
    shiftAxis(w, xf, dstSize.width, mode, xs, &ax);
    shiftAxis(h, yf, dstSize.height, mode, ys, &ay);
  } else {
    if ((st = forwardAxis(w, xf, dstSize.width, mode, xs, &ax)) != lumStatusOk) return st;
    if ((st = forwardAxis(h, yf, dstSize.height, mode, ys, &ay)) != lumStatusOk) return st;
  }
  ax.origin = roi.x;
  ax.extent = srcSize.width;
  ay.origin = roi.y;
  ay.extent = srcSize.height;
  const T* planes[4];
  for (int p = 0; p < P; ++p) planes[p] = rowAt(src[p], srcStep, roi.y) + elemsOf(roi.x, L::kCh);
  return run<T, L, P>(planes, srcStep, dst, dstStep, ax, ay, mode);
}

// lumiResizeCenter: maps the source point (xc, yc) to the destination centre and hands the
// covered part to the engine (see the header for the mapping).
template <class T, class L, int P>
LumStatus center(const T* const* src, LumiSize srcSize, int srcStep, LumiRect roi, T* const* dst,
                 int dstStep, LumiSize dstSize, double xf, double yf, double xc, double yc,
                 int interpolation) {
  if (dst == nullptr) return lumStatusNullPtrErr;
  for (int p = 0; p < P; ++p)
    if (dst[p] == nullptr) return lumStatusNullPtrErr;
  LumStatus st = checkSource(srcSize, roi);
  if (st != lumStatusOk) return st;
  if (badSize(dstSize)) return lumStatusSizeErr;
  if (!(xf > 0.0 && yf > 0.0)) return lumStatusResizeFactorErr;
  if (src == nullptr) return lumStatusNullPtrErr;
  for (int p = 0; p < P; ++p)
    if (src[p] == nullptr) return lumStatusNullPtrErr;
  if (!knownMode(interpolation) && !(interpolation == kSuper && xf <= 1.0 && yf <= 1.0))
    return lumStatusInterpolationErr;
  const int w = std::min(roi.width, srcSize.width - roi.x);
  const int h = std::min(roi.height, srcSize.height - roi.y);
  struct Cut {
    int origin, roiSize, dstFirst, dstCount;
    double shift;
  };
  // One axis: X0 the scaled ROI's first edge in the destination.
  auto cut = [](int rx, int rw, int extent, int dstN, double f, double c, Cut* o) {
    const double half = dstN / 2.0;
    const double X0 = (rx - c) * f + half;
    if (!std::isfinite(X0)) return false;
    const double x0 = std::max(0.0, std::ceil(X0));
    const double sx = (x0 - half) / f + c;
    if (!(sx < extent) || x0 >= dstN) return false;
    const double width = std::ceil(std::min((dstN - X0) / f, static_cast<double>(rw)));
    const double end = std::trunc(std::min(static_cast<double>(dstN), (rx + rw) * f + X0));
    if (!(width >= 1.0) || !(end - x0 >= 1.0)) return false;
    o->origin = static_cast<int>(std::trunc(sx));
    o->shift = sx - o->origin;
    o->roiSize = static_cast<int>(width);
    o->dstFirst = static_cast<int>(x0);
    o->dstCount = static_cast<int>(end - x0);
    return true;
  };
  Cut cx, cy;
  if (!cut(roi.x, w, srcSize.width, dstSize.width, xf, xc, &cx) ||
      !cut(roi.y, h, srcSize.height, dstSize.height, yf, yc, &cy))
    return lumStatusNoIntersectionWarn;
  T* moved[4];
  for (int p = 0; p < P; ++p)
    moved[p] = rowAt(dst[p], dstStep, cy.dstFirst) + elemsOf(cx.dstFirst, L::kCh);
  const LumiRect sub{cx.origin, cy.origin, cx.roiSize, cy.roiSize};
  return engine<T, L, P>(src, srcSize, srcStep, sub, moved, dstStep,
                         LumiSize{cx.dstCount, cy.dstCount}, xf, yf, cx.shift, cy.shift,
                         interpolation, false);
}

}  // namespace resize
}  // namespace lumi

using namespace lumi;
using namespace lumi::resize;

LUMI_API LumStatus lumiGetResizeFract(LumiSize srcSize, LumiRect srcRoi, double xFactor,
                                      double yFactor, double* xFr, double* yFr,
                                      int interpolation) {
  LumStatus st = checkSource(srcSize, srcRoi);
  if (st != lumStatusOk) return st;
  if (!(xFactor > 0.0 && yFactor > 0.0)) return lumStatusResizeFactorErr;
  if (xFr == nullptr || yFr == nullptr) return lumStatusNullPtrErr;
  if (!knownMode(interpolation)) return lumStatusInterpolationErr;
  const int mode = lowerMode(interpolation, srcSize);
  const int w = std::min(srcRoi.width, srcSize.width - srcRoi.x);
  const int h = std::min(srcRoi.height, srcSize.height - srcRoi.y);
  if (mode == kNearest) {
    *xFr = 1.0 / xFactor;
    *yFr = 1.0 / yFactor;
  } else {
    *xFr = w * xFactor > 1.0 ? (w - 1) / (w * xFactor - 1.0) : 0.0;
    *yFr = h * yFactor > 1.0 ? (h - 1) / (h * yFactor - 1.0) : 0.0;
  }
  return lumStatusOk;
}

// One stamp per export. Pixel-order members pass their single pointers as one-plane arrays.
#define LUMI_RESIZE(NAME, T, L)                                                                \
  LUMI_API LumStatus NAME(const T* pSrc, LumiSize srcSize, int srcStep, LumiRect srcRoi,       \
                          T* pDst, int dstStep, LumiSize dstRoiSize, double xFactor,           \
                          double yFactor, int interpolation) {                                 \
    return engine<T, L, 1>(pSrc ? &pSrc : nullptr, srcSize, srcStep, srcRoi,                   \
                           pDst ? &pDst : nullptr, dstStep, dstRoiSize, xFactor, yFactor, 0.0, \
                           0.0, interpolation, false);                                         \
  }
#define LUMI_RESIZE_P(NAME, T, P)                                                                \
  LUMI_API LumStatus NAME(const T* const pSrc[P], LumiSize srcSize, int srcStep, LumiRect srcRoi, \
                          T* const pDst[P], int dstStep, LumiSize dstRoiSize, double xFactor,     \
                          double yFactor, int interpolation) {                                   \
    return engine<T, C1, P>(pSrc, srcSize, srcStep, srcRoi, pDst, dstStep, dstRoiSize, xFactor,  \
                            yFactor, 0.0, 0.0, interpolation, false);                            \
  }
#define LUMI_RESIZE_SHIFT(NAME, T, L)                                                           \
  LUMI_API LumStatus NAME(const T* pSrc, LumiSize srcSize, int srcStep, LumiRect srcRoi,        \
                          T* pDst, int dstStep, LumiSize dstRoiSize, double xFr, double yFr,    \
                          double xShift, double yShift, int interpolation) {                    \
    return engine<T, L, 1>(pSrc ? &pSrc : nullptr, srcSize, srcStep, srcRoi,                    \
                           pDst ? &pDst : nullptr, dstStep, dstRoiSize, xFr, yFr, xShift,       \
                           yShift, interpolation, true);                                        \
  }
#define LUMI_RESIZE_SHIFT_P(NAME, T, P)                                                          \
  LUMI_API LumStatus NAME(const T* const pSrc[P], LumiSize srcSize, int srcStep, LumiRect srcRoi, \
                          T* const pDst[P], int dstStep, LumiSize dstRoiSize, double xFr,         \
                          double yFr, double xShift, double yShift, int interpolation) {         \
    return engine<T, C1, P>(pSrc, srcSize, srcStep, srcRoi, pDst, dstStep, dstRoiSize, xFr, yFr, \
                            xShift, yShift, interpolation, true);                                \
  }
#define LUMI_RESIZE_CENTER(NAME, T, L)                                                           \
  LUMI_API LumStatus NAME(const T* pSrc, LumiSize srcSize, int srcStep, LumiRect srcRoi,         \
                          T* pDst, int dstStep, LumiSize dstRoiSize, double xFactor,             \
                          double yFactor, double xCenter, double yCenter, int interpolation) {   \
    return center<T, L, 1>(pSrc ? &pSrc : nullptr, srcSize, srcStep, srcRoi,                     \
                           pDst ? &pDst : nullptr, dstStep, dstRoiSize, xFactor, yFactor,        \
                           xCenter, yCenter, interpolation);                                     \
  }
#define LUMI_RESIZE_CENTER_P(NAME, T, P)                                                         \
  LUMI_API LumStatus NAME(const T* const pSrc[P], LumiSize srcSize, int srcStep, LumiRect srcRoi, \
                          T* const pDst[P], int dstStep, LumiSize dstRoiSize, double xFactor,     \
                          double yFactor, double xCenter, double yCenter, int interpolation) {   \
    return center<T, C1, P>(pSrc, srcSize, srcStep, srcRoi, pDst, dstStep, dstRoiSize, xFactor,  \
                            yFactor, xCenter, yCenter, interpolation);                           \
  }

LUMI_RESIZE(lumiResize_8u_C1R, Lum8u, C1)
LUMI_RESIZE(lumiResize_8u_C3R, Lum8u, C3)
LUMI_RESIZE(lumiResize_8u_C4R, Lum8u, C4)
LUMI_RESIZE(lumiResize_8u_AC4R, Lum8u, AC4)
LUMI_RESIZE_P(lumiResize_8u_P3R, Lum8u, 3)
LUMI_RESIZE_P(lumiResize_8u_P4R, Lum8u, 4)
LUMI_RESIZE(lumiResize_16u_C1R, Lum16u, C1)
LUMI_RESIZE(lumiResize_16u_C3R, Lum16u, C3)
LUMI_RESIZE(lumiResize_16u_C4R, Lum16u, C4)
LUMI_RESIZE(lumiResize_16u_AC4R, Lum16u, AC4)
LUMI_RESIZE_P(lumiResize_16u_P3R, Lum16u, 3)
LUMI_RESIZE_P(lumiResize_16u_P4R, Lum16u, 4)
LUMI_RESIZE(lumiResize_32f_C1R, Lum32f, C1)
LUMI_RESIZE(lumiResize_32f_C3R, Lum32f, C3)
LUMI_RESIZE(lumiResize_32f_C4R, Lum32f, C4)
LUMI_RESIZE(lumiResize_32f_AC4R, Lum32f, AC4)
LUMI_RESIZE_P(lumiResize_32f_P3R, Lum32f, 3)
LUMI_RESIZE_P(lumiResize_32f_P4R, Lum32f, 4)
LUMI_RESIZE_SHIFT(lumiResizeShift_8u_C1R, Lum8u, C1)
LUMI_RESIZE_SHIFT(lumiResizeShift_8u_C3R, Lum8u, C3)
LUMI_RESIZE_SHIFT(lumiResizeShift_8u_C4R, Lum8u, C4)
LUMI_RESIZE_SHIFT(lumiResizeShift_8u_AC4R, Lum8u, AC4)
LUMI_RESIZE_SHIFT_P(lumiResizeShift_8u_P3R, Lum8u, 3)
LUMI_RESIZE_SHIFT_P(lumiResizeShift_8u_P4R, Lum8u, 4)
LUMI_RESIZE_SHIFT(lumiResizeShift_16u_C1R, Lum16u, C1)
LUMI_RESIZE_SHIFT(lumiResizeShift_16u_C3R, Lum16u, C3)
LUMI_RESIZE_SHIFT(lumiResizeShift_16u_C4R, Lum16u, C4)
LUMI_RESIZE_SHIFT(lumiResizeShift_16u_AC4R, Lum16u, AC4)
LUMI_RESIZE_SHIFT_P(lumiResizeShift_16u_P3R, Lum16u, 3)
LUMI_RESIZE_SHIFT_P(lumiResizeShift_16u_P4R, Lum16u, 4)
LUMI_RESIZE_SHIFT(lumiResizeShift_32f_C1R, Lum32f, C1)
LUMI_RESIZE_SHIFT(lumiResizeShift_32f_C3R, Lum32f, C3)
LUMI_RESIZE_SHIFT(lumiResizeShift_32f_C4R, Lum32f, C4)
LUMI_RESIZE_SHIFT(lumiResizeShift_32f_AC4R, Lum32f, AC4)
LUMI_RESIZE_SHIFT_P(lumiResizeShift_32f_P3R, Lum32f, 3)
LUMI_RESIZE_SHIFT_P(lumiResizeShift_32f_P4R, Lum32f, 4)
LUMI_RESIZE_CENTER(lumiResizeCenter_8u_C1R, Lum8u, C1)
LUMI_RESIZE_CENTER(lumiResizeCenter_8u_C3R, Lum8u, C3)
LUMI_RESIZE_CENTER(lumiResizeCenter_8u_C4R, Lum8u, C4)
LUMI_RESIZE_CENTER(lumiResizeCenter_8u_AC4R, Lum8u, AC4)
LUMI_RESIZE_CENTER_P(lumiResizeCenter_8u_P3R, Lum8u, 3)
LUMI_RESIZE_CENTER_P(lumiResizeCenter_8u_P4R, Lum8u, 4)
LUMI_RESIZE_CENTER(lumiResizeCenter_16u_C1R, Lum16u, C1)
LUMI_RESIZE_CENTER(lumiResizeCenter_16u_C3R, Lum16u, C3)
LUMI_RESIZE_CENTER(lumiResizeCenter_16u_C4R, Lum16u, C4)
LUMI_RESIZE_CENTER(lumiResizeCenter_16u_AC4R, Lum16u, AC4)
LUMI_RESIZE_CENTER_P(lumiResizeCenter_16u_P3R, Lum16u, 3)
LUMI_RESIZE_CENTER_P(lumiResizeCenter_16u_P4R, Lum16u, 4)
LUMI_RESIZE_CENTER(lumiResizeCenter_32f_C1R, Lum32f, C1)
LUMI_RESIZE_CENTER(lumiResizeCenter_32f_C3R, Lum32f, C3)
LUMI_RESIZE_CENTER(lumiResizeCenter_32f_C4R, Lum32f, C4)
LUMI_RESIZE_CENTER(lumiResizeCenter_32f_AC4R, Lum32f, AC4)
LUMI_RESIZE_CENTER_P(lumiResizeCenter_32f_P3R, Lum32f, 3)
LUMI_RESIZE_CENTER_P(lumiResizeCenter_32f_P4R, Lum32f, 4)
