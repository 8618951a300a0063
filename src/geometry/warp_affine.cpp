// Affine warps (forward, given the inverse, quadrangle to quadrangle), rotation (with its
// pixel-exact path for quarter turns) and shear, all through the warp engine.
#include <cmath>

#include "geometry/warp_engine.h"
#include "lumi/warp_query.h"

namespace lumi {
namespace warp {
namespace {

// The affine engine: coeffs map source to destination (back: destination to source).
template <class T, class L>
LumStatus affineWarp(const Planes<T>& im, const Frame& f, const double c[2][3], bool back) {
  LumStatus st = checkFront(im, f);
  if (st != lumStatusOk) return st;
  if (singular(c[0][0], c[0][1], c[1][0], c[1][1])) return lumStatusCoeffErr;
  AffineMap map;
  double fwd[2][3];
  if (!bothWays<2>(c, back, map.a, fwd, invertAffine)) return lumStatusCoeffErr;
  return warpTail<T, L>(
      im, f, map, [&](LumiRect roi, Pt q[4]) { return quadBy(lumiGetAffineQuad, roi, fwd, q); });
}
template <class T, class L>
LumStatus affineImpl(const Planes<T>& im, const Frame& f, const double c[2][3]) {
  return affineWarp<T, L>(im, f, c, false);
}
template <class T, class L>
LumStatus affineBackImpl(const Planes<T>& im, const Frame& f, const double c[2][3]) {
  return affineWarp<T, L>(im, f, c, true);
}

// The affine map through the first three corners of sq and dq; warns (28) when the fourth
// corners do not correspond within 1e-9 of the destination quadrangle's extent.
template <class T, class L>
LumStatus affineQuadImpl(const Planes<T>& im, const Frame& f, const double sq[4][2],
                         const double dq[4][2]) {
  Pt s[4], d[4];
  LumStatus st = checkQuads(im, f, sq, dq, s, d);
  if (st != lumStatusOk) return st;
  // [d1 - d0, d2 - d0] = A [s1 - s0, s2 - s0]
  const double s00 = s[1].x - s[0].x, s01 = s[2].x - s[0].x;
  const double s10 = s[1].y - s[0].y, s11 = s[2].y - s[0].y;
  const double det = s00 * s11 - s01 * s10;
  if (det == 0) return lumStatusQuadErr;
  const double i00 = s11 / det, i01 = -s01 / det, i10 = -s10 / det, i11 = s00 / det;
  const double d00 = d[1].x - d[0].x, d01 = d[2].x - d[0].x;
  const double d10 = d[1].y - d[0].y, d11 = d[2].y - d[0].y;
  double fwd[2][3];
  fwd[0][0] = d00 * i00 + d01 * i10;
  fwd[0][1] = d00 * i01 + d01 * i11;
  fwd[1][0] = d10 * i00 + d11 * i10;
  fwd[1][1] = d10 * i01 + d11 * i11;
  fwd[0][2] = d[0].x - fwd[0][0] * s[0].x - fwd[0][1] * s[0].y;
  fwd[1][2] = d[0].y - fwd[1][0] * s[0].x - fwd[1][1] * s[0].y;
  double extent = 0;
  for (int i = 1; i < 4; ++i)
    extent = std::fmax(extent, std::fmax(std::fabs(d[i].x - d[0].x), std::fabs(d[i].y - d[0].y)));
  const double ex = fwd[0][0] * s[3].x + fwd[0][1] * s[3].y + fwd[0][2] - d[3].x;
  const double ey = fwd[1][0] * s[3].x + fwd[1][1] * s[3].y + fwd[1][2] - d[3].y;
  const bool changed = std::fmax(std::fabs(ex), std::fabs(ey)) > 1e-9 * extent;
  AffineMap map;
  if (!invertAffine(fwd, map.a)) return lumStatusQuadErr;
  st = warpTail<T, L>(
      im, f, map, [&](LumiRect roi, Pt q[4]) { return quadBy(lumiGetAffineQuad, roi, fwd, q); },
      d);
  return st == lumStatusOk && changed ? lumStatusAffineQuadChangedWarn : st;
}

// Quarter turns (k = 1, 2, 3 for 90, 180, 270 degrees) with whole shifts: every destination
// pixel of the turned ROI that lies in the destination ROI copies its source pixel.
template <class T, class L>
LumStatus quarterTurn(const Planes<T>& im, const Frame& f, int k, double xs, double ys) {
  if (f.srcRoi.x >= f.srcSize.width || f.srcRoi.y >= f.srcSize.height)
    return lumStatusNoIntersectionWarn;
  const double x0 = f.srcRoi.x, y0 = f.srcRoi.y;
  const double x1 =
      std::fmin(static_cast<double>(f.srcRoi.x) + f.srcRoi.width, f.srcSize.width) - 1;
  const double y1 =
      std::fmin(static_cast<double>(f.srcRoi.y) + f.srcRoi.height, f.srcSize.height) - 1;
  double X0, X1, Y0, Y1;  // the turned ROI in the destination
  if (k == 1) {
    X0 = y0 + xs, X1 = y1 + xs, Y0 = ys - x1, Y1 = ys - x0;
  } else if (k == 2) {
    X0 = xs - x1, X1 = xs - x0, Y0 = ys - y1, Y1 = ys - y0;
  } else {
    X0 = xs - y1, X1 = xs - y0, Y0 = x0 + ys, Y1 = x1 + ys;
  }
  X0 = std::fmax(X0, f.dstRoi.x);
  Y0 = std::fmax(Y0, f.dstRoi.y);
  X1 = std::fmin(X1, static_cast<double>(f.dstRoi.x) + f.dstRoi.width - 1);
  Y1 = std::fmin(Y1, static_cast<double>(f.dstRoi.y) + f.dstRoi.height - 1);
  if (!(X0 <= X1 && Y0 <= Y1)) return lumStatusNoIntersectionWarn;
  const int dx0 = static_cast<int>(X0), dx1 = static_cast<int>(X1);
  const int dy0 = static_cast<int>(Y0), dy1 = static_cast<int>(Y1);
  // source (x, y) of destination (X, Y): x = ax + bx X + cx Y, y = ay + by X + cy Y
  long long ax, bx, cx, ay, by, cy;
  const long long s = static_cast<long long>(xs), t = static_cast<long long>(ys);
  if (k == 1) {
    ax = t, bx = 0, cx = -1, ay = -s, by = 1, cy = 0;
  } else if (k == 2) {
    ax = s, bx = -1, cx = 0, ay = t, by = 0, cy = -1;
  } else {
    ax = -t, bx = 0, cx = 1, ay = s, by = -1, cy = 0;
  }
  const LumiSize box{dx1 - dx0 + 1, dy1 - dy0 + 1};
  forRows(box.height, forkByWork(box, im.n, kForkWork), [&](int r0, int r1) {
    for (int r = r0; r < r1; ++r) {
      const long long Y = dy0 + r;
      for (int p = 0; p < im.n; ++p) {
        T* d = rowAt(im.dst[p], f.dstStep, static_cast<int>(Y)) + elemsOf(dx0, L::kCh);
        for (long long X = dx0; X <= dx1; ++X, d += L::kCh) {
          const int x = static_cast<int>(ax + bx * X + cx * Y);
          const int y = static_cast<int>(ay + by * X + cy * Y);
          const T* q = rowAt(im.src[p], f.srcStep, y) + elemsOf(x, L::kCh);
          for (int c = 0; c < L::kUse; ++c) d[c] = q[c];
        }
      }
    }
  });
  return lumStatusOk;
}

template <class T, class L>
LumStatus rotateImpl(const Planes<T>& im, const Frame& f, double angle, double xs, double ys) {
  double a = angle - std::rint(angle / 360.0) * 360.0;
  if (a < 0) a += 360.0;
  if ((a == 90.0 || a == 180.0 || a == 270.0) && xs == std::rint(xs) && ys == std::rint(ys) &&
      std::fabs(xs) < 1e15 && std::fabs(ys) < 1e15) {
    const LumStatus st = checkFront(im, f, false);
    if (st != lumStatusOk) return st;
    return quarterTurn<T, L>(im, f, static_cast<int>(std::rint(a + 0.1)) / 90, xs, ys);
  }
  const double r = a * (3.14159265358979323846 / 180.0);
  const double c[2][3] = {{std::cos(r), std::sin(r), xs}, {-std::sin(r), std::cos(r), ys}};
  return affineImpl<T, L>(im, f, c);
}

template <class T, class L>
LumStatus rotateCenterImpl(const Planes<T>& im, const Frame& f, double angle, double xc,
                           double yc) {
  double xs = 0, ys = 0;
  lumiGetRotateShift(xc, yc, angle, &xs, &ys);
  return rotateImpl<T, L>(im, f, angle, xs, ys);
}

template <class T, class L>
LumStatus shearImpl(const Planes<T>& im, const Frame& f, double sx, double sy, double xs,
                    double ys) {
  const double c[2][3] = {{1.0, sx, xs}, {sy, 1.0, ys}};
  return affineImpl<T, L>(im, f, c);
}

}  // namespace
}  // namespace warp
}  // namespace lumi

