// Fixed-kernel filters: the kernel descriptions (one table entry per filter and mask size) and
// the plain per-pixel arithmetic that the scalar twins, and the vector kernels' row tails, use.
#pragma once

#include <cstdint>
#include <type_traits>

#include "core/frame.h"

namespace lumi {
namespace fixed {

enum class Kind : int {
  PrewittVert, PrewittHoriz, SobelVert, SobelHoriz, SobelVertSecond, SobelHorizSecond, SobelCross,
  ScharrVert, ScharrHoriz, Laplace, Hipass, Gauss, Lowpass, Sharpen, kCount
};

// What follows the integer sum S: nothing (saturation only), division by 16 or 8 with ties to
// even by arithmetic shifts, or division by an odd divisor rounded to nearest (no ties exist).
enum class Post : int { Exact, Even4, Even3, Nearest };
// What follows the float sum: nothing, a product with a power-of-two reciprocal, a division.
enum class FPost : int { None, Scale, Divide };

// Kernels the vector code has with constant weights.
enum class Hot : int { None, Gauss3, SobelVert3, SobelHoriz3, ScharrVert, ScharrHoriz, Laplace3, Gauss5, Laplace5 };

struct Tap {
  int r;   // source row 0 .. k - 1 (row y - k/2 + r)
  int dx;  // column offset from the pixel, -k/2 .. k/2
  int w;
  float fw;
};

struct FixedKernel {
  int k = 3;          // 3 or 5
  int w[25] = {};     // integer weights, top row first
  Post post = Post::Exact;
  int div = 1;        // Nearest: the divisor
  FPost fpost = FPost::None;
  float fval = 1.0f;  // the float scale or divisor
  // w = col (x) row + centre at the middle, when sep is set
  bool sep = false;
  int col[5] = {}, row[5] = {}, centre = 0;
  // 5x5 weights symmetric about both axes (all of them non-negative: symUnsigned)
  bool sym = false, symUnsigned = false;
  int m5 = 0;
  Hot hot = Hot::None;  // 2^16 x 8 / div, for the quotient estimate of their 16-bit row pass
  // 16-bit nearest division of non-negative sums: ((S + bias) x m) >> (16 + sh)
  int bias16 = 0, m16 = 0, sh16 = 0;
  int nTaps = 0;
  Tap taps[25];       // the nonzero weights, top row first, left to right
};

const FixedKernel& kernelOf(Kind kind, bool five);

inline int32_t floorDiv(int32_t a, int32_t b) {  // b > 0
  return a >= 0 ? a / b : -((-a + b - 1) / b);
}

// The integer sum to the destination pixel.
template <class Td>
inline Td finishInt(int32_t s, const FixedKernel& fk) {
  switch (fk.post) {
    case Post::Exact: break;
    case Post::Even4: s = (s + 7 + ((s >> 4) & 1)) >> 4; break;
    case Post::Even3: s = (s + 3 + ((s >> 3) & 1)) >> 3; break;
    case Post::Nearest:
      if (std::is_same_v<Td, Lum8u> && fk.div == 9)
        s = ((s + 5) * 7281) >> 16;  // S / 9 to nearest over the whole 8u range
      else
        s = floorDiv(2 * s + fk.div, 2 * fk.div);
      break;
  }
  return saturate<Td>(s);
}

inline float finishFloat(float s, const FixedKernel& fk) {
  if (fk.fpost == FPost::Scale) return s * fk.fval;
  if (fk.fpost == FPost::Divide) return s / fk.fval;
  return s;
}

// Element i of a destination row; rows[r] is column 0 of source row y - k/2 + r.
template <class Ts, class Td, int kCh>
inline Td fixedAt(const Ts* const* rows, std::ptrdiff_t i, const FixedKernel& fk) {
  if constexpr (std::is_floating_point_v<Ts>) {
    float s = 0.0f;
    for (int t = 0; t < fk.nTaps; ++t) {
      const Tap& p = fk.taps[t];
      s += p.fw * rows[p.r][i + static_cast<std::ptrdiff_t>(p.dx) * kCh];
    }
    return finishFloat(s, fk);
  } else {
    int32_t s = 0;
    for (int t = 0; t < fk.nTaps; ++t) {
      const Tap& p = fk.taps[t];
      s += p.w * static_cast<int32_t>(rows[p.r][i + static_cast<std::ptrdiff_t>(p.dx) * kCh]);
    }
    return finishInt<Td>(s, fk);
  }
}

// Elements [from, n) of a destination row, alpha left alone.
template <class Ts, class Td, class L>
inline void fixedFrom(const Ts* const* rows, Td* dst, std::ptrdiff_t from, std::ptrdiff_t n,
                      const FixedKernel& fk) {
  for (std::ptrdiff_t i = from; i < n; ++i) {
    if (L::kUse != L::kCh && (i & 3) == 3) continue;
    dst[i] = fixedAt<Ts, Td, L::kCh>(rows, i, fk);
  }
}

// Roberts: a - b, saturated for the integer types.
template <class T>
inline T robertsAt(T a, T b) {
  if constexpr (std::is_floating_point_v<T>)
    return a - b;
  else
    return saturate<T>(static_cast<int32_t>(a) - static_cast<int32_t>(b));
}
template <class T, class L>
inline void robertsFrom(const T* a, const T* b, T* dst, std::ptrdiff_t from, std::ptrdiff_t n) {
  for (std::ptrdiff_t i = from; i < n; ++i) {
    if (L::kUse != L::kCh && (i & 3) == 3) continue;
    dst[i] = robertsAt(a[i], b[i]);
  }
}

}  // namespace fixed
}  // namespace lumi
