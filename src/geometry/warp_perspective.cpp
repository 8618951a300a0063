// Perspective warps (forward, given the inverse, quadrangle to quadrangle) through the warp
// engine: per span the three linear forms of the inverse are evaluated and divided.
#include <cmath>

#include "geometry/warp_engine.h"
#include "lumi/warp_query.h"

namespace lumi {
namespace warp {
namespace {

// The corner quadrangle of roi under the source-to-destination map fwd.
inline LumStatus perspectiveQuadOf(const double fwd[3][3], LumiRect roi, Pt q[4]) {
  return quadBy(lumiGetPerspectiveQuad, roi, fwd, q);
}

// coeffs map source to destination (back: destination to source).
template <class T, class L>
LumStatus perspectiveWarp(const Planes<T>& im, const Frame& f, const double c[3][3], bool back) {
  LumStatus st = checkFront(im, f);
  if (st != lumStatusOk) return st;
  if (singular(c[0][0], c[0][1], c[1][0], c[1][1]) || !(std::fabs(c[2][2]) > 1e-200))
    return lumStatusCoeffErr;
  PerspectiveMap map;
  double fwd[3][3];
  if (!bothWays<3>(c, back, map.a, fwd, invert3)) return lumStatusCoeffErr;
  return warpTail<T, L>(im, f, map,
                        [&](LumiRect roi, Pt q[4]) { return perspectiveQuadOf(fwd, roi, q); });
}
template <class T, class L>
LumStatus perspectiveImpl(const Planes<T>& im, const Frame& f, const double c[3][3]) {
  return perspectiveWarp<T, L>(im, f, c, false);
}
template <class T, class L>
LumStatus perspectiveBackImpl(const Planes<T>& im, const Frame& f, const double c[3][3]) {
  return perspectiveWarp<T, L>(im, f, c, true);
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
  Pt s[4], d[4];
  const LumStatus st = checkQuads(im, f, sq, dq, s, d);
  if (st != lumStatusOk) return st;
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

LUMI_WARP_COEFFS(lumiWarpPerspective_8u_C1R, perspectiveImpl, Lum8u, C1, 3, 3)
LUMI_WARP_COEFFS(lumiWarpPerspective_8u_C3R, perspectiveImpl, Lum8u, C3, 3, 3)
LUMI_WARP_COEFFS(lumiWarpPerspective_8u_C4R, perspectiveImpl, Lum8u, C4, 3, 3)
LUMI_WARP_COEFFS(lumiWarpPerspective_8u_AC4R, perspectiveImpl, Lum8u, AC4, 3, 3)
LUMI_WARP_COEFFS_P(lumiWarpPerspective_8u_P3R, perspectiveImpl, Lum8u, 3, 3, 3)
LUMI_WARP_COEFFS_P(lumiWarpPerspective_8u_P4R, perspectiveImpl, Lum8u, 4, 3, 3)
LUMI_WARP_COEFFS(lumiWarpPerspective_16u_C1R, perspectiveImpl, Lum16u, C1, 3, 3)
LUMI_WARP_COEFFS(lumiWarpPerspective_16u_C3R, perspectiveImpl, Lum16u, C3, 3, 3)
LUMI_WARP_COEFFS(lumiWarpPerspective_16u_C4R, perspectiveImpl, Lum16u, C4, 3, 3)
LUMI_WARP_COEFFS(lumiWarpPerspective_16u_AC4R, perspectiveImpl, Lum16u, AC4, 3, 3)
LUMI_WARP_COEFFS_P(lumiWarpPerspective_16u_P3R, perspectiveImpl, Lum16u, 3, 3, 3)
LUMI_WARP_COEFFS_P(lumiWarpPerspective_16u_P4R, perspectiveImpl, Lum16u, 4, 3, 3)
LUMI_WARP_COEFFS(lumiWarpPerspective_32f_C1R, perspectiveImpl, Lum32f, C1, 3, 3)
LUMI_WARP_COEFFS(lumiWarpPerspective_32f_C3R, perspectiveImpl, Lum32f, C3, 3, 3)
LUMI_WARP_COEFFS(lumiWarpPerspective_32f_C4R, perspectiveImpl, Lum32f, C4, 3, 3)
LUMI_WARP_COEFFS(lumiWarpPerspective_32f_AC4R, perspectiveImpl, Lum32f, AC4, 3, 3)
LUMI_WARP_COEFFS_P(lumiWarpPerspective_32f_P3R, perspectiveImpl, Lum32f, 3, 3, 3)
LUMI_WARP_COEFFS_P(lumiWarpPerspective_32f_P4R, perspectiveImpl, Lum32f, 4, 3, 3)

LUMI_WARP_COEFFS(lumiWarpPerspectiveBack_8u_C1R, perspectiveBackImpl, Lum8u, C1, 3, 3)
LUMI_WARP_COEFFS(lumiWarpPerspectiveBack_8u_C3R, perspectiveBackImpl, Lum8u, C3, 3, 3)
LUMI_WARP_COEFFS(lumiWarpPerspectiveBack_8u_C4R, perspectiveBackImpl, Lum8u, C4, 3, 3)
LUMI_WARP_COEFFS(lumiWarpPerspectiveBack_8u_AC4R, perspectiveBackImpl, Lum8u, AC4, 3, 3)
LUMI_WARP_COEFFS_P(lumiWarpPerspectiveBack_8u_P3R, perspectiveBackImpl, Lum8u, 3, 3, 3)
LUMI_WARP_COEFFS_P(lumiWarpPerspectiveBack_8u_P4R, perspectiveBackImpl, Lum8u, 4, 3, 3)
LUMI_WARP_COEFFS(lumiWarpPerspectiveBack_16u_C1R, perspectiveBackImpl, Lum16u, C1, 3, 3)
LUMI_WARP_COEFFS(lumiWarpPerspectiveBack_16u_C3R, perspectiveBackImpl, Lum16u, C3, 3, 3)
LUMI_WARP_COEFFS(lumiWarpPerspectiveBack_16u_C4R, perspectiveBackImpl, Lum16u, C4, 3, 3)
LUMI_WARP_COEFFS(lumiWarpPerspectiveBack_16u_AC4R, perspectiveBackImpl, Lum16u, AC4, 3, 3)
LUMI_WARP_COEFFS_P(lumiWarpPerspectiveBack_16u_P3R, perspectiveBackImpl, Lum16u, 3, 3, 3)
LUMI_WARP_COEFFS_P(lumiWarpPerspectiveBack_16u_P4R, perspectiveBackImpl, Lum16u, 4, 3, 3)
LUMI_WARP_COEFFS(lumiWarpPerspectiveBack_32f_C1R, perspectiveBackImpl, Lum32f, C1, 3, 3)
LUMI_WARP_COEFFS(lumiWarpPerspectiveBack_32f_C3R, perspectiveBackImpl, Lum32f, C3, 3, 3)
LUMI_WARP_COEFFS(lumiWarpPerspectiveBack_32f_C4R, perspectiveBackImpl, Lum32f, C4, 3, 3)
LUMI_WARP_COEFFS(lumiWarpPerspectiveBack_32f_AC4R, perspectiveBackImpl, Lum32f, AC4, 3, 3)
LUMI_WARP_COEFFS_P(lumiWarpPerspectiveBack_32f_P3R, perspectiveBackImpl, Lum32f, 3, 3, 3)
LUMI_WARP_COEFFS_P(lumiWarpPerspectiveBack_32f_P4R, perspectiveBackImpl, Lum32f, 4, 3, 3)

LUMI_WARP_QUAD(lumiWarpPerspectiveQuad_8u_C1R, perspectiveQuadImpl, Lum8u, C1)
LUMI_WARP_QUAD(lumiWarpPerspectiveQuad_8u_C3R, perspectiveQuadImpl, Lum8u, C3)
LUMI_WARP_QUAD(lumiWarpPerspectiveQuad_8u_C4R, perspectiveQuadImpl, Lum8u, C4)
LUMI_WARP_QUAD(lumiWarpPerspectiveQuad_8u_AC4R, perspectiveQuadImpl, Lum8u, AC4)
LUMI_WARP_QUAD_P(lumiWarpPerspectiveQuad_8u_P3R, perspectiveQuadImpl, Lum8u, 3)
LUMI_WARP_QUAD_P(lumiWarpPerspectiveQuad_8u_P4R, perspectiveQuadImpl, Lum8u, 4)
LUMI_WARP_QUAD(lumiWarpPerspectiveQuad_16u_C1R, perspectiveQuadImpl, Lum16u, C1)
LUMI_WARP_QUAD(lumiWarpPerspectiveQuad_16u_C3R, perspectiveQuadImpl, Lum16u, C3)
LUMI_WARP_QUAD(lumiWarpPerspectiveQuad_16u_C4R, perspectiveQuadImpl, Lum16u, C4)
LUMI_WARP_QUAD(lumiWarpPerspectiveQuad_16u_AC4R, perspectiveQuadImpl, Lum16u, AC4)
LUMI_WARP_QUAD_P(lumiWarpPerspectiveQuad_16u_P3R, perspectiveQuadImpl, Lum16u, 3)
LUMI_WARP_QUAD_P(lumiWarpPerspectiveQuad_16u_P4R, perspectiveQuadImpl, Lum16u, 4)
LUMI_WARP_QUAD(lumiWarpPerspectiveQuad_32f_C1R, perspectiveQuadImpl, Lum32f, C1)
LUMI_WARP_QUAD(lumiWarpPerspectiveQuad_32f_C3R, perspectiveQuadImpl, Lum32f, C3)
LUMI_WARP_QUAD(lumiWarpPerspectiveQuad_32f_C4R, perspectiveQuadImpl, Lum32f, C4)
LUMI_WARP_QUAD(lumiWarpPerspectiveQuad_32f_AC4R, perspectiveQuadImpl, Lum32f, AC4)
LUMI_WARP_QUAD_P(lumiWarpPerspectiveQuad_32f_P3R, perspectiveQuadImpl, Lum32f, 3)
LUMI_WARP_QUAD_P(lumiWarpPerspectiveQuad_32f_P4R, perspectiveQuadImpl, Lum32f, 4)
