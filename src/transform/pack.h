// The packed real spectrum: where each frequency of the full W x H spectrum of a real image
// lives in the packed image, and the rounding of the integer members that read or write it.
//
// Column 0 holds the packed column spectrum of u = 0 (row 0 real, rows (2i-1, 2i) Re and Im of
// A(i, 0), row H-1 real for even H); for even W column W-1 holds u = W/2 the same way; every
// other column pair (2j-1, 2j) holds Re, Im A(r, j) in every row r. The rest of the spectrum
// follows from A(H-v mod H, W-u mod W) = conj A(v, u).
#pragma once

#include <cmath>
#include <cstdint>
#include <limits>
#include <type_traits>

#include "core/frame.h"
#include "core/scale_factor.h"

namespace lumi {
namespace pack {

// x rounded to the nearest integer, ties to even, saturated to T (NaN gives 0). Independent of
// the caller's rounding mode: floor and the comparisons are exact.
template <class T, class F>
inline T roundSat(F x) {
  using Lim = std::numeric_limits<T>;
  if (!(x == x)) return T(0);
  if (x <= static_cast<F>(Lim::min())) return Lim::min();
  if (x >= static_cast<F>(Lim::max())) return Lim::max();
  const F r = std::floor(x);  // within T's range here, so exact as an int64_t
  const F d = x - r;
  const int64_t i = static_cast<int64_t>(r);
  return static_cast<T>(d > F(0.5) || (d == F(0.5) && (i & 1)) ? i + 1 : i);
}

// v x 2^-sf for a value computed in double (magnitudes, phases, transform results).
template <class T>
inline T scaleRound(double v, const ScaleFactor& sf) {
  return roundSat<T>(sf.scale(v));
}

// v x 2^-sf for an exact integer result: int64 arithmetic where it is exact, else the 64-bit
// significand of long double (every integer below 2^64 in magnitude is exact there).
template <class T>
inline T scaleExact(int64_t v, const ScaleFactor& sf) {
  const int64_t lim = int64_t(1) << 61;
  if (sf.mode == ScaleFactor::kNone) return saturate<T>(v);
  if (sf.mode == ScaleFactor::kRight && v > -lim && v < lim) return saturate<T>(sf.apply(v));
  return roundSat<T>(std::ldexp(static_cast<long double>(v), sf.exponent));
}
// a - b for products of 32-bit values (|a|, |b| <= 2^62): exact in long double when int64
// would overflow.
template <class T>
inline T scaleExactDiff(int64_t a, int64_t b, const ScaleFactor& sf) {
  int64_t d;
  if (!__builtin_sub_overflow(a, b, &d)) return scaleExact<T>(d, sf);
  const long double v = static_cast<long double>(a) - static_cast<long double>(b);
  return roundSat<T>(std::ldexp(v, sf.exponent));
}
template <class T>
inline T scaleExactSum(int64_t a, int64_t b, const ScaleFactor& sf) {
  int64_t d;
  if (!__builtin_add_overflow(a, b, &d)) return scaleExact<T>(d, sf);
  const long double v = static_cast<long double>(a) + static_cast<long double>(b);
  return roundSat<T>(std::ldexp(v, sf.exponent));
}

// The scale factor of the integer members: shifts beyond 62 bits only round or saturate.
inline ScaleFactor resolveScale(int sf) { return ScaleFactor::resolve(sf, 62, 62); }

// One complex product of interleaved (Re, Im) pairs, d = a x b (kConj: a x conj b), each part
// formed in double and rounded once; d may be a or b.
template <bool kConj>
inline void mulPair(const float* a, const float* b, float* d) {
  const double xr = a[0], xi = a[1], yr = b[0], yi = kConj ? -static_cast<double>(b[1]) : b[1];
  const float re = static_cast<float>(xr * yr - xi * yi),
              im = static_cast<float>(xr * yi + xi * yr);
  d[0] = re;
  d[1] = im;
}

// A(r, u) of the full spectrum from a packed image, as the stored (re, im) of the frequency
// or its mirror conjugated. get(row, col) reads one element of the packed channel; V is the
// value type (double, or int64_t for integer spectra).
template <class V, class Get>
inline void spectrumAt(const Get& get, int W, int H, int r, int u, V* re, V* im) {
  bool conj = false;
  if (2 * static_cast<long long>(u) > W) {  // not stored: the mirror, conjugated
    u = W - u;
    r = r == 0 ? 0 : H - r;
    conj = true;
  }
  V a, b;
  if (u == 0 || 2 * static_cast<long long>(u) == W) {
    const int col = u == 0 ? 0 : W - 1;
    if (r == 0) {
      a = static_cast<V>(get(0, col));
      b = V(0);
    } else if (2 * static_cast<long long>(r) == H) {
      a = static_cast<V>(get(H - 1, col));
      b = V(0);
    } else if (2 * static_cast<long long>(r) < H) {
      a = static_cast<V>(get(2 * r - 1, col));
      b = static_cast<V>(get(2 * r, col));
    } else {
      const int m = H - r;
      a = static_cast<V>(get(2 * m - 1, col));
      b = -static_cast<V>(get(2 * m, col));
    }
  } else {
    a = static_cast<V>(get(r, 2 * u - 1));
    b = static_cast<V>(get(r, 2 * u));
  }
  *re = a;
  *im = conj ? -b : b;
}

}  // namespace pack
}  // namespace lumi
