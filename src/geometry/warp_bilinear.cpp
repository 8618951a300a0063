// Bilinear warps through the warp engine. A bilinear map x' = c00 xy + c01 x + c02 y + c03
// (y' likewise) keeps lines of constant x or y straight, so the image of a ROI is the
// quadrangle of its corners; its inverse is not bilinear, so the forward and quadrangle warps
// solve a quadratic per destination pixel, while the Back warp samples with its coefficients
// directly and solves the quadratic only for the four corners.
#include <cmath>

#include "geometry/warp_engine.h"
#include "lumi/warp_query.h"

namespace lumi {
namespace warp {
namespace {

// Distance of (x, y) outside the rectangle r (0 inside).
inline double outside(double x, double y, const LumiRect& r) {
  const double dx =
      std::fmax(std::fmax(r.x - x, x - (static_cast<double>(r.x) + r.width - 1)), 0.0);
  const double dy =
      std::fmax(std::fmax(r.y - y, y - (static_cast<double>(r.y) + r.height - 1)), 0.0);
  return dx + dy;
}

// Solves c(x, y) = (u, v): eliminating x leaves qa y^2 + qb y + qc = 0; of its (up to two)
// roots the one whose point lies nearest the rectangle ref is taken. False when none is finite.
inline bool solveBilinear(const double c[2][4], double u, double v, const LumiRect& ref, double* x,
                          double* y) {
  const double A = u - c[0][3], B = v - c[1][3];
  const double qa = c[0][0] * c[1][2] - c[0][2] * c[1][0];
  const double qb = A * c[1][0] - c[0][2] * c[1][1] - B * c[0][0] + c[0][1] * c[1][2];
  const double qc = A * c[1][1] - B * c[0][1];
  double disc = qb * qb - 4 * qa * qc;
  if (disc < 0) disc = 0;  // a double root pulled below zero by rounding
  const double q = -0.5 * (qb + std::copysign(std::sqrt(disc), qb));
  const double roots[2] = {q / qa, qc / q};  // the stable pair; qa = 0 leaves -qc/qb
  bool found = false;
  double best = HUGE_VAL;
  for (double r : roots) {
    if (!std::isfinite(r)) continue;
    const double d1 = c[0][0] * r + c[0][1], d2 = c[1][0] * r + c[1][1];
    const double px =
        std::fabs(d1) >= std::fabs(d2) ? (A - c[0][2] * r) / d1 : (B - c[1][2] * r) / d2;
    if (!std::isfinite(px)) continue;
    const double o = outside(px, r, ref);
    if (!found || o < best) {
      found = true;
      best = o;
      *x = px;
      *y = r;
    }
  }
  return found;
}

// Forward coefficients: each destination pixel solves for its source position.
struct BilinearInverseMap {
  static constexpr int kPos = kPosArrays;
  double c[2][4];
  LumiRect ref;  // the source ROI, which picks the root
  void span(int y, int xs, int n, double* X, double* Y) const {
    for (int k = 0; k < n; ++k)
      if (!solveBilinear(c, static_cast<double>(xs) + k, y, ref, &X[k], &Y[k])) X[k] = Y[k] = NAN;
  }
};

// Destination-to-source coefficients: linear in x along a row.
struct BilinearBackMap : StepMap<BilinearBackMap> {
  static constexpr int kPos = kPosLinear;
  double c[2][4];
  template <class T>
  void start(int y, int xs, SpanArgs<T>* s) const {
    const double ax = c[0][0] * y + c[0][1], bx = c[0][2] * y + c[0][3];
    const double ay = c[1][0] * y + c[1][1], by = c[1][2] * y + c[1][3];
    s->x0 = ax * xs + bx;
    s->y0 = ay * xs + by;
    s->dx = ax;
    s->dy = ay;
  }
};

// The Jacobian at the origin of the rectangle the coefficients take points from.
inline bool singularAt(const double c[2][4], LumiRect r) {
  const double x = r.x, y = r.y;
  return singular(c[0][0] * y + c[0][1], c[0][0] * x + c[0][2], c[1][0] * y + c[1][1],
                  c[1][0] * x + c[1][2]);
}

template <class T, class L>
LumStatus forwardTail(const Planes<T>& im, const Frame& f, const double c[2][4], const Pt* dq) {
  BilinearInverseMap map;
  std::memcpy(map.c, c, sizeof(map.c));
  map.ref = f.srcRoi;
  return warpTail<T, L>(
      im, f, map,
      [&](LumiRect roi, Pt q[4]) {
        map.ref = roi;
        return quadBy(lumiGetBilinearQuad, roi, c, q);
      },
      dq);
}

template <class T, class L>
LumStatus bilinearImpl(const Planes<T>& im, const Frame& f, const double c[2][4]) {
  LumStatus st = checkFront(im, f);
  if (st != lumStatusOk) return st;
  if (singularAt(c, f.srcRoi)) return lumStatusCoeffErr;
  return forwardTail<T, L>(im, f, c, nullptr);
}

template <class T, class L>
LumStatus bilinearBackImpl(const Planes<T>& im, const Frame& f, const double c[2][4]) {
  LumStatus st = checkFront(im, f);
  if (st != lumStatusOk) return st;
  if (singularAt(c, f.dstRoi)) return lumStatusCoeffErr;
  BilinearBackMap map;
  std::memcpy(map.c, c, sizeof(map.c));
  return warpTail<T, L>(im, f, map, [&](LumiRect roi, Pt q[4]) {
    const double x0 = roi.x, y0 = roi.y;
    const double x1 = x0 + roi.width - 1, y1 = y0 + roi.height - 1;
    const Pt corners[4] = {{x0, y0}, {x1, y0}, {x1, y1}, {x0, y1}};
    for (int i = 0; i < 4; ++i)
      if (!solveBilinear(c, corners[i].x, corners[i].y, f.dstRoi, &q[i].x, &q[i].y))
        return lumStatusCoeffErr;
    return lumStatusOk;
  });
}

// The bilinear map (in source coordinates) through the four corner pairs: a 4x4 system per
// output coordinate, solved with partial pivoting. False when it is singular.
inline bool bilinearThrough(const Pt s[4], const Pt d[4], double c[2][4]) {
  double m[4][6];
  double scale = 0;
  for (int i = 0; i < 4; ++i) {
    const double row[6] = {s[i].x * s[i].y, s[i].x, s[i].y, 1.0, d[i].x, d[i].y};
    for (int j = 0; j < 6; ++j) m[i][j] = row[j];
    for (int j = 0; j < 4; ++j) scale = std::fmax(scale, std::fabs(row[j]));
  }
  for (int k = 0; k < 4; ++k) {
    int p = k;
    for (int i = k + 1; i < 4; ++i)
      if (std::fabs(m[i][k]) > std::fabs(m[p][k])) p = i;
    if (!(std::fabs(m[p][k]) > 1e-12 * scale)) return false;
    for (int j = 0; j < 6; ++j) std::swap(m[k][j], m[p][j]);
    for (int i = k + 1; i < 4; ++i) {
      const double r = m[i][k] / m[k][k];
      for (int j = k; j < 6; ++j) m[i][j] -= r * m[k][j];
    }
  }
  for (int o = 0; o < 2; ++o)
    for (int k = 3; k >= 0; --k) {
      double v = m[k][4 + o];
      for (int j = k + 1; j < 4; ++j) v -= m[k][j] * c[o][j];
      c[o][k] = v / m[k][k];
    }
  return true;
}

template <class T, class L>
LumStatus bilinearQuadImpl(const Planes<T>& im, const Frame& f, const double sq[4][2],
                           const double dq[4][2]) {
  Pt s[4], d[4];
  const LumStatus st = checkQuads(im, f, sq, dq, s, d);
  if (st != lumStatusOk) return st;
  double c[2][4];
  if (!bilinearThrough(s, d, c)) return lumStatusQuadErr;
  return forwardTail<T, L>(im, f, c, d);
}

}  // namespace
}  // namespace warp
}  // namespace lumi

