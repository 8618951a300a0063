// Wiener filter kernels shared by the plain path and the per-target vector code: the window
// sums S and Q of one destination row, kept per element in double (exact for 8u and 16s, so
// the order of the additions never matters there), and the filter of one row from them.
#pragma once

#include <cmath>

#include "core/frame.h"

namespace lumi {
namespace wiener {

// The noise power of every element of a pixel, by channel (AC4 alpha: 0, never used), and the
// mask's pixel count.
struct RowParams {
  double n;
  double power[4];
};

// Adds the mw-pixel horizontal window sums (and sums of squares) of source row `in` to s and q
// for the `elems` elements of a destination row, and subtracts those of row `out` unless it is
// null. Element i's window is in[i], in[i + kCh], ..., in[i + (mw - 1) kCh].
template <class T>
using SumRowFn = void (*)(const T* in, const T* out, double* s, double* q, std::ptrdiff_t elems,
                          int mw);
// One destination row of `width` pixels from the source row at the same position (the mask's
// anchor pixel) and the window sums.
template <class T>
using FilterRowFn = void (*)(const T* src, T* dst, const double* s, const double* q, int width,
                             const RowParams& p);

template <class T, int kCh>
void sumRowScalar(const T* in, const T* out, double* s, double* q, std::ptrdiff_t elems, int mw) {
  for (std::ptrdiff_t i = 0; i < elems; ++i) {
    double a = static_cast<double>(in[i]), a2 = a * a;
    for (int k = 1; k < mw; ++k) {
      const double v = static_cast<double>(in[i + elemsOf(k, kCh)]);
      a += v;
      a2 += v * v;
    }
    if (out) {
      double b = static_cast<double>(out[i]), b2 = b * b;
      for (int k = 1; k < mw; ++k) {
        const double v = static_cast<double>(out[i + elemsOf(k, kCh)]);
        b += v;
        b2 += v * v;
      }
      a -= b;
      a2 -= b2;
    }
    s[i] += a;
    q[i] += a2;
  }
}

// Lowers lo[c] and raises hi[c] to the extremes of channel c (c < kUse) over `pixels` pixels.
template <class T>
using RangeRowFn = void (*)(const T* row, int pixels, T* lo, T* hi);

template <class T, class L>
void rangeRowScalar(const T* row, int pixels, T* lo, T* hi) {
  for (int x = 0; x < pixels; ++x)
    for (int c = 0; c < L::kUse; ++c) {
      const T v = row[elemsOf(x, L::kCh) + c];
      if (v < lo[c]) lo[c] = v;
      if (v > hi[c]) hi[c] = v;
    }
}

// Double to pixel: ties to even (the caller holds round-to-nearest) and saturation for 8u and
// 16s, the nearest float for 32f.
template <class T>
inline T toPixel(double v) {
  if constexpr (std::is_floating_point_v<T>)
    return static_cast<T>(v);
  else
    return saturate<T>(std::nearbyint(v));
}

// m = S / n, V = Q - S^2 / n raised to P, dst = m + (src - m) ((V - P) / V); m where V is 0.
inline double wienerValue(double src, double s, double q, double n, double power) {
  const double m = s / n;
  double v = q - s * s / n;
  if (v < power) v = power;
  return v > 0 ? m + (src - m) * ((v - power) / v) : m;
}

template <class T, class L>
void filterRowScalar(const T* src, T* dst, const double* s, const double* q, int width,
                     const RowParams& p) {
  for (int x = 0; x < width; ++x)
    for (int c = 0; c < L::kUse; ++c) {
      const std::ptrdiff_t i = elemsOf(x, L::kCh) + c;
      dst[i] = toPixel<T>(wienerValue(static_cast<double>(src[i]), s[i], q[i], p.n, p.power[c]));
    }
}

}  // namespace wiener
}  // namespace lumi
