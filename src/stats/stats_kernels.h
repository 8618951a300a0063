// Statistics kernels shared by the norm, sum and extrema functions: the plain scalar row
// reductions from a given column on (the vector kernels finish their rows with them, and the
// scalar twins are these from column 0), the double-precision 32f sums of norm.cpp and
// sum.cpp, and the entry points of the dispatched whole-ROI reductions of reduce.cpp.
#pragma once

#include "core/frame.h"

#include <cmath>
#include <cstdint>
#include <cstdlib>

namespace lumi {
namespace stats {

// Per-element quantity reduced over the ROI.
enum ReduceOp : int {
  kOpMax = 0,    // largest magnitude (Inf norm)
  kOpAbs = 1,    // sum of magnitudes (L1)
  kOpSq = 2,     // sum of squares (L2)
  kOpPlain = 3,  // signed sum (Sum, Mean)
};

constexpr double kSmallestNormal = 2.2250738585072014e-308;

// ---- integer types ---------------------------------------------------------------------------
// Magnitude of one sample (or of the exact difference of two) as an unsigned 32-bit value.
template <class T>
inline uint32_t magnitude(T a) {
  int32_t v = a;
  return static_cast<uint32_t>(v < 0 ? -v : v);
}
template <class T>
inline uint32_t magnitude(T a, T b) {
  int32_t v = static_cast<int32_t>(a) - static_cast<int32_t>(b);
  return static_cast<uint32_t>(v < 0 ? -v : v);
}

// Adds the per-channel quantity of `count` pixels starting at pixel x0 into acc[0..kCh-1]
// (modulo 2^64; a signed sum reads back as int64). b is null unless the difference is taken.
template <class T, int kOp, bool kDiff, int kCh>
inline void intRowFrom(const T* a, const T* b, int x0, int width, uint64_t* acc) {
  for (int x = x0; x < width; ++x) {
    for (int c = 0; c < kCh; ++c) {
      const std::ptrdiff_t i = elemsOf(x, kCh) + c;
      if constexpr (kOp == kOpPlain) {
        acc[c] += static_cast<uint64_t>(static_cast<int64_t>(a[i]));
      } else {
        uint64_t m = kDiff ? magnitude<T>(a[i], b[i]) : magnitude<T>(a[i]);
        if constexpr (kOp == kOpMax)
          acc[c] = m > acc[c] ? m : acc[c];
        else if constexpr (kOp == kOpAbs)
          acc[c] += m;
        else
          acc[c] += m * m;
      }
    }
  }
}

// ---- 32f, single-precision path ---------------------------------------------------------
// Each channel owns four float lanes (lanes[c*4 + k]). Along a row, samples go four at a time
// into lanes 0..3, then a pair of leftovers into lanes 0 and 1, then a last one into lane 0.
template <int kOp, bool kDiff>
inline float f32Term(float a, float b) {
  float v = kDiff ? a - b : a;
  if constexpr (kOp == kOpAbs) return std::fabs(v);
  if constexpr (kOp == kOpSq) return v * v;
  return v;
}

template <int kOp, bool kDiff, int kCh>
inline void f32TailLanes(const float* a, const float* b, int x, int width, float* lanes) {
  int r = width - x;
  for (int c = 0; c < kCh; ++c) {
    int xx = x;
    if (r >= 2) {
      for (int k = 0; k < 2; ++k, ++xx) {
        const std::ptrdiff_t i = elemsOf(xx, kCh) + c;
        lanes[c * 4 + k] += f32Term<kOp, kDiff>(a[i], kDiff ? b[i] : 0.0f);
      }
    }
    if (r & 1) {
      const std::ptrdiff_t i = elemsOf(xx, kCh) + c;
      lanes[c * 4] += f32Term<kOp, kDiff>(a[i], kDiff ? b[i] : 0.0f);
    }
  }
}

template <int kOp, bool kDiff, int kCh>
inline void f32LanesRowScalar(const float* a, const float* b, int width, float* lanes) {
  int x = 0;
  for (; x + 4 <= width; x += 4)
    for (int c = 0; c < kCh; ++c)
      for (int k = 0; k < 4; ++k) {
        const std::ptrdiff_t i = elemsOf(x + k, kCh) + c;
        lanes[c * 4 + k] += f32Term<kOp, kDiff>(a[i], kDiff ? b[i] : 0.0f);
      }
  f32TailLanes<kOp, kDiff, kCh>(a, b, x, width, lanes);
}

// Largest |x| (or |a - b|) per channel in single precision.
template <bool kDiff, int kCh>
inline void f32MaxAbsFrom(const float* a, const float* b, int x0, int width, float* m) {
  for (int x = x0; x < width; ++x)
    for (int c = 0; c < kCh; ++c) {
      const std::ptrdiff_t i = elemsOf(x, kCh) + c;
      float v = std::fabs(kDiff ? a[i] - b[i] : a[i]);
      m[c] = v > m[c] ? v : m[c];
    }
}

// ---- extrema and range counts -------------------------------------------------------
// Running minimum (kMin) and/or maximum (kMax) of pixels x0.. of a row.
template <class T, int kCh, bool kMin, bool kMax>
inline void minMaxFrom(const T* p, int x0, int width, T* mn, T* mx) {
  for (int x = x0; x < width; ++x)
    for (int c = 0; c < kCh; ++c) {
      T v = p[elemsOf(x, kCh) + c];
      if (kMin) mn[c] = v < mn[c] ? v : mn[c];
      if (kMax) mx[c] = v > mx[c] ? v : mx[c];
    }
}

// lower <= x and x <= upper, built so that a NaN sample never counts.
template <class T>
inline bool inRange(T v, T lo, T hi) {
  return !(v < lo) && v <= hi;
}

// Counts the layout's own channels (AC4: the three colour ones).
template <class T, class L>
inline void countFrom(const T* p, int x0, int width, const T* lo, const T* hi, int64_t* n) {
  for (int x = x0; x < width; ++x)
    for (int c = 0; c < L::kUse; ++c) n[c] += inRange(p[elemsOf(x, L::kCh) + c], lo[c], hi[c]);
}

// ---- 32f, double-precision path ----------------------------------------------------------
// Per channel, one sum over the even and one over the odd columns (an odd last sample goes to
// the even sum), added at the end. kRowSums: every row first sums into its own pair, which is
// then added to the totals (the norms); otherwise the totals run across all rows (the sums).
template <int kOp, bool kDiff, int kCh, bool kRowSums>
void f64EvenOdd(const float* a, int aStep, const float* b, int bStep, LumiSize roi, double* out) {
  auto term = [](const float* p, const float* q, std::ptrdiff_t i) {
    const double v = kDiff ? static_cast<double>(p[i]) - static_cast<double>(q[i]) : p[i];
    if constexpr (kOp == kOpSq) return v * v;
    if constexpr (kOp == kOpAbs) return std::fabs(v);
    return v;
  };
  double even[4] = {0, 0, 0, 0}, odd[4] = {0, 0, 0, 0};
  for (int y = 0; y < roi.height; ++y) {
    const float* ra = rowAt(a, aStep, y);
    const float* rb = kDiff ? rowAt(b, bStep, y) : nullptr;
    double rowEven[4] = {0, 0, 0, 0}, rowOdd[4] = {0, 0, 0, 0};
    double* e = kRowSums ? rowEven : even;
    double* o = kRowSums ? rowOdd : odd;
    int x = 0;
    for (; x + 2 <= roi.width; x += 2)
      for (int c = 0; c < kCh; ++c) {
        e[c] += term(ra, rb, elemsOf(x, kCh) + c);
        o[c] += term(ra, rb, elemsOf(x + 1, kCh) + c);
      }
    if (x < roi.width)
      for (int c = 0; c < kCh; ++c) e[c] += term(ra, rb, elemsOf(x, kCh) + c);
    if constexpr (kRowSums)
      for (int c = 0; c < kCh; ++c) {
        even[c] += rowEven[c];
        odd[c] += rowOdd[c];
      }
  }
  for (int c = 0; c < kCh; ++c) out[c] = kRowSums ? even[c] + odd[c] : odd[c] + even[c];
}

// The same for a run-time channel count (1, 3 or 4).
template <int kOp, bool kDiff, bool kRowSums>
void f64EvenOdd(int ch, const float* a, int aStep, const float* b, int bStep, LumiSize roi,
                double* out) {
  if (ch == 1) f64EvenOdd<kOp, kDiff, 1, kRowSums>(a, aStep, b, bStep, roi, out);
  else if (ch == 3) f64EvenOdd<kOp, kDiff, 3, kRowSums>(a, aStep, b, bStep, roi, out);
  else f64EvenOdd<kOp, kDiff, 4, kRowSums>(a, aStep, b, bStep, roi, out);
}

// ---- dispatched whole-ROI reductions (reduce.cpp) ------------------------------------------
// acc[c] receives the running maximum or the modular sum; it is not cleared here.
template <class T>
void reduceInt(const T* a, int aStep, const T* b, int bStep, LumiSize roi, int op, int ch,
               uint64_t* acc);
// lanes[c*4 + k]: single-precision lanes per channel, accumulated row after row.
void reduceF32Lanes(const float* a, int aStep, const float* b, int bStep, LumiSize roi, int op,
                    int ch, float* lanes);
void maxAbsF32(const float* a, int aStep, const float* b, int bStep, LumiSize roi, int ch,
               float* m);

// Combination of a channel's four lanes in single precision: (s0 + s1) + (s2 + s3).
inline double combineLanes(const float* l) { return static_cast<double>((l[0] + l[1]) + (l[2] + l[3])); }

}  // namespace stats
}  // namespace lumi