using namespace lumi;
using namespace lumi::warp;

// Rotations about the origin and about a centre share a signature: angle and a point.
#define LUMI_ROTATE(NAME, IMPL, T, L)                                                             \
  LUMI_API LumStatus NAME(const T* pSrc, LumiSize srcSize, int srcStep, LumiRect srcRoi, T* pDst, \
                          int dstStep, LumiRect dstRoi, double angle, double x, double y,         \
                          int interpolation) {                                                    \
    return IMPL<T, L>(packed(pSrc, pDst),                                                         \
                      frameOf(srcSize, srcStep, srcRoi, dstStep, dstRoi, interpolation), angle,   \
                      x, y);                                                                      \
  }
#define LUMI_ROTATE_P(NAME, IMPL, T, N)                                                           \
  LUMI_API LumStatus NAME(const T* const pSrc[N], LumiSize srcSize, int srcStep, LumiRect srcRoi, \
                          T* const pDst[N], int dstStep, LumiRect dstRoi, double angle, double x, \
                          double y, int interpolation) {                                          \
    return IMPL<T, C1>(planar<T, N>(pSrc, pDst),                                                  \
                       frameOf(srcSize, srcStep, srcRoi, dstStep, dstRoi, interpolation), angle,  \
                       x, y);                                                                     \
  }
