// Vector kernels of the 1-D FFT engines, included once per SIMD target by fft.cpp (hence the
// toggle guard). Complex values stay interleaved (re, im) in the vectors; a complex product
// by a twiddle is a * (wr, wr) + swap(a) * (-wi, wi), both halves read from the pass table.
//
// Tolerance: the same sums as the scalar passes, but with fused multiply-adds, so results
// differ from them by rounding only. Every target stays within 1e-6 * log2 n of an exact DFT,
// relative to the input's energy (max |error| / sqrt(sum |x|^2); it reaches about a thirtieth
// of that), and within 1e-5 of the scalar passes relative to the largest value.
//
// A pass runs on the widest vectors its stride fills (two groups to a vector when the stride
// is half a wide vector), then narrower ones; the first pass of a single vector runs along
// the groups instead and interleaves its results on the way out.
#if defined(LUMI_SIGNAL_FFT_INL_H_) == defined(HWY_TARGET_TOGGLE)
#ifdef LUMI_SIGNAL_FFT_INL_H_
#undef LUMI_SIGNAL_FFT_INL_H_
#else
#define LUMI_SIGNAL_FFT_INL_H_
#endif

#include <cstring>

#include "core/simd.h"
#include "signal/fft_kernels.h"

#ifndef LUMI_FFT_UNROLL
#define LUMI_FFT_UNROLL _Pragma("GCC unroll 8")  // butterfly loops over registers, never memory
#endif