using namespace lumi;
using namespace lumi::warp;

LUMI_WARP_COEFFS(lumiWarpBilinear_8u_C1R, bilinearImpl, Lum8u, C1, 2, 4)
LUMI_WARP_COEFFS(lumiWarpBilinear_8u_C3R, bilinearImpl, Lum8u, C3, 2, 4)
LUMI_WARP_COEFFS(lumiWarpBilinear_8u_C4R, bilinearImpl, Lum8u, C4, 2, 4)
LUMI_WARP_COEFFS(lumiWarpBilinear_8u_AC4R, bilinearImpl, Lum8u, AC4, 2, 4)
LUMI_WARP_COEFFS_P(lumiWarpBilinear_8u_P3R, bilinearImpl, Lum8u, 3, 2, 4)
LUMI_WARP_COEFFS_P(lumiWarpBilinear_8u_P4R, bilinearImpl, Lum8u, 4, 2, 4)
LUMI_WARP_COEFFS(lumiWarpBilinear_16u_C1R, bilinearImpl, Lum16u, C1, 2, 4)
LUMI_WARP_COEFFS(lumiWarpBilinear_16u_C3R, bilinearImpl, Lum16u, C3, 2, 4)
LUMI_WARP_COEFFS(lumiWarpBilinear_16u_C4R, bilinearImpl, Lum16u, C4, 2, 4)
LUMI_WARP_COEFFS(lumiWarpBilinear_16u_AC4R, bilinearImpl, Lum16u, AC4, 2, 4)
LUMI_WARP_COEFFS_P(lumiWarpBilinear_16u_P3R, bilinearImpl, Lum16u, 3, 2, 4)
LUMI_WARP_COEFFS_P(lumiWarpBilinear_16u_P4R, bilinearImpl, Lum16u, 4, 2, 4)
LUMI_WARP_COEFFS(lumiWarpBilinear_32f_C1R, bilinearImpl, Lum32f, C1, 2, 4)
LUMI_WARP_COEFFS(lumiWarpBilinear_32f_C3R, bilinearImpl, Lum32f, C3, 2, 4)
LUMI_WARP_COEFFS(lumiWarpBilinear_32f_C4R, bilinearImpl, Lum32f, C4, 2, 4)
LUMI_WARP_COEFFS(lumiWarpBilinear_32f_AC4R, bilinearImpl, Lum32f, AC4, 2, 4)
LUMI_WARP_COEFFS_P(lumiWarpBilinear_32f_P3R, bilinearImpl, Lum32f, 3, 2, 4)
LUMI_WARP_COEFFS_P(lumiWarpBilinear_32f_P4R, bilinearImpl, Lum32f, 4, 2, 4)

