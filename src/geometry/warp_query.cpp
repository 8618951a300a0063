// Geometric queries of the warps: corner quadrangles of a ROI under affine, rotation, shear,
// perspective and bilinear coefficients, their bounding boxes, and the coefficients that take
// a ROI's corners to a given quadrangle. All in double precision, no scratch memory.
#include <cmath>

#include "core/frame.h"
#include "lumi/warp_query.h"

namespace lumi {
namespace {

constexpr double kPi = 3.14159265358979323846;

bool badRoi(LumiRect r) { return r.x < 0 || r.y < 0 || r.width < 1 || r.height < 1; }

// Inclusive corners of the ROI: x0, y0, x1, y1.
struct Corners {
  double x0, y0, x1, y1;
  explicit Corners(LumiRect r)
      : x0(r.x), y0(r.y), x1(static_cast<double>(r.x) + r.width - 1),
        y1(static_cast<double>(r.y) + r.height - 1) {}
  double x(int i) const { return i == 0 || i == 3 ? x0 : x1; }
  double y(int i) const { return i < 2 ? y0 : y1; }
};

// The corner test: every edge has a length, every corner turns the same way, and no turn is
// collinear within a relative 1e-12 (so a quadrangle that is merely small is not degenerate).
// Crossed (bow-tie) and folded quadrangles turn both ways; a NaN or infinite corner fails.
bool degenerate(const double q[4][2]) {
  for (int i = 0; i < 4; ++i)
    if (!std::isfinite(q[i][0]) || !std::isfinite(q[i][1])) return true;
  int sign = 0;
  for (int i = 0; i < 4; ++i) {
    const double* p0 = q[i];
    const double* p1 = q[(i + 1) & 3];
    const double* p2 = q[(i + 2) & 3];
    const double ax = p1[0] - p0[0], ay = p1[1] - p0[1];
    const double bx = p2[0] - p1[0], by = p2[1] - p1[1];
    const double cross = ax * by - ay * bx;
    const double scale = std::hypot(ax, ay) * std::hypot(bx, by);
    if (!(std::fabs(cross) > 1e-12 * scale)) return true;
    const int s = cross > 0 ? 1 : -1;
    if (sign != 0 && s != sign) return true;
    sign = s;
  }
  return false;
}

void boundOf(const double q[4][2], double b[2][2]) {
  b[0][0] = b[1][0] = q[0][0];
  b[0][1] = b[1][1] = q[0][1];
  for (int i = 1; i < 4; ++i) {
    b[0][0] = std::fmin(b[0][0], q[i][0]);
    b[0][1] = std::fmin(b[0][1], q[i][1]);
    b[1][0] = std::fmax(b[1][0], q[i][0]);
    b[1][1] = std::fmax(b[1][1], q[i][1]);
  }
}

LumStatus affineQuad(LumiRect roi, double quad[4][2], const double c[2][3]) {
  if (anyNull(quad, c)) return lumStatusNullPtrErr;
  if (badRoi(roi)) return lumStatusSizeErr;
  const Corners k(roi);
  for (int i = 0; i < 4; ++i) {
    const double x = k.x(i), y = k.y(i);
    quad[i][0] = c[0][0] * x + c[0][1] * y + c[0][2];
    quad[i][1] = c[1][0] * x + c[1][1] * y + c[1][2];
  }
  return degenerate(quad) ? lumStatusCoeffErr : lumStatusOk;
}

LumStatus perspectiveQuad(LumiRect roi, double quad[4][2], const double c[3][3]) {
  if (anyNull(quad, c)) return lumStatusNullPtrErr;
  if (badRoi(roi)) return lumStatusSizeErr;
  const Corners k(roi);
  for (int i = 0; i < 4; ++i) {
    const double x = k.x(i), y = k.y(i);
    const double d = c[2][0] * x + c[2][1] * y + c[2][2];
    quad[i][0] = (c[0][0] * x + c[0][1] * y + c[0][2]) / d;
    quad[i][1] = (c[1][0] * x + c[1][1] * y + c[1][2]) / d;
  }
  return degenerate(quad) ? lumStatusCoeffErr : lumStatusOk;
}

LumStatus bilinearQuad(LumiRect roi, double quad[4][2], const double c[2][4]) {
  if (anyNull(quad, c)) return lumStatusNullPtrErr;
  if (badRoi(roi)) return lumStatusSizeErr;
  const Corners k(roi);
  for (int i = 0; i < 4; ++i) {
    const double x = k.x(i), y = k.y(i);
    quad[i][0] = c[0][0] * x * y + c[0][1] * x + c[0][2] * y + c[0][3];
    quad[i][1] = c[1][0] * x * y + c[1][1] * x + c[1][2] * y + c[1][3];
  }
  return degenerate(quad) ? lumStatusCoeffErr : lumStatusOk;
}

// Bound from a quadrangle query: nothing written on an error before the quadrangle, the box
// of the quadrangle (and its status) otherwise.
template <class Quad>
LumStatus boundFrom(double bound[2][2], Quad&& quadOf) {
  if (bound == nullptr) return lumStatusNullPtrErr;
  double q[4][2];
  const LumStatus st = quadOf(q);
  if (st != lumStatusOk && st != lumStatusCoeffErr) return st;
  boundOf(q, bound);
  return st;
}

// The angle reduced to [0, 360): angle - trunc(angle / 360) * 360, plus 360 when negative.
double reduceAngle(double angle) {
  double a = angle - std::trunc(angle / 360.0) * 360.0;
  if (a < 0) a += 360.0;
  return a;
}

// Cosine and sine of a rotation, exact at multiples of 90 degrees.
void cosSin(double angle, double* c, double* s) {
  const double a = reduceAngle(angle);
  if (a == 0) {
    *c = 1, *s = 0;
  } else if (a == 90) {
    *c = 0, *s = 1;
  } else if (a == 180) {
    *c = -1, *s = 0;
  } else if (a == 270) {
    *c = 0, *s = -1;
  } else {
    const double r = a / 180.0 * kPi;
    *c = std::cos(r), *s = std::sin(r);
  }
}

// Affine coefficients as a value, so a query can pass them on in one expression.
struct Affine {
  double c[2][3];
};

Affine rotation(double angle, double xShift, double yShift) {
  double cs, sn;
  cosSin(angle, &cs, &sn);
  return Affine{{{cs, sn, xShift}, {-sn, cs, yShift}}};
}

Affine shear(double xShear, double yShear, double xShift, double yShift) {
  return Affine{{{1, xShear, xShift}, {yShear, 1, yShift}}};
}

// The shifts that keep the centre in place, exact at 0, 90, 180 and 270 degrees.
void rotateShift(double xc, double yc, double angle, double* xs, double* ys) {
  const double a = reduceAngle(angle);
  if (a == 90) {
    *xs = xc - yc, *ys = yc + xc;
  } else if (a == 180) {
    *xs = 2 * xc, *ys = 2 * yc;
  } else if (a == 270) {
    *xs = xc + yc, *ys = yc - xc;
  } else if (a == 0) {
    *xs = 0, *ys = 0;
  } else {
    const double r = a / 180.0 * kPi;
    const double cs = std::cos(r), sn = std::sin(r);
    *xs = xc - xc * cs - yc * sn;
    *ys = yc + xc * sn - yc * cs;
  }
}

// u x v == 0 within a relative 1e-12 (absolute when the first product is below 1e-200).
bool parallel(double ux, double uy, double vx, double vy) {
  const double p = ux * vy, q = uy * vx;
  if (std::fabs(p) > 1e-200) return std::fabs((p - q) / p) <= 1e-12;
  return std::fabs(q) <= 1e-12;
}

}  // namespace
}  // namespace lumi

