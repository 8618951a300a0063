// General linear filters: the scale record derived from the divisor, the finishing step of one
// sum, and the plain kernel that computes a destination row straight from the definition.
//
// Every destination pixel reads a window of kh source rows and kw pixels per row. The kernels
// get `win`, the window's top-left pixel for destination pixel 0 of the row, and walk the source
// forward (rows down, pixels right) while they walk the kernel backward from its last element:
// the tap for window cell (ii, jj) is K[kh - 1 - ii][kw - 1 - jj], i.e. element
// kh * kw - 1 - (ii * kw + jj) of the row-major kernel. That is the mirrored application.
#pragma once

#include <cmath>
#include <cstdint>
#include <type_traits>

#include "core/frame.h"

namespace lumi {
namespace linear {

// What to do with a sum: integer kernels by their divisor, 32f kernels by the pixel type.
enum class Mode { kNone, kShift, kMultiply, kFloat };

struct Scale {
  Mode mode = Mode::kNone;
  int k = 0;       // kShift: divisor 2^k
  float r = 1.0f;  // kMultiply: 1 / divisor in single precision
};

inline Scale scaleOf(int divisor) {
  Scale s;
  if (divisor == 1) return s;
  if (divisor > 1 && (divisor & (divisor - 1)) == 0) {
    s.mode = Mode::kShift;
    while ((1 << s.k) != divisor) ++s.k;
    return s;
  }
  s.mode = Mode::kMultiply;
  s.r = 1.0f / static_cast<float>(divisor);
  return s;
}

// The accumulator of a kernel type: 32-bit integers (which wrap, as the hardware does) or
// single precision.
template <class K>
using Acc = std::conditional_t<std::is_same_v<K, float>, float, int32_t>;

template <class T>
constexpr float lowOf() {
  return std::is_same_v<T, Lum8u> ? 0.0f : -32768.0f;
}
template <class T>
constexpr float highOf() {
  return std::is_same_v<T, Lum8u> ? 255.0f : 32767.0f;
}

// A float clamped to T's range, then rounded to nearest (the caller holds round-to-nearest, so
// ties go to even).
template <class T>
T roundClamp(float v) {
  v = v > lowOf<T>() ? v : lowOf<T>();
  v = v < highOf<T>() ? v : highOf<T>();
  return static_cast<T>(std::nearbyint(v));
}

// One sum to one pixel.
template <class T>
T finish(float sum, const Scale&) {
  if constexpr (std::is_same_v<T, Lum32f>)
    return sum;
  else
    return roundClamp<T>(sum);
}
template <class T>
T finish(int32_t sum, const Scale& sc) {
  switch (sc.mode) {
    case Mode::kShift: {
      // 8u: a sum below 1 gives 0; 16s: the same formula for negative sums (arithmetic shift)
      if (std::is_same_v<T, Lum8u> && sum < 1) return 0;
      const int64_t q = (static_cast<int64_t>(sum) + (int64_t{1} << (sc.k - 1))) >> sc.k;
      return saturate<T>(q);
    }
    case Mode::kMultiply:
      return roundClamp<T>(static_cast<float>(sum) * sc.r);
    default:
      return saturate<T>(sum);
  }
}

// Product of one tap and one pixel, added to the sum: integers modulo 2^32.
inline int32_t accumulate(int32_t acc, int32_t tap, int32_t pixel) {
  return static_cast<int32_t>(static_cast<uint32_t>(acc) +
                              static_cast<uint32_t>(tap) * static_cast<uint32_t>(pixel));
}
inline float accumulate(float acc, float tap, float pixel) { return acc + tap * pixel; }

// The sum for element e of the row (the window of that element's pixel, its channel).
template <class T, class K, int kCh>
Acc<K> windowSum(const T* win, int srcStep, std::ptrdiff_t e, const K* kernel, int kw, int kh) {
  using A = Acc<K>;
  const K* tap = kernel + (static_cast<std::ptrdiff_t>(kw) * kh - 1);
  A acc = A(0);
  for (int ii = 0; ii < kh; ++ii) {
    const T* p = rowAt(win, srcStep, ii) + e;
    for (int jj = 0; jj < kw; ++jj, --tap)
      acc = accumulate(acc, *tap, static_cast<A>(p[elemsOf(jj, kCh)]));
  }
  return acc;
}

// Elements [from, n) of a destination row, alpha elements of AC4 left alone.
template <class T, class K, class L>
void linearFrom(const T* win, int srcStep, T* dst, std::ptrdiff_t from, std::ptrdiff_t n,
                const K* kernel, int kw, int kh, const Scale& sc) {
  for (std::ptrdiff_t e = from; e < n; ++e) {
    if (L::kUse != L::kCh && (e & 3) == 3) continue;
    dst[e] = finish<T>(windowSum<T, K, L::kCh>(win, srcStep, e, kernel, kw, kh), sc);
  }
}

template <class T, class K>
using LinearRowFn = void (*)(const T*, int, T*, int, const K*, int, int, const Scale&);

// The plain kernel: one destination row of width pixels.
template <class T, class K, class L>
void linearRowScalar(const T* win, int srcStep, T* dst, int width, const K* kernel, int kw, int kh,
                     const Scale& sc) {
  linearFrom<T, K, L>(win, srcStep, dst, 0, elemsOf(width, L::kCh), kernel, kw, kh, sc);
}

}  // namespace linear
}  // namespace lumi
