// Perspective warps (forward, given the inverse, quadrangle to quadrangle) through the warp
// engine: per span the three linear forms of the inverse are evaluated and divided.
#include <cmath>

#include "geometry/warp_engine.h"
#include "lumi/warp_query.h"

namespace lumi {
namespace warp {
namespace {

LumStatus perspectiveQuadOf(const double fwd[3][3], LumiRect roi, Pt q[4]) {
  double qq[4][2];
  const LumStatus s = lumiGetPerspectiveQuad(roi, qq, fwd);
  toPts(qq, q);
  return s;
}

// coeffs map source to destination (back: destination to source).
template <class T, class L>
LumStatus perspectiveImpl(const Planes<T>& im, const Frame& f, const double c[3][3], bool back) {
  LumStatus st = checkFront(im, f);
  if (st != lumStatusOk) return st;
  if (singular(c[0][0], c[0][1], c[1][0], c[1][1]) || !(std::fabs(c[2][2]) > 1e-200))
    return lumStatusCoeffErr;
  PerspectiveMap map;
  double fwd[3][3];
  if (back) {
    std::memcpy(map.a, c, sizeof(fwd));
    if (!invert3(c, fwd)) return lumStatusCoeffErr;
  } else {
    std::memcpy(fwd, c, sizeof(fwd));
    if (!invert3(c, map.a)) return lumStatusCoeffErr;
  }
  return warpTail<T, L>(im, f, map,
                        [&](LumiRect roi, Pt q[4]) { return perspectiveQuadOf(fwd, roi, q); });
}

inline void mul3(const double a[3][3], const double b[3][3], double r[3][3]) {
  for (int i = 0; i < 3; ++i)
    for (int j = 0; j < 3; ++j) r[i][j] = a[i][0] * b[0][j] + a[i][1] * b[1][j] + a[i][2] * b[2][j];
}

// The perspective map taking sq to dq: through the unit square, whose corners are those of the
// 2x2 ROI at the origin.
template <class T, class L>
LumStatus perspectiveQuadImpl(const Planes<T>& im, const Frame& f, const double sq[4][2],
                              const double dq[4][2]) {
  if (sq == nullptr || dq == nullptr) return lumStatusNullPtrErr;
  LumStatus st = checkFront(im, f);
  if (st != lumStatusOk) return st;
  Pt s[4], d[4];
  toPts(sq, s);
  toPts(dq, d);
  if (degenerate(s) || degenerate(d)) return lumStatusQuadErr;
  const LumiRect unit{0, 0, 2, 2};
  double hs[3][3], hd[3][3], hsInv[3][3], hdInv[3][3], fwd[3][3];
  if (lumiGetPerspectiveTransform(unit, sq, hs) != lumStatusOk ||
      lumiGetPerspectiveTransform(unit, dq, hd) != lumStatusOk || !invert3(hs, hsInv) ||
      !invert3(hd, hdInv))
    return lumStatusQuadErr;
  PerspectiveMap map;
  mul3(hd, hsInv, fwd);
  mul3(hs, hdInv, map.a);
  return warpTail<T, L>(
      im, f, map, [&](LumiRect roi, Pt q[4]) { return perspectiveQuadOf(fwd, roi, q); }, d);
}

}  // namespace
}  // namespace warp
}  // namespace lumi

using namespace lumi;
using namespace lumi::warp;

#define LUMI_WARP_PERSPECTIVE(NAME, T, L)                                                         \
  LUMI_API LumStatus NAME(const T* pSrc, LumiSize srcSize, int srcStep, LumiRect srcRoi, T* pDst, \
                          int dstStep, LumiRect dstRoi, const double coeffs[3][3],                \
                          int interpolation) {                                                    \
    return perspectiveImpl<T, L>(                                                                 \
        packed(pSrc, pDst), frameOf(srcSize, srcStep, srcRoi, dstStep, dstRoi, interpolation),    \
        coeffs, false);                                                                           \
  }
#define LUMI_WARP_PERSPECTIVE_P(NAME, T, N)                                                       \
  LUMI_API LumStatus NAME(const T* const pSrc[N], LumiSize srcSize, int srcStep, LumiRect srcRoi, \
                          T* const pDst[N], int dstStep, LumiRect dstRoi,                         \
                          const double coeffs[3][3], int interpolation) {                         \
    return perspectiveImpl<T, C1>(                                                                \
        planar<T, N>(pSrc, pDst),                                                                 \
        frameOf(srcSize, srcStep, srcRoi, dstStep, dstRoi, interpolation), coeffs, false);        \
  }