using namespace lumi;

LUMI_API LumStatus lumiGetAffineQuad(LumiRect srcRoi, double quad[4][2], const double coeffs[2][3]) {
  return affineQuad(srcRoi, quad, coeffs);
}

LUMI_API LumStatus lumiGetAffineBound(LumiRect srcRoi, double bound[2][2], const double coeffs[2][3]) {
  return boundFrom(bound, [&](double q[4][2]) { return affineQuad(srcRoi, q, coeffs); });
}

// c00 = (q1x - q0x) / (x1 - x0), c01 = (q2x - q1x) / (y1 - y0), likewise for y; the shifts put
// corner 0 on q0. The fourth corner is not used: a quad that is not a parallelogram still gets
// these coefficients, with a warning.
LUMI_API LumStatus lumiGetAffineTransform(LumiRect srcRoi, const double quad[4][2], double coeffs[2][3]) {
  if (anyNull(quad, coeffs)) return lumStatusNullPtrErr;
  if (badRoi(srcRoi)) return lumStatusSizeErr;
  if (degenerate(quad)) return lumStatusQuadErr;
  if (srcRoi.width == 1 || srcRoi.height == 1) return lumStatusRectErr;
  const Corners k(srcRoi);
  const double w = k.x1 - k.x0, h = k.y1 - k.y0;
  double* c0 = coeffs[0];
  double* c1 = coeffs[1];
  c0[0] = (quad[1][0] - quad[0][0]) / w;
  c0[1] = (quad[2][0] - quad[1][0]) / h;
  c1[0] = (quad[1][1] - quad[0][1]) / w;
  c1[1] = (quad[2][1] - quad[1][1]) / h;
  c0[2] = quad[0][0] - c0[0] * k.x0 - c0[1] * k.y0;
  c1[2] = quad[0][1] - c1[0] * k.x0 - c1[1] * k.y0;
  const bool topBottom = parallel(quad[1][0] - quad[0][0], quad[1][1] - quad[0][1],
                                  quad[2][0] - quad[3][0], quad[2][1] - quad[3][1]);
  const bool leftRight = parallel(quad[3][0] - quad[0][0], quad[3][1] - quad[0][1],
                                  quad[2][0] - quad[1][0], quad[2][1] - quad[1][1]);
  return topBottom && leftRight ? lumStatusOk : lumStatusAffineQuadChangedWarn;
}