LUMI_WARP_COEFFS(lumiWarpBilinearBack_8u_C1R, bilinearBackImpl, Lum8u, C1, 2, 4)
LUMI_WARP_COEFFS(lumiWarpBilinearBack_8u_C3R, bilinearBackImpl, Lum8u, C3, 2, 4)
LUMI_WARP_COEFFS(lumiWarpBilinearBack_8u_C4R, bilinearBackImpl, Lum8u, C4, 2, 4)
LUMI_WARP_COEFFS(lumiWarpBilinearBack_8u_AC4R, bilinearBackImpl, Lum8u, AC4, 2, 4)
LUMI_WARP_COEFFS_P(lumiWarpBilinearBack_8u_P3R, bilinearBackImpl, Lum8u, 3, 2, 4)
LUMI_WARP_COEFFS_P(lumiWarpBilinearBack_8u_P4R, bilinearBackImpl, Lum8u, 4, 2, 4)
LUMI_WARP_COEFFS(lumiWarpBilinearBack_16u_C1R, bilinearBackImpl, Lum16u, C1, 2, 4)
LUMI_WARP_COEFFS(lumiWarpBilinearBack_16u_C3R, bilinearBackImpl, Lum16u, C3, 2, 4)
LUMI_WARP_COEFFS(lumiWarpBilinearBack_16u_C4R, bilinearBackImpl, Lum16u, C4, 2, 4)
LUMI_WARP_COEFFS(lumiWarpBilinearBack_16u_AC4R, bilinearBackImpl, Lum16u, AC4, 2, 4)
LUMI_WARP_COEFFS_P(lumiWarpBilinearBack_16u_P3R, bilinearBackImpl, Lum16u, 3, 2, 4)
LUMI_WARP_COEFFS_P(lumiWarpBilinearBack_16u_P4R, bilinearBackImpl, Lum16u, 4, 2, 4)
LUMI_WARP_COEFFS(lumiWarpBilinearBack_32f_C1R, bilinearBackImpl, Lum32f, C1, 2, 4)
LUMI_WARP_COEFFS(lumiWarpBilinearBack_32f_C3R, bilinearBackImpl, Lum32f, C3, 2, 4)
LUMI_WARP_COEFFS(lumiWarpBilinearBack_32f_C4R, bilinearBackImpl, Lum32f, C4, 2, 4)
LUMI_WARP_COEFFS(lumiWarpBilinearBack_32f_AC4R, bilinearBackImpl, Lum32f, AC4, 2, 4)
LUMI_WARP_COEFFS_P(lumiWarpBilinearBack_32f_P3R, bilinearBackImpl, Lum32f, 3, 2, 4)
LUMI_WARP_COEFFS_P(lumiWarpBilinearBack_32f_P4R, bilinearBackImpl, Lum32f, 4, 2, 4)