#define LUMI_WARP_PERSPECTIVE_BACK(NAME, T, L)                                                    \
  LUMI_API LumStatus NAME(const T* pSrc, LumiSize srcSize, int srcStep, LumiRect srcRoi, T* pDst, \
                          int dstStep, LumiRect dstRoi, const double coeffs[3][3],                \
                          int interpolation) {                                                    \
    return perspectiveImpl<T, L>(                                                                 \
        packed(pSrc, pDst), frameOf(srcSize, srcStep, srcRoi, dstStep, dstRoi, interpolation),    \
        coeffs, true);                                                                            \
  }
#define LUMI_WARP_PERSPECTIVE_BACK_P(NAME, T, N)                                                  \
  LUMI_API LumStatus NAME(const T* const pSrc[N], LumiSize srcSize, int srcStep, LumiRect srcRoi, \
                          T* const pDst[N], int dstStep, LumiRect dstRoi,                         \
                          const double coeffs[3][3], int interpolation) {                         \
    return perspectiveImpl<T, C1>(                                                                \
        planar<T, N>(pSrc, pDst),                                                                 \
        frameOf(srcSize, srcStep, srcRoi, dstStep, dstRoi, interpolation), coeffs, true);         \
  }
#define LUMI_WARP_PERSPECTIVE_QUAD(NAME, T, L)                                                 \
  LUMI_API LumStatus NAME(const T* pSrc, LumiSize srcSize, int srcStep, LumiRect srcRoi,       \
                          const double srcQuad[4][2], T* pDst, int dstStep, LumiRect dstRoi,   \
                          const double dstQuad[4][2], int interpolation) {                     \
    return perspectiveQuadImpl<T, L>(                                                          \
        packed(pSrc, pDst), frameOf(srcSize, srcStep, srcRoi, dstStep, dstRoi, interpolation), \
        srcQuad, dstQuad);                                                                     \
  }
#define LUMI_WARP_PERSPECTIVE_QUAD_P(NAME, T, N)                                                  \
  LUMI_API LumStatus NAME(const T* const pSrc[N], LumiSize srcSize, int srcStep, LumiRect srcRoi, \
                          const double srcQuad[4][2], T* const pDst[N], int dstStep,              \
                          LumiRect dstRoi, const double dstQuad[4][2], int interpolation) {       \
    return perspectiveQuadImpl<T, C1>(                                                            \
        planar<T, N>(pSrc, pDst),                                                                 \
        frameOf(srcSize, srcStep, srcRoi, dstStep, dstRoi, interpolation), srcQuad, dstQuad);     \
  }

LUMI_WARP_PERSPECTIVE(lumiWarpPerspective_8u_C1R, Lum8u, C1)
LUMI_WARP_PERSPECTIVE(lumiWarpPerspective_8u_C3R, Lum8u, C3)
LUMI_WARP_PERSPECTIVE(lumiWarpPerspective_8u_C4R, Lum8u, C4)
LUMI_WARP_PERSPECTIVE(lumiWarpPerspective_8u_AC4R, Lum8u, AC4)
LUMI_WARP_PERSPECTIVE_P(lumiWarpPerspective_8u_P3R, Lum8u, 3)
LUMI_WARP_PERSPECTIVE_P(lumiWarpPerspective_8u_P4R, Lum8u, 4)
LUMI_WARP_PERSPECTIVE(lumiWarpPerspective_16u_C1R, Lum16u, C1)
LUMI_WARP_PERSPECTIVE(lumiWarpPerspective_16u_C3R, Lum16u, C3)
LUMI_WARP_PERSPECTIVE(lumiWarpPerspective_16u_C4R, Lum16u, C4)
LUMI_WARP_PERSPECTIVE(lumiWarpPerspective_16u_AC4R, Lum16u, AC4)
LUMI_WARP_PERSPECTIVE_P(lumiWarpPerspective_16u_P3R, Lum16u, 3)
LUMI_WARP_PERSPECTIVE_P(lumiWarpPerspective_16u_P4R, Lum16u, 4)
LUMI_WARP_PERSPECTIVE(lumiWarpPerspective_32f_C1R, Lum32f, C1)
LUMI_WARP_PERSPECTIVE(lumiWarpPerspective_32f_C3R, Lum32f, C3)
LUMI_WARP_PERSPECTIVE(lumiWarpPerspective_32f_C4R, Lum32f, C4)
LUMI_WARP_PERSPECTIVE(lumiWarpPerspective_32f_AC4R, Lum32f, AC4)
LUMI_WARP_PERSPECTIVE_P(lumiWarpPerspective_32f_P3R, Lum32f, 3)
LUMI_WARP_PERSPECTIVE_P(lumiWarpPerspective_32f_P4R, Lum32f, 4)

