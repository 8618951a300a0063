// Box filter internals shared by the plain kernels and the per-target ones: the normalisation
// of a window sum for each pixel type, and the plain (scalar) row kernels every vector kernel
// is held to.
//
// Accumulators: 8u keeps 32-bit unsigned sums for masks up to 8100 pixels (8u "integer path")
// and 32-bit floats beyond (8u "float path"); 16s keeps 32-bit integer sums; 32f keeps floats.
// Integer sums wrap modulo 2^32 in unsigned arithmetic, so a running sum's differences stay
// exact whatever order they are taken in.
#pragma once

#include <cmath>
#include <cstdint>
#include <type_traits>

#include <xmmintrin.h>

#include "core/frame.h"

namespace lumi {
namespace box {

// What turns a window sum S into a pixel: 8u integer path (m x S) >> s; 8u float path
// S x r truncated; 16s S x r rounded to nearest (ties to even) and saturated; 32f S x r.
struct BoxScale {
  uint32_t m = 0;
  int s = 0;
  float r = 0.0f;
  // The same product for sums below 2^16 in 16-bit lanes: (S x m16) >> 16 >> post.
  uint16_t m16 = 0;
  int post = 0;
};

// Largest mask area of the 8u integer path: m x 255 x area stays below 2^32 up to it.
constexpr long long kMaxIntegerArea = 8100;
// Largest mask area whose 8u sums fit 16 bits (257 x 255 = 65535): those keep 16-bit sums.
constexpr long long kMaxNarrowArea = 257;

inline double nearestEven(double v) {
  double f = std::floor(v);
  const double d = v - f;
  if (d > 0.5 || (d == 0.5 && std::fmod(f, 2.0) != 0.0)) f += 1.0;
  return f;
}

// The multiplier and shift of the 8u integer path for a mask of `area` pixels: r = 1/area in
// single precision, q = 2^32 x r - 0.49999 (single precision) rounded to an integer, doubled
// until its top bit is set (at most 24 times), m = (q >> 20) + 1, s = doublings + 12. The +1
// in m is the only bias: some sums round up (area 16, S = 2063 gives 129). The variant with
// the product and subtraction in double precision gives the same pair for every area up to
// 8100, so one rule serves all layouts.
inline BoxScale scale8u(long long area) {
  BoxScale sc;
  sc.r = 1.0f / static_cast<float>(area);
  if (sc.r == 1.0f) {
    sc.m = 4096;
    sc.s = 12;
    return sc;
  }
  const float v = 4294967296.0f * sc.r - 0.49998998641967773f;
  uint32_t q = static_cast<uint32_t>(static_cast<uint64_t>(nearestEven(v)));
  int n = 0;
  while (!(q & 0x80000000u) && n < 24) {
    q <<= 1;
    ++n;
  }
  sc.m = (q >> 20) + 1;
  sc.s = n + 12;
  // (m x S) >> s = ((m 2^(16-s) x S) >> 16 for s <= 16 (m 2^(16-s) < 2^16 for every area above
  // 1), and ((m x S) >> 16) >> (s - 16) beyond.
  if (sc.s <= 16) {
    sc.m16 = static_cast<uint16_t>(sc.m << (16 - sc.s));
  } else {
    sc.m16 = static_cast<uint16_t>(sc.m);
    sc.post = sc.s - 16;
  }
  return sc;
}

inline BoxScale scaleFloat(long long area) {
  BoxScale sc;
  sc.r = 1.0f / static_cast<float>(area);
  return sc;
}

// ---- accumulator arithmetic -------------------------------------------------------------------
template <class A>
inline A accAdd(A a, A b) {
  if constexpr (std::is_integral_v<A>)
    return static_cast<A>(static_cast<uint32_t>(a) + static_cast<uint32_t>(b));
  else
    return a + b;
}
// a + (in - out): a running sum moved on by one element.
template <class A>
inline A accSlide(A a, A in, A out) {
  if constexpr (std::is_integral_v<A>)
    return static_cast<A>(static_cast<uint32_t>(a) +
                          (static_cast<uint32_t>(in) - static_cast<uint32_t>(out)));
  else
    return a + (in - out);
}
template <class A, class T>
inline A accOf(T v) {
  return static_cast<A>(v);
}

template <class T, class A>
inline T normalise(A sum, const BoxScale& sc) {
  if constexpr (std::is_same_v<T, Lum8u> && std::is_integral_v<A>) {
    return static_cast<Lum8u>((sc.m * static_cast<uint32_t>(sum)) >> sc.s);
  } else if constexpr (std::is_same_v<T, Lum8u>) {
    const float v = sum * sc.r;  // sums are never negative
    return v >= 255.0f ? Lum8u{255} : static_cast<Lum8u>(static_cast<int>(v));
  } else if constexpr (std::is_same_v<T, Lum16s>) {
    // the SSE conversion, in the rounding mode the caller holds at nearest (ties to even)
    const float v = static_cast<float>(sum) * sc.r;
    if (v >= 32767.0f) return 32767;
    if (v <= -32768.0f) return -32768;
    return static_cast<Lum16s>(_mm_cvtss_si32(_mm_set_ss(v)));
  } else {
    return sum * sc.r;
  }
}

// ---- plain kernels ----------------------------------------------------------------------------
// Column sums over n interleaved elements: start from one source row, add one, or slide down
// by one row (add the row entering below the mask, subtract the one leaving above it).
template <class T, class A>
void colSet(const T* row, A* col, std::ptrdiff_t n) {
  for (std::ptrdiff_t i = 0; i < n; ++i) col[i] = accOf<A>(row[i]);
}
template <class T, class A>
void colAdd(const T* row, A* col, std::ptrdiff_t n) {
  for (std::ptrdiff_t i = 0; i < n; ++i) col[i] = accAdd(col[i], accOf<A>(row[i]));
}
template <class T, class A>
void colSlideScalar(const T* in, const T* out, A* col, std::ptrdiff_t n) {
  for (std::ptrdiff_t i = 0; i < n; ++i) col[i] = accSlide(col[i], accOf<A>(in[i]), accOf<A>(out[i]));
}

// One destination row from the column sums of its source rows: per written channel, the sum
// of the first mw column sums, then one running sum slid along the row.
template <class T, class A, class L>
void boxRowScalar(const A* col, T* dst, int width, int mw, const BoxScale& sc, A* = nullptr) {
  constexpr int kCh = L::kCh;
  for (int c = 0; c < L::kUse; ++c) {
    const A* p = col + c;
    A sum = p[0];
    for (int k = 1; k < mw; ++k) sum = accAdd(sum, p[elemsOf(k, kCh)]);
    dst[c] = normalise<T, A>(sum, sc);
    for (int x = 1; x < width; ++x) {
      sum = accSlide(sum, p[elemsOf(x + mw - 1, kCh)], p[elemsOf(x - 1, kCh)]);
      dst[elemsOf(x, kCh) + c] = normalise<T, A>(sum, sc);
    }
  }
}

template <class T, class A>
using ColSlideFn = void (*)(const T*, const T*, A*, std::ptrdiff_t);
// col, dst, width, mask width, scale, work row (room for width + mask width + 128 sums)
template <class T, class A>
using BoxRowFn = void (*)(const A*, T*, int, int, const BoxScale&, A*);

}  // namespace box
}  // namespace lumi
