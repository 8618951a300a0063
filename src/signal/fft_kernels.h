// The plan of the 1-D FFT engines and the plain scalar passes every vector kernel is held to.
//
// A complex transform of n = r0 r1 ... points (radices 2, 3, 4, 5, 7, 8) runs as a Stockham
// sequence of passes, each from one buffer to the other (no bit reversal). Pass i of radix r sees sub-transforms of
// n_i = n / (r0 ... r(i-1)) points, m = n_i / r of them per group, at stride s = n / n_i:
//   y[q + s (r p + k)] = w_(n_i)^(p k) sum_j x[q + s (p + j m)] w_r^(j k),  p < m, q < s, k < r,
// with w_N = e^(-2 pi i / N) forward and its conjugate inverse. `count` side-by-side vectors
// multiply every stride by count.
#pragma once

#include <cstddef>

#include "lumi.h"

namespace lumi {
namespace signal {

class ComplexFft;

struct FftPass {
  int radix, m, s;
  // w_(n_i)^(p k) for p < m, k = 1 .. radix-1, four floats each, p-major: (wr, wr, -wi, wi),
  // ready to be broadcast as the two halves of an interleaved complex multiply.
  const float* tw;
  // First pass only (s = 1), k-major for runs of consecutive p: twr[(k-1) m + p] = (wr, wr),
  // twi[...] = (-wi, wi), two floats each.
  const float* twr;
  const float* twi;
};

constexpr int kMaxPasses = 40;

struct FftPlan {
  int n = 0;
  int passes = 0;  // 0: n = 1, or the chirp route below
  FftPass pass[kMaxPasses];
  // Lengths with a prime factor above 7: the chirp (Bluestein) route through a power-of-two
  // transform of bluesteinM >= 2n - 1 points.
  int bluesteinM = 0;
  ComplexFft* inner = nullptr;
  const Lum32fc* chirp = nullptr;     // e^(-pi i k^2 / n), k < n
  const Lum32fc* spectrum = nullptr;  // transform of the conjugate chirp, divided by bluesteinM
  size_t workBytes = 0;
  void* block = nullptr;  // one allocation holding all of the above
};

// Complex product a w (or a conj(w) when inverse) with w read from a pass table entry.
inline Lum32fc twiddleMul(Lum32fc a, const float* t, bool inverse) {
  const float wr = t[0], wi = inverse ? -t[3] : t[3];
  return Lum32fc{a.re * wr - a.im * wi, a.re * wi + a.im * wr};
}

// The radix-r butterfly: b = DFT_r(a), forward (-i) or inverse (+i).
template <int R>
inline void butterfly(const Lum32fc* a, Lum32fc* b, bool inverse) {
  // (x + iy) times -i (forward) or +i (inverse)
  auto rot = [inverse](Lum32fc v) { return inverse ? Lum32fc{-v.im, v.re} : Lum32fc{v.im, -v.re}; };
  auto add = [](Lum32fc u, Lum32fc v) { return Lum32fc{u.re + v.re, u.im + v.im}; };
  auto sub = [](Lum32fc u, Lum32fc v) { return Lum32fc{u.re - v.re, u.im - v.im}; };
  auto scale = [](Lum32fc u, float c) { return Lum32fc{u.re * c, u.im * c}; };
  if constexpr (R == 2) {
    b[0] = add(a[0], a[1]);
    b[1] = sub(a[0], a[1]);
  } else if constexpr (R == 3) {
    const float c = -0.5f, s = 0.86602540378443865f;  // cos, sin of 2 pi / 3
    const Lum32fc t = add(a[1], a[2]);
    const Lum32fc u = add(a[0], scale(t, c));
    const Lum32fc v = rot(scale(sub(a[1], a[2]), s));
    b[0] = add(a[0], t);
    b[1] = add(u, v);
    b[2] = sub(u, v);
  } else if constexpr (R == 4) {
    const Lum32fc t0 = add(a[0], a[2]), t1 = sub(a[0], a[2]);
    const Lum32fc t2 = add(a[1], a[3]), t3 = rot(sub(a[1], a[3]));
    b[0] = add(t0, t2);
    b[2] = sub(t0, t2);
    b[1] = add(t1, t3);
    b[3] = sub(t1, t3);
  } else if constexpr (R == 8) {
    // Two radix-4 butterflies on the sums and on the differences turned by w_8^j.
    const float h = 0.70710678118654752f;  // 1 / sqrt 2
    Lum32fc t[4], u[4], e[4], o[4];
    for (int j = 0; j < 4; ++j) t[j] = add(a[j], a[j + 4]);
    u[0] = sub(a[0], a[4]);
    const Lum32fc d1 = sub(a[1], a[5]), d3 = sub(a[3], a[7]);
    u[1] = scale(add(d1, rot(d1)), h);  // w_8 = (1 - i) / sqrt 2 forward
    u[2] = rot(sub(a[2], a[6]));        // w_8^2 = -i
    u[3] = scale(sub(rot(d3), d3), h);  // w_8^3 = (-1 - i) / sqrt 2
    butterfly<4>(t, e, inverse);
    butterfly<4>(u, o, inverse);
    for (int k = 0; k < 4; ++k) {
      b[2 * k] = e[k];
      b[2 * k + 1] = o[k];
    }
  } else if constexpr (R == 7) {
    // Sums and differences of mirrored inputs, weighted by cos and sin of 2 pi jk / 7.
    const float C[4] = {1.0f, 0.62348980185873353f, -0.22252093395631440f, -0.90096886790241913f};
    const float S[4] = {0.0f, 0.78183148246802981f, 0.97492791218182361f, 0.43388373911755812f};
    Lum32fc sp[4], df[4];
    b[0] = a[0];
    for (int j = 1; j <= 3; ++j) {
      sp[j] = add(a[j], a[7 - j]);
      df[j] = sub(a[j], a[7 - j]);
      b[0] = add(b[0], sp[j]);
    }
    for (int k = 1; k <= 3; ++k) {
      Lum32fc t = a[0], u{0.0f, 0.0f};
      for (int j = 1; j <= 3; ++j) {
        const int m = j * k % 7;
        t = add(t, scale(sp[j], m <= 3 ? C[m] : C[7 - m]));
        u = add(u, scale(df[j], m <= 3 ? S[m] : -S[7 - m]));
      }
      u = rot(u);
      b[k] = add(t, u);
      b[7 - k] = sub(t, u);
    }
  } else {
    static_assert(R == 5, "radix 2, 3, 4, 5, 7 or 8");
    const float c1 = 0.30901699437494742f, c2 = -0.80901699437494742f;  // cos 2pi/5, cos 4pi/5
    const float s1 = 0.95105651629515357f, s2 = 0.58778525229247313f;   // sin 2pi/5, sin 4pi/5
    const Lum32fc b1 = add(a[1], a[4]), b2 = add(a[2], a[3]);
    const Lum32fc d1 = sub(a[1], a[4]), d2 = sub(a[2], a[3]);
    const Lum32fc t1 = add(a[0], add(scale(b1, c1), scale(b2, c2)));
    const Lum32fc t2 = add(a[0], add(scale(b1, c2), scale(b2, c1)));
    const Lum32fc u1 = rot(add(scale(d1, s1), scale(d2, s2)));
    const Lum32fc u2 = rot(sub(scale(d1, s2), scale(d2, s1)));
    b[0] = add(a[0], add(b1, b2));
    b[1] = add(t1, u1);
    b[4] = sub(t1, u1);
    b[2] = add(t2, u2);
    b[3] = sub(t2, u2);
  }
}

// Part of one pass, point by point: groups p0 <= p < p1, offsets q0 <= q < q1, where s is the
// pass stride times the number of side-by-side vectors.
template <int R>
void passPoints(const FftPass& ps, const Lum32fc* x, Lum32fc* y, std::ptrdiff_t s, bool inverse,
                std::ptrdiff_t p0, std::ptrdiff_t p1, std::ptrdiff_t q0, std::ptrdiff_t q1) {
  const std::ptrdiff_t m = ps.m;
  Lum32fc a[R], b[R];
  for (std::ptrdiff_t p = p0; p < p1; ++p) {
    const float* t = ps.tw + 4 * p * (R - 1);
    for (std::ptrdiff_t q = q0; q < q1; ++q) {
      for (int j = 0; j < R; ++j) a[j] = x[q + s * (p + j * m)];
      butterfly<R>(a, b, inverse);
      Lum32fc* out = y + q + s * R * p;
      out[0] = b[0];
      for (int k = 1; k < R; ++k) out[s * k] = twiddleMul(b[k], t + 4 * (k - 1), inverse);
    }
  }
}

// Pass kernels take the pass, source, destination, vector count and direction.
using PassFn = void (*)(const FftPass&, const Lum32fc*, Lum32fc*, int, bool);

inline void fftPassScalar(const FftPass& ps, const Lum32fc* x, Lum32fc* y, int count, bool inverse) {
  const std::ptrdiff_t s = static_cast<std::ptrdiff_t>(ps.s) * count, m = ps.m;
  switch (ps.radix) {
    case 2: passPoints<2>(ps, x, y, s, inverse, 0, m, 0, s); break;
    case 3: passPoints<3>(ps, x, y, s, inverse, 0, m, 0, s); break;
    case 4: passPoints<4>(ps, x, y, s, inverse, 0, m, 0, s); break;
    case 7: passPoints<7>(ps, x, y, s, inverse, 0, m, 0, s); break;
    case 8: passPoints<8>(ps, x, y, s, inverse, 0, m, 0, s); break;
    default: passPoints<5>(ps, x, y, s, inverse, 0, m, 0, s); break;
  }
}

// The real transform's twist between the half-length complex spectrum Z (h = n/2 points) and
// the packed spectrum A of n real points; tw holds (cos, sin) of 2 pi k / n for k <= h/2.
//   forward: A(k) = E + w^k O, A(h-k) = conj(E - w^k O), with E = (Z(k) + conj Z(h-k)) / 2,
//            O = -i (Z(k) - conj Z(h-k)) / 2, w = e^(-2 pi i / n)
//   inverse: Z(k) = F + i G, Z(h-k) = conj F + i conj G, with F = A(k) + conj A(h-k),
//            G = (A(k) - conj A(h-k)) conj(w^k)  (twice the forward's E and O: unscaled)
// Both cover k = lo .. hi (1 <= lo, hi <= h/2); k = 0 and h are the callers'.
using TwistForwardFn = void (*)(const Lum32fc*, float*, const float*, int, int, int);
using TwistInverseFn = void (*)(const float*, Lum32fc*, const float*, int, int, int);
inline void fftTwistForwardScalar(const Lum32fc* z, float* packed, const float* tw, int h, int lo,
                               int hi) {
  for (int k = lo; k <= hi; ++k) {
    const Lum32fc zk = z[k], zc = z[h - k];
    const float er = 0.5f * (zk.re + zc.re), ei = 0.5f * (zk.im - zc.im);
    const float orr = 0.5f * (zk.im + zc.im), oi = -0.5f * (zk.re - zc.re);
    const float wr = tw[2 * k], wi = -tw[2 * k + 1];
    const float pr = wr * orr - wi * oi, pi = wr * oi + wi * orr;
    packed[2 * k - 1] = er + pr;
    packed[2 * k] = ei + pi;
    packed[2 * (h - k) - 1] = er - pr;
    packed[2 * (h - k)] = -(ei - pi);
  }
}

inline void fftTwistInverseScalar(const float* packed, Lum32fc* z, const float* tw, int h, int lo,
                               int hi) {
  for (int k = lo; k <= hi; ++k) {
    const float ar = packed[2 * k - 1], ai = packed[2 * k];
    const float cr = packed[2 * (h - k) - 1], ci = -packed[2 * (h - k)];  // conj A(h-k)
    const float fr = ar + cr, fi = ai + ci;
    const float dr = ar - cr, di = ai - ci;
    const float wr = tw[2 * k], wi = tw[2 * k + 1];  // conj(w^k) = (cos, +sin)
    const float gr = dr * wr - di * wi, gi = dr * wi + di * wr;
    z[k] = Lum32fc{fr - gi, fi + gr};
    z[h - k] = Lum32fc{fr + gi, -fi + gr};
  }
}

}  // namespace signal
}  // namespace lumi