#define LUMI_SHEAR(NAME, T, L)                                                                    \
  LUMI_API LumStatus NAME(const T* pSrc, LumiSize srcSize, int srcStep, LumiRect srcRoi, T* pDst, \
                          int dstStep, LumiRect dstRoi, double xShear, double yShear,             \
                          double xShift, double yShift, int interpolation) {                      \
    return shearImpl<T, L>(packed(pSrc, pDst),                                                    \
                           frameOf(srcSize, srcStep, srcRoi, dstStep, dstRoi, interpolation),     \
                           xShear, yShear, xShift, yShift);                                       \
  }
#define LUMI_SHEAR_P(NAME, T, N)                                                                  \
  LUMI_API LumStatus NAME(const T* const pSrc[N], LumiSize srcSize, int srcStep, LumiRect srcRoi, \
                          T* const pDst[N], int dstStep, LumiRect dstRoi, double xShear,          \
                          double yShear, double xShift, double yShift, int interpolation) {       \
    return shearImpl<T, C1>(planar<T, N>(pSrc, pDst),                                             \
                            frameOf(srcSize, srcStep, srcRoi, dstStep, dstRoi, interpolation),    \
                            xShear, yShear, xShift, yShift);                                      \
  }

LUMI_WARP_COEFFS(lumiWarpAffine_8u_C1R, affineImpl, Lum8u, C1, 2, 3)
LUMI_WARP_COEFFS(lumiWarpAffine_8u_C3R, affineImpl, Lum8u, C3, 2, 3)
LUMI_WARP_COEFFS(lumiWarpAffine_8u_C4R, affineImpl, Lum8u, C4, 2, 3)
LUMI_WARP_COEFFS(lumiWarpAffine_8u_AC4R, affineImpl, Lum8u, AC4, 2, 3)
LUMI_WARP_COEFFS_P(lumiWarpAffine_8u_P3R, affineImpl, Lum8u, 3, 2, 3)
LUMI_WARP_COEFFS_P(lumiWarpAffine_8u_P4R, affineImpl, Lum8u, 4, 2, 3)
LUMI_WARP_COEFFS(lumiWarpAffine_16u_C1R, affineImpl, Lum16u, C1, 2, 3)
LUMI_WARP_COEFFS(lumiWarpAffine_16u_C3R, affineImpl, Lum16u, C3, 2, 3)
LUMI_WARP_COEFFS(lumiWarpAffine_16u_C4R, affineImpl, Lum16u, C4, 2, 3)
LUMI_WARP_COEFFS(lumiWarpAffine_16u_AC4R, affineImpl, Lum16u, AC4, 2, 3)
LUMI_WARP_COEFFS_P(lumiWarpAffine_16u_P3R, affineImpl, Lum16u, 3, 2, 3)
LUMI_WARP_COEFFS_P(lumiWarpAffine_16u_P4R, affineImpl, Lum16u, 4, 2, 3)
LUMI_WARP_COEFFS(lumiWarpAffine_32f_C1R, affineImpl, Lum32f, C1, 2, 3)
LUMI_WARP_COEFFS(lumiWarpAffine_32f_C3R, affineImpl, Lum32f, C3, 2, 3)
LUMI_WARP_COEFFS(lumiWarpAffine_32f_C4R, affineImpl, Lum32f, C4, 2, 3)
LUMI_WARP_COEFFS(lumiWarpAffine_32f_AC4R, affineImpl, Lum32f, AC4, 2, 3)
LUMI_WARP_COEFFS_P(lumiWarpAffine_32f_P3R, affineImpl, Lum32f, 3, 2, 3)
LUMI_WARP_COEFFS_P(lumiWarpAffine_32f_P4R, affineImpl, Lum32f, 4, 2, 3)