LUMI_SIMD_BEGIN
#if LUMI_TABLE_TARGET
namespace fftv {

// Narrow vectors hold at most four complex points (eight floats), wide ones all the target has
// (eight points on AVX-512); a pass takes the widest its stride fills, then narrower ones.
using DF = hn::CappedTag<float, 8>;
using DW = hn::ScalableTag<float>;
using DH = hn::CappedTag<float, 4>;  // two points: what wider vectors leave of a stride
using signal::FftPass;
using signal::passPoints;

template <class D>
struct Signs {
  hn::Vec<D> odd, even;  // -0.0 in the imaginary (odd) or real (even) lanes
  explicit Signs(D d)
      : odd(hn::OddEven(hn::Set(d, -0.0f), hn::Zero(d))),
        even(hn::OddEven(hn::Zero(d), hn::Set(d, -0.0f))) {}
};

template <class D>
HWY_INLINE hn::Vec<D> load(D d, const Lum32fc* p) {
  return hn::LoadU(d, reinterpret_cast<const float*>(p));
}
template <class D>
HWY_INLINE void store(D d, hn::Vec<D> v, Lum32fc* p) {
  hn::StoreU(v, d, reinterpret_cast<float*>(p));
}

// The pair of floats at t repeated over the vector.
template <class D>
HWY_INLINE hn::Vec<D> broadcastPair(D d, const float* t) {
  double pair;
  std::memcpy(&pair, t, sizeof(pair));
  return hn::BitCast(d, hn::Set(hn::Repartition<double, D>(), pair));
}

// a w (forward) or a conj(w) (inverse), with wr = (wr, wr), wi = (-wi, wi).
template <bool kInv, class D, class VD = hn::Vec<D>>
HWY_INLINE VD mulTw(D d, VD a, VD wr, VD wi) {
  const VD cross = hn::Mul(hn::Reverse2(d, a), wi);
  return kInv ? hn::MulSub(a, wr, cross) : hn::MulAdd(a, wr, cross);
}

// The radix-R butterfly on vectors of points, the same sums as the scalar butterfly.
template <int R, bool kInv, class D, class VD = hn::Vec<D>>
HWY_INLINE void butterflyV(D d, const Signs<D>& sg, const VD* a, VD* b) {
  auto rot = [&](VD v) { return hn::Xor(hn::Reverse2(d, v), kInv ? sg.even : sg.odd); };
  if constexpr (R == 2) {
    b[0] = hn::Add(a[0], a[1]);
    b[1] = hn::Sub(a[0], a[1]);
  } else if constexpr (R == 3) {
    const VD t = hn::Add(a[1], a[2]);
    const VD u = hn::MulAdd(t, hn::Set(d, -0.5f), a[0]);
    const VD v = rot(hn::Mul(hn::Sub(a[1], a[2]), hn::Set(d, 0.86602540378443865f)));
    b[0] = hn::Add(a[0], t);
    b[1] = hn::Add(u, v);
    b[2] = hn::Sub(u, v);
  } else if constexpr (R == 4) {
    const VD t0 = hn::Add(a[0], a[2]), t1 = hn::Sub(a[0], a[2]);
    const VD t2 = hn::Add(a[1], a[3]), t3 = rot(hn::Sub(a[1], a[3]));
    b[0] = hn::Add(t0, t2);
    b[2] = hn::Sub(t0, t2);
    b[1] = hn::Add(t1, t3);
    b[3] = hn::Sub(t1, t3);
  } else if constexpr (R == 8) {
    const VD h = hn::Set(d, 0.70710678118654752f);
    VD t[4], u[4], e[4], o[4];
    LUMI_FFT_UNROLL
    for (int j = 0; j < 4; ++j) t[j] = hn::Add(a[j], a[j + 4]);
    u[0] = hn::Sub(a[0], a[4]);
    const VD d1 = hn::Sub(a[1], a[5]), d3 = hn::Sub(a[3], a[7]);
    u[1] = hn::Mul(hn::Add(d1, rot(d1)), h);
    u[2] = rot(hn::Sub(a[2], a[6]));
    u[3] = hn::Mul(hn::Sub(rot(d3), d3), h);
    butterflyV<4, kInv>(d, sg, t, e);
    butterflyV<4, kInv>(d, sg, u, o);
    LUMI_FFT_UNROLL
    for (int k = 0; k < 4; ++k) {
      b[2 * k] = e[k];
      b[2 * k + 1] = o[k];
    }
  } else if constexpr (R == 7) {
    const float C[4] = {1.0f, 0.62348980185873353f, -0.22252093395631440f, -0.90096886790241913f};
    const float S[4] = {0.0f, 0.78183148246802981f, 0.97492791218182361f, 0.43388373911755812f};
    VD sp[4], df[4];
    b[0] = a[0];
    LUMI_FFT_UNROLL
    for (int j = 1; j <= 3; ++j) {
      sp[j] = hn::Add(a[j], a[7 - j]);
      df[j] = hn::Sub(a[j], a[7 - j]);
      b[0] = hn::Add(b[0], sp[j]);
    }
    LUMI_FFT_UNROLL
    for (int k = 1; k <= 3; ++k) {
      VD t = a[0], u = hn::Zero(d);
      LUMI_FFT_UNROLL
      for (int j = 1; j <= 3; ++j) {
        const int m = j * k % 7;
        t = hn::MulAdd(sp[j], hn::Set(d, m <= 3 ? C[m] : C[7 - m]), t);
        u = hn::MulAdd(df[j], hn::Set(d, m <= 3 ? S[m] : -S[7 - m]), u);
      }
      u = rot(u);
      b[k] = hn::Add(t, u);
      b[7 - k] = hn::Sub(t, u);
    }
  } else {
    const VD c1 = hn::Set(d, 0.30901699437494742f), c2 = hn::Set(d, -0.80901699437494742f);
    const VD s1 = hn::Set(d, 0.95105651629515357f), s2 = hn::Set(d, 0.58778525229247313f);
    const VD b1 = hn::Add(a[1], a[4]), b2 = hn::Add(a[2], a[3]);
    const VD d1 = hn::Sub(a[1], a[4]), d2 = hn::Sub(a[2], a[3]);
    const VD t1 = hn::MulAdd(b2, c2, hn::MulAdd(b1, c1, a[0]));
    const VD t2 = hn::MulAdd(b2, c1, hn::MulAdd(b1, c2, a[0]));
    const VD u1 = rot(hn::MulAdd(d2, s2, hn::Mul(d1, s1)));
    const VD u2 = rot(hn::NegMulAdd(d2, s1, hn::Mul(d1, s2)));
    b[0] = hn::Add(a[0], hn::Add(b1, b2));
    b[1] = hn::Add(t1, u1);
    b[4] = hn::Sub(t1, u1);
    b[2] = hn::Add(t2, u2);
    b[3] = hn::Sub(t2, u2);
  }
}

// A pass over offsets q0 <= q < q1 (a whole number of vectors) of stride s: vectors run along
// q, the twiddles of group p are broadcast (group 0 has none).
template <int R, bool kInv, class D>
void passStrided(D d, const FftPass& ps, const Lum32fc* HWY_RESTRICT x, Lum32fc* HWY_RESTRICT y,
                 std::ptrdiff_t s, std::ptrdiff_t q0, std::ptrdiff_t q1) {
  using VD = hn::Vec<D>;
  const Signs<D> sg(d);
  const std::ptrdiff_t L = static_cast<std::ptrdiff_t>(hn::Lanes(d) / 2), m = ps.m;
  const std::ptrdiff_t sm = s * m;
  VD a[R], b[R];
  for (std::ptrdiff_t q = q0; q < q1; q += L) {
    LUMI_FFT_UNROLL
    for (int j = 0; j < R; ++j) a[j] = load(d, x + q + sm * j);
    butterflyV<R, kInv>(d, sg, a, b);
    LUMI_FFT_UNROLL
    for (int k = 0; k < R; ++k) store(d, b[k], y + q + s * k);
  }
  for (std::ptrdiff_t p = 1; p < m; ++p) {
    const float* t = ps.tw + 4 * p * (R - 1);
    const Lum32fc* xp = x + s * p;
    Lum32fc* yp = y + s * R * p;
    for (std::ptrdiff_t q = q0; q < q1; q += L) {
      LUMI_FFT_UNROLL
      for (int j = 0; j < R; ++j) a[j] = load(d, xp + q + sm * j);
      butterflyV<R, kInv>(d, sg, a, b);
      store(d, b[0], yp + q);
      LUMI_FFT_UNROLL
      for (int k = 1; k < R; ++k) {
        const float* tk = t + 4 * (k - 1);
        store(d, mulTw<kInv>(d, b[k], broadcastPair(d, tk), broadcastPair(d, tk + 2)),
              yp + q + s * k);
      }
    }
  }
}

// A pass whose stride is half a wide vector: each vector holds the points of two groups p and
// p+1 (the twiddles of each in its half), stored back half by half. An odd last group runs on
// half vectors.
template <int R, bool kInv>
void passPaired(const FftPass& ps, const Lum32fc* HWY_RESTRICT x, Lum32fc* HWY_RESTRICT y,
                std::ptrdiff_t s) {
  const DW d;
  const hn::Half<DW> dh;
  using VD = hn::Vec<DW>;
  using VH = hn::Vec<hn::Half<DW>>;
  const Signs<DW> sg(d);
  const Signs<hn::Half<DW>> sgh(dh);
  const std::ptrdiff_t m = ps.m, sm = s * m;
  VD a[R], b[R];
  std::ptrdiff_t p = 0;
  for (; p + 1 < m; p += 2) {
    const float* t0 = ps.tw + 4 * p * (R - 1);
    const float* t1 = t0 + 4 * (R - 1);
    const Lum32fc* xp = x + s * p;
    LUMI_FFT_UNROLL
    for (int j = 0; j < R; ++j) a[j] = load(d, xp + sm * j);
    butterflyV<R, kInv>(d, sg, a, b);
    Lum32fc* y0 = y + s * R * p;
    Lum32fc* y1 = y0 + s * R;
    store(dh, hn::LowerHalf(dh, b[0]), y0);
    store(dh, hn::UpperHalf(dh, b[0]), y1);
    LUMI_FFT_UNROLL
    for (int k = 1; k < R; ++k) {
      const float* u0 = t0 + 4 * (k - 1);
      const float* u1 = t1 + 4 * (k - 1);
      const VD wr = hn::Combine(d, broadcastPair(dh, u1), broadcastPair(dh, u0));
      const VD wi = hn::Combine(d, broadcastPair(dh, u1 + 2), broadcastPair(dh, u0 + 2));
      const VD v = mulTw<kInv>(d, b[k], wr, wi);
      store(dh, hn::LowerHalf(dh, v), y0 + s * k);
      store(dh, hn::UpperHalf(dh, v), y1 + s * k);
    }
  }
  if (p < m) {  // the last group alone
    VH ah[R], bh[R];
    const float* t0 = ps.tw + 4 * p * (R - 1);
    LUMI_FFT_UNROLL
    for (int j = 0; j < R; ++j) ah[j] = load(dh, x + s * p + sm * j);
    butterflyV<R, kInv>(dh, sgh, ah, bh);
    Lum32fc* y0 = y + s * R * p;
    store(dh, bh[0], y0);
    LUMI_FFT_UNROLL
    for (int k = 1; k < R; ++k) {
      const float* u0 = t0 + 4 * (k - 1);
      store(dh, mulTw<kInv>(dh, bh[k], broadcastPair(dh, u0), broadcastPair(dh, u0 + 2)),
            y0 + s * k);
    }
  }
}

// The first pass of a single vector (stride 1): vectors run along p with per-lane twiddles,
// and the R results of each point are interleaved on the way out.
template <int R, bool kInv, class D>
void passFirst(D d, const FftPass& ps, const Lum32fc* HWY_RESTRICT x, Lum32fc* HWY_RESTRICT y) {
  using VD = hn::Vec<D>;
  const hn::Repartition<double, D> dd;
  const Signs<D> sg(d);
  const std::ptrdiff_t L = static_cast<std::ptrdiff_t>(hn::Lanes(d) / 2), m = ps.m;
  const std::ptrdiff_t pv = m - m % L;
  VD a[R], b[R];
  for (std::ptrdiff_t p = 0; p < pv; p += L) {
    LUMI_FFT_UNROLL
    for (int j = 0; j < R; ++j) a[j] = load(d, x + p + m * j);
    butterflyV<R, kInv>(d, sg, a, b);
    LUMI_FFT_UNROLL
    for (int k = 1; k < R; ++k) {
      const std::ptrdiff_t at = 2 * ((k - 1) * m + p);
      b[k] = mulTw<kInv>(d, b[k], hn::LoadU(d, ps.twr + at), hn::LoadU(d, ps.twi + at));
    }
    double* out = reinterpret_cast<double*>(y + R * p);
    if constexpr (R == 2) {
      hn::StoreInterleaved2(hn::BitCast(dd, b[0]), hn::BitCast(dd, b[1]), dd, out);
    } else if constexpr (R == 3) {
      hn::StoreInterleaved3(hn::BitCast(dd, b[0]), hn::BitCast(dd, b[1]), hn::BitCast(dd, b[2]),
                            dd, out);
    } else if constexpr (R == 4) {
      hn::StoreInterleaved4(hn::BitCast(dd, b[0]), hn::BitCast(dd, b[1]), hn::BitCast(dd, b[2]),
                            hn::BitCast(dd, b[3]), dd, out);
    } else {
      HWY_ALIGN Lum32fc tmp[R][16];
      for (int k = 0; k < R; ++k) store(d, b[k], tmp[k]);
      for (std::ptrdiff_t i = 0; i < L; ++i)
        for (int k = 0; k < R; ++k) y[R * (p + i) + k] = tmp[k][i];
    }
  }
  if (pv < m) passPoints<R>(ps, x, y, 1, kInv, pv, m, 0, 1);
}

// Stride 1 (the first pass of a single vector) runs along p; other strides run along q in
// wide vectors, then narrow ones, then pairs of points, then single points.
template <int R, bool kInv>
void passOf(const FftPass& ps, const Lum32fc* x, Lum32fc* y, int count) {
  const std::ptrdiff_t s = static_cast<std::ptrdiff_t>(ps.s) * count;
  if (s == 1 && ps.twr) {
    passFirst<R, kInv>(DF(), ps, x, y);
    return;
  }
  if (2 * s == static_cast<std::ptrdiff_t>(hn::Lanes(DW()) / 2) && s >= 2) {
    passPaired<R, kInv>(ps, x, y, s);
    return;
  }
  std::ptrdiff_t q = 0;
  auto run = [&](auto d) {
    const std::ptrdiff_t L = static_cast<std::ptrdiff_t>(hn::Lanes(d) / 2);
    const std::ptrdiff_t q1 = q + (s - q) / L * L;
    if (q1 > q) passStrided<R, kInv>(d, ps, x, y, s, q, q1);
    q = q1;
  };
  run(DW());
  run(DF());
  run(DH());
  if (q < s) passPoints<R>(ps, x, y, s, kInv, 0, ps.m, q, s);
}

template <bool kInv>
void passDir(const FftPass& ps, const Lum32fc* x, Lum32fc* y, int count) {
  switch (ps.radix) {
    case 2: passOf<2, kInv>(ps, x, y, count); break;
    case 3: passOf<3, kInv>(ps, x, y, count); break;
    case 4: passOf<4, kInv>(ps, x, y, count); break;
    case 7: passOf<7, kInv>(ps, x, y, count); break;
    case 8: passOf<8, kInv>(ps, x, y, count); break;
    default: passOf<5, kInv>(ps, x, y, count); break;
  }
}

// The complex points k .. k+L-1 read backwards from the one ending at p.
template <class D>
HWY_INLINE hn::Vec<D> loadReversed(D d, const float* lastPoint, std::ptrdiff_t L) {
  const hn::Repartition<double, D> dd;
  return hn::BitCast(d, hn::Reverse(dd, hn::BitCast(dd, hn::LoadU(d, lastPoint - 2 * (L - 1)))));
}
template <class D>
HWY_INLINE void storeReversed(D d, hn::Vec<D> v, float* lastPoint, std::ptrdiff_t L) {
  const hn::Repartition<double, D> dd;
  hn::StoreU(hn::BitCast(d, hn::Reverse(dd, hn::BitCast(dd, v))), d, lastPoint - 2 * (L - 1));
}

// The real transform's twist on vectors of points k and their mirrors h-k (see fft_kernels.h),
// from k while a whole vector fits below hi; returns the first k left.
template <class D>
int twistForward(D d, const Lum32fc* z, float* packed, const float* tw, int h, int k, int hi) {
  using VD = hn::Vec<D>;
  const Signs<D> sg(d);
  const int L = static_cast<int>(hn::Lanes(d) / 2);
  const VD half = hn::Set(d, 0.5f);
  const float* zf = reinterpret_cast<const float*>(z);
  for (; k + L - 1 <= hi; k += L) {
    const VD zk = hn::LoadU(d, zf + 2 * k);
    const VD zc = loadReversed(d, zf + 2 * (h - k), L);  // Z(h-k), same lanes as Z(k)
    const VD sum = hn::Add(zk, zc), dif = hn::Sub(zk, zc);
    const VD e = hn::Mul(hn::OddEven(dif, sum), half);
    const VD o = hn::Mul(hn::Xor(hn::Reverse2(d, hn::OddEven(sum, dif)), sg.odd), half);
    const VD t = hn::LoadU(d, tw + 2 * k);  // (cos, sin): w^k = conj t
    const VD c = hn::DupEven(t), sn = hn::DupOdd(t);
    const VD pr = hn::Add(hn::Mul(o, c), hn::Xor(hn::Mul(hn::Reverse2(d, o), sn), sg.odd));
    hn::StoreU(hn::Add(e, pr), d, packed + 2 * k - 1);
    storeReversed(d, hn::Xor(hn::Sub(e, pr), sg.odd), packed + 2 * (h - k) - 1, L);
  }
  return k;
}

template <class D>
int twistInverse(D d, const float* packed, Lum32fc* z, const float* tw, int h, int k, int hi) {
  using VD = hn::Vec<D>;
  const Signs<D> sg(d);
  const int L = static_cast<int>(hn::Lanes(d) / 2);
  float* zf = reinterpret_cast<float*>(z);
  for (; k + L - 1 <= hi; k += L) {
    const VD a = hn::LoadU(d, packed + 2 * k - 1);
    const VD c = hn::Xor(loadReversed(d, packed + 2 * (h - k) - 1, L), sg.odd);  // conj A(h-k)
    const VD f = hn::Add(a, c), df = hn::Sub(a, c);
    const VD t = hn::LoadU(d, tw + 2 * k);  // conj(w^k) = (cos, sin)
    const VD g = hn::Add(hn::Mul(df, hn::DupEven(t)),
                         hn::Mul(hn::Reverse2(d, df), hn::Xor(hn::DupOdd(t), sg.even)));
    const VD gs = hn::Reverse2(d, g);
    hn::StoreU(hn::Add(f, hn::Xor(gs, sg.even)), d, zf + 2 * k);
    storeReversed(d, hn::Add(hn::Xor(f, sg.odd), gs), zf + 2 * (h - k), L);
  }
  return k;
}

}  // namespace fftv