LUMI_WARP_PERSPECTIVE_BACK(lumiWarpPerspectiveBack_8u_C1R, Lum8u, C1)
LUMI_WARP_PERSPECTIVE_BACK(lumiWarpPerspectiveBack_8u_C3R, Lum8u, C3)
LUMI_WARP_PERSPECTIVE_BACK(lumiWarpPerspectiveBack_8u_C4R, Lum8u, C4)
LUMI_WARP_PERSPECTIVE_BACK(lumiWarpPerspectiveBack_8u_AC4R, Lum8u, AC4)
LUMI_WARP_PERSPECTIVE_BACK_P(lumiWarpPerspectiveBack_8u_P3R, Lum8u, 3)
LUMI_WARP_PERSPECTIVE_BACK_P(lumiWarpPerspectiveBack_8u_P4R, Lum8u, 4)
LUMI_WARP_PERSPECTIVE_BACK(lumiWarpPerspectiveBack_16u_C1R, Lum16u, C1)
LUMI_WARP_PERSPECTIVE_BACK(lumiWarpPerspectiveBack_16u_C3R, Lum16u, C3)
LUMI_WARP_PERSPECTIVE_BACK(lumiWarpPerspectiveBack_16u_C4R, Lum16u, C4)
LUMI_WARP_PERSPECTIVE_BACK(lumiWarpPerspectiveBack_16u_AC4R, Lum16u, AC4)
LUMI_WARP_PERSPECTIVE_BACK_P(lumiWarpPerspectiveBack_16u_P3R, Lum16u, 3)
LUMI_WARP_PERSPECTIVE_BACK_P(lumiWarpPerspectiveBack_16u_P4R, Lum16u, 4)
LUMI_WARP_PERSPECTIVE_BACK(lumiWarpPerspectiveBack_32f_C1R, Lum32f, C1)
LUMI_WARP_PERSPECTIVE_BACK(lumiWarpPerspectiveBack_32f_C3R, Lum32f, C3)
LUMI_WARP_PERSPECTIVE_BACK(lumiWarpPerspectiveBack_32f_C4R, Lum32f, C4)
LUMI_WARP_PERSPECTIVE_BACK(lumiWarpPerspectiveBack_32f_AC4R, Lum32f, AC4)
LUMI_WARP_PERSPECTIVE_BACK_P(lumiWarpPerspectiveBack_32f_P3R, Lum32f, 3)
LUMI_WARP_PERSPECTIVE_BACK_P(lumiWarpPerspectiveBack_32f_P4R, Lum32f, 4)

LUMI_WARP_PERSPECTIVE_QUAD(lumiWarpPerspectiveQuad_8u_C1R, Lum8u, C1)
LUMI_WARP_PERSPECTIVE_QUAD(lumiWarpPerspectiveQuad_8u_C3R, Lum8u, C3)
LUMI_WARP_PERSPECTIVE_QUAD(lumiWarpPerspectiveQuad_8u_C4R, Lum8u, C4)
LUMI_WARP_PERSPECTIVE_QUAD(lumiWarpPerspectiveQuad_8u_AC4R, Lum8u, AC4)
LUMI_WARP_PERSPECTIVE_QUAD_P(lumiWarpPerspectiveQuad_8u_P3R, Lum8u, 3)
LUMI_WARP_PERSPECTIVE_QUAD_P(lumiWarpPerspectiveQuad_8u_P4R, Lum8u, 4)
LUMI_WARP_PERSPECTIVE_QUAD(lumiWarpPerspectiveQuad_16u_C1R, Lum16u, C1)
LUMI_WARP_PERSPECTIVE_QUAD(lumiWarpPerspectiveQuad_16u_C3R, Lum16u, C3)
LUMI_WARP_PERSPECTIVE_QUAD(lumiWarpPerspectiveQuad_16u_C4R, Lum16u, C4)
LUMI_WARP_PERSPECTIVE_QUAD(lumiWarpPerspectiveQuad_16u_AC4R, Lum16u, AC4)
LUMI_WARP_PERSPECTIVE_QUAD_P(lumiWarpPerspectiveQuad_16u_P3R, Lum16u, 3)
LUMI_WARP_PERSPECTIVE_QUAD_P(lumiWarpPerspectiveQuad_16u_P4R, Lum16u, 4)
LUMI_WARP_PERSPECTIVE_QUAD(lumiWarpPerspectiveQuad_32f_C1R, Lum32f, C1)
LUMI_WARP_PERSPECTIVE_QUAD(lumiWarpPerspectiveQuad_32f_C3R, Lum32f, C3)
LUMI_WARP_PERSPECTIVE_QUAD(lumiWarpPerspectiveQuad_32f_C4R, Lum32f, C4)
LUMI_WARP_PERSPECTIVE_QUAD(lumiWarpPerspectiveQuad_32f_AC4R, Lum32f, AC4)
LUMI_WARP_PERSPECTIVE_QUAD_P(lumiWarpPerspectiveQuad_32f_P3R, Lum32f, 3)
LUMI_WARP_PERSPECTIVE_QUAD_P(lumiWarpPerspectiveQuad_32f_P4R, Lum32f, 4)