LUMI_API LumStatus lumiGetRotateShift(double xCenter, double yCenter, double angle, double* xShift, double* yShift) {
  if (anyNull(xShift, yShift)) return lumStatusNullPtrErr;
  rotateShift(xCenter, yCenter, angle, xShift, yShift);
  return lumStatusOk;
}

LUMI_API LumStatus lumiAddRotateShift(double xCenter, double yCenter, double angle, double* xShift, double* yShift) {
  if (anyNull(xShift, yShift)) return lumStatusNullPtrErr;
  double xs, ys;
  rotateShift(xCenter, yCenter, angle, &xs, &ys);
  *xShift += xs;
  *yShift += ys;
  return lumStatusOk;
}

LUMI_API LumStatus lumiGetRotateQuad(LumiRect srcRoi, double quad[4][2], double angle, double xShift, double yShift) {
  return affineQuad(srcRoi, quad, rotation(angle, xShift, yShift).c);
}

LUMI_API LumStatus lumiGetRotateBound(LumiRect srcRoi, double bound[2][2], double angle, double xShift, double yShift) {
  const Affine a = rotation(angle, xShift, yShift);
  return boundFrom(bound, [&](double q[4][2]) { return affineQuad(srcRoi, q, a.c); });
}

LUMI_API LumStatus lumiGetShearQuad(LumiRect srcRoi, double quad[4][2], double xShear, double yShear, double xShift, double yShift) {
  return affineQuad(srcRoi, quad, shear(xShear, yShear, xShift, yShift).c);
}

LUMI_API LumStatus lumiGetShearBound(LumiRect srcRoi, double bound[2][2], double xShear, double yShear, double xShift, double yShift) {
  const Affine a = shear(xShear, yShear, xShift, yShift);
  return boundFrom(bound, [&](double q[4][2]) { return affineQuad(srcRoi, q, a.c); });
}

LUMI_API LumStatus lumiGetPerspectiveQuad(LumiRect srcRoi, double quad[4][2], const double coeffs[3][3]) {
  return perspectiveQuad(srcRoi, quad, coeffs);
}

LUMI_API LumStatus lumiGetPerspectiveBound(LumiRect srcRoi, double bound[2][2], const double coeffs[3][3]) {
  return boundFrom(bound, [&](double q[4][2]) { return perspectiveQuad(srcRoi, q, coeffs); });
}

