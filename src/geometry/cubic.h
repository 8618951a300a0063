// The 4-point cubic of the geometric transforms: the Lagrange polynomial through four samples
// p0..p3 taken at positions -1, 0, 1 and 2, evaluated at t (t in [0, 1) between p1 and p2; the
// resize engine also evaluates it at t in [-1, 0) and [1, 2] next to the image edges, where it
// reproduces p0 at t = -1 and p3 at t = 2 exactly).
//
// Two equivalent forms:
//  - cubicNewton: the Newton form
//      p0 + (t + 1)(p1 - p0) + t(t + 1)/2 (p2 - 2 p1 + p0) + (t - 1)t(t + 1)/6 (p3 - 3 p2 + 3 p1 - p0)
//    with the three t-dependent coefficients computed once per position (CubicCoeffs) and the
//    sums evaluated left to right exactly as written. The resize kernels use this form in single
//    precision, scalar and vector alike, so integer results agree bit for bit.
//  - cubicWeights: the four Lagrange weights w0..w3 (summing to 1) for sum(w_k p_k), convenient for
//    kernels that gather four samples per pixel. They agree with the Newton form up to rounding.
// Header-only and dependency-free, in float or double (F).
#pragma once

namespace lumi {
namespace geometry {

template <class F>
struct CubicCoeffs {
  F a, b, c;  // (t + 1), t(t + 1)/2, (t - 1)t(t + 1)/6
};

template <class F>
inline CubicCoeffs<F> cubicCoeffs(F t) {
  const F a = t + F(1);
  const F b = t * a / F(2);
  const F c = (t - F(1)) * t * a / F(6);
  return CubicCoeffs<F>{a, b, c};
}

// The Newton form at the position whose coefficients are k.
template <class F>
inline F cubicNewton(F p0, F p1, F p2, F p3, const CubicCoeffs<F>& k) {
  const F d1 = p1 - p0;
  const F d2 = p2 - F(2) * p1 + p0;
  const F d3 = p3 - F(3) * p2 + F(3) * p1 - p0;
  return p0 + k.a * d1 + k.b * d2 + k.c * d3;
}
template <class F>
inline F cubicNewton(F p0, F p1, F p2, F p3, F t) {
  return cubicNewton(p0, p1, p2, p3, cubicCoeffs(t));
}

// Lagrange weights of p0..p3 at t.
template <class F>
inline void cubicWeights(F t, F w[4]) {
  const F tp = t + F(1), tm = t - F(1), tm2 = t - F(2);
  w[0] = -t * tm * tm2 / F(6);
  w[1] = tp * tm * tm2 / F(2);
  w[2] = -tp * t * tm2 / F(2);
  w[3] = tp * t * tm / F(6);
}

}  // namespace geometry
}  // namespace lumi