LUMI_WARP_COEFFS(lumiWarpAffineBack_8u_C1R, affineBackImpl, Lum8u, C1, 2, 3)
LUMI_WARP_COEFFS(lumiWarpAffineBack_8u_C3R, affineBackImpl, Lum8u, C3, 2, 3)
LUMI_WARP_COEFFS(lumiWarpAffineBack_8u_C4R, affineBackImpl, Lum8u, C4, 2, 3)
LUMI_WARP_COEFFS(lumiWarpAffineBack_8u_AC4R, affineBackImpl, Lum8u, AC4, 2, 3)
LUMI_WARP_COEFFS_P(lumiWarpAffineBack_8u_P3R, affineBackImpl, Lum8u, 3, 2, 3)
LUMI_WARP_COEFFS_P(lumiWarpAffineBack_8u_P4R, affineBackImpl, Lum8u, 4, 2, 3)
LUMI_WARP_COEFFS(lumiWarpAffineBack_16u_C1R, affineBackImpl, Lum16u, C1, 2, 3)
LUMI_WARP_COEFFS(lumiWarpAffineBack_16u_C3R, affineBackImpl, Lum16u, C3, 2, 3)
LUMI_WARP_COEFFS(lumiWarpAffineBack_16u_C4R, affineBackImpl, Lum16u, C4, 2, 3)
LUMI_WARP_COEFFS(lumiWarpAffineBack_16u_AC4R, affineBackImpl, Lum16u, AC4, 2, 3)
LUMI_WARP_COEFFS_P(lumiWarpAffineBack_16u_P3R, affineBackImpl, Lum16u, 3, 2, 3)
LUMI_WARP_COEFFS_P(lumiWarpAffineBack_16u_P4R, affineBackImpl, Lum16u, 4, 2, 3)
LUMI_WARP_COEFFS(lumiWarpAffineBack_32f_C1R, affineBackImpl, Lum32f, C1, 2, 3)
LUMI_WARP_COEFFS(lumiWarpAffineBack_32f_C3R, affineBackImpl, Lum32f, C3, 2, 3)
LUMI_WARP_COEFFS(lumiWarpAffineBack_32f_C4R, affineBackImpl, Lum32f, C4, 2, 3)
LUMI_WARP_COEFFS(lumiWarpAffineBack_32f_AC4R, affineBackImpl, Lum32f, AC4, 2, 3)
LUMI_WARP_COEFFS_P(lumiWarpAffineBack_32f_P3R, affineBackImpl, Lum32f, 3, 2, 3)
LUMI_WARP_COEFFS_P(lumiWarpAffineBack_32f_P4R, affineBackImpl, Lum32f, 4, 2, 3)