// The unit square to quad (corners (0,0), (1,0), (1,1), (0,1)) in closed form, composed with
// the ROI's corner rectangle to the unit square, then scaled so that c22 = 1 where c22 is not
// zero.
LUMI_API LumStatus lumiGetPerspectiveTransform(LumiRect srcRoi, const double quad[4][2], double coeffs[3][3]) {
  if (anyNull(quad, coeffs)) return lumStatusNullPtrErr;
  if (badRoi(srcRoi)) return lumStatusSizeErr;
  if (degenerate(quad)) return lumStatusQuadErr;
  if (srcRoi.width == 1 || srcRoi.height == 1) return lumStatusRectErr;
  const double x0 = quad[0][0], y0 = quad[0][1], x1 = quad[1][0], y1 = quad[1][1];
  const double x2 = quad[2][0], y2 = quad[2][1], x3 = quad[3][0], y3 = quad[3][1];
  // Square to quad: x' = (a u + b v + c) / (g u + h v + 1), y' = (d u + e v + f) / (...).
  const double sx = x0 - x1 + x2 - x3, sy = y0 - y1 + y2 - y3;
  const double dx1 = x1 - x2, dx2 = x3 - x2, dy1 = y1 - y2, dy2 = y3 - y2;
  double g = 0, hh = 0;
  if (sx != 0 || sy != 0) {
    // A convex quadrangle never makes this determinant zero.
    const double den = dx1 * dy2 - dx2 * dy1;
    g = (sx * dy2 - dx2 * sy) / den;
    hh = (dx1 * sy - sx * dy1) / den;
  }
  const double s[3][3] = {{x1 - x0 + g * x1, x3 - x0 + hh * x3, x0},
                          {y1 - y0 + g * y1, y3 - y0 + hh * y3, y0},
                          {g, hh, 1}};
  // u = (x - rx) / w, v = (y - ry) / h.
  const Corners k(srcRoi);
  const double w = k.x1 - k.x0, h = k.y1 - k.y0;
  double m[3][3];
  for (int i = 0; i < 3; ++i) {
    m[i][0] = s[i][0] / w;
    m[i][1] = s[i][1] / h;
    m[i][2] = s[i][2] - s[i][0] * k.x0 / w - s[i][1] * k.y0 / h;
  }
  const double n = std::fabs(m[2][2]) > 1e-200 ? m[2][2] : 1.0;
  for (int i = 0; i < 3; ++i)
    for (int j = 0; j < 3; ++j) coeffs[i][j] = m[i][j] / n;
  return lumStatusOk;
}

LUMI_API LumStatus lumiGetBilinearQuad(LumiRect srcRoi, double quad[4][2], const double coeffs[2][4]) {
  return bilinearQuad(srcRoi, quad, coeffs);
}

LUMI_API LumStatus lumiGetBilinearBound(LumiRect srcRoi, double bound[2][2], const double coeffs[2][4]) {
  return boundFrom(bound, [&](double q[4][2]) { return bilinearQuad(srcRoi, q, coeffs); });
}

// Per output coordinate, the four coefficients of a xy + b x + c y + d through the four
// corners: with u = (x - x0) / w and v = (y - y0) / h the map is
// q0 + (q1 - q0) u + (q3 - q0) v + (q0 - q1 + q2 - q3) uv, expanded in x and y.
LUMI_API LumStatus lumiGetBilinearTransform(LumiRect srcRoi, const double quad[4][2], double coeffs[2][4]) {
  if (anyNull(quad, coeffs)) return lumStatusNullPtrErr;
  if (badRoi(srcRoi)) return lumStatusSizeErr;
  if (srcRoi.width == 1 || srcRoi.height == 1) return lumStatusRectErr;
  const Corners k(srcRoi);
  const double w = k.x1 - k.x0, h = k.y1 - k.y0;
  for (int j = 0; j < 2; ++j) {
    const double a = (quad[0][j] - quad[1][j] + quad[2][j] - quad[3][j]) / (w * h);
    const double b = (quad[1][j] - quad[0][j]) / w;
    const double c = (quad[3][j] - quad[0][j]) / h;
    coeffs[j][0] = a;
    coeffs[j][1] = b - a * k.y0;
    coeffs[j][2] = c - a * k.x0;
    coeffs[j][3] = quad[0][j] - b * k.x0 - c * k.y0 + a * k.x0 * k.y0;
  }
  return lumStatusOk;
}
