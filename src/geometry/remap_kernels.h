// Scalar twins of the remap row kernels, and what they share with the vector kernels: the
// source box and the ties-to-even rounding of non-negative floats.
#pragma once

#include <cmath>

#include "core/frame.h"
#include "geometry/cubic.h"

namespace lumi {
namespace remap {

// The source ROI cut to the image, inclusive, as integers and as floats (map points are
// compared in float), and what a vector gather may read: `limit` is one past the image's last
// byte, and gathers with 32-bit offsets are allowed when the whole image lies below 2^31 bytes.
struct Box {
  int x0, y0, x1, y1;
  float fx0, fy0, fx1, fy1;
  std::ptrdiff_t limit;
  bool gather32;
};

// A point inside the box; NaN is outside.
inline bool inside(const Box& b, float x, float y) {
  return x >= b.fx0 && x <= b.fx1 && y >= b.fy0 && y <= b.fy1;
}

// rint for v >= 0 whatever the processor's rounding mode: ties go to the even neighbour. The
// fraction v - trunc(v) is exact in float.
inline int roundEven(float v) {
  const int i = static_cast<int>(v);
  const float f = v - static_cast<float>(i);
  return i + static_cast<int>(f > 0.5f) + (static_cast<int>(f == 0.5f) & i & 1);  // no branches
}

constexpr int kOne = 16384;  // 1.0 in the 14-bit weights of the integer linear kernels

template <class T, class L>
void nearestRowScalar(const T* src, int step, const Box& b, const float* mx, const float* my,
                      T* dst, int width) {
  for (int x = 0; x < width; ++x) {
    if (!inside(b, mx[x], my[x])) continue;
    const T* p = rowAt(src, step, roundEven(my[x])) + elemsOf(roundEven(mx[x]), L::kCh);
    T* d = dst + elemsOf(x, L::kCh);
    for (int c = 0; c < L::kUse; ++c) d[c] = p[c];
  }
}

// The top-left of the four pixels and the position's offsets from it: ix = trunc(x), moved
// back one column when it is x1 (the offset then is 1); likewise for rows.
inline void linearCell(const Box& b, float x, float y, int* ix, int* iy, float* fx, float* fy) {
  *ix = static_cast<int>(x);
  *iy = static_cast<int>(y);
  if (*ix == b.x1) --*ix;
  if (*iy == b.y1) --*iy;
  *fx = x - static_cast<float>(*ix);
  *fy = y - static_cast<float>(*iy);
}

// 8u and 16u: 14-bit weights; rows combined with >> 8, columns with + 33 and >> 20 (in 64
// bits for 16u, whose row results reach 22 bits).
template <class T, class L>
void linearRowScalar(const T* src, int step, const Box& b, const float* mx, const float* my,
                     T* dst, int width) {
  for (int x = 0; x < width; ++x) {
    if (!inside(b, mx[x], my[x])) continue;
    int ix, iy;
    float fx, fy;
    linearCell(b, mx[x], my[x], &ix, &iy, &fx, &fy);
    const T* p0 = rowAt(src, step, iy) + elemsOf(ix, L::kCh);
    const T* p1 = rowAt(src, step, iy + 1) + elemsOf(ix, L::kCh);
    T* d = dst + elemsOf(x, L::kCh);
    if constexpr (std::is_floating_point_v<T>) {
      for (int c = 0; c < L::kUse; ++c) {
        const float h0 = p0[c] * (1 - fx) + p0[c + L::kCh] * fx;
        const float h1 = p1[c] * (1 - fx) + p1[c + L::kCh] * fx;
        d[c] = h0 * (1 - fy) + h1 * fy;
      }
    } else {
      const int wx = roundEven(fx * kOne), wy = roundEven(fy * kOne);
      for (int c = 0; c < L::kUse; ++c) {
        const int h0 = ((kOne - wx) * p0[c] + wx * p0[c + L::kCh]) >> 8;
        const int h1 = ((kOne - wx) * p1[c] + wx * p1[c + L::kCh]) >> 8;
        if constexpr (sizeof(T) == 1)
          d[c] = static_cast<T>((h0 * (kOne - wy) + h1 * wy + 33) >> 20);
        else
          d[c] = static_cast<T>((static_cast<int64_t>(h0) * (kOne - wy) + static_cast<int64_t>(h1) * wy + 33) >> 20);
      }
    }
  }
}

// floor(v + 0.5) saturated to an unsigned integer type, without a library call.
template <class T>
inline T roundUpSaturate(float v) {
  using Lim = std::numeric_limits<T>;
  if (!(v > 0.0f)) return 0;
  if (v >= static_cast<float>(Lim::max())) return Lim::max();
  return static_cast<T>(static_cast<int>(v + 0.5f));  // positive: truncation is floor
}

// The 4-point cubic through columns and rows -1 .. +2 of trunc(x), trunc(y), clamped to the
// box; rows first, in float.
template <class T, class L>
void cubicRowScalar(const T* src, int step, const Box& b, const float* mx, const float* my,
                    T* dst, int width) {
  auto clamp = [](int v, int lo, int hi) { return v < lo ? lo : (v > hi ? hi : v); };
  for (int x = 0; x < width; ++x) {
    if (!inside(b, mx[x], my[x])) continue;
    const int ix = static_cast<int>(mx[x]), iy = static_cast<int>(my[x]);
    const auto kx = geometry::cubicCoeffs(mx[x] - static_cast<float>(ix));
    const auto ky = geometry::cubicCoeffs(my[x] - static_cast<float>(iy));
    std::ptrdiff_t cols[4];
    const T* rows[4];
    for (int k = 0; k < 4; ++k) {
      cols[k] = elemsOf(clamp(ix - 1 + k, b.x0, b.x1), L::kCh);
      rows[k] = rowAt(src, step, clamp(iy - 1 + k, b.y0, b.y1));
    }
    T* d = dst + elemsOf(x, L::kCh);
    for (int c = 0; c < L::kUse; ++c) {
      float h[4];
      for (int k = 0; k < 4; ++k) {
        const T* r = rows[k] + c;
        h[k] = geometry::cubicNewton<float>(r[cols[0]], r[cols[1]], r[cols[2]], r[cols[3]], kx);
      }
      const float v = geometry::cubicNewton<float>(h[0], h[1], h[2], h[3], ky);
      if constexpr (std::is_floating_point_v<T>)
        d[c] = v;
      else
        d[c] = roundUpSaturate<T>(v);
    }
  }
}

}  // namespace remap
}  // namespace lumi