LUMI_WARP_QUAD(lumiWarpAffineQuad_8u_C1R, affineQuadImpl, Lum8u, C1)
LUMI_WARP_QUAD(lumiWarpAffineQuad_8u_C3R, affineQuadImpl, Lum8u, C3)
LUMI_WARP_QUAD(lumiWarpAffineQuad_8u_C4R, affineQuadImpl, Lum8u, C4)
LUMI_WARP_QUAD(lumiWarpAffineQuad_8u_AC4R, affineQuadImpl, Lum8u, AC4)
LUMI_WARP_QUAD_P(lumiWarpAffineQuad_8u_P3R, affineQuadImpl, Lum8u, 3)
LUMI_WARP_QUAD_P(lumiWarpAffineQuad_8u_P4R, affineQuadImpl, Lum8u, 4)
LUMI_WARP_QUAD(lumiWarpAffineQuad_16u_C1R, affineQuadImpl, Lum16u, C1)
LUMI_WARP_QUAD(lumiWarpAffineQuad_16u_C3R, affineQuadImpl, Lum16u, C3)
LUMI_WARP_QUAD(lumiWarpAffineQuad_16u_C4R, affineQuadImpl, Lum16u, C4)
LUMI_WARP_QUAD(lumiWarpAffineQuad_16u_AC4R, affineQuadImpl, Lum16u, AC4)
LUMI_WARP_QUAD_P(lumiWarpAffineQuad_16u_P3R, affineQuadImpl, Lum16u, 3)
LUMI_WARP_QUAD_P(lumiWarpAffineQuad_16u_P4R, affineQuadImpl, Lum16u, 4)
LUMI_WARP_QUAD(lumiWarpAffineQuad_32f_C1R, affineQuadImpl, Lum32f, C1)
LUMI_WARP_QUAD(lumiWarpAffineQuad_32f_C3R, affineQuadImpl, Lum32f, C3)
LUMI_WARP_QUAD(lumiWarpAffineQuad_32f_C4R, affineQuadImpl, Lum32f, C4)
LUMI_WARP_QUAD(lumiWarpAffineQuad_32f_AC4R, affineQuadImpl, Lum32f, AC4)
LUMI_WARP_QUAD_P(lumiWarpAffineQuad_32f_P3R, affineQuadImpl, Lum32f, 3)
LUMI_WARP_QUAD_P(lumiWarpAffineQuad_32f_P4R, affineQuadImpl, Lum32f, 4)

LUMI_ROTATE(lumiRotate_8u_C1R, rotateImpl, Lum8u, C1)
LUMI_ROTATE(lumiRotate_8u_C3R, rotateImpl, Lum8u, C3)
LUMI_ROTATE(lumiRotate_8u_C4R, rotateImpl, Lum8u, C4)
LUMI_ROTATE(lumiRotate_8u_AC4R, rotateImpl, Lum8u, AC4)
LUMI_ROTATE_P(lumiRotate_8u_P3R, rotateImpl, Lum8u, 3)
LUMI_ROTATE_P(lumiRotate_8u_P4R, rotateImpl, Lum8u, 4)
LUMI_ROTATE(lumiRotate_16u_C1R, rotateImpl, Lum16u, C1)
LUMI_ROTATE(lumiRotate_16u_C3R, rotateImpl, Lum16u, C3)
LUMI_ROTATE(lumiRotate_16u_C4R, rotateImpl, Lum16u, C4)
LUMI_ROTATE(lumiRotate_16u_AC4R, rotateImpl, Lum16u, AC4)
LUMI_ROTATE_P(lumiRotate_16u_P3R, rotateImpl, Lum16u, 3)
LUMI_ROTATE_P(lumiRotate_16u_P4R, rotateImpl, Lum16u, 4)
LUMI_ROTATE(lumiRotate_32f_C1R, rotateImpl, Lum32f, C1)
LUMI_ROTATE(lumiRotate_32f_C3R, rotateImpl, Lum32f, C3)
LUMI_ROTATE(lumiRotate_32f_C4R, rotateImpl, Lum32f, C4)
LUMI_ROTATE(lumiRotate_32f_AC4R, rotateImpl, Lum32f, AC4)
LUMI_ROTATE_P(lumiRotate_32f_P3R, rotateImpl, Lum32f, 3)
LUMI_ROTATE_P(lumiRotate_32f_P4R, rotateImpl, Lum32f, 4)