LUMI_WARP_QUAD(lumiWarpBilinearQuad_8u_C1R, bilinearQuadImpl, Lum8u, C1)
LUMI_WARP_QUAD(lumiWarpBilinearQuad_8u_C3R, bilinearQuadImpl, Lum8u, C3)
LUMI_WARP_QUAD(lumiWarpBilinearQuad_8u_C4R, bilinearQuadImpl, Lum8u, C4)
LUMI_WARP_QUAD(lumiWarpBilinearQuad_8u_AC4R, bilinearQuadImpl, Lum8u, AC4)
LUMI_WARP_QUAD_P(lumiWarpBilinearQuad_8u_P3R, bilinearQuadImpl, Lum8u, 3)
LUMI_WARP_QUAD_P(lumiWarpBilinearQuad_8u_P4R, bilinearQuadImpl, Lum8u, 4)
LUMI_WARP_QUAD(lumiWarpBilinearQuad_16u_C1R, bilinearQuadImpl, Lum16u, C1)
LUMI_WARP_QUAD(lumiWarpBilinearQuad_16u_C3R, bilinearQuadImpl, Lum16u, C3)
LUMI_WARP_QUAD(lumiWarpBilinearQuad_16u_C4R, bilinearQuadImpl, Lum16u, C4)
LUMI_WARP_QUAD(lumiWarpBilinearQuad_16u_AC4R, bilinearQuadImpl, Lum16u, AC4)
LUMI_WARP_QUAD_P(lumiWarpBilinearQuad_16u_P3R, bilinearQuadImpl, Lum16u, 3)
LUMI_WARP_QUAD_P(lumiWarpBilinearQuad_16u_P4R, bilinearQuadImpl, Lum16u, 4)
LUMI_WARP_QUAD(lumiWarpBilinearQuad_32f_C1R, bilinearQuadImpl, Lum32f, C1)
LUMI_WARP_QUAD(lumiWarpBilinearQuad_32f_C3R, bilinearQuadImpl, Lum32f, C3)
LUMI_WARP_QUAD(lumiWarpBilinearQuad_32f_C4R, bilinearQuadImpl, Lum32f, C4)
LUMI_WARP_QUAD(lumiWarpBilinearQuad_32f_AC4R, bilinearQuadImpl, Lum32f, AC4)
LUMI_WARP_QUAD_P(lumiWarpBilinearQuad_32f_P3R, bilinearQuadImpl, Lum32f, 3)
LUMI_WARP_QUAD_P(lumiWarpBilinearQuad_32f_P4R, bilinearQuadImpl, Lum32f, 4)