// Per-target entries (the signatures of the scalar twins).
inline void fftPass(const signal::FftPass& ps, const Lum32fc* x, Lum32fc* y, int count,
                    bool inverse) {
  if (inverse) fftv::passDir<true>(ps, x, y, count);
  else fftv::passDir<false>(ps, x, y, count);
}

// The twist in wide vectors, then narrow ones, then point by point.
inline void fftTwistForward(const Lum32fc* z, float* packed, const float* tw, int h, int lo,
                            int hi) {
  int k = fftv::twistForward(fftv::DW(), z, packed, tw, h, lo, hi);
  k = fftv::twistForward(fftv::DF(), z, packed, tw, h, k, hi);
  if (k <= hi) signal::fftTwistForwardScalar(z, packed, tw, h, k, hi);
}
inline void fftTwistInverse(const float* packed, Lum32fc* z, const float* tw, int h, int lo,
                            int hi) {
  int k = fftv::twistInverse(fftv::DW(), packed, z, tw, h, lo, hi);
  k = fftv::twistInverse(fftv::DF(), packed, z, tw, h, k, hi);
  if (k <= hi) signal::fftTwistInverseScalar(packed, z, tw, h, k, hi);
}

#endif  // LUMI_TABLE_TARGET
LUMI_SIMD_END

#endif  // LUMI_SIGNAL_FFT_INL_H_