LUMI_ROTATE(lumiRotateCenter_8u_C1R, rotateCenterImpl, Lum8u, C1)
LUMI_ROTATE(lumiRotateCenter_8u_C3R, rotateCenterImpl, Lum8u, C3)
LUMI_ROTATE(lumiRotateCenter_8u_C4R, rotateCenterImpl, Lum8u, C4)
LUMI_ROTATE(lumiRotateCenter_8u_AC4R, rotateCenterImpl, Lum8u, AC4)
LUMI_ROTATE_P(lumiRotateCenter_8u_P3R, rotateCenterImpl, Lum8u, 3)
LUMI_ROTATE_P(lumiRotateCenter_8u_P4R, rotateCenterImpl, Lum8u, 4)
LUMI_ROTATE(lumiRotateCenter_16u_C1R, rotateCenterImpl, Lum16u, C1)
LUMI_ROTATE(lumiRotateCenter_16u_C3R, rotateCenterImpl, Lum16u, C3)
LUMI_ROTATE(lumiRotateCenter_16u_C4R, rotateCenterImpl, Lum16u, C4)
LUMI_ROTATE(lumiRotateCenter_16u_AC4R, rotateCenterImpl, Lum16u, AC4)
LUMI_ROTATE_P(lumiRotateCenter_16u_P3R, rotateCenterImpl, Lum16u, 3)
LUMI_ROTATE_P(lumiRotateCenter_16u_P4R, rotateCenterImpl, Lum16u, 4)
LUMI_ROTATE(lumiRotateCenter_32f_C1R, rotateCenterImpl, Lum32f, C1)
LUMI_ROTATE(lumiRotateCenter_32f_C3R, rotateCenterImpl, Lum32f, C3)
LUMI_ROTATE(lumiRotateCenter_32f_C4R, rotateCenterImpl, Lum32f, C4)
LUMI_ROTATE(lumiRotateCenter_32f_AC4R, rotateCenterImpl, Lum32f, AC4)
LUMI_ROTATE_P(lumiRotateCenter_32f_P3R, rotateCenterImpl, Lum32f, 3)
LUMI_ROTATE_P(lumiRotateCenter_32f_P4R, rotateCenterImpl, Lum32f, 4)

LUMI_SHEAR(lumiShear_8u_C1R, Lum8u, C1)
LUMI_SHEAR(lumiShear_8u_C3R, Lum8u, C3)
LUMI_SHEAR(lumiShear_8u_C4R, Lum8u, C4)
LUMI_SHEAR(lumiShear_8u_AC4R, Lum8u, AC4)
LUMI_SHEAR_P(lumiShear_8u_P3R, Lum8u, 3)
LUMI_SHEAR_P(lumiShear_8u_P4R, Lum8u, 4)
LUMI_SHEAR(lumiShear_16u_C1R, Lum16u, C1)
LUMI_SHEAR(lumiShear_16u_C3R, Lum16u, C3)
LUMI_SHEAR(lumiShear_16u_C4R, Lum16u, C4)
LUMI_SHEAR(lumiShear_16u_AC4R, Lum16u, AC4)
LUMI_SHEAR_P(lumiShear_16u_P3R, Lum16u, 3)
LUMI_SHEAR_P(lumiShear_16u_P4R, Lum16u, 4)
LUMI_SHEAR(lumiShear_32f_C1R, Lum32f, C1)
LUMI_SHEAR(lumiShear_32f_C3R, Lum32f, C3)
LUMI_SHEAR(lumiShear_32f_C4R, Lum32f, C4)
LUMI_SHEAR(lumiShear_32f_AC4R, Lum32f, AC4)
LUMI_SHEAR_P(lumiShear_32f_P3R, Lum32f, 3)
LUMI_SHEAR_P(lumiShear_32f_P4R, Lum32f, 4)
